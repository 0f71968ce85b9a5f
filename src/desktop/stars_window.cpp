#include "desktop/stars_window.h"

#include "analysis/stars_profile.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "desktop/window_size.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {
namespace {

constexpr int points = 10;
constexpr int windowWidth = 13200; ///< twips
constexpr int windowHeight = 8600;
constexpr int listWidth = 1500;
constexpr int fieldWidth = 1500;

/// A list of the window, in the order in which they are gone through.
struct StarList {
    ChoiceList Screen::*list;
    CommandId command;
};

// clang-format off
constexpr std::array starLists{
    StarList{&Screen::marginList,  CommandId::MarginChoice},
    StarList{&Screen::oddsList,    CommandId::OddsChoice},
    StarList{&Screen::maxOddsList, CommandId::MaxOddsChoice},
};

constexpr std::array fieldNames{
    "Races", "Wins", "Win Percentage", "Total Bet", "Total Return", "Net", "ROI", "Average Payoff",
};
// clang-format on

/// Whether the list shows a choice on its button, to be picked once more.
bool hasChoice(const ChoiceList& list) {
    const bool isLine = std::find(list.lines.begin(), list.lines.end(), list.caption) != list.lines.end();
    return list.visible && isLine;
}

} // namespace

// --- The window --------------------------------------------------------------------------------------------

StarsWindow::StarsWindow(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent, Qt::Window}, runner_{runner}, appearance_{appearance} {
    setObjectName("StarsWindow");
    setWindowTitle(shown(starsCaption));
    auto* column = new QVBoxLayout{this};
    auto* middle = new QHBoxLayout;
    auto* bottom = new QHBoxLayout;
    buildLists(*middle);
    buildTable(*middle);
    buildFields(*bottom);
    column->addLayout(middle, 1);
    column->addLayout(bottom);
    buildShortcuts();
    connect(&appearance_, &Appearance::changed, this, &StarsWindow::lay);
    lay();
    resizeWithinScreen(*this, {appearance_.pixels(windowWidth), appearance_.pixels(windowHeight)});
}

void StarsWindow::buildLists(QHBoxLayout& row) {
    for (std::size_t at = 0; at < lists; ++at) {
        const StarList& list = starLists.at(at);
        auto* stack = new QVBoxLayout;
        auto* button = new QPushButton{this};
        button->setObjectName(nameOf(list.command) + "Button");
        button->setToolTip(tipOf(list.command));
        connect(button, &QPushButton::clicked, this, [this, at] { openList(at); });
        auto* lines = new PickList{this};
        lines->setObjectName(nameOf(list.command));
        setCommand(*lines, list.command);
        lines->setAccessibleName(captionOf(list.command));
        lines->setToolTip(tipOf(list.command));
        QSizePolicy place = lines->sizePolicy();
        place.setRetainSizeWhenHidden(true); // a list that closes moves nothing
        lines->setSizePolicy(place);
        connect(lines, &PickList::picked, this, [this, at](int picked) { pick(at, picked); });
        stack->addWidget(button);
        stack->addWidget(lines, 1);
        row.addLayout(stack);
        columns_.at(at) = {button, lines};
    }
}

void StarsWindow::buildTable(QHBoxLayout& row) {
    table_ = new CellTableView{appearance_, shown(starsCaption), this};
    table_->setObjectName("StarsTable");
    table_->setFonts(9, points, false);
    table_->setViewLayout(starsLayout());
    table_->show(&theScreen.stars);
    row.addWidget(table_, 1);
}

void StarsWindow::buildFields(QHBoxLayout& row) {
    for (std::size_t at = 0; at < fields; ++at) {
        auto* stack = new QVBoxLayout;
        stack->setSpacing(1);
        auto* name = new QLabel{tr(fieldNames.at(at)), this};
        name->setTextFormat(Qt::PlainText);
        names_.at(at) = name;
        auto* field = new QLineEdit{this};
        field->setObjectName(QString{"Text%1"}.arg(at + 1));
        field->setAccessibleName(tr(fieldNames.at(at)));
        field->setReadOnly(true);
        field->setAlignment(Qt::AlignRight);
        stack->addWidget(name);
        stack->addWidget(field);
        row.addLayout(stack);
        fields_.at(at) = field;
    }
    row.addStretch(1);
    startOver_ = new QPushButton{tr("Start &Over"), this};
    startOver_->setObjectName("StarsStartOver");
    setCommand(*startOver_, CommandId::Star);
    startOver_->setToolTip(tr("All recorded races again, and the lists from the first one"));
    connect(startOver_, &QPushButton::clicked, this, [this] {
        runner_.run(CommandId::Star);
        columns_.front().list->setFocus();
    });
    row.addWidget(startOver_, 0, Qt::AlignBottom);
}

// The menus' shortcuts end at the window of the races.
void StarsWindow::buildShortcuts() {
    const auto add = [this](const QList<QKeySequence>& keys, auto&& slot) {
        for (const QKeySequence& key : keys)
            connect(new QShortcut{key, this}, &QShortcut::activated, this, slot);
    };
    add({QKeySequence{Qt::Key_Escape}, QKeySequence::Close}, [this] { close(); });
    add({QKeySequence{"Ctrl++"}, QKeySequence{"Ctrl+="}}, [this] { appearance_.zoomBy(1); });
    add({QKeySequence{"Ctrl+-"}}, [this] { appearance_.zoomBy(-1); });
    add({QKeySequence{"Ctrl+0"}}, [this] { appearance_.setZoom(100); });
}

void StarsWindow::lay() {
    for (const Column& column : columns_) {
        column.button->setFont(appearance_.viewFont(points, true));
        column.list->setFont(appearance_.viewFont(points, false));
        column.list->setFixedWidth(appearance_.pixels(listWidth));
    }
    for (QLabel* name : names_) name->setFont(appearance_.viewFont(points, false));
    startOver_->setFont(appearance_.viewFont(points, true));
    for (QLineEdit* field : fields_) {
        field->setFont(appearance_.fixedFont(points));
        const int text = QFontMetrics{field->font()}.horizontalAdvance("$000000.00") + 16;
        field->setFixedWidth(std::max(appearance_.pixels(fieldWidth), text));
    }
}

// --- The lists ---------------------------------------------------------------------------------------------

void StarsWindow::pick(std::size_t at, int row) {
    const StarList& list = starLists.at(at);
    const auto& lines = (theScreen.*list.list).lines;
    if (row < 0 || row >= static_cast<int>(lines.size())) return;
    const Text line = lines[static_cast<std::size_t>(row)];
    if (!runner_.run(list.command, textArgument(line))) return;
    const bool isLast = at + 1 == lists;
    if (isLast) return;
    if ((theScreen.*starLists.at(at + 1).list).visible) columns_.at(at + 1).list->setFocus();
}

// A list is opened by the choice in the one before it, so that choice is made once more; the first one opens
// with the profile.
bool StarsWindow::canOpen(std::size_t at) const {
    if ((theScreen.*starLists.at(at).list).visible) return true;
    return at == 0 || hasChoice(theScreen.*starLists.at(at - 1).list);
}

void StarsWindow::openList(std::size_t at) {
    if (!(theScreen.*starLists.at(at).list).visible) {
        if (at == 0)
            runner_.run(CommandId::Star);
        else if (const Text choice = (theScreen.*starLists.at(at - 1).list).caption; canOpen(at))
            runner_.run(starLists.at(at - 1).command, textArgument(choice));
    }
    columns_.at(at).list->setFocus();
}

void StarsWindow::refreshLists() {
    for (std::size_t at = 0; at < lists; ++at) {
        const ChoiceList& list = theScreen.*starLists.at(at).list;
        Column& column = columns_.at(at);
        const QString caption = shown(list.caption);
        column.button->setText(caption);
        column.button->setAccessibleName(tr("%1: %2").arg(captionOf(starLists.at(at).command), caption));
        column.button->setEnabled(canOpen(at));
        column.list->showLines(list);
        column.list->setVisible(list.visible);
        if (list.visible && !column.wasVisible) {
            if (column.list->currentRow() < 0) column.list->setCurrentRow(0);
            column.list->setFocus();
        }
        column.wasVisible = list.visible;
    }
}

void StarsWindow::refresh() {
    table_->refresh();
    if (!theScreen.starsVisible) {
        for (Column& column : columns_) column.wasVisible = false;
        return hide();
    }
    refreshLists();
    for (std::size_t at = 0; at < fields; ++at)
        fields_.at(at)->setText(shown(theScreen.starsFields.at(at + 1)));
    startOver_->setEnabled(CommandRunner::canRun(CommandId::Star));
    if (isVisible()) return;
    show();
    raise();
    activateWindow();
}

void StarsWindow::closeEvent(QCloseEvent* event) {
    // While a command waits for an answer there is no way back yet.
    if (theScreen.starsVisible && !runner_.run(CommandId::MainScreen)) return event->ignore();
    event->accept();
}

} // namespace quillon

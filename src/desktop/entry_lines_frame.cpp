#include "desktop/entry_lines_frame.h"

#include "desktop/cell_table_view.h"
#include "desktop/command_texts.h"
#include "desktop/row_buttons.h"
#include "desktop/shade_legend.h"
#include "desktop/shown_text.h"
#include "results/on_show.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr int headPoints = 9;
constexpr int bodyPoints = 9;
constexpr int headingPoints = 11;
constexpr int legendPoints = 9;
constexpr int lineButtonTwips = 700;

// Marks before a line's number.
constexpr QChar programsMark{0x25CF};   // a disc: the line in use, chosen by the program
constexpr QChar usersMark{0x25B6};      // a pointer: the line in use, taken by the user
constexpr QChar passedOverMark{0x25CB}; // a ring: the program's line, where the user took another

const Grid& entryLines() { return theScreen.dataView[pastPerformanceView]; }

struct LineMark {
    QString mark;
    QString meaning;
};

LineMark markOf(LineUse use) {
    switch (use) {
    case LineUse::taken: return {usersMark, EntryLinesFrame::tr("your line, in place of the program's")};
    case LineUse::inUse: return {programsMark, EntryLinesFrame::tr("the line in use")};
    case LineUse::passedOver: return {passedOverMark, EntryLinesFrame::tr("the program's line")};
    case LineUse::none: break;
    }
    return {};
}

QLabel* plainLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

EntryLinesFrame::EntryLinesFrame(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QFrame{parent}, runner_{runner}, appearance_{appearance} {
    setObjectName("PastPerformances");
    setFrameShape(QFrame::StyledPanel);
    buildTable();
    buildLineButtons();
    auto* lines = new QHBoxLayout;
    lines->setSpacing(0);
    lines->addWidget(buttons_);
    lines->addWidget(table_, 1);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(4, 3, 4, 3);
    column->setSpacing(3);
    column->addWidget(buildHead());
    column->addLayout(lines, 1);
    setTabOrder(lines_.back(), table_);
    setTabOrder(table_, edit_);
    setTabOrder(edit_, close_);
    auto* leave = new QShortcut{Qt::Key_Escape, this};
    leave->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leave, &QShortcut::activated, close_, &QPushButton::click);
    connect(&appearance_, &Appearance::changed, this, &EntryLinesFrame::lay);
    lay();
}

QWidget* EntryLinesFrame::buildHead() {
    auto* head = new QWidget{this};
    heading_ = plainLabel("PastPerformanceHeading", head);
    heading_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    use_ = plainLabel("LineInUse", head);
    shades_ = new ShadeLegend{head};
    edit_ = new QPushButton{tr("Race E&ditor"), head};
    edit_->setObjectName("Command7");
    setCommand(*edit_, CommandId::Command7);
    edit_->setToolTip(tipOf(CommandId::Command7));
    connect(edit_, &QPushButton::clicked, this, [this] { runner_.run(CommandId::Command7); });
    close_ = new QPushButton{tr("&Close"), head};
    close_->setObjectName("LineButton0");
    setCommand(*close_, CommandId::Command3);
    close_->setToolTip(tr("Close the past lines of this entry (Esc)"));
    connect(close_, &QPushButton::clicked, this,
            [this] { runner_.run(CommandId::Command3, numberArgument(0)); });
    auto* row = new QHBoxLayout{head};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    row->addWidget(heading_, 1);
    row->addWidget(use_);
    row->addWidget(shades_);
    row->addWidget(edit_);
    row->addWidget(close_);
    return head;
}

void EntryLinesFrame::buildTable() {
    table_ = new CellTableView{appearance_, tr("Past lines of the entry"), this};
    table_->setObjectName("EntryLines");
    table_->setFonts(headPoints, bodyPoints, false);
    table_->setViewLayout(entryLinesLayout());
    table_->show(&entryLines());
}

void EntryLinesFrame::buildLineButtons() {
    buttons_ = new RowButtons{*table_, appearance_, this};
    const int column = buttons_->addColumn(lineButtonTwips);
    for (int row = Grid::firstRow; row <= lineButtons; ++row) {
        QPushButton* button = buttons_->add(column, row);
        button->setObjectName(QString{"LineButton%1"}.arg(row));
        setCommand(*button, CommandId::Command3);
        connect(button, &QPushButton::clicked, this,
                [this, row] { runner_.run(CommandId::Command3, numberArgument(row)); });
        lines_.push_back(button);
    }
}

void EntryLinesFrame::lay() {
    heading_->setFont(appearance_.viewFont(headingPoints, true));
    use_->setFont(appearance_.viewFont(legendPoints, true));
    shades_->setTextFont(appearance_.viewFont(legendPoints, false));
}

void EntryLinesFrame::refresh() {
    heading_->setText(shown(theScreen.pastPerformanceHeading));
    heading_->setToolTip(heading_->text());
    table_->refresh();
    shades_->showFor(entryLines());
    const LineInUse used = lineInUse();
    refreshUse(used);
    for (int row = Grid::firstRow; row <= lineButtons; ++row) refreshButton(row, used);
    buttons_->align();
}

void EntryLinesFrame::refreshButton(int row, const LineInUse& used) {
    QPushButton& button = *lines_[static_cast<std::size_t>(row - 1)];
    const QString number = shown(lineNumberIn(row));
    const auto [mark, meaning] = markOf(useOf(row, used));
    button.setEnabled(!number.isEmpty());
    button.setText(mark.isEmpty() ? number : mark + ' ' + number);
    button.setToolTip(meaning.isEmpty() ? tr("Take line %1").arg(number)
                                        : tr("Line %1: %2").arg(number, meaning));
    button.setAccessibleName(meaning.isEmpty() ? tr("Take line %1").arg(number)
                                               : tr("Take line %1, %2").arg(number, meaning));
}

void EntryLinesFrame::refreshUse(const LineInUse& used) {
    use_->setVisible(used.row > 0);
    if (used.row == 0) return;
    const QString number = shown(lineNumberIn(used.row));
    QString text = used.byUser ? tr("%1 your line: %2").arg(QString{usersMark}, number)
                               : tr("%1 line in use: %2").arg(QString{programsMark}, number);
    if (used.byUser && used.programsRow > 0)
        text +=
            tr("   %1 the program's: %2").arg(QString{passedOverMark}, shown(lineNumberIn(used.programsRow)));
    use_->setText(text);
}

} // namespace quillon

#include "desktop/past_lines_panel.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "desktop/cell_table_view.h"
#include "desktop/command_texts.h"
#include "desktop/row_buttons.h"
#include "desktop/shown_text.h"
#include "results/board.h"
#include "screen/race_views.h"

#include <QDate>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr int headPoints = 9;
constexpr int bodyPoints = 9;
constexpr int headingPoints = 11;
constexpr int legendPoints = 9;
constexpr int lineButtons = 13;
constexpr int lineButtonTwips = 700;
constexpr int recentDays = 33;
constexpr int olderDays = 50;
constexpr int leastHeight = 2400; ///< twips

// Marks in front of a line's number.
constexpr QChar programsMark{0x25CF};   // a disc: the line in use, chosen by the program
constexpr QChar usersMark{0x25B6};      // a pointer: the line in use, taken by the user
constexpr QChar passedOverMark{0x25CB}; // a ring: the program's line, where the user took another

const Grid& entryLines() { return theScreen.dataView[pastPerformanceView]; }

// "33 days: since 20260209", the dates as the lines have them.
QString withLimit(const QString& shade, int days) {
    constexpr const char* format = "yyyyMMdd";
    const QDate day = QDate::fromString(shown(theScreen.header.date.caption).trimmed(), format);
    return day.isValid() ? EntryLinesFrame::tr("%1: since %2").arg(shade, day.addDays(-days).toString(format))
                         : shade;
}

/// The number that a line is taken by; empty where there is no line.
QString numberIn(int row) {
    if (row < 1 || row >= entryLines().rows()) return {};
    return shown(trimmed(entryLines().text(row, DataColumn::lineNumber)));
}

struct LineMark {
    QString mark;
    QString meaning;
};

LineMark markOf(int row, const LineInUse& used) {
    if (row == used.row && used.byUser)
        return {usersMark, EntryLinesFrame::tr("your line, in place of the program's")};
    if (row == used.row) return {programsMark, EntryLinesFrame::tr("the line in use")};
    if (row == used.programsRow) return {passedOverMark, EntryLinesFrame::tr("the program's line")};
    return {};
}

QLabel* plainLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* swatch(const char* name, Colour colour, QWidget* parent) {
    QLabel* label = plainLabel(name, parent);
    const QColor background = shown(colour);
    label->setStyleSheet(QString{"background-color: %1; color: %2; padding: 1px 6px;"}.arg(
        background.name(), legibleOn(background).name()));
    return label;
}

} // namespace

ShadeLegend::ShadeLegend(QWidget* parent) : QWidget{parent} {
    recent_ = swatch("RecentLines", recentYellow, this);
    recent_->setToolTip(tr("The lines that the rating looks at first: at most 33 days old on the day of the "
                           "card. Where these don't do, older ones are added. The shade begins with an "
                           "entry's latest line whatever its age, and may take in one line more."));
    older_ = swatch("OlderLines", olderCyan, this);
    older_->setToolTip(tr("The lines behind them that are at most 50 days old. The shade may take in one "
                          "line more."));
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(recent_);
    row->addWidget(older_);
}

void ShadeLegend::showFor(const Grid& lines) {
    recent_->setText(withLimit(tr("33 days"), recentDays));
    older_->setText(withLimit(tr("50 days"), olderDays));
    bool anyShade = false;
    for (int row = 1; row < lines.rows() && !anyShade; ++row)
        anyShade = lines.read(row, DataColumn::date).background.has_value();
    setVisible(anyShade);
}

void ShadeLegend::setTextFont(const QFont& font) {
    recent_->setFont(font);
    older_->setFont(font);
}

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
    std::vector<int> widths;
    for (const ViewColumn& column : dataColumns()) widths.push_back(column.width);
    widths.front() = 0; // the names, which the frame's heading tells
    table_->setColumnWidths(std::move(widths));
    table_->setFitted();
    table_->cells().setTailHidden(true);
    table_->show(&entryLines());
}

void EntryLinesFrame::buildLineButtons() {
    buttons_ = new RowButtons{*table_, appearance_, this};
    const int column = buttons_->addColumn(lineButtonTwips);
    for (int row = 1; row <= lineButtons; ++row) {
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
    for (int row = 1; row <= lineButtons; ++row) refreshButton(row, used);
    buttons_->align();
}

void EntryLinesFrame::refreshButton(int row, const LineInUse& used) {
    QPushButton& button = *lines_[static_cast<std::size_t>(row - 1)];
    const QString number = numberIn(row);
    const auto [mark, meaning] = markOf(row, used);
    button.setEnabled(!number.isEmpty());
    button.setText(mark.isEmpty() ? number : mark + ' ' + number);
    button.setToolTip(meaning.isEmpty() ? tipOf(CommandId::Command3, number)
                                        : tr("Line %1: %2").arg(number, meaning));
    button.setAccessibleName(meaning.isEmpty() ? tr("Take line %1").arg(number)
                                               : tr("Take line %1, %2").arg(number, meaning));
}

void EntryLinesFrame::refreshUse(const LineInUse& used) {
    use_->setVisible(used.row > 0);
    if (used.row == 0) return;
    const QString number = numberIn(used.row);
    QString text = used.byUser ? tr("%1 your line: %2").arg(QString{usersMark}, number)
                               : tr("%1 line in use: %2").arg(QString{programsMark}, number);
    if (used.byUser && used.programsRow > 0)
        text += tr("   %1 the program's: %2").arg(QString{passedOverMark}, numberIn(used.programsRow));
    use_->setText(text);
}

PastLinesPanel::PastLinesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, pages_{new QStackedWidget{this}} {
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(pages_);
    entry_ = new EntryLinesFrame{runner, appearance_, pages_};
    racePage_ = buildRacePage();
    pages_->addWidget(racePage_);
    pages_->addWidget(entry_);
    connect(&appearance_, &Appearance::changed, this, &PastLinesPanel::lay);
    lay();
    refresh();
}

QWidget* PastLinesPanel::buildRacePage() {
    auto* page = new QWidget{pages_};
    raceHeading_ = plainLabel("RaceLinesHeading", page);
    raceShades_ = new ShadeLegend{page};
    raceTable_ = new CellTableView{appearance_, tr("Past lines of the race"), page};
    raceTable_->setObjectName("RaceLines");
    raceTable_->setFonts(headPoints, bodyPoints, false);
    raceTable_->setColumnWidths(dataColumns());
    raceTable_->setFitted();
    raceTable_->cells().setTailHidden(true);
    auto* head = new QHBoxLayout;
    head->addWidget(raceHeading_, 1);
    head->addWidget(raceShades_);
    auto* column = new QVBoxLayout{page};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    column->addLayout(head);
    column->addWidget(raceTable_, 1);
    return page;
}

void PastLinesPanel::lay() {
    setMinimumHeight(appearance_.pixels(leastHeight));
    raceHeading_->setFont(appearance_.viewFont(headingPoints, true));
    raceShades_->setTextFont(appearance_.viewFont(legendPoints, false));
}

void PastLinesPanel::refresh() {
    if (theScreen.pastPerformanceOpen)
        entry_->refresh();
    else
        refreshRacePage();
    pages_->setCurrentWidget(theScreen.pastPerformanceOpen ? static_cast<QWidget*>(entry_) : racePage_);
}

void PastLinesPanel::refreshRacePage() {
    const int onShow = raceOnShow();
    const int race = onShow <= ratedRaces ? onShow : 0; // a race beyond has no view
    if (race == race_)
        raceTable_->refresh();
    else
        raceTable_->show(race > 0 ? &theScreen.dataView[static_cast<std::size_t>(race)] : nullptr);
    race_ = race;
    raceHeading_->setText(race > 0 ? tr("Past lines of race %1").arg(race) : QString{});
    raceShades_->setVisible(false);
    if (race > 0) raceShades_->showFor(theScreen.dataView[static_cast<std::size_t>(race)]);
}

} // namespace quillon

#include "desktop/analysis_panel.h"

#include "analysis/profile_cards.h"
#include "analysis/summary.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

/// A button below the tables and the page it belongs to; nullptr is all of them.
struct PageButton {
    CommandId command;
    bool Screen::*page;
};

// clang-format off
constexpr std::array pageButtons{
    PageButton{CommandId::Record,       &Screen::summaryVisible},
    PageButton{CommandId::PrintSummary, &Screen::summaryVisible},
    PageButton{CommandId::ALL,          &Screen::profileVisible},
    PageButton{CommandId::Select,       &Screen::profileVisible},
    PageButton{CommandId::HALF,         &Screen::profileVisible},
    PageButton{CommandId::FIVE,         &Screen::profileVisible},
    PageButton{CommandId::Seven,        &Screen::profileVisible},
    PageButton{CommandId::MILE,         &Screen::profileVisible},
    PageButton{CommandId::QUARTER,      &Screen::profileVisible},
    PageButton{CommandId::Print2,       &Screen::profileVisible},
    PageButton{CommandId::MainScreen,   nullptr},
};

// Widths in twips. A column grows with what its first rows hold; the totals stand there, and no card below them
// has a figure as long as theirs.
constexpr int labelWidth = 1000, numberWidth = 400, moneyWidth = 640, gapWidth = 180;
constexpr int cardWidth = 1560, countWidth = 520, betWidth = 800;
constexpr int trackWidth = 1000, sortedWidth = 1000;
constexpr int wagerWidth = 900;
// clang-format on

constexpr int firstBet = 6;
constexpr int lastBet = 19;

constexpr int pickColumns = 17;
constexpr int firstWager = 11;
constexpr std::array pickGaps{5, 10};

constexpr int firstSizeColumn = 6;
constexpr int lastSizeColumn = 9;
constexpr int lastTrackColumn = 3;

std::vector<int> summaryWidths() {
    constexpr int firstMoney = 11;
    constexpr std::array gaps{5, 10, 14, 20, 21, 25};
    std::vector<int> widths(summaryColumns, moneyWidth);
    std::fill_n(widths.begin(), firstMoney, numberWidth);
    for (const int column : gaps) widths[static_cast<std::size_t>(column)] = gapWidth;
    widths.front() = labelWidth;
    return widths;
}

std::vector<int> profileWidths() {
    std::vector<int> widths(profileColumns, countWidth);
    std::fill(widths.begin() + firstBet, widths.begin() + lastBet + 1, betWidth);
    widths.front() = cardWidth;
    return widths;
}

std::vector<int> pickWidths() {
    std::vector<int> widths(pickColumns, countWidth);
    std::fill(widths.begin() + firstWager, widths.end(), wagerWidth);
    for (const int column : pickGaps) widths[static_cast<std::size_t>(column)] = gapWidth;
    widths.front() = countWidth + gapWidth;
    return widths;
}

} // namespace

AnalysisPanel::AnalysisPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    heading_ = new QLabel{this};
    heading_->setObjectName("AnalysisHeading");
    heading_->setTextFormat(Qt::PlainText);
    stack_ = new QStackedWidget{this};
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    column->addWidget(heading_);
    column->addWidget(stack_, 1);
    column->addLayout(row);

    buildSummary();
    buildProfile();
    buildTracks();
    buildPicks();
    buildButtons(*row);
    connect(&appearance_, &Appearance::changed, this, &AnalysisPanel::lay);
    lay();
}

CellTableView* AnalysisPanel::newTable(const char* name, const QString& accessibleName, const Grid& grid,
                                       const CellRange& range, std::vector<int> widths) {
    auto* table = new CellTableView{appearance_, accessibleName, stack_};
    table->setObjectName(name);
    table->setFonts(9, 10, false);
    table->setColumnWidths(std::move(widths));
    table->show(&grid, range);
    tables_.push_back(table);
    return table;
}

void AnalysisPanel::buildSummary() {
    auto* table =
        newTable("SummaryTable", tr("Selections and results"), theScreen.summary, {}, summaryWidths());
    table->cells().setRightAligned(1, summaryColumns - 1);
    table->cells().setBoldRows(totalsRow, percentagesRow);
    table->setEmptyRowsHidden(); // those of a full card between the last race and the totals
    table->setFirstColumnFrozen();
    stack_->addWidget(table);
    pages_.push_back({&Screen::summaryVisible, captionOf(CommandId::SelectionResults), table, table});
}

void AnalysisPanel::buildProfile() {
    auto* table = newTable("ProfileTable", tr("Betting profile"), theScreen.profile, {}, profileWidths());
    table->cells().setRightAligned(1, profileColumns - 1);
    table->setRoomForBold(); // any card may have won
    table->setFirstColumnFrozen();
    stack_->addWidget(table);
    pages_.push_back({&Screen::profileVisible, tr("Betting Profiles"), table, table});
}

void AnalysisPanel::buildTracks() {
    auto* page = new QWidget{stack_};
    auto* row = new QHBoxLayout{page};
    row->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* name, const QString& accessibleName, int first, int last) {
        std::vector<int> widths(static_cast<std::size_t>(last) + 1, sortedWidth);
        widths[static_cast<std::size_t>(first)] = trackWidth;
        auto* table = newTable(name, accessibleName, theScreen.tracks,
                               {.firstColumn = first, .lastColumn = last}, std::move(widths));
        table->cells().setRightAligned(first + 1, last);
        table->cells().setTailHidden(true);
        table->setSortable();
        row->addWidget(table, 1);
        return table;
    };
    auto* tracks = add("TracksTable", tr("Wins by track"), 0, lastTrackColumn);
    add("SizesTable", tr("Wins by track size"), firstSizeColumn, lastSizeColumn);
    stack_->addWidget(page);
    pages_.push_back({&Screen::tracksVisible, captionOf(CommandId::Track_Profile), page, tracks});
}

void AnalysisPanel::buildPicks() {
    auto* table = newTable("PicksTable", tr("Picks and winners"), theScreen.picks,
                           {.lastColumn = pickColumns - 1}, pickWidths());
    table->cells().setRightAligned(0, pickColumns - 1);
    table->setEmptyRowsHidden();
    stack_->addWidget(table);
    pages_.push_back({&Screen::picksVisible, captionOf(CommandId::Pick3Results), table, table});
}

void AnalysisPanel::buildButtons(QHBoxLayout& row) {
    for (const PageButton& button : pageButtons) {
        if (!button.page) row.addStretch(1); // the way back stands apart
        auto* made = new QPushButton{buttonCaption(button.command), this};
        made->setObjectName("Analysis" + nameOf(button.command));
        setCommand(*made, button.command);
        made->setAccessibleName(captionOf(button.command));
        made->setToolTip(tipOf(button.command));
        connect(made, &QPushButton::clicked, this, [this, id = button.command] { runner_.run(id); });
        row.addWidget(made);
        buttons_.push_back(made);
    }
}

void AnalysisPanel::lay() {
    heading_->setFont(appearance_.viewFont(14, true));
    for (QPushButton* button : buttons_) button->setFont(appearance_.viewFont(10, true));
}

const AnalysisPanel::Page* AnalysisPanel::pageOnShow() const {
    const auto found =
        std::find_if(pages_.begin(), pages_.end(), [](const Page& page) { return theScreen.*page.visible; });
    return found == pages_.end() ? nullptr : &*found;
}

void AnalysisPanel::refreshButtons() {
    for (std::size_t at = 0; at < buttons_.size(); ++at) {
        const PageButton& button = pageButtons.at(at);
        buttons_[at]->setVisible(!button.page || theScreen.*button.page);
        buttons_[at]->setEnabled(CommandRunner::canRun(button.command));
    }
}

void AnalysisPanel::refresh() {
    for (CellTableView* table : tables_) table->refresh();
    refreshButtons();
    const Page* page = pageOnShow();
    if (!page) return;
    // The summary's caption tells track and date; the other tables are of no single card.
    const QString caption = shown(theScreen.caption).simplified();
    const bool isSummary = page->visible == &Screen::summaryVisible;
    heading_->setText(isSummary ? page->title + "     " + caption : page->title);
    const bool opened = stack_->currentWidget() != page->widget || !isVisible();
    stack_->setCurrentWidget(page->widget);
    if (opened) page->table->setFocus();
}

} // namespace quillon

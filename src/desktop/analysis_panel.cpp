#include "desktop/analysis_panel.h"

#include "desktop/cell_table_view.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "screen/view_layouts.h"

#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <optional>

namespace quillon {
namespace {

constexpr int headPoints = 9;
constexpr int bodyPoints = 10;

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

/// A table of a page: its name, what a screen reader says of it, and how it is shown.
struct PageTable {
    const char* name = "";
    const char* accessibleName = "";
    Grid Screen::*cells = nullptr;
    ViewLayout (*layout)() = nullptr;
};

/// A page of the panel, headed by the caption of its command or by words of its own.
struct PageRow {
    bool Screen::*visible;
    std::optional<CommandId> command;
    const char* title;
    bool ofThisCard; ///< the heading tells the card's track and date too
    std::array<PageTable, 2> tables;
};

constexpr std::array pageRows{
    PageRow{&Screen::summaryVisible, CommandId::SelectionResults, "", true,
            {PageTable{"SummaryTable", "Selections and results", &Screen::summary, summaryLayout}}},
    PageRow{&Screen::profileVisible, {}, "Betting Profiles", false,
            {PageTable{"ProfileTable", "Betting profile", &Screen::profile, profileLayout}}},
    PageRow{&Screen::tracksVisible, CommandId::Track_Profile, "", false,
            {PageTable{"TracksTable", "Wins by track", &Screen::tracks, tracksLayout},
             PageTable{"SizesTable", "Wins by track size", &Screen::tracks, sizesLayout}}},
    PageRow{&Screen::picksVisible, CommandId::Pick3Results, "", false,
            {PageTable{"PicksTable", "Picks and winners", &Screen::picks, picksLayout}}},
};
// clang-format on

QString headingOf(const PageRow& page) {
    const QString title = page.command ? captionOf(*page.command) : AnalysisPanel::tr(page.title);
    if (page.visible == &Screen::profileVisible) {
        const QString tracks = shown(theScreen.profileTracks);
        return title + "     " + (tracks == "ALL" ? captionOf(CommandId::ALL) : tracks);
    }
    return page.ofThisCard ? title + "     " + shown(theScreen.caption).simplified() : title;
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

    for (std::size_t at = 0; at < pageRows.size(); ++at) buildPage(at);
    buildButtons(*row);
    connect(&appearance_, &Appearance::changed, this, &AnalysisPanel::lay);
    lay();
}

void AnalysisPanel::buildPage(std::size_t at) {
    auto* widget = new QWidget{stack_};
    auto* row = new QHBoxLayout{widget};
    row->setContentsMargins(0, 0, 0, 0);
    Page page{widget};
    for (const PageTable& description : pageRows.at(at).tables) {
        if (!description.cells) continue;
        auto* table = new CellTableView{appearance_, tr(description.accessibleName), widget};
        table->setObjectName(description.name);
        table->setFonts(headPoints, bodyPoints, false);
        table->setViewLayout(description.layout());
        table->show(&(theScreen.*description.cells));
        row->addWidget(table, 1);
        page.tables.push_back(table);
    }
    stack_->addWidget(widget);
    pages_.push_back(page);
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

void AnalysisPanel::refreshButtons() {
    for (std::size_t at = 0; at < buttons_.size(); ++at) {
        const PageButton& button = pageButtons.at(at);
        buttons_[at]->setVisible(!button.page || theScreen.*button.page);
        buttons_[at]->setEnabled(CommandRunner::canRun(button.command));
    }
}

void AnalysisPanel::refresh() {
    for (const Page& page : pages_)
        for (CellTableView* table : page.tables) table->refresh();
    refreshButtons();
    const auto onShow = std::find_if(pageRows.begin(), pageRows.end(),
                                     [](const PageRow& row) { return theScreen.*row.visible; });
    if (onShow == pageRows.end()) return;
    const Page& page = pages_[static_cast<std::size_t>(onShow - pageRows.begin())];
    heading_->setText(headingOf(*onShow));
    const bool opened = stack_->currentWidget() != page.widget || !isVisible();
    stack_->setCurrentWidget(page.widget);
    if (opened) page.tables.front()->setFocus();
}

} // namespace quillon

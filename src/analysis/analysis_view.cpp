#include "analysis/analysis_view.h"

#include "core/failure.h"

#include <array>

namespace quillon {
namespace {

// What an analysis view may have hidden.
constexpr std::array mainScreenItems{
    CommandId::NewRC,
    CommandId::RecallRaceCard,
    CommandId::ViewCondensedProgram,
    CommandId::ViewSummary,
    CommandId::PrintCondensedProgram,
    CommandId::CloseRC,
    CommandId::SelectionResults,
    CommandId::AutoRecord,
    CommandId::EBET,
    CommandId::Reset,
};

} // namespace

void showAnalysisView(bool Screen::*view) {
    for (bool Screen::*const other : {&Screen::summaryVisible, &Screen::profileVisible,
                                      &Screen::tracksVisible, &Screen::picksVisible, &Screen::starsVisible})
        screen.*other = other == view;
    screen.racePanelsVisible = false;
    screen.item(CommandId::MainScreen).visible = true;
}

void layOut(Grid& view, int rows, std::span<const ViewColumn> columns) {
    view.layOut(rows + 1, static_cast<int>(columns.size()));
    const auto heads = view.cellsOf(0);
    for (std::size_t column = 0; column < columns.size(); ++column) heads[column].text = columns[column].head;
}

void MainScreen() {
    const Step step{"MainScreen"};
    for (const std::size_t workView : {std::size_t{pastPerformanceView}, std::size_t{0}}) {
        screen.dataView[workView].clear();
        screen.dataViewVisible[workView] = false;
    }
    screen.pastPerformanceOpen = false;
    screen.racePanelsVisible = true;
    screen.summaryVisible = screen.profileVisible = false;
    screen.tracksVisible = screen.picksVisible = screen.starsVisible = false;
    screen.caption = windowCaption;
    screen.width = 16250;
    screen.height = 11200;
    for (const CommandId item : mainScreenItems) screen.item(item).visible = true;
    for (const CommandId item : {CommandId::PrintSummary, CommandId::Print2, CommandId::MainScreen})
        screen.item(item).visible = false;
}

} // namespace quillon

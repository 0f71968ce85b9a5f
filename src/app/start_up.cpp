#include "app/start_up.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "day/changes.h"
#include "day/snapshot.h"
#include "screen/screen.h"

#include <array>

namespace quillon {
namespace {

// A letter of the code page, as crossover texts and card files begin with.
bool beginsWithLetter(TextView text) {
    if (text.empty()) return false;
    const Text first = upperCase(text.substr(0, 1));
    return first[0] >= 'A' && first[0] <= 'Z';
}

// The track and date that another program left: the first 7 of the last 12 characters of CrossOver.ini.
Text crossoverText() {
    constexpr int tailLength = 12;
    constexpr int textLength = 7;
    const Text content = readFile({Folder::working, "CrossOver.ini"});
    LineReader lines{content};
    TextView last;
    while (const auto line = lines.next()) last = *line;
    return Text{leftOf(rightOf(last, tailLength), textLength)};
}

// The menu as it stands before a card: all there, but for the ways back from an analysis view and the sheet
// that is not written yet.
void setMenu() {
    screen.menu.fill({});
    for (const CommandId hidden : {CommandId::MainScreen, CommandId::PrintSummary, CommandId::Print2})
        screen.item(hidden).visible = false;
    screen.item(CommandId::ViewSummary).enabled = false;
}

void setButtons() {
    screen.start = {};
    screen.offer(StartOffer::load);
    for (auto* keys : {&screen.entryButtons, &screen.heatButtons})
        for (Button& key : *keys) key = {.enabled = false};
    for (Button& heat : screen.heatButtons) heat.visible = false;
    for (Button& button : screen.raceButtons) button = {.visible = false};
    for (Button& check : screen.raceChecks) check = {.visible = false};
    screen.scratchButtons.fill({.caption = "Scr"});
    screen.scratchButtons[0].caption = "X"; // pressing it turns the column to "X"
    screen.record = {.caption = "Record", .enabled = false};
}

void showOnlyFirstViews() {
    screen.dataViewVisible.fill(false);
    screen.raceViewVisible.fill(false);
    screen.raceViewVisible[1] = true;
}

// Race 1 heads the screen, hidden until a card is there.
void setFirstRace() {
    screen.header.race = card.labelledRaces > 0 ? "1A" : "1";
    cursor.race = 1;
    screen.raceButtons[1].enabled = false;
    screen.raceButtons[1].current = true;
    screen.dataView[1](0, DataColumn::entry).text = "RACE " + card.raceInfo(1).label;
}

void setCrossover(const Text& crossover) {
    if (!beginsWithLetter(crossover)) return;
    screen.header.track.caption = leftOf(crossover, 3);
    screen.header.date.caption = rightOf(crossover, 4);
}

void setHeads(Grid& view, std::span<const ViewColumn> columns) {
    for (std::size_t column = 0; column < columns.size(); ++column)
        view(0, static_cast<int>(column)).text = columns[column].head;
}

} // namespace

void FlexGrid1() {
    const Step step{"FlexGrid1"};
    for (int view = 1; view <= pastPerformanceView; ++view) {
        Grid& grid = screen.dataView[static_cast<std::size_t>(view)];
        setHeads(grid, dataColumns());
        grid(0, DataColumn::entry).foreground = red;
    }
}

void MSFlex2() {
    const Step step{"MSFlex2"};
    for (int view = 1; view <= ratedRaces; ++view) {
        Grid& grid = screen.raceView[static_cast<std::size_t>(view)];
        setHeads(grid, raceColumns());
        grid(0, RaceColumn::horseName).foreground = red;
    }
}

void StartUp() {
    const Step step{"StartUp"};
    resetAll();
    changes.end();
    Text crossover;
    attempt([&] { crossover = crossoverText(); });
    screen.caption = windowCaption;
    setMenu();
    setButtons();
    FlexGrid1();
    MSFlex2();
    showOnlyFirstViews();
    setFirstRace();
    setCrossover(crossover);
    screen.header.track.visible = false;
    screen.header.date.visible = false;
}

} // namespace quillon

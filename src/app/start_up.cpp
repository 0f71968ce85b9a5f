#include "app/start_up.h"

#include "app/screen.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/race_card.h"

#include <array>

namespace quillon {
namespace {

// clang-format off
constexpr std::array lineColumns{
    ViewColumn{"", 1900},                                                            //  0 entry, driver, morning line
    ViewColumn{"Date", 920},                                                         //  1
    ViewColumn{"", 0}, ViewColumn{"", 0}, ViewColumn{"", 0}, ViewColumn{"", 0},      //  2 race, program number, post, HN
    ViewColumn{"", 0},                                                               //  6 not filled
    ViewColumn{"Track", 590}, ViewColumn{"Dis", 500}, ViewColumn{"CD", 345},         //  7
    ViewColumn{"Purse", 640}, ViewColumn{"Class", 1200}, ViewColumn{"CR", 300},      // 10
    ViewColumn{"L1", 500}, ViewColumn{"L2", 500}, ViewColumn{"L3", 500}, ViewColumn{"LF", 500}, // 13
    ViewColumn{"PP", 290},                                                           // 17
    ViewColumn{"", 230}, ViewColumn{"P1", 285}, ViewColumn{"", 240}, ViewColumn{"", 230}, // 18 first call
    ViewColumn{"", 230}, ViewColumn{"P2", 285}, ViewColumn{"", 240}, ViewColumn{"", 230}, // 22 second call
    ViewColumn{"", 230}, ViewColumn{"P3", 285}, ViewColumn{"", 240}, ViewColumn{"", 230}, // 26 third call
    ViewColumn{"PS", 290}, ViewColumn{"PF", 290},                                    // 30
    ViewColumn{"TQ", 450}, ViewColumn{"Fin", 575}, ViewColumn{"F", 175}, ViewColumn{"Odds", 550}, // 32
    ViewColumn{"", 0},                                                               // 36 driver's number
    ViewColumn{"Driver", 1300}, ViewColumn{"PR", 500}, ViewColumn{"Line #", 900},    // 37
};

constexpr std::array entryColumns{
    ViewColumn{"ENTRY", 1900}, ViewColumn{"ML", 450}, ViewColumn{"PN", 375}, ViewColumn{"PP", 375}, //  0
    ViewColumn{"Track", 590}, ViewColumn{"Purse", 640}, ViewColumn{"Class", 1300}, ViewColumn{"CR", 325}, //  4
    ViewColumn{"L1", 500}, ViewColumn{"L2", 500}, ViewColumn{"L3", 500}, ViewColumn{"LF", 500}, //  8
    ViewColumn{"PP", 320},                                                                 // 12
    ViewColumn{"", 230}, ViewColumn{"P1", 320}, ViewColumn{"", 230}, ViewColumn{"", 230},  // 13 first call
    ViewColumn{"", 230}, ViewColumn{"P2", 320}, ViewColumn{"", 230}, ViewColumn{"", 230},  // 17 second call
    ViewColumn{"", 230}, ViewColumn{"P3", 320}, ViewColumn{"", 230}, ViewColumn{"", 230},  // 21 third call
    ViewColumn{"PS", 310}, ViewColumn{"PF", 310},                                          // 25
    ViewColumn{"TQ", 450}, ViewColumn{"Fin", 600}, ViewColumn{"F", 170},                   // 27
    ViewColumn{"Todays Dr", 1070}, ViewColumn{"UDR", 500}, ViewColumn{"PR", 500},          // 30
};
// clang-format on

static_assert(lineColumns.size() == dataViewColumns);
static_assert(entryColumns.size() == 33);

// A letter of the code page, as crossover texts and card files begin with.
bool beginsWithLetter(TextView text) {
    if (text.empty()) return false;
    const Text first = upperCase(text.substr(0, 1));
    return first[0] >= 'A' && first[0] <= 'Z';
}

// The track and date that another program left for us: the first 7 of the last 12 characters of
// CrossOver.ini.
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
    for (const MenuItem hidden : {MenuItem::MainScreen, MenuItem::PrintSummary, MenuItem::Print2})
        screen.item(hidden).visible = false;
    screen.item(MenuItem::ViewSummary).enabled = false;
}

void setButtons() {
    screen.start = {.caption = Text{startCaption}};
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
    screen.dataView[1](0, 0).text = "RACE " + card.raceInfo(1).label;
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

std::span<const ViewColumn> lineViewColumns() { return lineColumns; }
std::span<const ViewColumn> entryViewColumns() { return entryColumns; }

void FlexGrid1() {
    const Step step{"FlexGrid1"};
    for (int view = 1; view <= pastPerformanceView; ++view) {
        Grid& grid = screen.dataView[static_cast<std::size_t>(view)];
        setHeads(grid, lineColumns);
        grid(0, 0).foreground = red;
    }
}

void MSFlex2() {
    const Step step{"MSFlex2"};
    for (int view = 1; view <= ratedRaces; ++view) {
        Grid& grid = screen.raceView[static_cast<std::size_t>(view)];
        setHeads(grid, entryColumns);
        grid(0, 0).foreground = red;
    }
}

void StartUp() {
    const Step step{"StartUp"};
    screen.clear();
    card.clear();
    cursor = {};

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

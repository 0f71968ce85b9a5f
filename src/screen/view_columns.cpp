#include "screen/view_columns.h"

#include <array>

namespace quillon {
namespace {

constexpr auto left = Align::left;
constexpr auto right = Align::right;
constexpr int labelWidth = 1000;
constexpr int numberWidth = 400;
constexpr int moneyWidth = 640;
constexpr int gap = 180;
constexpr int cardWidth = 1560;
constexpr int countWidth = 520;
constexpr int betWidth = 800;
constexpr int trackWidth = 1000;
constexpr int raceWidth = countWidth + gap;
constexpr int wagerWidth = 900;

// clang-format off
constexpr std::array summaryColumnTable{
    ViewColumn{"",         labelWidth},
    ViewColumn{"S1",         numberWidth, right, "The first selection: yellow where it won"},
    ViewColumn{"S2",         numberWidth, right, "The second selection: yellow where it won"},
    ViewColumn{"S3",         numberWidth, right, "The third selection: yellow where it won"},
    ViewColumn{"S4",         numberWidth, right, "The fourth selection: yellow where it won"},
    ViewColumn{"",         gap},
    ViewColumn{"R1",         numberWidth, right, "Finished first"},
    ViewColumn{"R2",         numberWidth, right, "Finished second"},
    ViewColumn{"R3",         numberWidth, right, "Finished third"},
    ViewColumn{"R4",         numberWidth, right, "Finished fourth"},
    ViewColumn{"",         gap},
    ViewColumn{"Win",        moneyWidth,  right, "A win bet on S1"},
    ViewColumn{"Place",      moneyWidth,  right, "A place bet on S1"},
    ViewColumn{"Show",       moneyWidth,  right, "A show bet on S1"},
    ViewColumn{"",         gap},
    ViewColumn{"E1/2",       moneyWidth,  right, "Exacta: S1 first, S2 second"},
    ViewColumn{"E1-2",       moneyWidth,  right, "Exacta box: S1 and S2 are the first two, in any order"},
    ViewColumn{"E1/2-3",     moneyWidth,  right, "Exacta: S1 first, S2 or S3 second"},
    ViewColumn{"E1-2-3",     moneyWidth,  right, "Exacta box: the first two are among S1 to S3"},
    ViewColumn{"E1-2-3-4",   moneyWidth,  right, "Exacta box: the first two are among S1 to S4"},
    ViewColumn{"",         gap},
    ViewColumn{"",         gap},
    ViewColumn{"T1/2-3",     moneyWidth,  right, "Trifecta: S1 first, then S2 and S3 in any order"},
    ViewColumn{"T1/2-3-4",   moneyWidth,  right, "Trifecta: S1 first, then two of S2 to S4"},
    ViewColumn{"T1-2-3",     moneyWidth,  right, "Trifecta box: S1 to S3 are the first three, in any order"},
    ViewColumn{"",         gap},
    ViewColumn{"S1/2-3-4",   moneyWidth,  right, "Superfecta: S1 first, then S2 to S4 in any order"},
    ViewColumn{"S2-1/3-4",   moneyWidth,  right, "Superfecta: S1 or S2 first, then the others of S1 to S4 in any order"},
    ViewColumn{"S1-2-3-4",   moneyWidth,  right, "Superfecta box: S1 to S4 are the first four, in any order"},
    ViewColumn{"Pick 3",     moneyWidth,  right, "A head without figures"},
};

constexpr std::array profileColumnTable{
    ViewColumn{"",         cardWidth},
    ViewColumn{"Races",      countWidth,  right, "The races of the card"},
    ViewColumn{"S1",         countWidth,  right, "Races that S1 won"},
    ViewColumn{"S2",         countWidth,  right, "Races that S2 won"},
    ViewColumn{"S3",         countWidth,  right, "Races that S3 won"},
    ViewColumn{"S4",         countWidth,  right, "Races that S4 won"},
    ViewColumn{"Win",        betWidth,    right, "A win bet on S1"},
    ViewColumn{"Place",      betWidth,    right, "A place bet on S1"},
    ViewColumn{"Show",       betWidth,    right, "A show bet on S1"},
    ViewColumn{"E1/2",       betWidth,    right, "Exacta: S1 first, S2 second"},
    ViewColumn{"E1-2",       betWidth,    right, "Exacta box: S1 and S2 are the first two, in any order"},
    ViewColumn{"E1/2-3",     betWidth,    right, "Exacta: S1 first, S2 or S3 second"},
    ViewColumn{"E1-2-3",     betWidth,    right, "Exacta box: the first two are among S1 to S3"},
    ViewColumn{"E1-2-3-4",   betWidth,    right, "Exacta box: the first two are among S1 to S4"},
    ViewColumn{"T1/2-3",     betWidth,    right, "Trifecta: S1 first, then S2 and S3 in any order"},
    ViewColumn{"T1/2-3-4",   betWidth,    right, "Trifecta: S1 first, then two of S2 to S4"},
    ViewColumn{"T1-2-3",     betWidth,    right, "Trifecta box: S1 to S3 are the first three, in any order"},
    ViewColumn{"S1/2-3-4",   betWidth,    right, "Superfecta: S1 first, then S2 to S4 in any order"},
    ViewColumn{"S2-1/3-4",   betWidth,    right, "Superfecta: S1 or S2 first, then the others of S1 to S4 in any order"},
    ViewColumn{"S1-2-3-4",   betWidth,    right, "Superfecta box: S1 to S4 are the first four, in any order"},
    ViewColumn{"",           countWidth,  right, "Races that paid a superfecta: the bets on it are counted over these"},
};

constexpr std::array trackColumnTable{
    ViewColumn{"TRACK",      trackWidth,  left,  "The track by its letters"},
    ViewColumn{"RACES",      trackWidth,  right, "Its recorded races"},
    ViewColumn{"WINS",       trackWidth,  right, "Races that S1 won"},
    ViewColumn{"PCT",        trackWidth,  right, "Wins in a hundred races"},
    ViewColumn{},
    ViewColumn{},
    ViewColumn{"SIZE",       trackWidth,  left,  "The size of the track, in miles"},
    ViewColumn{"RACES",      trackWidth,  right, "Its recorded races"},
    ViewColumn{"WINS",       trackWidth,  right, "Races that S1 won"},
    ViewColumn{"PCT",        trackWidth,  right, "Wins in a hundred races"},
};

constexpr std::array pickColumnTable{
    ViewColumn{"RACE",       raceWidth,   right, "The first race of the wager"},
    ViewColumn{"S1",         countWidth,  right, "First pick of the race"},
    ViewColumn{"S2",         countWidth,  right, "Second pick of the race"},
    ViewColumn{"S3",         countWidth,  right, "Third pick of the race"},
    ViewColumn{"S4",         countWidth,  right, "Fourth pick of the race"},
    ViewColumn{"",       gap,        right},
    ViewColumn{"Win",        countWidth,  right, "A winner of the race, by program number"},
    ViewColumn{"Win",        countWidth,  right, "A winner of the race, by program number"},
    ViewColumn{"Win",        countWidth,  right, "A winner of the race, by program number"},
    ViewColumn{"Win",        countWidth,  right, "A winner of the race, by program number"},
    ViewColumn{"",       gap,        right},
    ViewColumn{"DD",         wagerWidth,  right, "What the daily double paid"},
    ViewColumn{"Pick3",      wagerWidth,  right, "What the Pick 3 paid"},
    ViewColumn{"Pick4",      wagerWidth,  right, "What the Pick 4 paid"},
    ViewColumn{"Pick5",      wagerWidth,  right, "What the Pick 5 paid"},
    ViewColumn{"Pick6",      wagerWidth,  right, "What the Pick 6 paid"},
    ViewColumn{"Pick10",     wagerWidth,  right, "What the Pick 10 paid"},
    ViewColumn{},
    ViewColumn{},
    ViewColumn{},
};

constexpr std::array starColumnTable{
    ViewColumn{"Track/Date", 1700,        left,  "The track and the day of the card"},
    ViewColumn{"Race",       560,         right, "The race"},
    ViewColumn{"Margin",     720,         right, "How far the rating of S1 is below that of S2"},
    ViewColumn{"Odds $",     720,         right, "The morning line of S1 as a number: 5/2 is 2.5"},
    ViewColumn{"Odds",       640,         right, "The morning line of S1"},
    ViewColumn{"Bet",        760,         right, "What was bet"},
    ViewColumn{"PayOff",     860,         right, "What the bet paid"},
    ViewColumn{"Win",        520,         right, "Whether S1 won"},
};
// clang-format on
static_assert(summaryColumnTable.size() == SummaryColumn::count);
static_assert(profileColumnTable.size() == ProfileColumn::count);
static_assert(trackColumnTable.size() == TrackColumn::count);
static_assert(pickColumnTable.size() == PickColumn::count);
static_assert(starColumnTable.size() == StarColumn::count);

} // namespace

std::span<const ViewColumn> summaryColumns() { return summaryColumnTable; }

std::span<const ViewColumn> profileColumns() { return profileColumnTable; }

std::span<const ViewColumn> trackColumns() { return trackColumnTable; }

std::span<const ViewColumn> pickColumns() { return pickColumnTable; }

std::span<const ViewColumn> starColumns() { return starColumnTable; }

} // namespace quillon

#include "screen/view_columns.h"

#include <array>

namespace quillon {
namespace {

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
    ViewColumn{"S1",       numberWidth, right},
    ViewColumn{"S2",       numberWidth, right},
    ViewColumn{"S3",       numberWidth, right},
    ViewColumn{"S4",       numberWidth, right},
    ViewColumn{"",         gap},
    ViewColumn{"R1",       numberWidth, right},
    ViewColumn{"R2",       numberWidth, right},
    ViewColumn{"R3",       numberWidth, right},
    ViewColumn{"R4",       numberWidth, right},
    ViewColumn{"",         gap},
    ViewColumn{"Win",      moneyWidth,  right},
    ViewColumn{"Place",    moneyWidth,  right},
    ViewColumn{"Show",     moneyWidth,  right},
    ViewColumn{"",         gap},
    ViewColumn{"E1/2",     moneyWidth,  right},
    ViewColumn{"E1-2",     moneyWidth,  right},
    ViewColumn{"E1/2-3",   moneyWidth,  right},
    ViewColumn{"E1-2-3",   moneyWidth,  right},
    ViewColumn{"E1-2-3-4", moneyWidth,  right},
    ViewColumn{"",         gap},
    ViewColumn{"",         gap},
    ViewColumn{"T1/2-3",   moneyWidth,  right},
    ViewColumn{"T1/2-3-4", moneyWidth,  right},
    ViewColumn{"T1-2-3",   moneyWidth,  right},
    ViewColumn{"",         gap},
    ViewColumn{"S1/2-3-4", moneyWidth,  right},
    ViewColumn{"S2-1/3-4", moneyWidth,  right},
    ViewColumn{"S1-2-3-4", moneyWidth,  right},
    ViewColumn{"Pick 3",   moneyWidth,  right},
};

constexpr std::array profileColumnTable{
    ViewColumn{"",         cardWidth},
    ViewColumn{"Races",    countWidth, right},
    ViewColumn{"S1",       countWidth, right},
    ViewColumn{"S2",       countWidth, right},
    ViewColumn{"S3",       countWidth, right},
    ViewColumn{"S4",       countWidth, right},
    ViewColumn{"Win",      betWidth,   right},
    ViewColumn{"Place",    betWidth,   right},
    ViewColumn{"Show",     betWidth,   right},
    ViewColumn{"E1/2",     betWidth,   right},
    ViewColumn{"E1-2",     betWidth,   right},
    ViewColumn{"E1/2-3",   betWidth,   right},
    ViewColumn{"E1-2-3",   betWidth,   right},
    ViewColumn{"E1-2-3-4", betWidth,   right},
    ViewColumn{"T1/2-3",   betWidth,   right},
    ViewColumn{"T1/2-3-4", betWidth,   right},
    ViewColumn{"T1-2-3",   betWidth,   right},
    ViewColumn{"S1/2-3-4", betWidth,   right},
    ViewColumn{"S2-1/3-4", betWidth,   right},
    ViewColumn{"S1-2-3-4", betWidth,   right},
    ViewColumn{"",         countWidth, right},
};

constexpr std::array trackColumnTable{
    ViewColumn{"TRACK", trackWidth},
    ViewColumn{"RACES", trackWidth, right},
    ViewColumn{"WINS",  trackWidth, right},
    ViewColumn{"PCT",   trackWidth, right},
    ViewColumn{},
    ViewColumn{},
    ViewColumn{"SIZE",  trackWidth},
    ViewColumn{"RACES", trackWidth, right},
    ViewColumn{"WINS",  trackWidth, right},
    ViewColumn{"PCT",   trackWidth, right},
};

constexpr std::array pickColumnTable{
    ViewColumn{"RACE",   raceWidth,  right},
    ViewColumn{"S1",     countWidth, right},
    ViewColumn{"S2",     countWidth, right},
    ViewColumn{"S3",     countWidth, right},
    ViewColumn{"S4",     countWidth, right},
    ViewColumn{"",       gap,        right},
    ViewColumn{"Win",    countWidth, right},
    ViewColumn{"Win",    countWidth, right},
    ViewColumn{"Win",    countWidth, right},
    ViewColumn{"Win",    countWidth, right},
    ViewColumn{"",       gap,        right},
    ViewColumn{"DD",     wagerWidth, right},
    ViewColumn{"Pick3",  wagerWidth, right},
    ViewColumn{"Pick4",  wagerWidth, right},
    ViewColumn{"Pick5",  wagerWidth, right},
    ViewColumn{"Pick6",  wagerWidth, right},
    ViewColumn{"Pick10", wagerWidth, right},
    ViewColumn{},
    ViewColumn{},
    ViewColumn{},
};

constexpr std::array starColumnTable{
    ViewColumn{"Track/Date", 1700},
    ViewColumn{"Race",        560, right},
    ViewColumn{"Margin",      720, right},
    ViewColumn{"Odds $",      720, right},
    ViewColumn{"Odds",        640, right},
    ViewColumn{"Bet",         760, right},
    ViewColumn{"PayOff",      860, right},
    ViewColumn{"Win",         520, right},
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

#include "card/columns.h"

#include <array>

namespace quillon {
namespace {

constexpr auto right = Align::right;
constexpr auto centre = Align::centre;

// clang-format off
constexpr std::array dataColumnTable{
    ViewColumn{"",       1900},         // entry
    ViewColumn{"Date",    920},
    ViewColumn{"",          0},         // todaysRace
    ViewColumn{"",          0},         // program
    ViewColumn{"",          0},         // post
    ViewColumn{"",          0},         // horse
    ViewColumn{"",          0},         // spare
    ViewColumn{"Track",   590},
    ViewColumn{"Dis",     500},
    ViewColumn{"CD",      345},
    ViewColumn{"Purse",   640, right},
    ViewColumn{"Class",  1200},
    ViewColumn{"CR",      300, right},
    ViewColumn{"L1",      500, right},
    ViewColumn{"L2",      500, right},
    ViewColumn{"L3",      500, right},
    ViewColumn{"LF",      500, right},
    ViewColumn{"PP",      290, right},
    ViewColumn{"",        230},         // first call
    ViewColumn{"P1",      285, right},
    ViewColumn{"",        240},
    ViewColumn{"",        230},
    ViewColumn{"",        230},         // second call
    ViewColumn{"P2",      285, right},
    ViewColumn{"",        240},
    ViewColumn{"",        230},
    ViewColumn{"",        230},         // third call
    ViewColumn{"P3",      285, right},
    ViewColumn{"",        240},
    ViewColumn{"",        230},
    ViewColumn{"PS",      290, right},
    ViewColumn{"PF",      290, right},
    ViewColumn{"TQ",      450, right},
    ViewColumn{"Fin",     575, right},
    ViewColumn{"F",       175},
    ViewColumn{"Odds",    550, right},
    ViewColumn{"",          0},         // driverNumber
    ViewColumn{"Driver", 1300},
    ViewColumn{"PR",      500, right},
    ViewColumn{"Line #",  900, right},
};
static_assert(dataColumnTable.size() == DataColumn::count);

constexpr std::array raceColumnTable{
    ViewColumn{"ENTRY",     1900},
    ViewColumn{"ML",         450, right},
    ViewColumn{"PN",         375, centre},
    ViewColumn{"PP",         375, right},
    ViewColumn{"Track",      590},
    ViewColumn{"Purse",      640, right},
    ViewColumn{"Class",     1300},
    ViewColumn{"CR",         325, right},
    ViewColumn{"L1",         500, right},
    ViewColumn{"L2",         500, right},
    ViewColumn{"L3",         500, right},
    ViewColumn{"LF",         500, right},
    ViewColumn{"PP",         320, right},
    ViewColumn{"",           230},      // first call
    ViewColumn{"P1",         320, right},
    ViewColumn{"",           230},
    ViewColumn{"",           230},
    ViewColumn{"",           230},      // second call
    ViewColumn{"P2",         320, right},
    ViewColumn{"",           230},
    ViewColumn{"",           230},
    ViewColumn{"",           230},      // third call
    ViewColumn{"P3",         320, right},
    ViewColumn{"",           230},
    ViewColumn{"",           230},
    ViewColumn{"PS",         310, right},
    ViewColumn{"PF",         310, right},
    ViewColumn{"TQ",         450, right},
    ViewColumn{"Fin",        600, right},
    ViewColumn{"F",          170},
    ViewColumn{"Todays Dr", 1070},
    ViewColumn{"UDR",        500, right},
    ViewColumn{"PR",         500, right},
};
static_assert(raceColumnTable.size() == RaceColumn::count);
// clang-format on

} // namespace

std::span<const ViewColumn> dataColumns() { return dataColumnTable; }
std::span<const ViewColumn> raceColumns() { return raceColumnTable; }

} // namespace quillon

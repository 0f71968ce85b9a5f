#include "card/columns.h"

#include <array>

namespace quillon {
namespace {

constexpr auto left = Align::left;
constexpr auto right = Align::right;
constexpr auto centre = Align::centre;

// clang-format off
constexpr std::array dataColumnTable{
    ViewColumn{"",          1900, left,   "The horse; below it its driver and its morning line"},
    ViewColumn{"Date",       920, left,   "The day of the past race: year, month, day"},
    ViewColumn{"", 0}, // todaysRace
    ViewColumn{"", 0}, // program
    ViewColumn{"", 0}, // post
    ViewColumn{"", 0}, // horse
    ViewColumn{"", 0}, // spare
    ViewColumn{"Track",      590, left,   "The track of the past race"},
    ViewColumn{"Dis",        500, left,   "The distance in miles"},
    ViewColumn{"CD",         345, left,   "How the track was: ft fast, gd good, sy sloppy and so on"},
    ViewColumn{"Purse",      640, right,  "What the past race paid in all, in dollars"},
    ViewColumn{"Class",     1200, left,   "The class of the past race; QU is a qualifier, a race without bets"},
    ViewColumn{"CR",         300, right,  "Class rating: what the class of the past race is worth, mostly 70 to 85"},
    ViewColumn{"L1",         500, right,  "The leader's time at the quarter"},
    ViewColumn{"L2",         500, right,  "The leader's time at the half"},
    ViewColumn{"L3",         500, right,  "The leader's time at three quarters"},
    ViewColumn{"LF",         500, right,  "The winner's time at the finish"},
    ViewColumn{"PP",         290, right,  "The post from which the horse started the past race"},
    ViewColumn{"",           230, left,   "What stands before its place at the quarter"},
    ViewColumn{"P1",         285, right,  "Its place at the quarter"},
    ViewColumn{"",           240, left,   "Parked out at the quarter: raced outside without cover, a ring for each width"},
    ViewColumn{"",           230, left,   "What stands after its place at the quarter"},
    ViewColumn{"",           230, left,   "What stands before its place at the half"},
    ViewColumn{"P2",         285, right,  "Its place at the half"},
    ViewColumn{"",           240, left,   "Parked out at the half: raced outside without cover, a ring for each width"},
    ViewColumn{"",           230, left,   "What stands after its place at the half"},
    ViewColumn{"",           230, left,   "What stands before its place at three quarters"},
    ViewColumn{"P3",         285, right,  "Its place at three quarters"},
    ViewColumn{"",           240, left,   "Parked out at three quarters: raced outside without cover, a ring for each width"},
    ViewColumn{"",           230, left,   "What stands after its place at three quarters"},
    ViewColumn{"PS",         290, right,  "Its place in the stretch"},
    ViewColumn{"PF",         290, right,  "Its place at the finish"},
    ViewColumn{"TQ",         450, right,  "Its own time over the last quarter"},
    ViewColumn{"Fin",        575, right,  "Its own time at the finish"},
    ViewColumn{"F",          175, left,   "A mark where it was the favourite"},
    ViewColumn{"Odds",       550, right,  "What it went off at: dollars to one"},
    ViewColumn{"", 0}, // driverNumber
    ViewColumn{"Driver",    1300, left,   "Who drove it"},
    ViewColumn{"PR",         500, right,  "What Quillon makes of the line: lower is better, 99.9 is a line that cannot be rated"},
    ViewColumn{"Line #",     900, right,  "The number of the line in its race, by which the Race Editor takes it"},
};
static_assert(dataColumnTable.size() == DataColumn::count);

constexpr std::array raceColumnTable{
    ViewColumn{"ENTRY",     1900, left,   "The horse. Enter opens its past lines"},
    ViewColumn{"ML",         450, right,  "Morning line: the odds that the track's handicapper expects"},
    ViewColumn{"PN",         375, centre, "Program number: the one on the saddle cloth, by which bets are made"},
    ViewColumn{"PP",         375, right,  "Post position today: the place behind the gate, 1 at the rail"},
    ViewColumn{"Track",      590, left,   "The track of the past race"},
    ViewColumn{"Purse",      640, right,  "What the past race paid in all, in dollars"},
    ViewColumn{"Class",     1300, left,   "The class of the past race; QU is a qualifier, a race without bets"},
    ViewColumn{"CR",         325, right,  "Class rating: what the class of the past race is worth, mostly 70 to 85"},
    ViewColumn{"L1",         500, right,  "The leader's time at the quarter"},
    ViewColumn{"L2",         500, right,  "The leader's time at the half"},
    ViewColumn{"L3",         500, right,  "The leader's time at three quarters"},
    ViewColumn{"LF",         500, right,  "The winner's time at the finish"},
    ViewColumn{"PP",         320, right,  "The post from which the horse started the past race"},
    ViewColumn{"",           230, left,   "What stands before its place at the quarter"},
    ViewColumn{"P1",         320, right,  "Its place at the quarter"},
    ViewColumn{"",           230, left,   "Parked out at the quarter: raced outside without cover, a ring for each width"},
    ViewColumn{"",           230, left,   "What stands after its place at the quarter"},
    ViewColumn{"",           230, left,   "What stands before its place at the half"},
    ViewColumn{"P2",         320, right,  "Its place at the half"},
    ViewColumn{"",           230, left,   "Parked out at the half: raced outside without cover, a ring for each width"},
    ViewColumn{"",           230, left,   "What stands after its place at the half"},
    ViewColumn{"",           230, left,   "What stands before its place at three quarters"},
    ViewColumn{"P3",         320, right,  "Its place at three quarters"},
    ViewColumn{"",           230, left,   "Parked out at three quarters: raced outside without cover, a ring for each width"},
    ViewColumn{"",           230, left,   "What stands after its place at three quarters"},
    ViewColumn{"PS",         310, right,  "Its place in the stretch"},
    ViewColumn{"PF",         310, right,  "Its place at the finish"},
    ViewColumn{"TQ",         450, right,  "Its own time over the last quarter"},
    ViewColumn{"Fin",        600, right,  "Its own time at the finish"},
    ViewColumn{"F",          170, left,   "A mark where it was the favourite"},
    ViewColumn{"Todays Dr", 1070, left,   "Today's driver. A click lists the drivers"},
    ViewColumn{"UDR",        500, right,  "Universal driver rating of today's driver: .000 to about .400, good from .300"},
    ViewColumn{"PR",         500, right,  "The rating of the line that speaks for the entry: lower is better, 99.9 is out or not rated"},
};
static_assert(raceColumnTable.size() == RaceColumn::count);
// clang-format on

} // namespace

std::span<const ViewColumn> dataColumns() { return dataColumnTable; }
std::span<const ViewColumn> raceColumns() { return raceColumnTable; }

} // namespace quillon

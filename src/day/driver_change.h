// A change of driver before the race: the difference between the two drivers moves the entry's rating, and
// the race is ranked again.
#pragma once

#include "core/text.h"

namespace quillon {

/// A click on the driver column in a row of the race view on show: lists the lines of "DriverList.txt" and
/// "EXIT" for the entry in that row. Rows without an entry have no list.
void DriverColumn(int row);

/// Picks a line of the driver list and puts the list away. "EXIT" and lines without a driver change nothing.
void DriverChoice(const Text& line);

/// What a driver of this UDR (0 to 1, the share that he wins) takes off a rating; negative for what he adds.
double driverCredit(double udr);

/// Puts the driver of `screen.driverChoice` on the entry in row `screen.driverRow` of the race on show.
/// Resumes at failures.
void PROFILE3();

} // namespace quillon

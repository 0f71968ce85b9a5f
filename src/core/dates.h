// Dates as the vendor writes them: eight digits, yyyymmdd.
#pragma once

#include "core/text.h"

namespace quillon {

/// The number of the day in the proleptic Gregorian calendar, for differences in days.
/// Fails on a text that is not eight digits or names a day that does not exist.
int dayNumber(TextView yyyymmdd);

/// mm-dd-yyyy by position: characters 5 and 6, the last two, the first four. Never fails.
Text dashedDate(TextView yyyymmdd);

/// The local time on this system's clock, "20260314 201405": a later one is a greater text.
Text localTime();

} // namespace quillon

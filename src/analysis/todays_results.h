// The summary as a text file.
#pragma once

namespace quillon {

/// Writes "Todays Results.txt" of the working folder from `screen.summary`. A failure leaves the old file.
void TodaysResults();

} // namespace quillon

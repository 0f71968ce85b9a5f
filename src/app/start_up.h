// The start of the program: an empty store, the views laid out, the Start button waiting.
#pragma once

namespace quillon {

/// Runs once, before the first command. Resumes at failures.
void StartUp();

/// Heads of the data views 1 to 25.
void FlexGrid1();

/// Heads of the race views 1 to 23.
void MSFlex2();

} // namespace quillon

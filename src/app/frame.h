// The commands of the application's frame: a new card, the end of the program, the way back to the main
// screen.
#pragma once

namespace quillon {

/// Hides the source tables, starts the program that fetches a new card, and ends: a new card is always loaded
/// by a fresh process on an empty store.
void NewRC();

/// Ends with no question.
void Exit_QL();

/// The window's own close control: asks first.
void CloseWindow();

/// Back from an analysis view to the race panels.
void MainScreen();

} // namespace quillon

// The commands of the application's frame: a new card and the end of the program.
#pragma once

namespace quillon {

/// Hides the source tables, starts the program that fetches a new card, and ends: a new card is always loaded
/// by a fresh process on an empty store.
void NewRC();

/// Ends with no question.
void Exit_QL();

/// The window's own close control: asks first.
void CloseWindow();

} // namespace quillon

// The betting profile as a text.
#pragma once

namespace quillon {

/// Writes the rows of `screen.profile` to "Profile Results.txt" and shows it in the viewer. The file stays as
/// it was when the user cancels. Resumes at failures.
void Print2();

} // namespace quillon

// The tracks profile: how often S1 won, by track and by size of course, over the whole archive.
#pragma once

namespace quillon {

/// Fills and shows `screen.tracks` and writes "Wins by Track.txt", which has the sizes alone. Resumes at
/// failures; without an archive all is empty. When the user cancels, the view is cleared and the file left as
/// it was.
void Track_Profile();

} // namespace quillon

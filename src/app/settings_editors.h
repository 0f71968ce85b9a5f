// The plain files that hold the system's settings and its archive, opened for the user to edit. Nothing
// checks what is written there.
#pragma once

namespace quillon {

void ArchivesEditor(); ///< "HRA.ini", a line for each recorded card
void TrackEditor();    ///< "TrackEditor.ini", a line for each track
void EXE();            ///< "Webpage.ini", whose last line is the data vendor's download page

} // namespace quillon

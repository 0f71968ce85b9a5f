// Every text of the system is read, and its settings are edited, in the user's text viewer.
#pragma once

#include "core/files.h"

namespace quillon {

/// Writes "Archives.bat", the one line that opens the file in Notepad, and has the file shown. Does not wait.
/// Resumes at failures.
void showInViewer(const FilePlace& file);

// The reports of the open card. With no card open they stop.
void ViewSummary();          ///< selection sheet
void Pick3Selections();      ///< pick sheet
void ViewCondensedProgram(); ///< condensed program
void DriverList();           ///< driver ratings
void NotePad();              ///< results text, for the user to paste into

// Texts of the working folder.
void PrintSummary(); ///< what the selections earned today
void TestResults();  ///< diagnostic log of the ratings

// The plain files of the settings and the archive, for the user to edit. Nothing checks what is written.
void ArchivesEditor(); ///< "HRA.ini", a line for each recorded card
void TrackEditor();    ///< "TrackEditor.ini", a line for each track
void EXE();            ///< "Webpage.ini", whose last line is the data vendor's download page

} // namespace quillon

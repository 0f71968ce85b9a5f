// Files, pages and programs that are handed over to the desktop. None of these waits for the other program;
// what can't be handed over is told in the fault journal.
#pragma once

#include "core/files.h"
#include "core/text.h"

#include <QString>

namespace quillon {

/// Whether there is a desktop here that may have a text editor of its own.
bool hasDesktop();

/// The desktop's text editor, by the name of its desktop file; empty where it has none with a window of its
/// own. Waits for the answer, a second at most. Windows is not asked: its convention is the batch file.
QString findDesktopEditor();

/// Shows a text file in the desktop's text editor: on Windows through "Archives.bat", which names it. False
/// where there is none; then nothing was started. Takes up to a second the first time.
bool showInDesktopEditor(const FilePlace& file);

/// Opens an address in the user's browser. Only pages and files are opened; "www." alone is an https page. False where
/// nothing opened it.
bool openAddress(TextView address);

/// Starts a program of the working folder.
void startProgram(const Text& program);

/// Gives the file the hidden attribute, where a file system has one.
void hideFile(const FilePlace& file);

} // namespace quillon

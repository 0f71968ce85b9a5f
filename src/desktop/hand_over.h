// Files, pages and programs that are handed over to the desktop. None of these waits for the other program;
// what can't be handed over is told in the fault journal.
#pragma once

#include "core/files.h"
#include "core/text.h"

namespace quillon {

/// Whether there is a desktop here that may have a text editor of its own.
bool hasDesktop();

/// Shows a text file in the desktop's text editor: on Windows through "Archives.bat", which names it. False
/// where there is none; then nothing was started. Takes up to a second the first time.
bool showInDesktopEditor(const FilePlace& file);

/// Opens an address in the user's browser. Only pages and files are opened; "www." alone is an https page.
void openAddress(TextView address);

/// Starts a program of the working folder.
void startProgram(const Text& program);

/// Gives the file the hidden attribute, where a file system has one.
void hideFile(const FilePlace& file);

} // namespace quillon

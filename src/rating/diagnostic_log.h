// The diagnostic log, TEST.txt in the working folder: how each line came to its rating, a line each, for a
// user who asks why. Kept in memory while a card loads and written once.
#pragma once

#include "core/text.h"

namespace quillon {

/// Whether the user has the log switched on.
bool diagnosticLogIsOn();

/// Begins the log line of the line at work: a line that holds a lone carriage return, then race and post.
void beginLogLine();

/// Adds a figure to it as it stands.
void addToLogLine(TextView figure);

/// Closes it with the line's rating.
void endLogLine(TextView rating);

/// Forgets what is kept, so that a load begins with an empty log.
void clearDiagnosticLog();

/// Writes what is kept to the end of TEST.txt and forgets it; the file is created also where there is nothing
/// to write. Fails when it can't be written.
void appendDiagnosticLog();

/// The command: switches the log on or off. Switched on, TEST.txt begins anew with its heading; where it
/// can't be written the log stays off. Stops at a failure.
void Diagnostic();

} // namespace quillon

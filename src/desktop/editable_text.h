// A text file between its bytes and the lines of an editor, so that what the user did not touch stays byte
// for byte.
#pragma once

#include "core/text.h"

#include <QString>

#include <vector>

namespace quillon {

/// A line as it stands in a file, and how it ends there: "\n", "\r\n", "\r\r\n", or "" at the file's end.
struct FileLine {
    Text text{};
    Text end{};
    friend bool operator==(const FileLine&, const FileLine&) = default;
};

/// All lines of a file, the last one after the last line end, so that there is always one.
std::vector<FileLine> fileLines(TextView content);

/// A line as an editor shows it. Control characters but the tab are shown by their pictures, so that none of
/// them is lost or ends a line.
QString editableLine(TextView text);

/// The same way back. A character outside the code page becomes "?".
Text editedLine(const QString& line);

/// False where a character of the line became a "?" on that way.
bool canBeKept(const QString& line, const Text& edited);

/// The file with these lines now. A line that stood in the old file, or that took the place of one, ends as
/// that one did; a new line ends in CR LF.
Text editedContent(const std::vector<FileLine>& old, const std::vector<Text>& lines);

} // namespace quillon

// What the console prints: a line for each thing that a user would see, in UTF-8, ended by LF.
#pragma once

#include "core/text.h"

#include <ostream>
#include <string>
#include <string_view>

namespace quillon {

/// The text in UTF-8 on one line: a line break inside it (CR LF, LF, or a CR alone) becomes the two
/// characters \n.
std::string onOneLine(TextView text);

class Transcript {
public:
    explicit Transcript(std::ostream& out) : out_(out) {}

    void line(TextView text) { out_ << onOneLine(text) << '\n'; }
    void utf8Line(std::string_view utf8) { out_ << utf8 << '\n'; } ///< on one line already
    void flush() { out_.flush(); }

private:
    std::ostream& out_;
};

} // namespace quillon

// A text cell that knows whether it was ever given a value: a saved card tells the two kinds of empty apart.
#pragma once

#include "core/text.h"

namespace quillon {

class TextCell {
public:
    TextCell() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): giving a text is what a cell is for
    TextCell(Text text) : text_(std::move(text)), given_(true) {}
    TextCell(TextView text) : text_(text), given_(true) {}    // NOLINT(google-explicit-constructor)
    TextCell(const char* text) : text_(text), given_(true) {} // NOLINT(google-explicit-constructor)

    operator const Text&() const { return text_; } // NOLINT(google-explicit-constructor)
    operator TextView() const { return text_; }    // NOLINT(google-explicit-constructor)

    const Text& text() const { return text_; }
    bool given() const { return given_; }
    bool empty() const { return text_.empty(); }
    std::size_t size() const { return text_.size(); }

    friend bool operator==(const TextCell& cell, TextView text) { return cell.text_ == text; }
    friend bool operator==(const TextCell& left, const TextCell& right) = default;

private:
    Text text_;
    bool given_ = false;
};

} // namespace quillon

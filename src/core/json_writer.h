// Writes JSON, value by value, in UTF-8.
#pragma once

#include "core/text.h"

#include <optional>
#include <string>

namespace quillon {

/// Puts commas and colons where they belong; that each begin has its end, and each key one value, is the
/// caller's part.
class JsonWriter {
public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    void key(TextView name);
    void text(TextView value);
    void number(double value); ///< null where it is not finite
    void boolean(bool value) { bare(value ? "true" : "false"); }
    void null() { bare("null"); }

    void member(TextView name, TextView value);
    void member(TextView name, std::optional<double> value); ///< null without one

    /// What was written since the last time.
    std::string take();

private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void bare(std::string_view value);
    void quoted(TextView value);

    std::string written_;
    bool needsComma_ = false;
};

} // namespace quillon

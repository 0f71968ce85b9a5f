// The console front end: one line of input a command, and a transcript of what a user would see.
//
// A line is a name and its arguments, separated by one blank each. The names are those of the command table
// and three of the console's own: `Answer TEXT` and `Cancel` queue answers for the questions and input boxes
// of later commands, `show PART` prints a part of the state. Empty lines and `#` lines do nothing.
#pragma once

#include "app/commands.h"
#include "console/transcript.h"
#include "core/text.h"

#include <chrono>
#include <deque>
#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <span>

namespace quillon {

/// The arguments of a command out of what stands after its name and one blank; nothing after the name where
/// `rest` has no value. Without a result where a number is missing, is no whole number or is beyond int, or
/// where something stands after the last argument. A text is all that is left and may be empty.
std::optional<Arguments> argumentsFor(Takes takes, std::optional<TextView> rest);

class Console {
public:
    /// Takes over the ports: from here on everything the logic shows goes to `out`.
    explicit Console(std::ostream& out, std::span<const Command> commands = commandTable());
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Runs the lines of the input to its end, or until a command has ended the system. A card with unsaved
    /// changes is kept then.
    void run(std::istream& in);

    /// Waits so long for input at most; true when some has come, or its end. An input without it is never
    /// waited for.
    std::function<bool(std::chrono::milliseconds)> waitForInput;

private:
    void takePorts();
    std::optional<Text> nextAnswer();
    void showEnd();
    void beforeWaiting();

    void takeLine(TextView line);
    void takeAnswer(std::optional<TextView> text);
    void takeCancel(std::optional<TextView> rest);
    void takeCommand(TextView name, std::optional<TextView> rest);

    Transcript transcript_;
    std::span<const Command> commands_;
    std::deque<std::optional<Text>> answers_; ///< first in first out; one without a text is a cancel
    bool ended_ = false;
};

} // namespace quillon

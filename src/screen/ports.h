// The ways to the outside world. A front end fills them at its start: the window with dialogs, the console
// with its transcript, tests with recorders. The logic waits for a front end nowhere else.
#pragma once

#include "core/files.h"
#include "core/text.h"

#include <functional>
#include <optional>

namespace quillon {

enum class PrintStyle { plain, emphasised };

struct Ports {
    /// A message with one OK button. The title is empty where the system gives the box none.
    std::function<void(const Text& text, const Text& title)> message = [](auto&, auto&) {};
    /// A Yes/No question, No being the default. True for Yes.
    std::function<bool(const Text& text, const Text& title)> question = [](auto&, auto&) { return false; };
    /// An input box; nothing when the user cancels.
    std::function<std::optional<Text>(const Text& text, const Text& title)> input = [](auto&, auto&) {
        return std::optional<Text>{};
    };
    std::function<void()> beep = [] {};
    /// Shows a text file and does not wait.
    std::function<void(const FilePlace& file)> view = [](auto&) {};
    std::function<void(const Text& address)> browse = [](auto&) {};
    /// Starts another program of the working folder and goes on.
    std::function<void(const Text& program)> run = [](auto&) {};
    std::function<void(const FilePlace& file)> hide = [](auto&) {};
    /// The plain file error of a command that could not open its file.
    std::function<void(const Text& text)> error = [](auto&) {};
    /// A word to the user that asks for nothing.
    std::function<void(const Text& text)> note = [](auto&) {};

    std::function<void(const Text& line, PrintStyle style)> printLine = [](auto&, auto) {};
    std::function<void()> printPage = [] {};
    std::function<void()> printEnd = [] {};

    /// Long work tells how far it is, 0 to 1; false when the user wants it to stop.
    std::function<bool(double done)> progress = [](auto) { return true; };
    /// The system has ended: the front end leaves its loop after the running command.
    std::function<void()> end = [] {};
};

extern Ports ports;

} // namespace quillon

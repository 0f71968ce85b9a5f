#include "console/console.h"

#include "console/input_lines.h"
#include "console/show.h"
#include "console/words.h"
#include "core/failure.h"
#include "day/keeping.h"
#include "screen/told_ports.h"

#include <utility>

namespace quillon {
namespace {

int numbersIn(Takes takes) {
    switch (takes) {
    case Takes::nothing:
    case Takes::text: return 0;
    case Takes::number:
    case Takes::numberAndText: return 1;
    case Takes::cell: return 3;
    }
    return 0;
}

bool takesText(Takes takes) {
    return takes == Takes::text || takes == Takes::numberAndText || takes == Takes::cell;
}

} // namespace

std::optional<Arguments> argumentsFor(Takes takes, std::optional<TextView> rest) {
    Arguments arguments;
    for (int at = 0; at < numbersIn(takes); ++at) {
        const auto number = wholeNumber(takeWord(rest));
        if (!number) return std::nullopt;
        arguments.numbers[static_cast<std::size_t>(at)] = *number;
    }
    if (takesText(takes))
        arguments.text = rest.value_or(TextView{});
    else if (rest)
        return std::nullopt;
    return arguments;
}

Console::Console(std::ostream& out, std::span<const Command> commands)
    : transcript_(out), commands_(commands) {
    takePorts();
}

Console::~Console() { ports = {}; }

void Console::takePorts() {
    ports = toldPorts([this](const Text& line) { transcript_.line(line); }, [this] { return nextAnswer(); });
    ports.end = [this] { showEnd(); };
}

std::optional<Text> Console::nextAnswer() {
    if (answers_.empty()) return std::nullopt;
    auto answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

void Console::showEnd() {
    if (!ended_) transcript_.line("end");
    ended_ = true;
}

void Console::run(std::istream& in) {
    InputLines lines{in, [this] { beforeWaiting(); }};
    while (!ended_) {
        const auto line = lines.next();
        if (!line) break;
        takeLine(*line);
        attempt(KeepCardWhenDue);
    }
    attempt(KeepCard);
    transcript_.flush();
}

// Whoever types at the other end has read what was printed so far, and may leave the card for long.
void Console::beforeWaiting() {
    transcript_.flush();
    const auto due = keepingDueIn();
    if (due && waitForInput && !waitForInput(*due)) attempt(KeepCardWhenDue);
}

void Console::takeLine(TextView line) {
    if (line.empty() || line.starts_with('#')) return;
    transcript_.line("> " + Text{line});
    std::optional<TextView> rest = line;
    const TextView name = takeWord(rest);
    if (name == "Answer")
        takeAnswer(rest);
    else if (name == "Cancel")
        takeCancel(rest);
    else if (name == "show")
        attempt([&] { show(rest.value_or(TextView{}), commands_, transcript_); });
    else
        takeCommand(name, rest);
}

void Console::takeAnswer(std::optional<TextView> text) { answers_.emplace_back(text.value_or(TextView{})); }

void Console::takeCancel(std::optional<TextView> rest) {
    if (rest)
        transcript_.line("usage: Cancel");
    else
        answers_.emplace_back(std::nullopt);
}

void Console::takeCommand(TextView name, std::optional<TextView> rest) {
    const Command* command = findCommand(name, commands_);
    if (command == nullptr) return transcript_.line("unknown: " + Text{name});

    const auto arguments = argumentsFor(command->takes, rest);
    const Text names = command->argumentNames;
    if (!arguments || !hasForm(*command, arguments->text))
        return transcript_.line("usage: " + Text{name} + (names.empty() ? "" : " " + names));

    bool available = false; // also where a number leads to no button at all and the question itself fails
    attempt([&] { available = isAvailable(*command, *arguments); });
    if (!available) return transcript_.line("unavailable: " + Text{name});
    runCommand(*command, *arguments);
}

} // namespace quillon

#include "console/show_why.h"

#include "console/words.h"
#include "day/why.h"

#include <array>
#include <optional>

namespace quillon {
namespace {

TextView wordOf(Verdict verdict) {
    switch (verdict) {
    case Verdict::chosen: return "chosen";
    case Verdict::passedOver: return "passed over";
    case Verdict::notLookedAt: break;
    }
    return "not looked at";
}

void printRoad(const std::array<int, 3>& numbers, Transcript& transcript) {
    const auto lines = whyLines(numbers[0], numbers[1]);
    const int line = numbers[2];
    if (line < 1 || line > static_cast<int>(lines.size())) return;
    const WhyLine& why = lines[static_cast<std::size_t>(line - 1)];
    for (const RoadStep& step : why.road.steps)
        transcript.line(Text{step.name} + "\t" + step.before + "\t" + step.after + "\t" + step.reason);
    transcript.line("rating\t\t" + why.rating);
}

void printLines(const std::array<int, 3>& numbers, Transcript& transcript) {
    int line = 0;
    for (const WhyLine& why : whyLines(numbers[0], numbers[1]))
        transcript.line(std::to_string(++line) + "\t" + Text{wordOf(why.note.verdict)} + "\t" +
                        why.note.reason);
}

struct WhyPart {
    TextView name;
    std::size_t numbers;
    TextView usage;
    void (*print)(const std::array<int, 3>&, Transcript&);
};

constexpr std::array parts{
    WhyPart{"why", 3, "usage: show why R E N", printRoad},
    WhyPart{"whyline", 2, "usage: show whyline R E", printLines},
};

void showPart(const WhyPart& part, std::optional<TextView> rest, Transcript& transcript) {
    std::array<int, 3> numbers{};
    for (std::size_t at = 0; at < part.numbers; ++at) {
        const auto number = rest ? wholeNumber(takeWord(rest)) : std::nullopt;
        if (!number) return transcript.line(Text{part.usage});
        numbers[at] = *number;
    }
    if (rest) return transcript.line(Text{part.usage});
    part.print(numbers, transcript);
}

} // namespace

bool showWhy(TextView words, Transcript& transcript) {
    std::optional<TextView> rest = words;
    const TextView name = takeWord(rest);
    for (const WhyPart& part : parts) {
        if (part.name != name) continue;
        showPart(part, rest, transcript);
        return true;
    }
    return false;
}

} // namespace quillon

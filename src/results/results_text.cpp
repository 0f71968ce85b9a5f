#include "results/results_text.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "screen/ports.h"

namespace quillon {
namespace {

constexpr int trackKeyWidth = 5;
constexpr int exoticCut = 10;
constexpr int afterComma = 6;

TextView cardName() { return cardNameOf(card.cardFileName); }

} // namespace

std::optional<Text> resultsText() {
    std::optional<Text> content;
    attempt([&] { content = fileContent(cardFile(Folder::results, "pmr")); });
    return content;
}

ResultsLayout layoutOf(TextView content) {
    bool hasColumns = false;
    bool hasWords = false;
    LineReader lines{content};
    while (const auto line = lines.next()) {
        hasColumns = hasColumns || line->starts_with("PRG");
        hasWords = hasWords || line->starts_with("1st");
    }
    if (hasColumns == hasWords) return ResultsLayout::unknown;
    return hasColumns ? ResultsLayout::columns : ResultsLayout::words;
}

Text resultsTrackKey() {
    const TextView track = trimmed(cardName().substr(0, cardName().find('_')));
    const auto settings = fileContent({Folder::working, "TrackEditor.ini"});
    if (track.empty() || !settings) return {};
    LineReader rows{*settings};
    while (const auto row = rows.next()) {
        if (row->empty()) break; // nothing after an empty row is read
        if (trimmed(row->substr(0, track.size())) == track) return Text{trimmed(leftOf(*row, trackKeyWidth))};
    }
    return {};
}

bool isOfThisCard(TextView trackKey, const ResultsDate& date) {
    const Text ofText = Text{trackKey} + "_" + date.year + date.month + date.day;
    if (date.empty() || ofText == cardName()) return true;
    ports.beep();
    ports.message("Active File and Results File do not match!  Record Results cannot continue! "
                  "Check TRC file for correct date and track.",
                  "");
    ports.message(Text{cardName()} + ofText, "");
    return false;
}

std::optional<Text> withoutComma(TextView payoff) {
    const int comma = placeOf(",", payoff);
    if (comma == 0) return std::nullopt;
    return Text{leftOf(payoff, comma - 1)} + Text{midOf(payoff, comma + 1, afterComma)};
}

TextView exoticPayoff(TextView line) {
    const TextView end = rightOf(line, exoticCut);
    const int dollar = placeOf("$", end);
    return midOf(end, dollar + 1, exoticCut - dollar);
}

TextView afterDollar(TextView text, int dollarPlace, int count) {
    if (dollarPlace == 0) return text;
    return trimmedRight(midOf(text, dollarPlace + 1, count));
}

TextView poolFrom(TextView line, int place) {
    const TextView rest = midOf(line, place);
    int end = placeOf("(", rest);
    if (end == 0) end = placeOf("paid", rest);
    return end == 0 ? TextView{} : leftOf(rest, end - 1);
}

int figurePlace(TextView text) { return static_cast<int>(text.find_first_of("123456789") + 1); }

TextView afterName(TextView text) {
    // All that counts as part of a name ("e ", "N ", " Z", "A ") lies at or after a blank and a letter, and
    // so does every figure; a blank before a blank, a figure or a point lies before it.
    while (text.substr(0, 2) >= " A") text.remove_prefix(1);
    return text;
}

TextView afterSmallLetters(TextView text) {
    while (text.substr(0, 1) >= "a") text.remove_prefix(1);
    return text;
}

} // namespace quillon

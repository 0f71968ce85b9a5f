// Results text in columns: "Auto Record Payoffs".
#include "results/auto_record.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/formats.h"
#include "results/board.h"
#include "results/pick_pool.h"
#include "results/race_display.h"
#include "results/results_text.h"
#include "screen/screen.h"

#include <array>

namespace quillon {
namespace {

constexpr int keywordPlace = 7;
constexpr int numberWidth = 2; ///< a finisher's program number, at the start of his line
constexpr int payoffWidth = 6;
constexpr int lastPayoffWidth = 5;

/// The first "Results" line with a track that the track table knows is followed by the day, year first.
bool columnsAreOfThisCard(TextView content) {
    const Text trackKey = resultsTrackKey();
    LineReader lines{content};
    while (const auto line = lines.next()) {
        if (!line->starts_with("Results")) continue;
        const auto day = lines.next();
        if (!day) break;
        const int year = placeOf("2", *day);
        ResultsDate date;
        attempt([&] { date.year = midOf(*day, year, 4); });
        attempt([&] { date.month = midOf(*day, year + 5, 2); });
        attempt([&] { date.day = midOf(*day, year + 8, 2); });
        if (!isOfThisCard(trackKey, date)) return false;
        if (!trackKey.empty()) break;
    }
    return true;
}

void takeCommaOut(Text& payoff) {
    if (auto plain = withoutComma(payoff)) payoff = std::move(*plain);
}

void removeComma(PayoffCell::Number cell) {
    attempt([&] { takeCommaOut(card.payoffRecord(cursor.race, cell)); });
}

void storeFinisher(OutcomeCell::Number place, TextView line) {
    attempt([&] { card.raceOutcome(cursor.race, place) = leftOf(line, numberWidth); });
    attempt([] { screen.boardsToTakeIn(cursor.race) = 1; });
}

template <class Value>
Text payoffForm(const Value& value) {
    return formatted("###.#0", "@@@@@@", value);
}

void readWinner(TextView line) {
    storeFinisher(OutcomeCell::r1, line);
    const TextView text = midOf(line, numberWidth + 1);
    const int win = figurePlace(text);
    if (win == 0) return passOver();
    const TextView rest = trimmed(midOf(text, win + payoffWidth + 1));
    attempt(
        [&] { card.payoffRecord(cursor.race, PayoffCell::win) = payoffForm(midOf(text, win, payoffWidth)); });
    attempt([&] {
        card.payoffRecord(cursor.race, PayoffCell::place1) =
            payoffForm(lenientNumber(leftOf(rest, payoffWidth)));
    });
    attempt([&] {
        card.payoffRecord(cursor.race, PayoffCell::show1) =
            payoffForm(lenientNumber(rightOf(rest, payoffWidth)));
    });
}

void readSecond(TextView line) {
    storeFinisher(OutcomeCell::r2, line);
    const TextView text = midOf(line, numberWidth + 1);
    const int place = figurePlace(text);
    if (place == 0) return passOver();
    const TextView rest = trimmed(midOf(text, place + payoffWidth + 1));
    attempt([&] { card.payoffRecord(cursor.race, PayoffCell::place2) = midOf(text, place, payoffWidth); });
    attempt([&] { card.payoffRecord(cursor.race, PayoffCell::show2) = rightOf(rest, lastPayoffWidth); });
}

void readThird(TextView line) {
    storeFinisher(OutcomeCell::r3, line);
    attempt(
        [&] { card.payoffRecord(cursor.race, PayoffCell::show3) = rightOf(trimmed(line), lastPayoffWidth); });
    // The exacta stands below these lines, so what loses its comma here is an exacta of the run before.
    removeComma(PayoffCell::exacta);
}

void readFinishers(LineReader& lines) {
    for (const auto readFinisher : {readWinner, readSecond, readThird}) {
        const auto line = lines.next();
        if (!line) return;
        readFinisher(*line);
    }
}

void readExacta(TextView line) {
    attempt([&] { card.payoffRecord(cursor.race, PayoffCell::exacta) = exoticPayoff(line); });
}

void readTrifecta(TextView line) {
    attempt([&] { card.payoffRecord(cursor.race, PayoffCell::trifecta) = exoticPayoff(line); });
    removeComma(PayoffCell::trifecta);
}

/// The fourth finisher, who has no line of his own: the last of the superfecta's numbers, before "paid". Two
/// characters are taken, of which the second is a blank before "paid": 10 and above keep their last figure.
void readFourth(TextView line) {
    constexpr int numbersWidth = 11;
    const TextView keyword = midOf(line, keywordPlace, 3);
    if (keyword != "SU " && keyword != "SUP") return;
    const TextView numbers = midOf(line, keyword == "SUP" ? 18 : 10, numbersWidth);
    const int paid = placeOf("p", numbers);
    if (paid == 0) return passOver();
    const TextView last = rightOf(leftOf(numbers, paid - 1), numberWidth);
    attempt([&] { card.raceOutcome(cursor.race, OutcomeCell::r4) = numberText(lenientNumber(last)); });
}

void readSuperfecta(TextView line) {
    attempt([&] { card.payoffRecord(cursor.race, PayoffCell::superfecta) = exoticPayoff(line); });
    removeComma(PayoffCell::superfecta);
    readFourth(line);
}

void readDouble(TextView line, int poolPlace) {
    constexpr int cutWidth = 10;
    constexpr int doubleLegs = 2;
    const TextView cut = rightOf(line, cutWidth);
    attempt(
        [&] { card.pickPayoff(cursor.race, doubleLegs) = afterDollar(cut, placeOf("$", cut), cutWidth); });
    card.poolText = poolFrom(line, poolPlace);
    card.poolLegs = doubleLegs;
    Pick3();
}

void readShortDouble(TextView line) { readDouble(line, keywordPlace + 2); }

void readLongDouble(TextView line) { readDouble(line, keywordPlace + 6); }

struct PickCount {
    TextView word; ///< at columns 12 to 15
    Integer legs;
};
constexpr std::array pickCounts{
    PickCount{"THRE", 3}, PickCount{"FOUR", 4},  PickCount{"FIVE", 5},
    PickCount{"SIX ", 6}, PickCount{"TEN ", 10},
};

void readPick(TextView line) {
    constexpr int cutWidth = 11;
    constexpr int poolPlace = 16;
    for (const PickCount& row : pickCounts) // with no word of these the count is as it stands
        if (midOf(line, 12, 4) == row.word) card.poolLegs = row.legs;
    const TextView cut = rightOf(line, cutWidth);
    attempt([&] { card.pickPayoff(cursor.race, card.poolLegs) = cut; });
    // Where the "$" stands is read off the race's pick three, whatever the count. It loses its own "$" here,
    // so that a longer pick that ends in the same race keeps the text as cut.
    attempt([&] {
        card.pickPayoff(cursor.race, card.poolLegs) =
            afterDollar(cut, placeOf("$", card.pickPayoff(cursor.race, 3)), cutWidth);
    });
    card.poolText = poolFrom(line, poolPlace);
    Pick3();
}

/// What the lines with a keyword at column 7 mean; the first that fits counts.
struct KeywordLine {
    TextView keyword;
    void (*read)(TextView line);
};
// clang-format off
constexpr std::array keywordLines{
    KeywordLine{"EX", readExacta},
    KeywordLine{"TR", readTrifecta},
    KeywordLine{"SU", readSuperfecta},
    KeywordLine{"DD", readShortDouble},
    KeywordLine{"DOUBLE", readLongDouble},
    KeywordLine{"PICK", readPick},
};
// clang-format on

void readLine(TextView line, LineReader& lines) {
    if (const int colon = placeOf(":", line); colon > 0) {
        // Any colon starts a race; the refund lines of scratches, which have no number there, go to race 0.
        attempt([&] { cursor.race = toInteger(lenientNumber(midOf(line, colon + 1, 3))); });
        return;
    }
    if (line.starts_with("PRG")) return readFinishers(lines);
    for (const KeywordLine& row : keywordLines)
        if (midOf(line, keywordPlace).starts_with(row.keyword)) return row.read(line);
}

void readResults(TextView content) {
    LineReader lines{content};
    while (const auto line = lines.next()) readLine(*line, lines);
}

void addRefunds(TextView content) {
    LineReader lines{content};
    while (const auto line = lines.next()) {
        if (!contains(*line, "REFUNDS:")) continue;
        const double race = lenientNumber(midOf(*line, 11, 2));
        attempt([&] {
            card.payoffRecord(toInteger(race), PayoffCell::refunds) += " " + Text{rightOf(*line, 2)};
        });
    }
}

} // namespace

void AutoRecord() {
    const Step step{"AutoRecord"};
    if (card.cardFileName.empty()) return;
    card.recallMode = "RX";
    card.winHeat.clear();
    card.placeHeat.clear();
    if (const auto content = resultsText()) {
        if (!columnsAreOfThisCard(*content)) return;
        cursor.race = static_cast<Integer>(raceOnShow());
        readResults(*content);
        addRefunds(*content);
    }
    showRace(1);
}

} // namespace quillon

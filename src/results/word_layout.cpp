// Results text told by words: "TRC Auto Record", and the quiet pass of a recall.
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
#include <limits>
#include <optional>
#include <span>

namespace quillon {
namespace {

constexpr int winnersEnd = 18; ///< characters at the end of a "1st" line that may hold payoffs
constexpr int longWinnersEnd = 20;
constexpr int secondsEnd = 12;
constexpr int thirdsEnd = 7;

/// The pass at work.
struct WordPass {
    bool withPools = false;         ///< the pass that a user runs: doubles and picks, long Win payoffs
    std::optional<Text> trackKey{}; ///< looked up at the first "Results" line
    ResultsDate date{};
};

Text& outcome(OutcomeCell::Number cell) { return card.raceOutcome(cursor.race, cell); }

Text& payoff(PayoffCell::Number cell) { return card.payoffRecord(cursor.race, cell); }

struct MonthName {
    TextView name;
    const char* number;
};
// clang-format off
constexpr std::array monthNames{
    MonthName{"January", "01"}, MonthName{"February", "02"}, MonthName{"March",     "03"},
    MonthName{"April",   "04"}, MonthName{"May ",     "05"}, MonthName{"June",      "06"},
    MonthName{"July",    "07"}, MonthName{"August",   "08"}, MonthName{"September", "09"},
    MonthName{"October", "10"}, MonthName{"November", "11"}, MonthName{"December",  "12"},
};
// clang-format on

/// The first line with a month's name, a horse's too, is the date: the day stands before the first
/// comma, the year at the end.
void readDate(ResultsDate& date, TextView line) {
    for (const MonthName& month : monthNames) {
        if (!contains(line, month.name)) continue;
        date.month = month.number;
        date.year = rightOf(line, 4);
        attempt([&] { date.day = formatted("0#", midOf(line, placeOf(",", line) - 2, 2)); });
        return;
    }
}

/// Where a winner's three payoffs stand, by the place of the first point. The third is the last 6 characters.
struct WinnerCut {
    int point;
    int firstWidth;
    int secondPlace;
    int secondWidth;
};
// clang-format off
constexpr std::array winnerCuts{
    WinnerCut{2, 4, 5, 4},
    WinnerCut{3, 5, 6, 6},
    WinnerCut{4, 6, 7, 6},
    WinnerCut{5, 7, 8, 6}, // long lines only
};
// clang-format on
constexpr std::span<const WinnerCut> longLineCuts{winnerCuts};
constexpr std::span<const WinnerCut> shortLineCuts = longLineCuts.first(3);

void storeWinnersPayoffs(TextView figures, std::span<const WinnerCut> cuts,
                         const std::array<PayoffCell::Number, 3>& cells) {
    constexpr int thirdWidth = 6;
    const auto [first, second, third] = cells;
    const int point = placeOf(".", figures);
    for (const WinnerCut& cut : cuts) {
        if (cut.point != point) continue;
        attempt([&, cell = first] { payoff(cell) = leftOf(figures, cut.firstWidth); });
        attempt([&, cell = second] { payoff(cell) = midOf(figures, cut.secondPlace, cut.secondWidth); });
        attempt([&, cell = third] { payoff(cell) = rightOf(figures, thirdWidth); });
    }
}

/// How wide the payoffs of the second and third are, by the place of the first point; 0 where none are.
int placedWidth(TextView figures) {
    const int point = placeOf(".", figures);
    return point >= 2 && point <= 4 ? point + 2 : 0;
}

/// The user's pass shows race 1 as it goes, and what it shows has lost a leading zero in the store too.
void dropZeros(const WordPass& pass, std::initializer_list<PayoffCell::Number> cells) {
    if (!pass.withPools || cursor.race != 1) return;
    for (const auto cell : cells)
        if (payoff(cell).starts_with('0')) payoff(cell).erase(0, 1);
}

/// Counts a line of this finish for the race; 0 where the race isn't one of the store's.
int counted(Table<Integer, raceExtent>& heats) {
    int count = 0;
    attempt([&] { count = heats(cursor.race) = toInteger(heats(cursor.race) + 1); });
    return count;
}

void storeFinisher(OutcomeCell::Number place, TextView line) {
    attempt([&] { outcome(place) = midOf(line, 4, 3); });
    attempt([] { screen.boardsToTakeIn(cursor.race) = 1; });
}

void readWinner(const WordPass& pass, TextView line) {
    const int count = counted(card.winHeat);
    if (count == 1) {
        storeFinisher(OutcomeCell::r1, line);
        const TextView figures = afterName(rightOf(line, pass.withPools ? longWinnersEnd : winnersEnd));
        storeWinnersPayoffs(figures, pass.withPools ? longLineCuts : shortLineCuts,
                            {PayoffCell::win, PayoffCell::place1, PayoffCell::show1});
        dropZeros(pass, {PayoffCell::place1, PayoffCell::show1});
    } else if (count == 2) { // a dead heat: the other winner takes the place of the second
        storeFinisher(OutcomeCell::r2, line);
        storeWinnersPayoffs(afterName(rightOf(line, winnersEnd)), shortLineCuts,
                            {PayoffCell::deadHeat, PayoffCell::place2, PayoffCell::show2});
        dropZeros(pass, {PayoffCell::show2});
    }
}

void storePlacedPayoffs(TextView line, PayoffCell::Number placeCell, PayoffCell::Number showCell) {
    const TextView figures = afterSmallLetters(rightOf(line, secondsEnd));
    const int width = placedWidth(figures);
    if (width == 0) return passOver();
    attempt([&] { payoff(placeCell) = leftOf(figures, width); });
    attempt([&] { payoff(showCell) = rightOf(figures, width); });
}

void readSecond(const WordPass& pass, TextView line) {
    const int count = counted(card.placeHeat);
    if (count == 1) {
        storeFinisher(OutcomeCell::r2, line);
        storePlacedPayoffs(line, PayoffCell::place2, PayoffCell::show2);
        dropZeros(pass, {PayoffCell::show2});
    } else if (count == 2) { // a dead heat: the other second takes the place of the third
        storeFinisher(OutcomeCell::r3, line);
        storePlacedPayoffs(line, PayoffCell::deadHeat, PayoffCell::show3);
        dropZeros(pass, {PayoffCell::show2, PayoffCell::show3});
    }
}

void readThird(const WordPass& pass, TextView line) {
    storeFinisher(OutcomeCell::r3, line);
    const TextView figures = afterSmallLetters(rightOf(line, thirdsEnd));
    const int width = placedWidth(figures);
    if (width == 0) return passOver();
    attempt([&] { payoff(PayoffCell::show3) = leftOf(figures, width); });
    dropZeros(pass, {PayoffCell::show3});
}

void readFourth(const WordPass&, TextView line) { storeFinisher(OutcomeCell::r4, line); }

struct FinishLine {
    TextView start;
    void (*read)(const WordPass& pass, TextView line);
};
constexpr std::array finishLines{
    FinishLine{"1st", readWinner},
    FinishLine{"2nd", readSecond},
    FinishLine{"3rd", readThird},
    FinishLine{"4th", readFourth},
};

/// An exotic's payoff has no place of its own: the length of the line tells how much of its end it is.
constexpr int anyLength = std::numeric_limits<int>::max();
struct ExoticCut {
    TextView word;
    int shortest;
    int longest;
    int characters;
    PayoffCell::Number cell;
};
// clang-format off
constexpr std::array exoticCuts{
    ExoticCut{"Exacta",     18, 18,        4, PayoffCell::exacta},
    ExoticCut{"Exacta",     19, 19,        5, PayoffCell::exacta},
    ExoticCut{"Exacta",     20, 20,        6, PayoffCell::exacta},
    ExoticCut{"Exacta",     21, 22,        7, PayoffCell::exacta},
    ExoticCut{"Trifecta",    0, 24,        6, PayoffCell::trifecta},
    ExoticCut{"Trifecta",   25, 25,        7, PayoffCell::trifecta},
    ExoticCut{"Trifecta",   26, 27,        8, PayoffCell::trifecta},
    ExoticCut{"Superfecta",  0, 28,        7, PayoffCell::superfecta},
    ExoticCut{"Superfecta", 29, 29,        8, PayoffCell::superfecta},
    ExoticCut{"Superfecta", 30, anyLength, 9, PayoffCell::superfecta},
};
// clang-format on

void storeExotic(TextView word, TextView line) {
    const auto length = static_cast<int>(line.size());
    for (const ExoticCut& cut : exoticCuts)
        if (cut.word == word && length >= cut.shortest && length <= cut.longest)
            attempt([&] { payoff(cut.cell) = rightOf(line, cut.characters); });
}

/// The words that an exotic or a note is told by; the first that the line holds counts.
void readExotic(TextView line) {
    if (contains(line, "Exacta") || contains(line, "Perfecta")) return storeExotic("Exacta", line);
    if (contains(line, "Trifecta")) return storeExotic("Trifecta", line);
    if (contains(line, "Superfecta")) return storeExotic("Superfecta", line);
    if (contains(line, "D/D"))
        attempt([&] { payoff(PayoffCell::dailyDouble) = line; });
    else if (contains(line, "Refund"))
        attempt([&] { payoff(PayoffCell::refunds) = line; });
}

Text poolPayoff(TextView text) { return formatted("######.00", "@@@@@@@@@", text); }

/// A daily double names its two winners at fixed columns.
void readDouble(TextView line) {
    attempt([&] { card.pickLegs(cursor.race - 1, 1) = midOf(line, 12, 2); });
    attempt([&] { card.pickLegs(cursor.race, 1) = midOf(line, 15, 2); });
    attempt([&] { card.pickPayoff(cursor.race, 2) = poolPayoff(midOf(line, 17)); });
}

/// "Pick 4    3/1,2/5/7 4 of 4 1,204.60": the count after the word, the pool up to the correct picks in
/// before "of", the payoff after the picks that were to be made. Without "of" there is no pool, and the
/// race cursor stays at the first leg.
void readPick(TextView line) {
    const auto length = static_cast<int>(line.size());
    const auto legs = static_cast<Integer>(lenientNumber(midOf(line, placeOf("Pick", line) + 5, 1)));
    const int of = placeOf("of", line);
    card.poolText.clear();
    if (of >= 13)
        card.poolText = trimmed(midOf(line, 11, of - 13));
    else
        passOver();
    attempt([&] { card.pickPayoff(cursor.race, legs) = poolPayoff(rightOf(line, length - of - 4)); });
    if (legs < 3 || legs > 6) return;
    card.poolLegs = legs;
    Pick3();
}

/// False when the text proves to be of another day or track.
bool readLine(WordPass& pass, TextView line) {
    if (!pass.trackKey && line.starts_with("Results")) pass.trackKey = resultsTrackKey();
    if (pass.date.empty()) {
        readDate(pass.date, line);
        if (!isOfThisCard(pass.trackKey.value_or(""), pass.date)) return false;
    }
    if (contains(line, "Race:")) attempt([&] { cursor.race = toInteger(lenientNumber(midOf(line, 7, 3))); });
    for (const FinishLine& row : finishLines)
        if (line.starts_with(row.start)) row.read(pass, line);
    if (pass.withPools && contains(line, "D/D")) readDouble(line);
    if (pass.withPools && contains(line, "Pick")) readPick(line);
    readExotic(line);
    return true;
}

/// False when there is no file, or it is of another day or track.
bool readResults(WordPass pass) {
    const auto content = resultsText();
    if (!content) return false;
    cursor.race = static_cast<Integer>(raceOnShow());
    LineReader lines{*content};
    while (const auto line = lines.next())
        if (!readLine(pass, *line)) return false;
    cursor.race = 1;
    return true;
}

} // namespace

void AutoRecord2() {
    const Step step{"AutoRecord2"};
    card.recallMode = "RX";
    if (readResults({})) showBoard(1); // the recall has put race 1 on show
}

void EBET() {
    const Step step{"EBET"};
    card.recallMode = "RX";
    card.winHeat.clear();
    card.placeHeat.clear();
    if (readResults({.withPools = true})) showRace(1);
}

} // namespace quillon

#include "reports/pick_sheet.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "reports/ranked_row.h"
#include "reports/report_writer.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

// clang-format off
constexpr const char* title     = "QUILLON Pick 3-4-5-6 Selections";
constexpr const char* legLine   = "Race:   @@:          {}  -{}  -{}  -{}";
constexpr const char* totalLine = "Total Bets: {}";
constexpr const char* rule      = "========================================";
constexpr const char* fiveLine  = "Race:    {}:           {} -{} -{} -{} -{}";

// Words that tell a wager over several races. The first that a text holds counts, in this order.
struct PickWord {
    TextView word;
    int room; ///< characters after the word in which the number of legs is looked for
    int legs; ///< legs that the word itself says, or 0
};
constexpr std::array pickWords{
    PickWord{"Pk",      2, 0},
    PickWord{"PICK",   10, 0},
    PickWord{"Pick",   10, 0},
    PickWord{"PIC",    10, 0},
    PickWord{"Pic",    10, 0},
    PickWord{"Single", 10, 0},
    PickWord{"Win",    10, 0},
    PickWord{"Double",  0, 2},
    PickWord{"DOUBLE",  0, 2},
};

// Numbers in words; where a text holds several, the later row decides.
struct NumberWord { TextView word; Integer legs; };
constexpr std::array numberWords{
    NumberWord{"THREE", 3},
    NumberWord{"FOUR",  4},
    NumberWord{"FIVE",  5},
    NumberWord{"SIX",   6},
};

// Words that tell a wager on the first five; two of them only with the parenthesis that closes them.
constexpr std::array<TextView, 11> fivePlaceWords{
    "Hi-5", "HI 5", "HI FIVE", "Hi Five", "High 5", "HIGH 5",
    "High-5)", "HIGH FIVE", "High Five)", "PENTAFECTA", "Pentafecta",
};

// Places of the four selections in a five-place ticket, by the pick on top.
constexpr std::array<std::array<int, 4>, 4> fivePlaceOrders{{
    {1, 2, 3, 4},
    {2, 1, 3, 4},
    {3, 1, 2, 4},
    {4, 1, 2, 3},
}};
// clang-format on

constexpr int picks = 4;

// The number of legs that a wagering text gives for one of its words, 0 when it gives none.
Integer legsIn(TextView wagering, const PickWord& row) {
    if (row.legs > 0) return static_cast<Integer>(row.legs);
    const int behind = placeOf(row.word, wagering) + static_cast<int>(row.word.size());
    Integer legs = 0;
    attempt([&] { legs = toInteger(lenientNumber(midOf(wagering, behind, row.room))); });
    if (legs != 0) return legs;
    for (const NumberWord& number : numberWords)
        if (contains(wagering, number.word)) legs = number.legs;
    return legs;
}

Text wagerHeading(const PickWord& row, Integer legs) {
    Text heading = upperCase(row.word);
    if (row.legs == 0) heading += numberText(legs);
    return heading;
}

// The key picks of a race; a leg after the last race that can have any has none.
std::array<TextView, picks> picksOf(int race) {
    std::array<TextView, picks> found{};
    if (race < 0 || race >= labelExtent) return found;
    for (int pick = 1; pick <= picks; ++pick)
        found[static_cast<std::size_t>(pick) - 1] = card.keyPicks(race, pick);
    return found;
}

bool isPick(TextView programNumber) { return lenientNumber(programNumber) > 0; }

/// Writes the legs of one wager and tells how many tickets take every pick of every leg.
double addLegs(ReportWriter& sheet, int firstRace, Integer legs) {
    double tickets = 1; // legs without end only make it great
    for (int race = firstRace; race < firstRace + legs; ++race) {
        const auto leg = picksOf(race);
        sheet.line(legLine, formatted("##", race), leg[0], leg[1], leg[2], leg[3]);
        tickets *= static_cast<double>(std::count_if(leg.begin(), leg.end(), isPick));
    }
    return tickets;
}

// The total is worked out for two to six legs. Others show what stands there: 0 after another wager.
void addWager(ReportWriter& sheet, int race, const PickWord& row, Text& total) {
    const Integer legs = legsIn(card.raceInfo(race).wagering, row);
    sheet.line("");
    sheet.line("{}", wagerHeading(row, legs));
    const double tickets = addLegs(sheet, race, legs);
    if (legs < 1) return;
    if (legs >= 2 && legs <= 6) total = listNumber(tickets);
    sheet.returnLine();
    sheet.line(totalLine, total);
    sheet.line(rule);
    sheet.returnLine();
    total = listNumber(0);
}

SheetTicket wagerTicket(int race, const PickWord& row) {
    const Integer legs = legsIn(card.raceInfo(race).wagering, row);
    SheetTicket ticket{.heading = wagerHeading(row, legs), .race = race, .overRaces = true};
    for (int leg = race; leg < race + legs; ++leg) {
        auto& numbers = ticket.sets.emplace_back();
        for (const TextView pick : picksOf(leg))
            if (isPick(pick)) numbers.emplace_back(trimmed(pick));
    }
    return ticket;
}

SheetTicket fivePlaceTicket(int race, TextView word, const std::array<int, 4>& order) {
    SheetTicket ticket{.heading = upperCase(word), .race = race};
    for (const int place : order) ticket.sets.push_back({Text{trimmed(rankedRow(race, place).pn)}});
    ticket.sets.push_back({Text{trimmed(rankedRow(race, fifthPlace).pn)}});
    return ticket;
}

const PickWord* wagerWordOf(int race) {
    const TextView wagering = card.raceInfo(race).wagering;
    const auto offered = [&](const PickWord& row) { return contains(wagering, row.word); };
    const auto row = std::find_if(pickWords.begin(), pickWords.end(), offered);
    return row == pickWords.end() ? nullptr : &*row;
}

TextView fivePlaceWordOf(int race) {
    const TextView wagering = card.raceInfo(race).wagering;
    const auto offered = [&](TextView word) { return contains(wagering, word); };
    const auto word = std::find_if(fivePlaceWords.begin(), fivePlaceWords.end(), offered);
    return word == fivePlaceWords.end() ? TextView{} : *word;
}

// S1's order stands always, another one where its pick is a key pick.
bool isOnSheet(int race, const std::array<int, 4>& order) {
    return order[0] == 1 || isPick(card.keyPicks(race, order[0]));
}

void addFivePlaces(ReportWriter& sheet, int race, TextView word) {
    const auto pn = [&](int place) { return rankedRow(race, place).pn; };
    sheet.line("");
    sheet.line("{}", upperCase(word));
    for (const auto& order : fivePlaceOrders)
        if (isOnSheet(race, order))
            sheet.line(fiveLine, listNumber(race), pn(order[0]), pn(order[1]), pn(order[2]), pn(order[3]),
                       pn(fifthPlace));
}

} // namespace

void KeyHorses() {
    const Step step{"KeyHorses"};
    ReportWriter sheet;
    addCardHead(sheet, title);
    Text total;
    for (int race = 1; race <= card.raceCount; ++race)
        if (const PickWord* const row = wagerWordOf(race)) addWager(sheet, race, *row, total);
    for (int race = 1; race <= card.raceCount; ++race)
        if (const TextView word = fivePlaceWordOf(race); !word.empty()) addFivePlaces(sheet, race, word);
    attempt([&] { writeFile(cardFile(Folder::selections2, "pmr2"), sheet.content()); });
}

std::vector<SheetTicket> pickSheetTickets() {
    constexpr std::size_t fewestLegs = 2;
    constexpr std::size_t mostLegs = 6;
    std::vector<SheetTicket> tickets;
    const int races = std::min<int>(card.raceCount, raceExtent - 1);
    for (int race = 1; race <= races; ++race) {
        const PickWord* const row = wagerWordOf(race);
        if (!row || legsIn(card.raceInfo(race).wagering, *row) < 1) continue;
        SheetTicket ticket = wagerTicket(race, *row);
        if (ticket.sets.size() >= fewestLegs && ticket.sets.size() <= mostLegs)
            tickets.push_back(std::move(ticket));
    }
    for (int race = 1; race <= races; ++race) {
        const TextView word = fivePlaceWordOf(race);
        if (word.empty() || race >= labelExtent) continue;
        for (const auto& order : fivePlaceOrders)
            if (isOnSheet(race, order)) tickets.push_back(fivePlaceTicket(race, word, order));
    }
    return tickets;
}

} // namespace quillon

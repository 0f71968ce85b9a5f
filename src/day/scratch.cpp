#include "day/scratch.h"

#include "card/card_files.h"
#include "card/line_fields.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "day/new_ranking.h"
#include "results/board.h"
#include "screen/ports.h"
#include "screen/race_views.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr TextView scratchCaption = "Scr";
constexpr TextView removeCaption = "X";
constexpr TextView lastOfAll = "99.9"; ///< the rating of an entry that was taken out

// What an entry gains when one inside it goes out, by the size of the track.
constexpr int firstCreditedPost = 5;
constexpr int creditedPosts = 6;
struct ScratchCredit {
    TextView trackSize;
    std::array<double, creditedPosts> credit; ///< posts 5 to 10
};

// clang-format off
constexpr std::array scratchCredits{
    ScratchCredit{"5/6", {0,   0.6, 0.4, 0.5,  1,     1    }},
    ScratchCredit{"1.Q", {0,   0.6, 0.4, 0.5,  1,     1    }},
    ScratchCredit{"1.M", {0,   0.6, 0.4, 0.5,  1,     1    }},
    ScratchCredit{"7/8", {0,   0.7, 0.3, 0.75, 0.925, 1.325}},
    ScratchCredit{"3/1", {0,   0.7, 0.3, 0.75, 0.925, 1.325}},
    ScratchCredit{"5/8", {0.4, 0.6, 1,   0.25, 0.75,  1.25 }},
    ScratchCredit{"3/4", {0.4, 0.6, 1,   0.25, 0.75,  1.25 }},
    ScratchCredit{"1/2", {0.8, 0.7, 2.5, 1,    3,     0.5  }},
};
// clang-format on

double scratchCredit(TextView trackSize, int post) {
    const auto row = std::find_if(scratchCredits.begin(), scratchCredits.end(),
                                  [&](const ScratchCredit& credit) { return credit.trackSize == trackSize; });
    const int place = post - firstCreditedPost;
    if (row == scratchCredits.end() || place < 0 || place >= creditedPosts) return 0;
    return row->credit[static_cast<std::size_t>(place)];
}

// The rating less the credit, cut to four characters before it is formatted: 58.35 becomes 58.3.
Text creditedRating(double rating, double credit) {
    constexpr int ratingCharacters = 4;
    return formatted("##.0", "@@@@", leftOf(numberText(rating - credit), ratingCharacters));
}

bool isThere(int race, int entry) {
    return race >= 1 && race <= ratedRaces && entry >= 1 && entry <= ratedEntries &&
           !trimmed(card.entry[{race, entry}].horseName).empty();
}

const Text& captionOf(int button) { return screen.scratchButtons[static_cast<std::size_t>(button)].caption; }

// All twelve buttons take the caption of button 0, and button 0 the other one.
void switchColumn() {
    const bool toRemoving = captionOf(0) == removeCaption;
    if (!toRemoving && captionOf(0) != scratchCaption) return;
    for (Button& button : screen.scratchButtons) button.caption = toRemoving ? removeCaption : scratchCaption;
    screen.scratchButtons[0].caption = toRemoving ? scratchCaption : removeCaption;
}

bool userIsSure(const RaceEntry& entry, int button) {
    const Text action = captionOf(button) == removeCaption ? "REMOVE" : "SCRATCH";
    ports.beep();
    return ports.question("Are you sure you want to " + action + " Program Number " +
                              screen.entryButtons[static_cast<std::size_t>(button)].caption + "...   " +
                              entry.horseName.text() + "?",
                          "Scratch Entry");
}

void appendRefund(int race, const RaceEntry& entry) {
    constexpr int gap = 7;
    appendToFile(cardFile(Folder::results, "pmr"),
                 "REFUNDS: R" + std::to_string(race) + blanks(gap) + entry.programNumber.text() + Text{crLf});
}

void clearRow(Grid& view, int row) {
    for (int column = RaceColumn::purse; column <= RaceColumn::udr; ++column) view(row, column).text.clear();
}

// The entry that the row of the race view names by its post.
void rateTakenOut(int race, int row) {
    Grid& view = raceViewOf(race);
    attempt([&] {
        card.entry(race, toInteger(lenientNumber(view.text(row, RaceColumn::post)))).rating = lastOfAll;
    });
    view(row, RaceColumn::rating).text = lastOfAll;
}

// The positions go at the crossed index as well, so that another entry of another race loses its own: the
// pass has always done so, and saved cards show it.
void emptyChosen(int race, int index) {
    PastLine& chosen = card.entry(race, index).chosen;
    for (const LineField& field : lineFields)
        if (field.scratched != Scratched::stays) (chosen.*field.cell).clear();
    PastLine& crossed = card.entry(index, race).chosen;
    for (const LineField& field : lineFields)
        if (field.scratched == Scratched::emptiedTwice) (crossed.*field.cell).clear();
}

void scratch(int race, int index) {
    RaceEntry& entry = card.entry[{race, index}];
    attempt([&] { appendRefund(race, entry); });
    card.payoffRecord[{race, PayoffCell::refunds}] += " " + entry.programNumber.text();
    Grid& view = raceViewOf(race);
    clearRow(view, index);
    attempt([&] { rateTakenOut(race, index); });
    attempt([&] { emptyChosen(race, index); });
    entry.rating = lastOfAll;
    view(index, RaceColumn::rating).text = aligned("@@@@@@@", entry.rating);
}

void adjustOutside(int race, int index) {
    Grid& view = raceViewOf(race);
    for (int outside = index + 1; outside <= ratedEntries; ++outside) {
        Text& rating = card.entry[{race, outside}].rating;
        cursor.scratchPost = static_cast<Integer>(outside);
        Scr_adj();
        if (const auto value = numberIn(rating))
            attempt([&] { rating = creditedRating(*value, lenientNumber(cursor.scratchAdjust)); });
        else
            passOver();
        view(outside, RaceColumn::rating).text = rating;
    }
}

void rankAgain(int race) {
    rankOnBoard(race, fullRanking);
    card.raceOutcome[{race, OutcomeCell::fifth}] = rankedEntry(race, rankedPlaces).programNumber;
    renewSelections(race, rankedPlaces, Posts::renewed);
    CloseRanking();
    attempt(TEXT_56);
}

} // namespace

bool canScratch(int button) { return button == 0 || isThere(raceOnShow(), button); }

void Command4(int button) {
    const Step step{"Command4"};
    if (button == 0) switchColumn();
    const int race = raceOnShow();
    if (!isThere(race, button) || !userIsSure(card.entry[{race, button}], button)) return;
    cursor.race = static_cast<Integer>(race);
    cursor.entry = static_cast<Integer>(button);
    const Text caption = captionOf(button);
    raceViewOf(race)(button, RaceColumn::track).text = caption;
    screen.lineTaken[{race, button}] = takenOut;
    if (caption == removeCaption)
        attempt([&] { rateTakenOut(race, button); });
    else
        scratch(race, button);
    attempt([&] { adjustOutside(race, button); });
    rankAgain(race);
}

void Scr_adj() {
    const Step step{"Scr_adj"};
    cursor.scratchAdjust = numberText(scratchCredit(card.trackSize, cursor.scratchPost));
}

} // namespace quillon

#include "results/heats.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/formats.h"
#include "rating/race_ranking.h"
#include "reports/viewers.h"
#include "results/board.h"
#include "results/heat_slots.h"
#include "screen/ports.h"
#include "screen/race_views.h"
#include "screen/screen.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace quillon {
namespace {

/// What a finish in the heat is worth in the final.
struct FinishCredit {
    int finish;
    double credit;
};
constexpr std::array finishCredits{
    FinishCredit{1, 0.6},
    FinishCredit{2, 0.4},
    FinishCredit{3, 0.2},
    FinishCredit{4, 0.1},
};

constexpr int lastInsidePost = 5;        ///< a post outside it earns an allowance
constexpr double outsideAllowance = 0.5; ///< for each post of the entry's place in its own race

double finishCredit(TextView answer) {
    for (const FinishCredit& row : finishCredits)
        if (lenientNumber(answer) == row.finish) return row.credit;
    return 0;
}

/// The heat's number, where it has a race button.
std::optional<int> heatNumber(TextView answer) {
    const double number = lenientNumber(answer);
    const auto last = static_cast<double>(screen.raceButtons.size() - 1);
    if (number < 1 || number > last) return std::nullopt;
    return toInteger(number);
}

FilePlace heatLog(TextView number) { return {Folder::program, "RACE(" + Text{number} + ").txt"}; }

/// The horse that goes on to a final, and where it comes from.
struct HeatEntry {
    const RaceEntry& entry;
    int index; ///< its place in its own race
    int finalRace;
};

/// The horse's rating in the final: better for a good finish, and for having to start from outside. The
/// allowance goes by the entry's place in its own race, not by the new post.
double heatRatingOf(const HeatEntry& horse, TextView finish, int post) {
    double rating = lenientNumber(horse.entry.rating) - finishCredit(finish);
    if (post > lastInsidePost) rating -= outsideAllowance * horse.index;
    return rating;
}

void enterIntoFinal(const HeatEntry& horse, int post, TextView rating) {
    RaceEntry& slot = card.entry(horse.finalRace, post);
    card.heatPost(horse.finalRace, post) = static_cast<Integer>(post);
    card.heatRating(horse.finalRace, post) = rating;
    slot.horseName = horse.entry.horseName;
    slot.driverName = horse.entry.driverName;
    slot.driverUdr = horse.entry.driverUdr;
}

/// An empty line and the horse's own go to the end of the heat's log; nothing of it is ever taken away.
void logHeatEntry(int race, int post) {
    const RaceEntry& slot = card.entry(race, post);
    Text line{crLf};
    line += listNumber(post);
    line += aligned("@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@", slot.horseName);
    line += aligned("@@@@@@@@@@@@@@@", slot.chosenDriver);
    line += aligned("@@@@", slot.driverUdr);
    line += aligned("@@@@@@@@@@", card.heatRating(race, post));
    line += crLf;
    appendToFile(heatLog(std::to_string(race)), line);
}

/// The entries of a heat in the order of their ratings; 0 where there is none for a place. The places found
/// become those of the last ranking.
RankedEntries rankHeat(int race) {
    RatingTexts ratings{};
    for (int entry = 1; entry <= ratedEntries; ++entry)
        ratings[static_cast<std::size_t>(entry)] = card.heatRating(race, entry);
    const RankedEntries places = ranked(fourStages, ratings, {});
    for (int place = 1; place <= selectionBoxes; ++place)
        if (const Integer entry = places[static_cast<std::size_t>(place)]; entry > 0)
            card.rankEntry(place) = entry;
    return places;
}

Text postText(int race, int entry) {
    const Integer post = card.heatPost(race, entry);
    return post > 0 ? numberText(post) : "";
}

} // namespace

void HeatWinner() {
    MenuState& item = screen.item(CommandId::HeatWinner);
    item.checked = !item.checked;
    for (int row = 1; row <= ratedEntries; ++row) {
        Button& choice = screen.heatButtons.at(row);
        choice.visible = choice.enabled = item.checked;
    }
}

void HeatChoice(int row) {
    const Step step{"HeatChoice"};
    const int race = raceOnShow();
    if (row < 1 || row > ratedEntries || race == 0) return;
    const Integer index = toInteger(strictNumber(raceViewOf(race).text(row, RaceColumn::post)));
    const RaceEntry& entry = card.entry(race, index);

    const auto number = ports.input("Enter Heat Race Number", "Heat Results");
    if (!number) return;
    const auto finalRace = heatNumber(*number);
    if (!finalRace) {
        ports.message("Race Number Exceeds Capacity", "");
        return;
    }
    if (!card.raceInfo(*finalRace).label.empty())
        fail("race " + std::to_string(*finalRace) + " is one of the card's own");
    Button& button = screen.raceButtons.at(*finalRace);
    button.caption = std::to_string(*finalRace);
    button.visible = true;

    const Text& name = entry.horseName;
    const Text title = name + " Finish";
    const auto finish = ports.input("Enter " + name + "  finish positon  1-2-3-4 ", title);
    if (!finish) return;
    const auto postAnswer = ports.input("Enter " + name + "  Post Position:", title);
    if (!postAnswer) return;
    const Integer post = toInteger(lenientNumber(*postAnswer));
    if (post < 1) fail("a heat entry without a post position");

    const HeatEntry horse{entry, index, *finalRace};
    enterIntoFinal(horse, post, numberText(heatRatingOf(horse, *finish, post)));
    logHeatEntry(*finalRace, post);
}

void ViewHeat() {
    const Step step{"ViewHeat"};
    const auto number = ports.input("Enter Heat Race Number", "Heat Races");
    if (number) showInViewer(heatLog(numberText(lenientNumber(*number))));
}

void fillHeatView(int race) {
    Grid& view = raceViewOf(race);
    for (int row = 1; row <= ratedEntries; ++row) {
        const Text post = postText(race, row);
        view(row, RaceColumn::horseName).text = card.entry(race, row).horseName;
        view(row, RaceColumn::programNumber).text = post;
        view(row, RaceColumn::post).text = post.empty() ? std::to_string(row) : post;
        view(row, RaceColumn::rating).text = card.heatRating(race, row);
    }
}

void showHeatSelections(int race) {
    const RankedEntries places = rankHeat(race);
    if (hasSelections(race)) return;
    for (int box = 0; box < selectionBoxes; ++box)
        screen.boxes.at(box).text = postText(race, places[static_cast<std::size_t>(box) + 1]);
}

} // namespace quillon

#include "day/why.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "rating/race_ranking.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quillon {
namespace {

constexpr std::array outcomeCells{OutcomeCell::none, OutcomeCell::s1, OutcomeCell::s2,
                                  OutcomeCell::s3,   OutcomeCell::s4, OutcomeCell::fifth};

Text placeName(int place) { return place <= 4 ? "S" + std::to_string(place) : "the fifth horse"; }

TextView shownNumber(int race, int place) {
    return trimmed(card.raceOutcome(race, outcomeCells[static_cast<std::size_t>(place)]));
}

TextView programNumber(int race, int entry) { return trimmed(card.entry(race, entry).programNumber); }

// "60.3"
Text ratedText(int race, int entry) {
    const TextView rating = trimmed(card.entry(race, entry).rating);
    return rating.empty() ? Text{"blanks"} : Text{rating};
}

// "number 4, Plain Biscuit"
Text named(int race, int entry) {
    const RaceEntry& horse = card.entry(race, entry);
    return "number " + Text{trimmed(horse.programNumber)} + ", " + Text{trimmed(horse.horseName)};
}

// The ranking that gives the places on show, with its comparisons.
struct RankingAgain {
    Ranking ranking;
    RankedEntries places{};
    RankingNotes notes{};
};

RatingTexts ratingsOf(int race) {
    RatingTexts ratings{};
    for (int entry = 0; entry <= ratedEntries; ++entry)
        ratings[static_cast<std::size_t>(entry)] = card.entry(race, entry).rating;
    return ratings;
}

// A stage that finds nobody leaves its place as it was: as it is on show.
RankedEntries shownPlaces(int race) {
    RankedEntries places{};
    for (int place = 1; place <= rankedPlaces; ++place)
        for (Integer entry = ratedEntries; entry >= 1; --entry)
            if (!programNumber(race, entry).empty() && programNumber(race, entry) == shownNumber(race, place))
                places[static_cast<std::size_t>(place)] = entry;
    return places;
}

// Which of the rankings it was is told by the places themselves: where two give the same, they compare the same.
std::optional<RankingAgain> rankingOnShow(int race) {
    const RankedEntries shown = shownPlaces(race);
    for (const Ranking& ranking : {fullRanking, fourStages, strictStages}) {
        RankingAgain again{.ranking = ranking};
        again.places = ranked(ranking, ratingsOf(race), shown, &again.notes);
        bool same = true;
        for (int place = 1; place <= ranking.stages; ++place)
            same = same && programNumber(race, again.places[static_cast<std::size_t>(place)]) ==
                               shownNumber(race, place);
        if (same) return again;
    }
    return std::nullopt;
}

Text ruleOfEquals(const RankingAgain& again, int stage) {
    return again.ranking.pick[static_cast<std::size_t>(stage - 1)] == Pick::atMost
               ? "of equals the one further outside is taken"
               : "of equals the one further inside stays";
}

// "60.3 against the 60.1 of number 4, Plain Biscuit"
Text compared(int race, int entry, int other, const RankingAgain& again, int stage) {
    const Text mine = ratedText(race, entry);
    if (other == 0) return mine + " against the 99.9 that it starts from";
    const Text his = ratedText(race, other);
    if (lenientNumber(mine) == lenientNumber(his))
        return "level at " + mine + " with " + named(race, other) + ": " + ruleOfEquals(again, stage);
    return mine + " against the " + his + " of " + named(race, other);
}

// The comparison that an entry lost a stage by: the last.
const RankingNote* lostBy(const RankingAgain& again, int stage, int entry) {
    const RankingNote* found = nullptr;
    for (const RankingNote& note : again.notes) {
        const bool loses =
            (note.entry == entry && !note.taken) || (note.best == entry && note.taken && !note.asSeed);
        if (note.stage == stage && note.entry != note.best && loses) found = &note;
    }
    return found;
}

// What the winner of a stage was compared with and beat, by entry; 0 is where the stage starts.
std::vector<int> beaten(const RankingAgain& again, int stage, int entry) {
    std::vector<int> others;
    for (const RankingNote& note : again.notes) {
        if (note.stage != stage || note.asSeed || note.entry == note.best) continue; // a seed meets itself
        if (note.entry == entry && note.taken) others.push_back(note.best);
        if (note.best == entry && !note.taken) others.push_back(note.entry);
    }
    return others;
}

Text wonStage(const RankingAgain& again, int race, int stage, int entry) {
    const Text text = "Stage " + std::to_string(stage) + ", won: ";
    bool found = false;
    for (const RankingNote& note : again.notes)
        found |= note.stage == stage && note.entry == entry && note.taken;
    if (!found) return text + "nobody was found for the place, which stays as it was";
    const std::vector<int> others = beaten(again, stage, entry);
    if (others.empty()) return text + ratedText(race, entry) + ", with nobody left to compare";
    const auto ratingOf = [&](int other) {
        return other == 0 ? again.ranking.start : lenientNumber(card.entry(race, other).rating);
    };
    const int nearest = *std::min_element(others.begin(), others.end(),
                                          [&](int one, int two) { return ratingOf(one) < ratingOf(two); });
    return text + compared(race, entry, nearest, again, stage);
}

Text lostStage(const RankingAgain& again, int race, int stage, int entry) {
    const RankingNote* note = lostBy(again, stage, entry);
    const int winner = again.places[static_cast<std::size_t>(stage)];
    const int other = !note ? winner : note->entry == entry ? note->best : note->entry;
    return "Stage " + std::to_string(stage) + ": " + compared(race, entry, other, again, stage);
}

} // namespace

std::vector<Text> whyPlace(int race, int entry) {
    if (race < 1 || race > ratedRaces || entry < 1 || entry > ratedEntries) return {};
    if (trimmed(card.entry(race, entry).horseName).empty()) return {};
    if (card.entry(race, entry).rating.empty()) return {"No rating: not ranked"};
    const auto again = rankingOnShow(race);
    if (!again) return {"The selections on show are not those that the ratings give"};
    std::vector<Text> reasons{""};
    for (int stage = 1; stage <= again->ranking.stages; ++stage) {
        const bool won = again->places[static_cast<std::size_t>(stage)] == entry;
        reasons.push_back(won ? wonStage(*again, race, stage, entry) : lostStage(*again, race, stage, entry));
        if (!won) continue;
        reasons.front() = "Ranked " + placeName(stage);
        return reasons;
    }
    reasons.front() = "Not among the first " + Text{again->ranking.stages == rankedPlaces ? "five" : "four"};
    return reasons;
}

} // namespace quillon

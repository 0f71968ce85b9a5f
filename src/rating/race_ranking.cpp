#include "rating/race_ranking.h"

#include "card/line_fields.h"
#include "core/failure.h"
#include "core/formats.h"
#include "screen/race_views.h"

#include <algorithm>
#include <optional>

namespace quillon {
namespace {

constexpr int selections = 4; ///< S1 to S4; the fifth horse is kept beside them

// One ranking at work.
class Contest {
public:
    Contest(const Ranking& ranking, const RatingTexts& ratings, RankedEntries places, RankingNotes* notes)
        : ranking_(ranking), ratings_(ratings), places_(places), best_(ranking.start), notes_(notes) {
        std::transform(ratings.begin(), ratings.end(), values_.begin(), lenientNumber);
    }

    RankedEntries run() {
        for (int stage = 1; stage <= ranking_.stages; ++stage) {
            if (stage > 1) seed(stage);
            pick(stage);
        }
        return places_;
    }

private:
    using Entry = std::size_t;

    // The last entry that is worse than all found before. It needs no test for an empty rating, whose value 0
    // is never above another.
    void seed(int stage) {
        for (Entry entry = 1; entry < values_.size(); ++entry)
            if (noneBefore(stage, [&](Entry found) { return values_[found] >= values_[entry]; })) {
                note(stage, entry, true, true);
                put(stage, entry);
            }
    }

    void pick(int stage) {
        for (Entry entry = 1; entry < values_.size(); ++entry) {
            if (!noneBefore(stage, [&](Entry found) { return found == entry; }) || ratings_[entry].empty())
                continue;
            const bool taken = beatsBest(ranking_.pick[static_cast<Entry>(stage - 1)], values_[entry]);
            note(stage, entry, taken, false);
            if (taken) put(stage, entry);
        }
    }

    void note(int stage, Entry entry, bool taken, bool asSeed) {
        if (notes_) notes_->push_back({stage, static_cast<int>(entry), bestEntry_, taken, asSeed});
    }

    // True where no entry found in the stages before this one is so.
    template <class Test>
    bool noneBefore(int stage, Test isSo) const {
        return std::none_of(places_.begin() + 1, places_.begin() + stage,
                            [&](Integer found) { return isSo(static_cast<Entry>(found)); });
    }

    // A best that is no number can't be compared with, and every rating replaces it.
    bool beatsBest(Pick pick, double value) const {
        if (!best_) return true;
        return pick == Pick::atMost ? value <= *best_ : value < *best_;
    }

    // The best goes on from stage to stage: a stage without a seed compares with what the last one left.
    void put(int stage, Entry entry) {
        best_ = numberIn(ratings_[entry]);
        if (!best_) passOver();
        bestEntry_ = static_cast<int>(entry);
        places_[static_cast<std::size_t>(stage)] = static_cast<Integer>(entry);
    }

    const Ranking& ranking_;
    const RatingTexts& ratings_;
    RankedEntries places_;
    std::optional<double> best_; ///< nothing: a rating that is no number
    int bestEntry_ = 0;          ///< whose it is; 0 at the start
    RankingNotes* notes_;
    std::array<double, ratedEntries + 1> values_{};
};

// Rows of a data view that a race's count looks at.
constexpr int countedRows = 130;

Integer filledRows(const Grid& dataView) {
    Integer filled = 0;
    for (int row = 1; row <= countedRows; ++row)
        if (!dataView.read(row, DataColumn::date).text.empty()) ++filled;
    return filled;
}

// Cell of the race's outcome that holds the program number of each place.
constexpr std::array<int, rankedPlaces + 1> outcomeCell{OutcomeCell::none, OutcomeCell::s1,
                                                        OutcomeCell::s2,   OutcomeCell::s3,
                                                        OutcomeCell::s4,   OutcomeCell::fifth};

template <class Action>
void forEachPlace(int last, Action action) {
    for (int place = 1; place <= last; ++place) action(place);
}

void fillCells(int race) {
    forEachPlace(rankedPlaces, [&](int place) {
        const RaceEntry& entry = rankedEntry(race, place);
        Selection& selection = card.selection[{race, place}];
        card.raceOutcome[{race, outcomeCell[static_cast<std::size_t>(place)]}] = entry.programNumber;
        selection.selectionPost = entry.postPosition;
        selection.selectionOdds = entry.morningOdds;
    });
}

void fillRatings(int race) {
    forEachPlace(rankedPlaces, [&](int place) {
        RaceEntry& entry = rankedEntry(race, place);
        attempt([&] { entry.rating = formatted("##.0", entry.rating); });
        card.selection[{race, place}].selectionRating = entry.rating;
    });
}

// A name that is too long for the sheet's column stays as it is.
void fillNames(int race) {
    constexpr int nameWidth = 20;
    forEachPlace(rankedPlaces, [&](int place) {
        RaceEntry& entry = rankedEntry(race, place);
        if (entry.horseName.size() <= nameWidth)
            entry.horseName = filledTo(entry.horseName, nameWidth);
        else
            passOver();
        card.selection[{race, place}].selectionName = entry.horseName;
    });
}

void widenCells(RaceEntry& entry) {
    entry.programNumber = aligned("@@@", entry.programNumber);
    entry.postPosition = aligned("@@@", entry.postPosition);
    entry.morningOdds = aligned("@@@@", entry.morningOdds);
    for (const LineField& field : lineFields)
        if (field.widened == Widened::whenRanked)
            entry.chosen.*field.cell = rightAligned(entry.chosen.*field.cell, static_cast<int>(field.width));
}

// The fourth selection's stretch position is the third's: so it has always stood on the reports.
void widenSelections(int race) {
    forEachPlace(selections, [&](int place) { widenCells(rankedEntry(race, place)); });
    rankedEntry(race, 4).chosen.CALL_ST_PO = rankedEntry(race, 3).chosen.CALL_ST_PO;
}

// A park cell that does not stand after "A" by its bytes: empty, or a single mark padded to two places. Bare
// and double marks stay.
void clearPaddedPark(Text& park) {
    if (!(TextView{park} > TextView{"A"})) park = "  ";
}

// Works on the entries of these indices in every race, not only in the race that was ranked.
void clearPaddedParks() {
    for (int race = 1; race <= ratedRaces; ++race)
        forEachPlace(selections, [&](int place) {
            PastLine& chosen = rankedEntry(race, place).chosen;
            for (Text PastLine::*park : {&PastLine::CALL_1Q_PK, &PastLine::CALL_2Q_PK, &PastLine::CALL_3Q_PK})
                clearPaddedPark(chosen.*park);
        });
}

void padDriver(Text& name) {
    constexpr int driverWidth = 15;
    if (name.size() < driverWidth) name = filledTo(name, driverWidth);
}

void fillDrivers(int race) {
    forEachPlace(rankedPlaces, [&](int place) {
        const RaceEntry& entry = rankedEntry(race, place);
        card.selection[{race, place}].selectionDriver = driverText(entry);
        attempt([&] { padDriver(card.driverTable(entry.driverNumber).name); });
    });
}

} // namespace

RankedEntries ranked(const Ranking& ranking, const RatingTexts& ratings, RankedEntries before,
                     RankingNotes* notes) {
    return Contest{ranking, ratings, before, notes}.run();
}

void rankValues(const Ranking& ranking, const RatingTexts& ratings) {
    RankedEntries places{};
    for (int place = 1; place <= rankedPlaces; ++place)
        places[static_cast<std::size_t>(place)] = card.rankEntry[{place}];
    places = ranked(ranking, ratings, places);
    for (int place = 1; place <= rankedPlaces; ++place)
        card.rankEntry[{place}] = places[static_cast<std::size_t>(place)];
}

void rankRace(int race, const Ranking& ranking) {
    RatingTexts ratings{};
    for (int entry = 0; entry <= ratedEntries; ++entry)
        ratings[static_cast<std::size_t>(entry)] = card.entry(race, entry).rating;
    rankValues(ranking, ratings);
}

RaceEntry& rankedEntry(int race, int place) { return card.entry(race, card.rankEntry(place)); }

Text driverText(const RaceEntry& entry) {
    const TextView name =
        entry.driverName.empty() ? TextView{entry.chosenDriver} : TextView{entry.driverName};
    return aligned("@@@@@@@@@@@@@@@ ", name) + entry.driverUdr;
}

void RankRace() {
    const Step step{"RankRace"};
    const int race = cursor.race;
    card.raceInfo(race).ratingNote = filledRows(dataViewOf(race));
    rankRace(race, fullRanking);
    fillCells(race);
    fillRatings(race);
    fillNames(race);
    widenSelections(race);
    clearPaddedParks();
    fillDrivers(race);
}

void renewSelection(Selection& selection, const RaceEntry& entry) {
    constexpr int nameCharacters = 25;
    selection.selectionName = leftOf(entry.horseName, nameCharacters);
    selection.selectionDriver = driverText(entry);
    selection.selectionRating = aligned("@@@@@", entry.rating);
}

void renewSelections(int race, int last, Posts posts) {
    forEachPlace(last, [&](int place) {
        const RaceEntry& entry = rankedEntry(race, place);
        Selection& selection = card.selection(race, place);
        renewSelection(selection, entry);
        selection.selectionOdds = entry.morningOdds;
        if (posts == Posts::renewed) selection.selectionPost = entry.postPosition;
    });
}

} // namespace quillon

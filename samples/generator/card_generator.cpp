#include "card_generator.h"

#include "names.h"
#include "past_lines.h"
#include "race_classes.h"
#include "tracks.h"
#include "wagers.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace samples {

namespace {

constexpr std::size_t circuitSize = 5;
constexpr std::size_t localDrivers = 16; // who drive most of the card's races

struct MorningLine {
    std::string_view texts[3];
};

// What the entries of a race stand at, from the favourite on.
constexpr std::array morningLines{
    MorningLine{{"8/5", "9/5", "2/1"}},    MorningLine{{"5/2", "3/1", "3/1"}},
    MorningLine{{"7/2", "4/1", "9/2"}},    MorningLine{{"9/2", "5/1", "6/1"}},
    MorningLine{{"6/1", "8/1", "8/1"}},    MorningLine{{"8/1", "10/1", "10/1"}},
    MorningLine{{"10/1", "12/1", "15/1"}}, MorningLine{{"15/1", "20/1", "20/1"}},
    MorningLine{{"20/1", "30/1", "30/1"}},
};

std::vector<const Track*> activeTracks() {
    std::vector<const Track*> tracks;
    for (const Track& track : allTracks())
        if (track.active) tracks.push_back(&track);
    return tracks;
}

std::string postTimeText(int minutes) {
    const int hour = minutes / 60 % 24;
    const int minute = minutes % 60;
    return std::to_string((hour + 11) % 12 + 1) + (minute < 10 ? ":0" : ":") + std::to_string(minute) +
           (hour < 12 ? " AM" : " PM");
}

// Builds one card from its options.
class CardMaker {
public:
    explicit CardMaker(const CardOptions& options) : options_(options), random_(options.seed) {}

    Card make() {
        chooseTracks();
        makePeople();
        chooseNumbers();
        for (int race = 1; race <= options_.races; ++race) makeRace(race);
        return std::move(card_);
    }

private:
    void chooseTracks() {
        const auto active = activeTracks();
        tracks_.push_back(options_.track.empty() ? random_.pick(active) : &trackOf(options_.track));
        for (const std::string& key : options_.circuit) tracks_.push_back(&trackOf(key));
        while (options_.circuit.empty() && tracks_.size() < circuitSize)
            tracks_.push_back(random_.pick(active));
        card_.track = tracks_.front()->key;
        card_.date = options_.date;
    }

    void makePeople() {
        const auto races = static_cast<std::size_t>(options_.races);
        const std::size_t drivers = options_.drivers > 0 ? options_.drivers : localDrivers + 12 + races;
        const std::size_t trainers = options_.trainers > 0 ? options_.trainers : 18 + 2 * races;
        for (std::string& name : peopleNames(random_, drivers))
            card_.drivers.push_back({std::move(name), random_.between(50, 400)});
        card_.trainers = peopleNames(random_, trainers);
        const std::size_t most = races * static_cast<std::size_t>(options_.entries.high);
        names_ = horseNames(random_, most);
    }

    void chooseNumbers() {
        offset_ = options_.odd.partialCard ? random_.between(1, 7) : 0;
        lettered_ = options_.odd.letteredRaces ? random_.between(1, std::max(1, options_.races / 2)) : 0;
        firstPost_ = 60 * 12 + 5 * random_.between(0, 90); // noon to half past seven
    }

    void makeRace(int count) {
        Race race;
        const bool trot = random_.chance(25);
        classOfRace_ = static_cast<std::size_t>(random_.between(0, static_cast<int>(raceClasses.size()) - 1));
        const RaceClass& raceClass = raceClasses[classOfRace_];
        race.number = count + offset_;
        race.cardLetter = count <= lettered_ ? "A" : "";
        race.purse = raceClass.purse;
        race.conditions = std::string{raceClass.conditions} + (trot ? " TROT" : " PACE") + ", ONE MILE.";
        race.classRating = random_.around(raceClass.rating, 2);
        race.wagers = wagersOf(count, options_.races, offset_);
        race.postTime = postTimeText(firstPost_ + 20 * (count - 1) + random_.between(0, 3));
        race.gait = trot ? "TROT" : "PACE";
        driverOrder_ = shuffledDrivers();
        const int entries = random_.between(options_.entries.low, options_.entries.high);
        for (int post = 1; post <= entries; ++post) makeEntry(race, post);
        setMorningLines(race);
        if (options_.odd.coupledEntries && entries > 3 && random_.chance(25))
            coupleEntries(race, 0, static_cast<std::size_t>(random_.between(1, entries - 2)));
        if (options_.odd.alsoEligibles && entries > 3 && random_.chance(25)) makeAlsoEligible(race);
        if (options_.odd.blankCells && random_.chance(10)) race.postTime.clear();
        card_.races.push_back(std::move(race));
    }

    // The local drivers first, in any order, then the others: nobody drives two horses of a race.
    std::vector<int> shuffledDrivers() {
        std::vector<int> local, others;
        for (std::size_t i = 0; i < card_.drivers.size(); ++i)
            (i < localDrivers ? local : others).push_back(static_cast<int>(i) + 1);
        random_.shuffle(local);
        random_.shuffle(others);
        local.insert(local.end(), others.begin(), others.end());
        return local;
    }

    void makeEntry(Race& race, int post) {
        Entry entry;
        entry.horse = ++horses_;
        entry.name = names_[static_cast<std::size_t>(horses_) - 1];
        entry.program = std::to_string(post);
        entry.post = post;
        entry.driver = driverOrder_[static_cast<std::size_t>(post - 1) % driverOrder_.size()];
        entry.trainer = random_.between(1, static_cast<int>(card_.trainers.size()));
        entry.age = random_.between(3, 10);
        entry.sire = sireName(random_);
        entry.dam = damName(random_);
        entry.quality = random_.around(0, 7);
        if (!options_.odd.firstTimeStarters || !random_.chance(4)) makeLines(race, entry);
        if (options_.odd.blankCells && random_.chance(2)) entry.driver = noPerson;
        race.entries.push_back(std::move(entry));
    }

    void makeLines(const Race& race, Entry& entry) {
        const int count = random_.between(options_.lines.low, options_.lines.high);
        Day date = card_.date - std::chrono::days{random_.between(4, 14)};
        for (int i = 0; i < count; ++i) {
            entry.lines.push_back(makeEntryLine(race, entry, date));
            date -= std::chrono::days{random_.chance(12) ? random_.between(18, 60) : random_.between(5, 10)};
        }
    }

    PastLine makeEntryLine(const Race& race, const Entry& entry, Day date) {
        const int lastClass = static_cast<int>(raceClasses.size()) - 1;
        const int step = std::clamp(static_cast<int>(classOfRace_) + random_.between(-2, 2), 0, lastClass);
        PastLine line =
            makeLine(random_, {.horse = entry.name,
                               .date = date,
                               .track = random_.chance(60) ? tracks_.front() : random_.pick(tracks_),
                               .raceClass = &raceClasses[static_cast<std::size_t>(step)],
                               .qualifier = options_.odd.qualifiers && random_.chance(5),
                               .trotter = race.gait == "TROT",
                               .distance = drawDistance(),
                               .level = race.classRating + entry.quality,
                               .driver = random_.chance(45)
                                             ? entry.driver
                                             : random_.between(1, static_cast<int>(card_.drivers.size()))});
        if (options_.odd.breaks && random_.chance(race.gait == "TROT" ? 9 : 4)) addBreak(random_, line);
        if (options_.odd.missingTimes && random_.chance(4)) loseTimes(line);
        if (options_.odd.blankCells && random_.chance(6)) blankCell(line);
        return line;
    }

    int drawDistance() {
        constexpr std::array others{17, 17, 17, 18, 20, 10};
        return options_.odd.otherDistances && random_.chance(4) ? random_.pick(others) : mile;
    }

    void loseTimes(PastLine& line) {
        switch (random_.between(1, 4)) {
        case 1: line.leader[2] = noTime; break;
        case 2: line.leader = {}; break;
        case 3:
            line.finalTime = noTime;
            line.lastQuarter = noTime;
            break;
        default: // the race was lost to the chart: no calls at all
            line.post = 0;
            line.calls = {};
        }
    }

    void blankCell(PastLine& line) {
        switch (random_.between(1, 9)) {
        case 1: line.condition.clear(); break;
        case 2: line.className.clear(); break;
        case 3: line.driver = noPerson; break;
        case 4: line.trackSize.clear(); break;
        case 5: line.track.clear(); break;
        case 6: line.lastQuarter = blankTime; break;
        case 7: line.finalTime = blankTime; break;
        case 8: line.leader[2] = line.leader[3] = blankTime; break;
        default: line.calls = {};
        }
    }

    // The better the horse the shorter its price, as the track's own man sees it.
    void setMorningLines(Race& race) {
        std::vector<std::pair<int, std::size_t>> ranks;
        for (std::size_t i = 0; i < race.entries.size(); ++i)
            ranks.emplace_back(-(race.entries[i].quality + random_.between(-2, 2)), i);
        std::sort(ranks.begin(), ranks.end());
        for (std::size_t rank = 0; rank < ranks.size(); ++rank) {
            const MorningLine& row = morningLines[std::min(rank, morningLines.size() - 1)];
            race.entries[ranks[rank].second].morningLine = random_.pick(row.texts);
        }
    }

    CardOptions options_;
    Random random_;
    Card card_;
    std::vector<const Track*> tracks_; // the card's own first
    std::vector<std::string> names_;
    std::vector<int> driverOrder_;
    std::size_t classOfRace_ = 0;
    int horses_ = 0;
    int offset_ = 0;
    int lettered_ = 0;
    int firstPost_ = 0; // minutes of the day
};

} // namespace

Oddities allOddities() {
    return {.alsoEligibles = true,
            .firstTimeStarters = true,
            .qualifiers = true,
            .otherDistances = true,
            .breaks = true,
            .coupledEntries = true,
            .letteredRaces = true,
            .partialCard = true,
            .missingTimes = true,
            .blankCells = true};
}

CardOptions largestCard() {
    return {.seed = 25, .races = 25, .entries = {20, 20}, .lines = {6, 6}, .drivers = 300, .trainers = 200};
}

CardOptions oversizedCard() {
    return {.seed = 27, .races = 34, .entries = {21, 24}, .lines = {5, 34}, .drivers = 330, .trainers = 230};
}

Card generateCard(const CardOptions& options) { return CardMaker{options}.make(); }

void makeAlsoEligible(Race& race) {
    Entry& entry = race.entries.back();
    entry.post = alsoEligible;
    entry.program += "AE";
}

void coupleEntries(Race& race, std::size_t first, std::size_t second) {
    int next = 2;
    for (std::size_t i = 0; i < race.entries.size(); ++i)
        if (i != first && i != second) race.entries[i].program = std::to_string(next++);
    race.entries[first].program = "1";
    race.entries[second].program = "1A";
    race.entries[second].morningLine = race.entries[first].morningLine; // one bet for both
}

} // namespace samples

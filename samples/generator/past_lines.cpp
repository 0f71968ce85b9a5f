#include "past_lines.h"

#include "names.h"

#include <algorithm>
#include <array>

namespace samples {

namespace {

constexpr int quartersInLength = 4; // and a length is a fifth of a second
constexpr int qualifierLevel = 74;

// An ordinary mile at class rating 80 on a fast 5/8-mile track: 1:54.0.
constexpr int ordinaryRating = 80;
constexpr Fifths ordinaryMile = 5 * 114;
constexpr Fifths trotterSlower = 10;

struct SizeTime {
    std::string_view size;
    Fifths slower;
};
constexpr std::array sizeTimes{
    SizeTime{"1/2", 6}, SizeTime{"5/8", 0}, SizeTime{"7/8", -4}, SizeTime{"1.M", -7}, SizeTime{"1.Q", -8},
};

struct Condition {
    std::string_view mark;
    int percent;
    Fifths slower;
};
constexpr std::array conditions{
    Condition{"ft", 74, 0}, Condition{"gd", 10, 3}, Condition{"sl", 5, 8},
    Condition{"sy", 7, 5},  Condition{"my", 3, 13}, Condition{"hy", 1, 20},
};

constexpr std::array monthTemperatures{28, 32, 43, 55, 65, 74, 78, 76, 68, 56, 44, 32};

// The leader's share of a mile at the calls, in thousandths.
constexpr std::array<int, 3> leaderShares{243, 494, 748};

const Condition& drawCondition(Random& random) {
    int throwLeft = random.between(1, 100);
    for (const Condition& condition : conditions) {
        throwLeft -= condition.percent;
        if (throwLeft <= 0) return condition;
    }
    return conditions.front();
}

int temperatureOn(Random& random, Day date) {
    const auto month = static_cast<unsigned>(std::chrono::year_month_day{date}.month());
    return random.around(monthTemperatures[month - 1], 14);
}

// The leader's times; what lies beyond a mile is run at the pace of the mile.
std::array<Fifths, 4> leaderTimes(Random& random, Fifths mileTime, int distance) {
    std::array<Fifths, 4> times{};
    for (std::size_t i = 0; i < leaderShares.size(); ++i) {
        const int callDistance = (static_cast<int>(i) + 1) * mile / 4;
        if (callDistance < distance) times[i] = mileTime * leaderShares[i] / 1000 + random.around(0, 4);
    }
    times[3] = mileTime * distance / mile;
    return times;
}

int clampedPosition(int position, const PastLine& line) { return std::clamp(position, 1, line.starters); }

// From the post to the finish: early on the post tells, at the end the class of the horse.
void drawPositions(Random& random, PastLine& line, int advantage) {
    const int middle = (line.starters + 1) / 2;
    const int finish = clampedPosition(random.around(middle - advantage / 3, middle + 1), line);
    const int quarter = clampedPosition(line.post + random.between(-3, 2), line);
    const int third = clampedPosition(finish + random.between(-2, 3), line);
    line.calls[atQuarter].position = quarter;
    line.calls[atHalf].position = clampedPosition((quarter + third) / 2 + random.between(-1, 1), line);
    line.calls[atThreeQuarters].position = third;
    line.calls[atStretch].position = clampedPosition((third + finish) / 2, line);
    line.calls[atFinish].position = finish;
}

void drawLengths(Random& random, PastLine& line) {
    for (std::size_t i = 0; i < callCount; ++i) {
        Call& call = line.calls[i];
        const int gap = i == atFinish ? random.between(2, 6) : random.between(4, 6);
        call.behind = call.position <= 1 ? 0 : (call.position - 1) * gap + random.between(0, 2);
    }
}

// Rings for a trip outside. Both marks of the vendor occur; one line has one of them.
void drawParks(Random& random, PastLine& line) {
    const std::string ring = random.chance(70) ? "\xBA" : "\xB0";
    for (const std::size_t i : {atQuarter, atHalf, atThreeQuarters}) {
        const int percent = i == atQuarter ? 10 : line.calls[i].position == 1 ? 12 : 30;
        if (random.chance(percent)) line.calls[i].park = random.chance(15) ? ring + ring : ring;
    }
}

Fifths fifthsBehind(const Call& call) { return (call.behind + quartersInLength / 2) / quartersInLength; }

// The horse's own times from the leader's and the lengths. Where less or more than a quarter lies behind the
// last call, the last quarter is its share of that.
void setOwnTimes(PastLine& line) {
    line.finalTime = line.leader[3] + fifthsBehind(line.calls[atFinish]);
    const bool hasThird = line.leader[2] > noTime;
    const CallPlace lastCall = hasThird ? atThreeQuarters : atHalf;
    const int left = line.distance - (hasThird ? 3 : 2) * mile / 4;
    const Fifths rest = line.finalTime - line.leader[lastCall] - fifthsBehind(line.calls[lastCall]);
    line.lastQuarter = (rest * (mile / 4) + left / 2) / left;
}

void drawOdds(Random& random, PastLine& line, int advantage) {
    line.favourite = random.chance(std::clamp(14 + 3 * advantage, 2, 60));
    line.odds = 5 * (line.favourite ? random.between(8, 40) : random.between(45, 240));
    if (!line.favourite && random.chance(35)) line.odds *= random.between(2, 5);
}

Fifths mileTimeFor(Random& random, const LineSetting& setting, int rating, const Condition& condition) {
    const auto* size = std::ranges::find(sizeTimes, setting.track->size, &SizeTime::size);
    return ordinaryMile + (ordinaryRating - rating) / 2 + size->slower + condition.slower +
           (setting.trotter ? trotterSlower : 0) + random.around(0, 6);
}

} // namespace

PastLine makeLine(Random& random, const LineSetting& setting) {
    const Condition& condition = drawCondition(random);
    const int rating = setting.qualifier ? qualifierLevel : random.around(setting.raceClass->rating, 2);
    const int limit = setting.track->starters > 0 ? setting.track->starters : 8;
    PastLine line{.date = setting.date,
                  .raceOfDay = random.between(1, setting.qualifier ? 6 : 13),
                  .track = std::string{setting.track->key},
                  .trackSize = std::string{vendorSize(*setting.track)},
                  .condition = std::string{condition.mark},
                  .temperature = temperatureOn(random, setting.date),
                  .purse = setting.qualifier ? 0 : setting.raceClass->purse + 100 * random.between(-8, 8),
                  .className = std::string{setting.qualifier ? qualifierName : setting.raceClass->name},
                  .classRating = setting.qualifier ? noClassRating : rating,
                  .distance = setting.distance,
                  .starters = random.between(setting.qualifier ? 5 : 6, limit),
                  .leader =
                      leaderTimes(random, mileTimeFor(random, setting, rating, condition), setting.distance),
                  .post = 0,
                  .calls = {},
                  .driver = setting.driver,
                  .winner = {}};
    line.post = random.between(1, line.starters);
    drawPositions(random, line, setting.level - rating);
    drawLengths(random, line);
    drawParks(random, line);
    setOwnTimes(line);
    if (!setting.qualifier) drawOdds(random, line, setting.level - rating);
    line.winner = line.calls[atFinish].position == 1 ? setting.horse : horseName(random);
    return line;
}

void addBreak(Random& random, PastLine& line) {
    const auto place = static_cast<std::size_t>(random.between(atQuarter, atStretch));
    line.calls[place].before = random.chance(15) ? "ix" : "x";
    int behind = random.between(50, 80);
    for (std::size_t i = place; i < callCount; ++i, behind += random.between(6, 14)) {
        line.calls[i].position = line.starters;
        line.calls[i].behind = behind;
        line.calls[i].park.clear();
    }
    setOwnTimes(line);
    if (!random.chance(10)) return;
    line.calls[atFinish].after = "dis";
    line.finalTime = noTime;
    line.lastQuarter = noTime;
}

} // namespace samples

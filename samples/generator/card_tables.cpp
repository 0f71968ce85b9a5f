#include "card_tables.h"

#include "tracks.h"

#include <algorithm>
#include <set>
#include <span>
#include <string>

namespace samples {

namespace {

// One column of a vendor's table and how a record fills it.
template <class Record>
struct Column {
    const char* name;
    char type;
    unsigned width;
    unsigned decimals;
    std::string (*cell)(const Record&);
};

template <class Record, std::size_t count>
Table tableOf(const Column<Record> (&columns)[count], const std::vector<Record>& records) {
    Table table;
    for (const auto& column : columns)
        table.fields.push_back({column.name, column.type, column.width, column.decimals});
    for (const Record& record : records) {
        Row row;
        for (const auto& column : columns) row.cells.push_back(column.cell(record));
        table.rows.push_back(std::move(row));
    }
    return table;
}

std::string text(int value) { return std::to_string(value); }

std::string textOrBlank(int value) { return value == 0 ? std::string{} : std::to_string(value); }

// A whole number of the last decimal place as decimal text: 312 with three places is 0.312.
std::string decimalText(int value, std::size_t places) {
    std::string digits = std::to_string(value);
    if (digits.size() <= places) digits.insert(0, places + 1 - digits.size(), '0');
    return digits.insert(digits.size() - places, 1, '.');
}

std::string distanceText(int sixteenths) {
    constexpr int tenThousandths = 10000;
    return decimalText(sixteenths * tenThousandths / mile, 4);
}

// "28.2" or "1:54.4"; fifths are written as tenths.
std::string timeText(Fifths time) {
    constexpr Fifths minute = 5 * 60;
    if (time == noTime) return "-97";
    if (time < noTime) return {};
    std::string seconds = decimalText(time % minute * 2, 1);
    if (time < minute) return seconds;
    return std::to_string(time / minute) + (seconds.size() < 4 ? ":0" : ":") + seconds;
}

// "3/4", "2 1/4"; nothing for the leader.
std::string lengthsText(int quarters) {
    constexpr std::string_view parts[] = {"", "1/4", "1/2", "3/4"};
    const int whole = quarters / 4;
    std::string result = whole > 0 ? std::to_string(whole) : std::string{};
    if (quarters % 4 == 0) return result;
    if (whole > 0) result += ' ';
    return result += parts[quarters % 4];
}

struct RaceRecord {
    const Card& card;
    const Race& race;
};
struct HorseRecord {
    const Race& race;
    const Entry& entry;
};
struct LineRecord {
    const Race& race;
    const Entry& entry;
    const PastLine& line;
    int ordinal; // of the entry's lines, 1 the most recent
};

std::string starters(const Race& race) {
    return text(static_cast<int>(
        std::ranges::count_if(race.entries, [](const Entry& entry) { return entry.post != alsoEligible; })));
}

constexpr const char* notAvailable = "-99"; // for a time it is -97

std::string classRating(const PastLine& line) {
    return line.classRating == noClassRating ? notAvailable : text(line.classRating);
}
std::string oddsText(const PastLine& line) {
    return line.odds == noOdds ? notAvailable : decimalText(line.odds, 2);
}
std::string timeAt(const LineRecord& record, std::size_t place) {
    return timeText(record.line.leader[place]);
}
std::string positionAt(const LineRecord& record, CallPlace place) {
    return textOrBlank(record.line.calls[place].position);
}
std::string lengthsAt(const LineRecord& record, CallPlace place) {
    return lengthsText(record.line.calls[place].behind);
}

using R = RaceRecord;
using H = HorseRecord;
using L = LineRecord;

// clang-format off
constexpr Column<R> raceColumns[] = {
    {"RACE",       'N',   2, 0, [](const R& r) { return text(r.race.number); }},
    {"CARD_ID",    'C',   1, 0, [](const R& r) { return r.race.cardLetter; }},
    {"TRACK",      'C',   5, 0, [](const R& r) { return r.card.track; }},
    {"BULLETDATE", 'C',   8, 0, [](const R& r) { return dateText(r.card.date); }},
    {"POSTTIME",   'C',   8, 0, [](const R& r) { return r.race.postTime; }},
    {"STARTERS",   'N',   2, 0, [](const R& r) { return starters(r.race); }},
    {"GAIT",       'C',   4, 0, [](const R& r) { return r.race.gait; }},
    {"DISTANCE",   'N',   6, 4, [](const R& r) { return distanceText(r.race.distance); }},
    {"PURSE",      'N',   8, 0, [](const R& r) { return text(r.race.purse); }},
    {"TODAYS_CR",  'N',   3, 0, [](const R& r) { return text(r.race.classRating); }},
    {"RACETEXT1",  'C', 200, 0, [](const R& r) { return r.race.conditions; }},
    {"RACEWAGERS", 'C', 120, 0, [](const R& r) { return r.race.wagers; }},
};

constexpr Column<H> horseColumns[] = {
    {"RACE",       'N',  2, 0, [](const H& h) { return text(h.race.number); }},
    {"HN",         'N',  4, 0, [](const H& h) { return text(h.entry.horse); }},
    {"PROGRAM",    'C',  4, 0, [](const H& h) { return h.entry.program; }},
    {"PP",         'N',  2, 0, [](const H& h) { return text(h.entry.post); }},
    {"HORSE_NAME", 'C', 25, 0, [](const H& h) { return h.entry.name; }},
    {"MORN_ODDS",  'C',  5, 0, [](const H& h) { return h.entry.morningLine; }},
    {"DN",         'N',  3, 0, [](const H& h) { return textOrBlank(h.entry.driver); }},
    {"TN",         'N',  3, 0, [](const H& h) { return textOrBlank(h.entry.trainer); }},
    {"AGE",        'N',  2, 0, [](const H& h) { return text(h.entry.age); }},
};

// The order of the columns is the vendor's: the running lines are also looked at by column number.
constexpr Column<L> lineColumns[] = {
    /*  1 */ {"TODAYSRACE", 'N',  2, 0, [](const L& l) { return text(l.race.number); }},
    /*  2 */ {"HN",         'N',  4, 0, [](const L& l) { return text(l.entry.horse); }},
    /*  3 */ {"LINE",       'N',  2, 0, [](const L& l) { return text(l.ordinal); }},
    /*  4 */ {"DATE",       'C',  8, 0, [](const L& l) { return dateText(l.line.date); }},
    /*  5 */ {"RACEOFDAY",  'N',  2, 0, [](const L& l) { return text(l.line.raceOfDay); }},
    /*  6 */ {"TRACK",      'C',  5, 0, [](const L& l) { return l.line.track; }},
    /*  7 */ {"TRACKSIZE",  'C',  5, 0, [](const L& l) { return l.line.trackSize; }},
    /*  8 */ {"TRACKVAR",   'N',  3, 0, [](const L&) { return text(0); }},
    /*  9 */ {"COND",       'C',  2, 0, [](const L& l) { return l.line.condition; }},
    /* 10 */ {"TEMP",       'N',  3, 0, [](const L& l) { return text(l.line.temperature); }},
    /* 11 */ {"PURSE",      'N',  8, 3, [](const L& l) { return decimalText(l.line.purse, 3); }},
    /* 12 */ {"GAIT",       'C',  4, 0, [](const L& l) { return l.race.gait; }},
    /* 13 */ {"CLASS",      'C', 12, 0, [](const L& l) { return l.line.className; }},
    /* 14 */ {"CR",         'N',  3, 0, [](const L& l) { return classRating(l.line); }},
    /* 15 */ {"AGE",        'N',  2, 0, [](const L& l) { return text(l.entry.age); }},
    /* 16 */ {"DIST_MILES", 'N',  6, 4, [](const L& l) { return distanceText(l.line.distance); }},
    /* 17 */ {"STARTERS",   'N',  2, 0, [](const L& l) { return text(l.line.starters); }},
    /* 18 */ {"LEAD_TM_1Q", 'C',  7, 0, [](const L& l) { return timeAt(l, 0); }},
    /* 19 */ {"LEAD_TM_2Q", 'C',  7, 0, [](const L& l) { return timeAt(l, 1); }},
    /* 20 */ {"LEAD_TM_3Q", 'C',  7, 0, [](const L& l) { return timeAt(l, 2); }},
    /* 21 */ {"LEAD_TM_FN", 'C',  7, 0, [](const L& l) { return timeAt(l, 3); }},
    /* 22 */ {"MEDICATION", 'C',  1, 0, [](const L&) { return std::string{"L"}; }},
    /* 23 */ {"POST",       'N',  2, 0, [](const L& l) { return text(l.line.post); }},
    /* 24 */ {"TIER",       'N',  1, 0, [](const L&) { return text(1); }},
    /* 25 */ {"CALL_1Q_BF", 'C',  2, 0, [](const L& l) { return l.line.calls[atQuarter].before; }},
    /* 26 */ {"CALL_1Q_PO", 'C',  2, 0, [](const L& l) { return positionAt(l, atQuarter); }},
    /* 27 */ {"CALL_1Q_PK", 'C',  2, 0, [](const L& l) { return l.line.calls[atQuarter].park; }},
    /* 28 */ {"CALL_1Q_AF", 'C',  2, 0, [](const L& l) { return l.line.calls[atQuarter].after; }},
    /* 29 */ {"CALL_1Q_BL", 'C',  6, 0, [](const L& l) { return lengthsAt(l, atQuarter); }},
    /* 30 */ {"CALL_2Q_BF", 'C',  2, 0, [](const L& l) { return l.line.calls[atHalf].before; }},
    /* 31 */ {"CALL_2Q_PO", 'C',  2, 0, [](const L& l) { return positionAt(l, atHalf); }},
    /* 32 */ {"CALL_2Q_PK", 'C',  2, 0, [](const L& l) { return l.line.calls[atHalf].park; }},
    /* 33 */ {"CALL_2Q_AF", 'C',  2, 0, [](const L& l) { return l.line.calls[atHalf].after; }},
    /* 34 */ {"CALL_2Q_BL", 'C',  6, 0, [](const L& l) { return lengthsAt(l, atHalf); }},
    /* 35 */ {"CALL_3Q_BF", 'C',  2, 0, [](const L& l) { return l.line.calls[atThreeQuarters].before; }},
    /* 36 */ {"CALL_3Q_PO", 'C',  2, 0, [](const L& l) { return positionAt(l, atThreeQuarters); }},
    /* 37 */ {"CALL_3Q_PK", 'C',  2, 0, [](const L& l) { return l.line.calls[atThreeQuarters].park; }},
    /* 38 */ {"CALL_3Q_AF", 'C',  2, 0, [](const L& l) { return l.line.calls[atThreeQuarters].after; }},
    /* 39 */ {"CALL_3Q_BL", 'C',  6, 0, [](const L& l) { return lengthsAt(l, atThreeQuarters); }},
    /* 40 */ {"CALL_ST_BF", 'C',  2, 0, [](const L& l) { return l.line.calls[atStretch].before; }},
    /* 41 */ {"CALL_ST_PO", 'C',  2, 0, [](const L& l) { return positionAt(l, atStretch); }},
    /* 42 */ {"CALL_ST_PK", 'C',  2, 0, [](const L& l) { return l.line.calls[atStretch].park; }},
    /* 43 */ {"CALL_ST_AF", 'C',  2, 0, [](const L& l) { return l.line.calls[atStretch].after; }},
    /* 44 */ {"CALL_ST_BL", 'C',  6, 0, [](const L& l) { return lengthsAt(l, atStretch); }},
    /* 45 */ {"DEADHEAT",   'C',  1, 0, [](const L&) { return std::string{}; }},
    /* 46 */ {"CALL_FN_BF", 'C',  2, 0, [](const L& l) { return l.line.calls[atFinish].before; }},
    /* 47 */ {"CALL_FN_PO", 'C',  2, 0, [](const L& l) { return positionAt(l, atFinish); }},
    /* 48 */ {"CALL_FN_AF", 'C',  3, 0, [](const L& l) { return l.line.calls[atFinish].after; }},
    /* 49 */ {"FAV",        'C',  1, 0, [](const L& l) { return std::string{l.line.favourite ? "*" : ""}; }},
    /* 50 */ {"ODDS",       'N',  7, 2, [](const L& l) { return oddsText(l.line); }},
    /* 51 */ {"CALL_FN_BL", 'C',  6, 0, [](const L& l) { return lengthsAt(l, atFinish); }},
    /* 52 */ {"HRSE_TM_4Q", 'C',  5, 0, [](const L& l) { return timeText(l.line.lastQuarter); }},
    /* 53 */ {"HRSE_TM_FN", 'C',  7, 0, [](const L& l) { return timeText(l.line.finalTime); }},
    /* 54 */ {"DN",         'N',  3, 0, [](const L& l) { return textOrBlank(l.line.driver); }},
    /* 55 */ {"WINNER",     'C', 25, 0, [](const L& l) { return l.line.winner; }},
};

constexpr Column<Driver> driverColumns[] = {
    {"DRIVERNAME", 'C', 25, 0, [](const Driver& driver) { return driver.name; }},
    {"DRS_UDR",    'N',  5, 3, [](const Driver& driver) { return decimalText(driver.rating, 3); }},
};

constexpr Column<std::string> trainerColumns[] = {
    {"TRAINNAME", 'C', 25, 0, [](const std::string& name) { return name; }},
};

constexpr Column<H> sireColumns[] = {
    {"HN",       'N',  4, 0, [](const H& h) { return text(h.entry.horse); }},
    {"SIRENAME", 'C', 25, 0, [](const H& h) { return h.entry.sire; }},
};

constexpr Column<H> damColumns[] = {
    {"HN",      'N',  4, 0, [](const H& h) { return text(h.entry.horse); }},
    {"DAMNAME", 'C', 25, 0, [](const H& h) { return h.entry.dam; }},
};

constexpr Column<Track> trackColumns[] = {
    {"TRACK",     'C',  5, 0, [](const Track& track) { return std::string{track.key}; }},
    {"TRACKNAME", 'C', 25, 0, [](const Track& track) { return std::string{track.name}; }},
    {"TRACKSIZE", 'C',  5, 0, [](const Track& track) { return std::string{vendorSize(track)}; }},
};
// clang-format on

std::vector<RaceRecord> raceRecords(const Card& card) {
    std::vector<RaceRecord> records;
    for (const Race& race : card.races) records.push_back({card, race});
    return records;
}

std::vector<HorseRecord> horseRecords(const Card& card) {
    std::vector<HorseRecord> records;
    for (const Race& race : card.races)
        for (const Entry& entry : race.entries) records.push_back({race, entry});
    return records;
}

std::vector<LineRecord> lineRecords(const Card& card) {
    std::vector<LineRecord> records;
    for (const HorseRecord& horse : horseRecords(card)) {
        int ordinal = 0;
        for (const PastLine& line : horse.entry.lines)
            records.push_back({horse.race, horse.entry, line, ++ordinal});
    }
    return records;
}

// The tracks that the card's lines name, each once.
std::vector<Track> tracksOfLines(const Card& card) {
    std::set<std::string, std::less<>> keys;
    for (const LineRecord& record : lineRecords(card)) keys.insert(record.line.track);
    std::vector<Track> tracks;
    for (const Track& track : allTracks())
        if (keys.contains(track.key)) tracks.push_back(track);
    return tracks;
}

} // namespace

std::vector<NamedTable> cardTables(const Card& card) {
    const auto horses = horseRecords(card);
    return {
        {"RACESHR", tableOf(raceColumns, raceRecords(card))},
        {"HORSEHR", tableOf(horseColumns, horses)},
        {"RUNLINHR", tableOf(lineColumns, lineRecords(card))},
        {"DRIVERHR", tableOf(driverColumns, card.drivers)},
        {"TRAINRHR", tableOf(trainerColumns, card.trainers)},
        {"SIREHR", tableOf(sireColumns, horses)},
        {"DAMHR", tableOf(damColumns, horses)},
        {"PTTRHR", tableOf(trackColumns, tracksOfLines(card))},
    };
}

std::filesystem::path tableFolder(const std::filesystem::path& workingFolder) {
    return workingFolder / "A Quillon PRO" / "TrackMaster ExE Files";
}

bool writeCard(const Card& card, const std::filesystem::path& workingFolder) {
    const TableForm form{.lastUpdate = std::chrono::year_month_day{card.date - std::chrono::days{1}}};
    for (const NamedTable& named : cardTables(card)) {
        const auto path = tableFolder(workingFolder) / (std::string{named.name} + ".DBF");
        if (!writeTable(path, named.table, form)) return false;
    }
    return true;
}

} // namespace samples

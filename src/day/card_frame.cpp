#include "day/card_frame.h"

#include "card/card_files.h"
#include "card/fields.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/formats.h"
#include "screen/screen.h"
#include "tables/load_state.h"
#include "tables/track_table.h"

#include <algorithm>
#include <tuple>
#include <type_traits>
#include <vector>

namespace quillon {
namespace {

constexpr int keptClassText = 105;
constexpr int listedDrivers = 230;
constexpr int listedNameWidth = 20;
constexpr int noPost = 99;

double numberOf(TextView text) { return lenientNumber(text); }

// Numbers the rows from 1 on. A row whose number does not rise above the one before it begins a new run of
// numbers (races 1A to 5A, then 1 to 9), which goes on where the run before it ended.
void NumberRaceRows() {
    const Step step{"NumberRaceRows"};
    load.raceIndexOfRow.clear();
    TableCursor& rows = load.raceRows;
    double before = 0;
    double index = 0;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const double number = numberOf(raceField("RACE"));
        const bool firstRow = load.raceIndexOfRow.empty();
        index += firstRow || number <= before ? 1 : number - before;
        before = number;
        constexpr double beyond16Bits = 100000; // fails wherever it is used
        load.raceIndexOfRow.push_back(static_cast<int>(std::min(index, beyond16Bits)));
    }
    rows.MoveFirst();
}

// The card's first race less 1: of the first line or the first horse, whichever is the earlier race.
void SetRaceOffset() {
    const Step step{"SetRaceOffset"};
    load.lineRows.MoveFirst();
    load.horseRows.MoveFirst();
    ReadSourceLine();
    ReadSourceHorse();
    const bool noLines = load.lineRows.Eof();
    const bool noHorses = load.horseRows.Eof();
    if (noLines && noHorses) return;
    const double firstLine = numberOf(load.line.TODAYSRACE);
    const double firstHorse = numberOf(load.horse.RACE);
    const double first = noLines ? firstHorse : noHorses ? firstLine : std::min(firstLine, firstHorse);
    card.raceOffset = toInteger(std::max(first, 1.0) - 1);
}

// The race table may hold the whole programme of a card that starts above race 1: what comes before the
// card's first race is none of the card's. A table without that race is the card's own, however numbered.
void LeaveOutRacesBeforeTheCard() {
    const Step step{"LeaveOutRacesBeforeTheCard"};
    if (card.raceOffset < 1) return;
    TableCursor& rows = load.raceRows;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        if (numberOf(raceField("RACE")) == card.raceOffset + 1) return rows.beginAt(rows.row());
    rows.MoveFirst();
}

// A race that can have a label and a track code. Fails for later ones, which have the rest of a RaceInfo.
RaceInfo& labelledRace(int race) {
    if (race >= labelExtent) fail("race " + std::to_string(race) + " is beyond those with a label");
    return card.raceInfo(race);
}

// "1A" for the lettered races that lead the card, the bare number from the first race without a letter on.
void LabelRaces() {
    const Step step{"LabelRaces"};
    TableCursor& rows = load.raceRows;
    bool leading = true;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const Text letter = raceField("CARD_ID");
        leading = leading && !letter.empty();
        if (leading) attempt([] { countUp(card.labelledRaces); });
        attempt([&] {
            labelledRace(currentRaceIndex()).label = raceField("RACE") + (leading ? letter : Text{});
        });
    }
    rows.MoveFirst();
}

void NameCard() {
    const Step step{"NameCard"};
    Label& track = screen.header.track;
    track.caption = upperCase(track.caption);
    const Text date = raceField("BULLETDATE");
    screen.header.date.caption = date;
    track.visible = true;
    screen.header.date.visible = true;
    card.cardFileName = track.caption + "_" + date + (card.raceOffset > 0 ? ".pmd2" : ".pmd");
}

// The track of every race; the track of the last one found is the card's course.
void SetTracks() {
    const Step step{"SetTracks"};
    TableCursor& rows = load.raceRows;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const Text key = trackKeyOf(raceField("TRACK"));
        attempt([&] { labelledRace(currentRaceIndex()).trackCode = key; });
        const TrackRecord* track = load.tracks.first(key);
        if (track == nullptr) continue;
        card.trackSize = track->courseSize;
        card.stretchLength = track->stretchLength;
        attempt([&] { card.raceInfo(currentRaceIndex()).trackInfo = track->trackLine; });
    }
    rows.MoveFirst();
    screen.header.trackInfo = card.raceInfo(1).trackInfo;
}

void SetRaceCount() {
    const Step step{"SetRaceCount"};
    load.raceRows.MoveLast();
    attempt([] { card.raceCount = currentRaceIndex(); });
    load.raceRows.MoveFirst();
}

// ".25" and "0.25" both become " .25"; what is no rating above 0 becomes ".000".
Text normalisedUdr(Text udr) {
    if (udr.size() == 3) udr += "00";
    if (udr.size() == 4) udr += "0";
    attempt([&] { udr = formatted(".###", udr); });
    udr = aligned("@@@@", udr);
    return lenientNumber(udr) > 0 ? udr : ".000";
}

// Last name, comma, blank and first initial; a name without a comma is kept whole.
Text shortName(TextView name) {
    const int comma = placeOf(",", name);
    return Text{comma == 0 ? name : leftOf(name, comma + 2)};
}

// A row of the driver lists. A name too long for its column fails, and the row is left out.
Text listedDriver(const Driver& driver) {
    return filledTo(driver.name, listedNameWidth) + blanks(3) + driver.udr;
}

void WriteDriverLists() {
    const Step step{"WriteDriverLists"};
    Text list;
    for (int n = 1; n <= listedDrivers; ++n)
        attempt([&] { list += listedDriver(card.driverTable(n)) + Text{crLf}; });
    const Text head = "DRIVERS RATINGS\r\n"
                      "\r\n"
                      "DRIVER                  UDR\r\n"
                      "---------------------------\r\n";
    attempt([&] { writeFile(cardFile(Folder::drivers, "pmd2"), head + list); });
    attempt([&] { writeFile({Folder::working, "DriverList.txt"}, list); });
}

Text entryUdr(const Driver& driver) { return formatted("#.#00", "@@@@@", driver.udr); }

void ReadEntry() {
    const Step step{"ReadEntry"};
    takeHorseRow(card.entry(raceIndex(load.horse.RACE), entryIndex(load.horse.PP)));
}

} // namespace

Text raceField(TextView name) { return Text{trimmedRight(load.raceRows.field(name))}; }

Integer entryIndex(TextView post) {
    const double number = numberOf(post);
    return number == noPost ? Integer{0} : toInteger(number);
}

void takeHorseRow(RaceEntry& entry) {
    const double driver = numberOf(load.horse.DN);
    const double trainer = numberOf(load.horse.TN);
    entry.horseName = load.horse.HORSE_NAME;
    entry.programNumber = aligned("@@@", load.horse.PROGRAM);
    entry.morningOdds = aligned("@@@@", load.horse.MORN_ODDS);
    entry.postPosition = aligned("@@@", load.horse.PP);
    attempt([&] { entry.driverNumber = toInteger(driver); });
    attempt([&] { entry.trainerName = card.trainerTable(toInteger(trainer)); });
    attempt([&] { entry.driverName = card.driverTable(toInteger(driver)).name; });
    attempt([&] { entry.driverUdr = entryUdr(card.driverTable(toInteger(driver))); });
}

void TrackData() {
    const Step step{"TrackData"};
    const Text key = trackKeyOf(load.raceRows.field("TRACK"));
    if (card.raceCount == 0) card.raceCount = 1;
    RaceInfo& race = card.raceInfo(card.raceCount);
    race.trackCode = key;
    if (const TrackRecord* track = load.tracks.first(key)) {
        card.trackSize = track->courseSize;
        card.stretchLength = track->stretchLength;
        card.maxPosts = track->maxPosts;
        race.trackInfo = track->trackName;
    }
    screen.header.trackInfo = card.raceInfo(1).trackInfo;
    screen.header.track.caption = card.raceInfo(1).trackCode;
}

Integer raceIndex(TextView race) { return toInteger(numberOf(race) - card.raceOffset); }

Integer currentRaceIndex() {
    const auto row = static_cast<std::size_t>(load.raceRows.row());
    if (row > load.raceIndexOfRow.size()) fail("behind the last race of the card");
    return toInteger(load.raceIndexOfRow[row - 1]);
}

bool laterRaceRow(Integer race) {
    const auto row = static_cast<std::ptrdiff_t>(load.raceRows.row());
    const auto rows = static_cast<std::ptrdiff_t>(load.raceIndexOfRow.size());
    const auto behind = load.raceIndexOfRow.begin() + std::min(row, rows); // they never fall from row to row
    return std::binary_search(behind, load.raceIndexOfRow.end(), race);
}

void FrameCard() {
    const Step step{"FrameCard"};
    attempt(SetRaceOffset);
    attempt(LeaveOutRacesBeforeTheCard);
    attempt(NumberRaceRows);
    attempt(LabelRaces);
    for (Button& key : screen.entryButtons) key.enabled = true;
    attempt(TrackData);
    attempt(NameCard);
    attempt(SetRaceCount);
    attempt(SetTracks);
    attempt(ReadConditions);
    card.raceInfo[{1}].trackCode = screen.header.track.caption;
    card.raceInfo[{1}].trackInfo = screen.header.trackInfo;
}

void ReadConditions() {
    const Step step{"ReadConditions"};
    const Integer index = currentRaceIndex();
    RaceInfo& race = card.raceInfo(index);
    const auto read = [&](const auto& field) {
        if constexpr (std::is_same_v<decltype(field.member), Text RaceInfo::*>)
            if (field.places.vendor != nullptr) race.*field.member = raceField(field.places.vendor);
    };
    std::apply([&](const auto&... field) { (read(field), ...); }, raceInfoFields);
    race.classText = leftOf(race.classText, keptClassText);
    if (index > ratedRaces) return; // buttons and data views end there
    const auto shown = static_cast<std::size_t>(index);
    screen.raceButtons[shown].caption = race.label;
    screen.raceButtons[shown].visible = true;
    screen.raceButtons[shown].enabled = true;
    screen.dataView[shown](0, DataColumn::entry).text = "RACE " + race.label;
}

void ReadDrivers() {
    const Step step{"ReadDrivers"};
    TableCursor& rows = load.driverRows;
    int number = 1;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext(), ++number) {
        const Driver driver{shortName(trimmedRight(rows.field("DRIVERNAME"))),
                            normalisedUdr(Text{trimmedRight(rows.field("DRS_UDR"))})};
        attempt([&] { card.driverTable(number) = driver; });
    }
    attempt(WriteDriverLists);
}

void ReadTrainers() {
    const Step step{"ReadTrainers"};
    TableCursor& rows = load.trainerRows;
    int number = 1;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext(), ++number)
        attempt([&] { card.trainerTable(number) = trimmedRight(rows.field("TRAINNAME")); });
}

void ReadEntries() {
    const Step step{"ReadEntries"};
    TableCursor& rows = load.horseRows;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ReadSourceHorse();
        if (numberOf(load.horse.RACE) - card.raceOffset <= 0)
            break; // a race in front of the card ends the entries
        attempt(ReadEntry);
    }
    rows.MoveFirst();
    ReadSourceHorse();
}

} // namespace quillon

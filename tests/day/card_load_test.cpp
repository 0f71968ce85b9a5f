// The load of a card: tables in, the store and the views out.
#include "app/start_up.h"
#include "card_tables.h"
#include "day/card_load.h"
#include "rating/diagnostic_log.h"
#include "tables/load_state.h"

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

using Strings = std::vector<std::string>;

// Columns:      1         13                      37   42      50
const std::string trackList = "BANG        Bangor Raceway          1/2   440'   57.2           8\r\n"
                              "M1          The Meadowlands         1.M   990'   52.8          10\r\n"
                              "DD          Dover Downs             5/8          55.0           9\r\n";

// The load's own work is looked at where the steps after it leave it alone: they choose a line for posts 1
// to 12 of races 1 to 23, print-format those entries' first lines, and pad their names.
constexpr int farPost = 13;

class CardLoadTest : public CardTest {
protected:
    CardLoadTest() {
        load = {};
        clearDiagnosticLog();
        StartUp();
        journal.clear();
        put("TrackEditor.ini", trackList);
        drivers({{"Sears, Jay", ".312"}, {"Goodblood, Carl", "0.25"}});
        lay("TRAINRHR.DBF", listTable("TRAINNAME C25", {{"Ann Trainer"}, {"Bob Trainer"}}));
    }

    static void races(const std::vector<RaceRow>& rows) { lay("RACESHR.DBF", raceTable(rows)); }
    static void horses(const std::vector<HorseRow>& rows) { lay("HORSEHR.DBF", horseTable(rows)); }
    static void lines(const std::vector<LineRow>& rows) { lay("RUNLINHR.DBF", lineTable(rows)); }
    static void drivers(const std::vector<Strings>& rows) {
        lay("DRIVERHR.DBF", listTable("DRIVERNAME C30 | DRS_UDR C25", rows));
    }

    /// One race, one horse at post 13, and its lines.
    static void oneHorse(const std::vector<LineRow>& rows) {
        races({{}});
        horses({{.PP = "13"}});
        lines(rows);
    }

    static Text cell(int race, int row, int column) {
        return screen.dataView[static_cast<std::size_t>(race)].text(row, column);
    }

    /// The cells 1 to 39 of a row have the yellow or cyan, or none has.
    static Text shadeOf(int row, int race = 1) {
        const Grid& view = screen.dataView[static_cast<std::size_t>(race)];
        const auto first = view.read(row, 1).background;
        for (int column = 1; column <= 39; ++column) EXPECT_EQ(first, view.read(row, column).background);
        EXPECT_FALSE(view.read(row, 0).background);
        if (!first) return "";
        return *first == Colour{255, 255, 100} ? "yellow" : *first == Colour{0, 255, 255} ? "cyan" : "other";
    }

    static Text linesOf(int race, int entry) {
        Text found;
        for (int line = 0; line < lineExtent; ++line)
            if (const PastLine& past = card.pastLine.read(race, entry, line); past.lineNumber > 0)
                found += std::to_string(line) + ":" + std::to_string(past.lineNumber) + " ";
        return found;
    }

    static bool anyFile() { return exists("DriverList.txt") || exists("TEST.txt") || exists("Stars.txt"); }
};

// ---- Whether a load takes place ----

TEST_F(CardLoadTest, WithoutARaceTableNothingChangesAndStartStays) {
    horses({{}});
    lines({{}});
    Start();
    EXPECT_EQ("Start", screen.start.caption);
    EXPECT_TRUE(screen.start.enabled);
    EXPECT_EQ("", card.cardFileName);
    EXPECT_EQ(0, card.totalLines);
    EXPECT_EQ(0, card.raceCount);
    EXPECT_FALSE(anyFile());
    EXPECT_TRUE(shown.empty());
    EXPECT_FALSE(screen.entryButtons[1].enabled);
    EXPECT_EQ("", cell(lineTableView, 1, 2)); // the running-line table isn't shown either
}

TEST_F(CardLoadTest, ARaceTableWithoutRowsIsNone) {
    races({});
    horses({{}});
    lines({{}});
    Start();
    EXPECT_EQ("Start", screen.start.caption);
    EXPECT_EQ("", card.cardFileName);
    EXPECT_FALSE(anyFile());
}

TEST_F(CardLoadTest, ARaceTableThatIsNoTableIsNone) {
    put("A Quillon PRO/TrackMaster ExE Files/RACESHR.DBF", "no table at all, just words in a file");
    horses({{}});
    Start();
    EXPECT_TRUE(screen.start.enabled);
    EXPECT_TRUE(journalTells("RACESHR.DBF: no table"));
}

TEST_F(CardLoadTest, OnARecalledCardStartReadsNoTable) {
    oneHorse({{}});
    screen.offer(StartOffer::viewRaces);
    card.raceInfo(1).purse = "as recalled";
    Start();
    EXPECT_EQ("as recalled", card.raceInfo(1).purse);
    EXPECT_EQ(0, card.totalLines);
    EXPECT_EQ("View Races", screen.start.caption);
    EXPECT_EQ(0, load.raceRows.rowCount());
}

TEST_F(CardLoadTest, AfterTheLoadANewCardNeedsANewProcess) {
    oneHorse({{}});
    Start();
    EXPECT_EQ("Select Race", screen.start.caption);
    EXPECT_FALSE(screen.start.enabled);
    EXPECT_FALSE(screen.item(CommandId::NewRC).enabled);
    EXPECT_FALSE(screen.item(CommandId::RecallRaceCard).enabled);
    for (std::size_t key = 1; key <= 12; ++key) EXPECT_TRUE(screen.entryButtons[key].enabled) << key;
}

TEST_F(CardLoadTest, OtherTablesMayBeMissing) {
    std::filesystem::remove_all("A Quillon PRO");
    races({{}, {.RACE = "2", .PURSE = "9000"}});
    Start();
    EXPECT_EQ("Select Race", screen.start.caption);
    EXPECT_EQ("BANG_20260314.pmd", card.cardFileName);
    EXPECT_EQ("9000", card.raceInfo(2).purse);
    EXPECT_TRUE(screen.raceButtons[2].visible);
    EXPECT_EQ("", cell(1, 1, 0)); // no horse, nothing in its place
    EXPECT_EQ("", cell(1, 2, 0));
    EXPECT_FALSE(exists("TEST.txt")); // opened line by line
}

TEST_F(CardLoadTest, WithoutAHorseTableTheLinesAreStoredByTheirRace) {
    races({{}, {.RACE = "2"}});
    lines({{.HN = "7"}, {.TODAYSRACE = "2", .HN = "8"}});
    Start();
    EXPECT_EQ(2, card.totalLines);
    EXPECT_EQ("1", card.lineCells.read(1, 2));
    EXPECT_EQ("2", card.lineCells.read(2, 2));
    EXPECT_EQ("1:1 ", linesOf(1, 0)); // no post: entry 0
    EXPECT_EQ("1:2 ", linesOf(2, 0));
}

// ---- Card frame ----

TEST_F(CardLoadTest, LabelsJoinNumberAndLetterForTheLetteredRacesInFront) {
    races({{.RACE = "1", .CARD_ID = "A"}, {.RACE = "2", .CARD_ID = "A"}, {.RACE = "3"}});
    horses({{}, {.RACE = "2", .HN = "2"}, {.RACE = "3", .HN = "3"}});
    lines({{}, {.TODAYSRACE = "2", .HN = "2"}, {.TODAYSRACE = "3", .HN = "3"}});
    Start();
    EXPECT_EQ("1A", card.raceInfo(1).label);
    EXPECT_EQ("2A", card.raceInfo(2).label);
    EXPECT_EQ("3", card.raceInfo(3).label);
    EXPECT_EQ(3, card.labelledRaces); // two in front, and race 2 counted again as it begins
    EXPECT_EQ("1A", screen.header.race);
    EXPECT_EQ("RACE 1", cell(1, 0, 0)); // the first view's head has no letter
    EXPECT_EQ("RACE 2A", cell(2, 0, 0));
    EXPECT_EQ("RACE 3", cell(3, 0, 0));
    EXPECT_EQ("2A", screen.raceButtons[2].caption);
}

TEST_F(CardLoadTest, ALetterAfterAPlainRaceIsNoLabel) {
    races({{.RACE = "1"}, {.RACE = "2", .CARD_ID = "B"}});
    horses({{}, {.RACE = "2", .HN = "2"}});
    lines({{}, {.TODAYSRACE = "2", .HN = "2"}});
    Start();
    EXPECT_EQ("1", card.raceInfo(1).label);
    EXPECT_EQ("2", card.raceInfo(2).label);
    EXPECT_EQ(1, card.labelledRaces); // none in front; race 2 counts as it begins
}

TEST_F(CardLoadTest, WhereTheNumbersBeginAgainTheIndexGoesOn) {
    races({{.RACE = "1", .CARD_ID = "A"}, {.RACE = "2", .CARD_ID = "A"}, {.RACE = "1"}, {.RACE = "2"}});
    horses({{.RACE = "1"}, {.RACE = "2", .HN = "2"}, {.RACE = "3", .HN = "3"}, {.RACE = "4", .HN = "4"}});
    lines({{.TODAYSRACE = "1"},
           {.TODAYSRACE = "2", .HN = "2"},
           {.TODAYSRACE = "3", .HN = "3"},
           {.TODAYSRACE = "3", .HN = "3"},
           {.TODAYSRACE = "4", .HN = "4"}});
    Start();
    EXPECT_EQ("2A", card.raceInfo(2).label);
    EXPECT_EQ("1", card.raceInfo(3).label);
    EXPECT_EQ("2", card.raceInfo(4).label);
    EXPECT_EQ(4, card.raceCount);
    EXPECT_EQ("1:3 2:4 ", linesOf(3, 1));
    EXPECT_EQ("1:5 ", linesOf(4, 1));
}

TEST_F(CardLoadTest, APartialCardCountsItsRacesFromOne) {
    races({{.RACE = "5", .PURSE = "5000"}, {.RACE = "6", .PURSE = "6000"}});
    horses({{.RACE = "5"}, {.RACE = "6", .HN = "2"}});
    lines({{.TODAYSRACE = "5"}, {.TODAYSRACE = "6", .HN = "2"}, {.TODAYSRACE = "6", .HN = "2"}});
    Start();
    EXPECT_EQ(4, card.raceOffset);
    EXPECT_EQ("BANG_20260314.pmd2", card.cardFileName);
    EXPECT_EQ("5", card.raceInfo(1).label);
    EXPECT_EQ("6", card.raceInfo(2).label);
    EXPECT_EQ("5000", card.raceInfo(1).purse);
    EXPECT_EQ("6000", card.raceInfo(2).purse);
    EXPECT_EQ("", card.raceInfo(5).purse);
    EXPECT_EQ(2, card.raceCount);
    EXPECT_EQ("1:1 ", linesOf(1, 1));
    EXPECT_EQ("1:2 2:3 ", linesOf(2, 1));
    EXPECT_EQ("6", cell(2, 1, 2)); // TODAYSRACE as it stands
}

TEST_F(CardLoadTest, TheOffsetIsThatOfTheEarlierOfFirstHorseAndFirstLine) {
    // Race 5 holds first-time starters only, so the first line is race 6's.
    races({{.RACE = "5"}, {.RACE = "6"}});
    horses({{.RACE = "5"}, {.RACE = "6", .HN = "2"}});
    lines({{.TODAYSRACE = "6", .HN = "2"}});
    Start();
    EXPECT_EQ(4, card.raceOffset);
    EXPECT_EQ("1:1 ", linesOf(2, 1));
    EXPECT_EQ("", linesOf(1, 1));
}

// Races 1 and 3 of the table are before the card: they'd give race 5 a purse of 1000 and a class of 95.
TEST_F(CardLoadTest, ARaceTableOfTheWholeProgrammeBeginsAtTheCardsFirstRace) {
    races({{.RACE = "1", .CARD_ID = "A", .TRACK = "DD", .PURSE = "1000", .TODAYS_CR = "95"},
           {.RACE = "3", .TRACK = "DD", .PURSE = "3000", .TODAYS_CR = "95"},
           {.RACE = "5", .PURSE = "5000"},
           {.RACE = "6", .PURSE = "6000"}});
    horses({{.RACE = "5", .PP = "13"}, {.RACE = "6", .HN = "2", .PP = "13"}});
    lines({{.TODAYSRACE = "5"}, {.TODAYSRACE = "6", .HN = "2"}});
    Start();
    EXPECT_EQ(4, card.raceOffset);
    EXPECT_EQ("BANG_20260314.pmd2", card.cardFileName);
    EXPECT_EQ(2, card.raceCount);
    EXPECT_EQ(0, card.labelledRaces); // race 1's letter is none of the card's
    EXPECT_EQ("5", card.raceInfo(1).label);
    EXPECT_EQ("6", card.raceInfo(2).label);
    EXPECT_EQ("", card.raceInfo(3).label);
    EXPECT_EQ("BANG", card.raceInfo(1).trackCode);
    EXPECT_EQ("5000", card.raceInfo(1).purse);
    EXPECT_EQ("6000", card.raceInfo(2).purse);
    EXPECT_EQ("6", screen.raceButtons[2].caption);
    EXPECT_FALSE(screen.raceButtons[3].visible);
    EXPECT_EQ("RACE 6", cell(2, 0, 0));
    EXPECT_EQ("1:1 ", linesOf(1, 13));
    EXPECT_EQ("1:2 ", linesOf(2, 13));
    // Class 75 in a race of 75. Post 13 with a limit of 8 costs 1.5, late post 0.9 off: 67.6 + 0.6
    EXPECT_EQ(" 68.2", cell(1, 1, 38));
    EXPECT_EQ(" 68.2", cell(2, 1, 38));
}

TEST_F(CardLoadTest, ARaceTableWithoutTheCardsFirstRaceIsTheCardsOwn) {
    races({{.RACE = "1", .PURSE = "5000"}, {.RACE = "2", .PURSE = "6000"}});
    horses({{.RACE = "5"}, {.RACE = "6", .HN = "2"}});
    lines({{.TODAYSRACE = "5"}, {.TODAYSRACE = "6", .HN = "2"}});
    Start();
    EXPECT_EQ(4, card.raceOffset);
    EXPECT_EQ("1", card.raceInfo(1).label);
    EXPECT_EQ("5000", card.raceInfo(1).purse);
    EXPECT_EQ("6000", card.raceInfo(2).purse);
    EXPECT_EQ(2, card.raceCount);
    EXPECT_EQ("1:1 ", linesOf(1, 1));
    EXPECT_EQ("1:2 ", linesOf(2, 1));
}

TEST_F(CardLoadTest, TheCardIsNamedByTrackAndDate) {
    oneHorse({{}});
    races({{.TRACK = "M"}});
    Start();
    EXPECT_EQ("M1_20260314.pmd", card.cardFileName);
    EXPECT_EQ("M1", card.raceInfo(1).trackCode);
    EXPECT_EQ("1.M", card.trackSize);
    EXPECT_EQ(990, card.stretchLength);
    EXPECT_EQ(10, card.maxPosts);
}

TEST_F(CardLoadTest, TheTrackCodeOfTheNameIsInUpperCase) {
    oneHorse({{}});
    races({{.TRACK = "bang"}});
    Start();
    EXPECT_EQ("BANG_20260314.pmd", card.cardFileName);
    EXPECT_EQ("BANG", card.raceInfo(1).trackCode);
    EXPECT_EQ("", card.trackSize); // but the table is searched for "bang", and case counts
}

TEST_F(CardLoadTest, EachRaceHasItsTrackAndTheLastOneKnownGivesTheCourse) {
    races({{.TRACK = "BANG"}, {.RACE = "2", .TRACK = "DD"}, {.RACE = "3", .TRACK = "XX"}});
    horses({{}, {.RACE = "2", .HN = "2"}, {.RACE = "3", .HN = "3"}});
    lines({{.TRACK = "ZZ"}});
    Start();
    EXPECT_EQ("BANG", card.raceInfo(1).trackCode);
    EXPECT_EQ("DD", card.raceInfo(2).trackCode);
    EXPECT_EQ("XX", card.raceInfo(3).trackCode);
    EXPECT_EQ("5/8", card.trackSize);
    EXPECT_EQ(0, card.stretchLength); // Dover's is blank
    EXPECT_EQ(8, card.maxPosts);      // of the first race's track
    const Text bangor = "  Bangor Raceway          1/2   440'   57.2           8"; // from column 11
    EXPECT_EQ(bangor, card.raceInfo(1).trackInfo);
    EXPECT_EQ(bangor, screen.header.trackInfo);
    EXPECT_EQ("  Dover Downs             5/8          55.0           9", card.raceInfo(2).trackInfo);
    EXPECT_EQ("", card.raceInfo(3).trackInfo);
}

TEST_F(CardLoadTest, EveryRaceHasItsConditions) {
    const std::string longText = std::string(100, 'x') + "12345" + "cut here";
    races({{}, {.RACE = "2", .PURSE = "12000", .RACETEXT1 = longText, .TODAYS_CR = "80"}});
    horses({{}, {.RACE = "2", .HN = "2"}});
    lines({{}, {.TODAYSRACE = "2", .HN = "2"}});
    Start();
    const RaceInfo& race = card.raceInfo(2);
    EXPECT_EQ("12000", race.purse);
    EXPECT_EQ(std::string(100, 'x') + "12345", race.classText); // 105 characters
    EXPECT_EQ("80", race.todaysCr);
    EXPECT_EQ("Exacta", race.wagering);
    EXPECT_EQ("7:00 PM", race.postTime);
    EXPECT_EQ("PACE", race.gait);
    EXPECT_EQ("1 mile", race.distance);
    EXPECT_EQ("8000", card.raceInfo(1).purse);
}

TEST_F(CardLoadTest, LabelsAndTrackCodesEndAtRaceTwentyFive) {
    std::vector<RaceRow> rows;
    for (int race = 1; race <= 31; ++race) rows.push_back({.RACE = std::to_string(race)});
    races(rows);
    horses({{}, {.RACE = "30", .HN = "2", .PP = "2"}, {.RACE = "31", .HN = "3", .PP = "2"}});
    lines({{}, {.TODAYSRACE = "30", .HN = "2"}, {.TODAYSRACE = "31", .HN = "3"}});
    Start();
    EXPECT_EQ("25", card.raceInfo(25).label);
    EXPECT_EQ("BANG", card.raceInfo(25).trackCode);
    EXPECT_EQ("", card.raceInfo(26).label);
    EXPECT_EQ("", card.raceInfo(26).trackCode);
    EXPECT_NE("", card.raceInfo(26).trackInfo);
    EXPECT_EQ("8000", card.raceInfo(30).purse);
    EXPECT_EQ("1:2 ", linesOf(30, 2)); // the store reaches to race 30
    EXPECT_EQ(3, card.totalLines);     // race 31 is lost, but not its line's cells
    EXPECT_EQ("31", card.lineCells.read(3, 2));
    EXPECT_TRUE(screen.raceButtons[23].visible);
}

TEST_F(CardLoadTest, ARaceNumberBeyondAllBoundsIsNoRaceCount) {
    races({{}, {.RACE = "999999"}});
    horses({{}});
    lines({{}});
    Start();
    EXPECT_EQ("1", card.raceInfo(1).label);
    EXPECT_EQ(1, card.raceCount);
    EXPECT_EQ("1:1 ", linesOf(1, 1));
}

// ---- Drivers and trainers ----

struct UdrRow {
    const char* what;
    const char* udr;
    const char* expected;
};

TEST_F(CardLoadTest, DriversRatingsHaveThreeDecimalsAtTheMost) {
    const UdrRow rows[]{
        {"three decimals", ".312", ".312"}, // 4 characters: ".3120"
        {"with a nought", "0.312", ".312"},
        {"two decimals", ".25", " .25"}, // 3 characters: ".2500", and ".###" shows no noughts
        {"one with a nought", "0.4", "  .4"},
        {"a whole one", "1", "  1."},
        {"four decimals are rounded", ".31251", ".313"},
        {"none", "", ".000"},
        {"nought", "0.000", ".000"},
        {"a negative one", "-0.3", ".000"}, // 4 characters: "-0.30"
        {"no number", "n/a", ".000"},       // "n/a00" is worth 0
        {"beyond all formats", "9999999999999999999999", "9999999999999999999999"},
        {"after it all goes on", ".100", "  .1"},
    };
    std::vector<Strings> table;
    for (const UdrRow& row : rows) table.push_back({"Smith, John", row.udr});
    drivers(table);
    oneHorse({{}});
    Start();
    int number = 0;
    for (const UdrRow& row : rows) EXPECT_EQ(row.expected, card.driverTable(++number).udr) << row.what;
}

TEST_F(CardLoadTest, DriversNamesEndAtTheFirstInitial) {
    drivers({{"Sears, Jay M", ".3"}, {"Le Roy, St. Claire, Jr", ".3"}, {"Teague", ".3"}, {"O'Brien,", ".3"}});
    oneHorse({{}});
    Start();
    EXPECT_EQ("Sears, J", card.driverTable(1).name);
    EXPECT_EQ("Le Roy, S", card.driverTable(2).name);
    EXPECT_EQ("Teague", card.driverTable(3).name); // no comma: whole
    EXPECT_EQ("O'Brien,", card.driverTable(4).name);
}

TEST_F(CardLoadTest, TheDriverListsHold230Rows) {
    std::vector<Strings> rows{{"Sears, Jay", ".312"},
                              {"Abcdefghijklmnopqrstu", ".300"}, // 21 characters: left out
                              {"Abcdefghijklmnopqrst", ".300"}}; // 20: just fits
    while (rows.size() < 229) rows.push_back({"Smith, John", ".100"});
    rows.push_back({"Last, Listed", ".200"});
    rows.push_back({"Not, Listed", ".200"});
    drivers(rows);
    oneHorse({{}});
    Start();
    const std::string list = contentOf("DriverList.txt");
    const std::string head =
        "DRIVERS RATINGS\r\n\r\nDRIVER                  UDR\r\n---------------------------\r\n";
    EXPECT_EQ(head + list, contentOf("A Quillon PRO/Drivers/BANG_20260314.pmd2"));
    EXPECT_EQ(0U, list.find("Sears, J               .312\r\n" // 8 + 12 blanks + 3
                            "Abcdefghijklmnopqrst     .3\r\n" // 20 + 3, and " .3" four wide
                            "Smith, J                 .1\r\n"));
    EXPECT_EQ(229, std::count(list.begin(), list.end(), '\n')); // 230 less the one left out
    EXPECT_TRUE(list.ends_with("Last, L                  .2\r\n"));
    EXPECT_EQ("Not, L", card.driverTable(231).name);
}

TEST_F(CardLoadTest, RowsWithoutADriverAreBlankInTheLists) {
    oneHorse({{}});
    Start();
    const std::string list = contentOf("DriverList.txt");
    EXPECT_TRUE(list.ends_with("Goodblood, C            .25\r\n" + [] {
        std::string rows; // 228 rows of 20 and 3 blanks
        for (int row = 3; row <= 230; ++row) rows += std::string(23, ' ') + "\r\n";
        return rows;
    }()));
}

TEST_F(CardLoadTest, DriversEndAt300AndTrainersAt200) {
    std::vector<Strings> driverRows;
    for (int n = 1; n <= 301; ++n) driverRows.push_back({"D" + std::to_string(n), ".3"});
    drivers(driverRows);
    std::vector<Strings> trainerRows;
    for (int n = 1; n <= 201; ++n) trainerRows.push_back({"T" + std::to_string(n)});
    lay("TRAINRHR.DBF", listTable("TRAINNAME C25", trainerRows));
    races({{}});
    horses({{.DN = "300", .TN = "200"}, {.HN = "2", .PP = "2", .DN = "301", .TN = "201"}});
    lines({{}});
    Start();
    EXPECT_EQ("D300", card.entry(1, 1).driverName);
    EXPECT_EQ("T200", card.entry(1, 1).trainerName);
    EXPECT_EQ("", card.entry(1, 2).driverName);
    EXPECT_EQ("", card.entry(1, 2).driverUdr); // the statement that would pad it failed
    EXPECT_EQ(301, card.entry(1, 2).driverNumber);
    EXPECT_EQ("", card.entry(1, 2).trainerName);
}

// ---- Entries ----

TEST_F(CardLoadTest, EntriesAreStoredInTheirWidths) {
    races({{}});
    horses({{.HORSE_NAME = "Plain Biscuit",
             .PROGRAM = "1A",
             .PP = "13",
             .MORN_ODDS = "5/2",
             .DN = "2",
             .TN = "2"}});
    lines({{}});
    Start();
    const RaceEntry& entry = card.entry(1, farPost);
    EXPECT_EQ("Plain Biscuit", entry.horseName);
    EXPECT_EQ(" 1A", entry.programNumber);
    EXPECT_EQ(" 5/2", entry.morningOdds);
    EXPECT_EQ(" 13", entry.postPosition);
    EXPECT_EQ(2, entry.driverNumber);
    EXPECT_EQ("Goodblood, C", entry.driverName);
    EXPECT_EQ(" .250", entry.driverUdr);
    EXPECT_EQ("Bob Trainer", entry.trainerName);
}

TEST_F(CardLoadTest, TheFirstHorseLeavesNoPhantomAtEntryOne) {
    races({{}});
    horses({{.PP = "4"}});
    lines({{.DATE = "20250101", .POST = "4"}});
    Start();
    const RaceEntry& one = card.entry(1, 1);
    EXPECT_FALSE(one.horseName.given());
    EXPECT_EQ("", one.driverName);
    EXPECT_EQ("", one.trainerName);
    EXPECT_EQ("", one.postPosition);
    EXPECT_EQ("", linesOf(1, 1));
}

TEST_F(CardLoadTest, EntriesWithoutAPostShareEntryNought) {
    races({{}});
    horses({{.HN = "1", .HORSE_NAME = "Runner", .PP = "1"},
            {.HN = "2", .HORSE_NAME = "First Also", .PROGRAM = "8AE", .PP = "99", .MORN_ODDS = "9/2"},
            {.HN = "3",
             .HORSE_NAME = "Second Also",
             .PROGRAM = "9AE",
             .PP = "99",
             .MORN_ODDS = "20/1",
             .DN = "2"}});
    lines({{.HN = "1"}, {.HN = "2"}, {.HN = "2"}, {.HN = "2"}, {.HN = "3"}, {.HN = "3"}, {.HN = "3"}});
    Start();
    EXPECT_EQ("Second Also", trimmed(card.entry(1, 0).horseName)); // the later one stays
    EXPECT_EQ(" 99", card.entry(1, 0).postPosition);
    EXPECT_EQ("1:5 2:6 3:7 ", linesOf(1, 0));
    // In the view each has its own name above its lines.
    EXPECT_EQ("First Also", cell(1, 2, 0));
    EXPECT_EQ("Sears, J   ( .312)", cell(1, 3, 0));
    EXPECT_EQ(" 9/2", cell(1, 4, 0));
    EXPECT_EQ("Second Also", cell(1, 5, 0));
    EXPECT_EQ("Goodblood, C   ( .250)", cell(1, 6, 0));
    EXPECT_EQ("20/1", cell(1, 7, 0));
}

TEST_F(CardLoadTest, ARaceInFrontOfTheCardEndsTheEntries) {
    races({{}});
    horses({{}, {.RACE = "0", .HN = "2", .PP = "2"}, {.HN = "3", .PP = "3", .MORN_ODDS = "9/1"}});
    lines({{}});
    Start();
    EXPECT_EQ(" 5/2", card.entry(1, 1).morningOdds);
    EXPECT_FALSE(card.entry(0, 2).morningOdds.given());
    EXPECT_FALSE(card.entry(1, 3).morningOdds.given()); // not reached
}

TEST_F(CardLoadTest, AnEntryOutOfBoundsIsLostAndTheNextIsRead) {
    races({{}});
    horses({{},
            {.HN = "2", .PP = "21"},
            {.HN = "3", .PP = "20"},
            {.RACE = "31", .HN = "4"},
            {.HN = "5", .PP = "-1"},
            {.HN = "6", .PP = "70000"},
            {.HN = "7", .PP = "19", .DN = "70000"}});
    lines({{}});
    Start();
    EXPECT_EQ(" 20", card.entry(1, 20).postPosition);
    EXPECT_EQ(" 19", card.entry(1, 19).postPosition);
    EXPECT_EQ(0, card.entry(1, 19).driverNumber);
    EXPECT_EQ("Ann Trainer", card.entry(1, 19).trainerName); // its number was good
}

TEST_F(CardLoadTest, ABlankDriverNumberIsDriverNought) {
    races({{}});
    horses({{.PP = "13", .DN = "", .TN = ""}});
    lines({{.DN = ""}});
    Start();
    EXPECT_EQ("", card.entry(1, farPost).driverName);
    EXPECT_EQ("     ", card.entry(1, farPost).driverUdr); // nothing, in five places
    EXPECT_EQ("", cell(1, 1, 37));
}

// ---- Horses and lines in step ----

TEST_F(CardLoadTest, LinesGoToTheirEntriesInTheirOrder) {
    races({{}, {.RACE = "2"}});
    horses({{.HN = "1", .HORSE_NAME = "One", .PP = "1"},
            {.HN = "2", .HORSE_NAME = "Two", .PP = "5"},
            {.RACE = "2", .HN = "3", .HORSE_NAME = "Three", .PP = "2"}});
    lines({{.HN = "1"},
           {.HN = "1"},
           {.HN = "1"},
           {.HN = "1"},
           {.HN = "2"},
           {.HN = "2"},
           {.TODAYSRACE = "2", .HN = "3"},
           {.TODAYSRACE = "2", .HN = "3"}});
    Start();
    EXPECT_EQ("1:1 2:2 3:3 4:4 ", linesOf(1, 1));
    EXPECT_EQ("1:5 2:6 ", linesOf(1, 5));
    EXPECT_EQ("1:7 2:8 ", linesOf(2, 2));
    EXPECT_EQ(8, card.totalLines);
    // The entries follow one another in the view, numbered through the race.
    EXPECT_EQ("One", cell(1, 1, 0));
    EXPECT_EQ("Sears, J  ( .312)", cell(1, 2, 0)); // two blanks for the card's first horse
    EXPECT_EQ(" 5/2", cell(1, 3, 0));
    EXPECT_EQ("Two", cell(1, 5, 0));
    EXPECT_EQ("Sears, J   ( .312)", cell(1, 6, 0)); // three for the others
    EXPECT_EQ(" 5/2", cell(1, 7, 0));               // reaches below its two lines
    EXPECT_EQ("6", cell(1, 6, 39));
    EXPECT_EQ("", cell(1, 7, 39));
    EXPECT_EQ("Three", cell(2, 1, 0));
    EXPECT_EQ("1", cell(2, 1, 39)); // and from 1 again in the next race
    EXPECT_EQ("2", cell(2, 2, 39));
}

TEST_F(CardLoadTest, AnEntryWithFewLinesIsOverwrittenByTheNext) {
    races({{}});
    horses(
        {{.HN = "1", .HORSE_NAME = "One"}, {.HN = "2", .HORSE_NAME = "Two", .PP = "2", .MORN_ODDS = "8/1"}});
    lines({{.HN = "1"}, {.HN = "2"}});
    Start();
    EXPECT_EQ("One", cell(1, 1, 0));
    EXPECT_EQ("Two", cell(1, 2, 0));
    EXPECT_EQ("Sears, J   ( .312)", cell(1, 3, 0));
    EXPECT_EQ(" 8/1", cell(1, 4, 0));
}

TEST_F(CardLoadTest, FirstTimeStartersArePassedOver) {
    races({{}, {.RACE = "2"}, {.RACE = "3", .PURSE = "3333"}, {.RACE = "4"}, {.RACE = "5", .PURSE = "5555"}});
    horses({{.HN = "1", .HORSE_NAME = "Starter", .PP = "1"},
            {.HN = "2", .HORSE_NAME = "Runner", .PP = "2"},
            {.HN = "3", .HORSE_NAME = "Starter Too", .PP = "3", .DN = "2"},
            {.RACE = "2", .HN = "4", .HORSE_NAME = "And Here", .PP = "1"},
            {.RACE = "2", .HN = "5", .HORSE_NAME = "Second", .PP = "2"},
            {.RACE = "3", .HN = "6", .HORSE_NAME = "All New", .PP = "1"},
            {.RACE = "4", .HN = "7", .HORSE_NAME = "Fourth", .PP = "4"},
            {.RACE = "5", .HN = "8", .HORSE_NAME = "New Too", .PP = "1"}});
    lines({{.HN = "2"},
           {.HN = "2"},
           {.TODAYSRACE = "2", .HN = "5"},
           {.TODAYSRACE = "4", .HN = "7"},
           {.TODAYSRACE = "4", .HN = "7"}});
    Start();
    EXPECT_EQ("1:1 2:2 ", linesOf(1, 2));
    EXPECT_EQ("1:3 ", linesOf(2, 2));
    EXPECT_EQ("1:4 2:5 ", linesOf(4, 4));
    for (const auto& [race, entry] : {std::pair{1, 1}, {1, 3}, {2, 1}, {3, 1}, {5, 1}}) {
        EXPECT_EQ("", linesOf(race, entry)) << race << ", " << entry;
        EXPECT_NE("", trimmed(card.entry(race, entry).horseName)) << race << ", " << entry;
    }
    EXPECT_EQ(2, card.entry(1, 3).driverNumber); // as the entry pass stored it
    EXPECT_EQ("Runner", cell(1, 1, 0));          // above its own lines
    EXPECT_EQ("Second", cell(2, 1, 0));
    EXPECT_EQ("Fourth", cell(4, 1, 0));
    // Races without lines are there all the same, at the end of the card too.
    EXPECT_EQ("3333", card.raceInfo(3).purse);
    EXPECT_EQ("5555", card.raceInfo(5).purse);
    for (const std::size_t race : {3U, 5U}) {
        EXPECT_TRUE(screen.raceButtons[race].visible) << race;
        EXPECT_EQ(std::to_string(race), screen.raceButtons[race].caption);
        EXPECT_EQ("RACE " + std::to_string(race), cell(static_cast<int>(race), 0, 0));
    }
}

TEST_F(CardLoadTest, TheFirstRaceMayHaveNoLines) {
    races({{}, {.RACE = "2", .PURSE = "9000"}});
    horses({{.HN = "1"}, {.RACE = "2", .HN = "2"}});
    lines({{.TODAYSRACE = "2", .HN = "2"}, {.TODAYSRACE = "2", .HN = "2"}});
    Start();
    EXPECT_EQ(0, card.raceOffset);
    EXPECT_EQ("8000", card.raceInfo(1).purse);
    EXPECT_EQ("9000", card.raceInfo(2).purse);
    EXPECT_EQ("1:1 2:2 ", linesOf(2, 1));
    EXPECT_TRUE(screen.raceButtons[1].visible);
    EXPECT_EQ("1", cell(2, 1, 39));
}

TEST_F(CardLoadTest, ALineOfNoHorseMovesOneRow) {
    races({{}});
    horses({{.HN = "1", .PP = "1"}, {.HN = "2", .PP = "2"}, {.HN = "3", .PP = "3"}});
    lines({{.HN = "1"}, {.HN = "77"}, {.HN = "3"}});
    Start();
    EXPECT_EQ("1:1 ", linesOf(1, 1));
    EXPECT_EQ("1:2 ", linesOf(1, 2)); // taken for the next horse's
    EXPECT_EQ("1:3 ", linesOf(1, 3));
}

TEST_F(CardLoadTest, ALineOfNoHorseInAnotherRaceMovesOneRace) {
    races({{}, {.RACE = "2"}, {.RACE = "3"}});
    horses({{.HN = "1"}, {.RACE = "2", .HN = "2", .PP = "2"}, {.RACE = "3", .HN = "3", .PP = "3"}});
    lines({{.HN = "1"},
           {.TODAYSRACE = "3", .HN = "77"},
           {.TODAYSRACE = "3", .HN = "3"},
           {.TODAYSRACE = "3", .HN = "3"}});
    Start();
    EXPECT_EQ("1:2 ", linesOf(3, 2)); // in the race it names, at the next horse's post
    EXPECT_EQ("1:3 2:4 ", linesOf(3, 3));
    EXPECT_EQ(4, card.totalLines);
}

TEST_F(CardLoadTest, AWrongRaceInALineDoesNotMoveTheCardOn) {
    races({{}, {.RACE = "2", .PURSE = "9000"}});
    horses(
        {{.HN = "1"}, {.HN = "2", .PP = "2"}, {.HN = "3", .PP = "3"}, {.RACE = "2", .HN = "4", .PP = "4"}});
    lines({{.HN = "1"},
           {.TODAYSRACE = "", .HN = "2"},
           {.HN = "2"},
           {.HN = "3"},
           {.HN = "3"},
           {.TODAYSRACE = "2", .HN = "4"},
           {.TODAYSRACE = "2", .HN = "4"}});
    Start();
    EXPECT_EQ("1:2 2:3 ", linesOf(1, 2));
    EXPECT_EQ("1:4 2:5 ", linesOf(1, 3));
    EXPECT_EQ("1:6 2:7 ", linesOf(2, 4));
    EXPECT_EQ("9000", card.raceInfo(2).purse);
}

TEST_F(CardLoadTest, TheOutgoingHorsesDriverNumberIsThatOfItsRow) {
    races({{}, {.RACE = "2"}});
    horses(
        {{.HN = "1", .PP = "99", .DN = "2"}, {.HN = "2", .PP = "99", .DN = "1"}, {.RACE = "2", .HN = "3"}});
    lines({{.HN = "1"}, {.HN = "2"}, {.TODAYSRACE = "2", .HN = "3"}});
    Start();
    EXPECT_EQ(1, card.entry(1, 0).driverNumber); // the later one's, and race 2 keeps its own
    EXPECT_EQ(0, card.entry(2, 0).driverNumber);
    EXPECT_EQ(1, card.entry(2, 1).driverNumber);
}

// ---- Windows and shades ----

// The card is of March 14th, 2026. 33 days before it is February 9th (14 days to February 28th, 19 more), 50
// days before it January 23rd (36 more than the 14: 28 to January 31st, and 8).
TEST_F(CardLoadTest, LinesCountByTheirAgeInDays) {
    struct Row {
        const char* date;
        int recent;
        int fifty;
    };
    const Row rows[]{
        {"20260313", 1, 1}, {"20260314", 1, 1}, {"20260401", 1, 1}, // ahead of the card
        {"20260209", 1, 1},                                         // 33 days
        {"20260208", 0, 1},                                         // 34
        {"20260123", 0, 1},                                         // 50
        {"20260122", 0, 0},                                         // 51
    };
    for (const Row& row : rows) {
        card.clear();
        StartUp();
        oneHorse({{.DATE = row.date}});
        Start();
        EXPECT_EQ(row.recent, card.entry(1, farPost).linesInLastWindow) << row.date;
        EXPECT_EQ(row.fifty, card.entry(1, farPost).linesInFiftyDays) << row.date;
    }
}

TEST_F(CardLoadTest, TheCardsFirstLineCountsForTheFirstHorse) {
    races({{}});
    horses({{.PP = "13"}, {.HN = "2", .PP = "14"}});
    lines({{}, {}, {.HN = "2"}, {.HN = "2"}});
    Start();
    EXPECT_EQ(2, card.entry(1, farPost).linesInLastWindow);
    EXPECT_EQ(2, card.entry(1, farPost).linesInFiftyDays);
    EXPECT_EQ(2, card.entry(1, 14).linesInLastWindow);
}

TEST_F(CardLoadTest, NothingStandsAtEntryOneWhereNobodyHasPostOne) {
    races({{}});
    horses({{.PP = "6"}, {.HN = "2", .PP = "7"}});
    lines({{.FAV = "*"}, {.HN = "2"}});
    Start();
    EXPECT_EQ(0, card.entry(1, 1).linesInLastWindow);
    EXPECT_EQ(0, card.entry(1, 1).linesInFiftyDays);
    EXPECT_EQ("", card.entry(1, 1).favMark);
    EXPECT_EQ("", card.entry(1, 1).rating); // not even blanks, which could be ranked
    EXPECT_EQ("", screen.raceView[1].text(1, 3));
    EXPECT_EQ("*", card.entry(1, 6).favMark);
}

TEST_F(CardLoadTest, LinesOfAnEntryWithoutAPostCountForEntryOne) {
    races({{}});
    horses({{.HN = "1", .PP = "13"}, {.HN = "2", .PP = "99"}});
    lines({{.HN = "1"}, {.HN = "2"}, {.HN = "2", .DATE = "20260201"}});
    Start();
    EXPECT_EQ(0, card.entry(1, 0).linesInLastWindow);
    EXPECT_EQ(0, card.entry(1, 0).linesInFiftyDays);
    EXPECT_EQ(2, card.entry(1, 1).linesInFiftyDays); // 10 and 41 days
    EXPECT_EQ(1, card.entry(1, farPost).linesInFiftyDays);
    EXPECT_EQ("1:2 2:3 ", linesOf(1, 0));
}

TEST_F(CardLoadTest, AnUnreadableDateLeavesTheAgeOfTheLineBefore) {
    races({{}});
    horses({{.PP = "13"}, {.HN = "2", .PP = "14"}, {.HN = "3", .PP = "15"}});
    lines({{.DATE = "2026 304"},
           {.DATE = "20250101"}, // no difference at first; then over a year
           {.HN = "2", .DATE = "20260230"},
           {.HN = "2"}, // no such day; then 10 days
           {.HN = "3", .DATE = ""},
           {.HN = "3", .DATE = "20250101"}}); // blank
    Start();
    EXPECT_EQ(1, card.entry(1, farPost).linesInLastWindow); // no difference counts as the card's day: 1 of 2
    EXPECT_EQ(1, card.entry(1, 14).linesInLastWindow);      // the year before it stood: 1 of 2
    EXPECT_EQ(1, card.entry(1, 15).linesInLastWindow);      // ten days stood: 1 of 2
}

// How the shades of an entry come about, L the lines of the last window so far, F those of fifty days, s the
// shaded rows. First test: s <= L yellow, else s <= F cyan, each with s + 1; second: L < s <= F cyan, s + 1.
TEST_F(CardLoadTest, RowsAreShadedByAge) {
    struct Row {
        const char* what;
        Strings dates;
        Strings shades;
    };
    const std::string recent = "20260304", older = "20260201", old = "20250101"; // 10, 41, over 400 days
    const Row rows[]{
        // s=0 L=1 F=1: yellow, s=1; s=1 L=2 F=2: yellow, s=2
        {"all recent", {recent, recent}, {"yellow", "yellow"}},
        // s=0 L=0 F=0: yellow, s=1; s=1: none
        {"all old: the first has a shade", {old, old}, {"yellow", ""}},
        // s=1 L=1 F=1: yellow, s=2, for a line of no window; then 2 <= 1 no
        {"an old line after a recent one has the shade to spare",
         {recent, old, old},
         {"yellow", "yellow", ""}},
        // s=0 L=0 F=1: yellow, s=1, and 0 < 1 <= 1: cyan, s=2
        {"an older one alone turns cyan", {older}, {"cyan"}},
        // s=2 L=0 F=2: cyan, s=3; s=3 F=3: cyan, s=4; s=4 F=3: none
        {"older ones", {older, older, older, old}, {"cyan", "cyan", "cyan", ""}},
        // s=2 after two; s=2 L=2 F=3: yellow, s=3, 2 < 3 <= 3: cyan, s=4; L=2 F=4: cyan, s=5; F=4: none
        {"recent, then older", {recent, recent, older, older, old}, {"yellow", "yellow", "cyan", "cyan", ""}},
        // s=1 after one; s=1 L=1 F=1: yellow, s=2; s=2 L=1 F=2: cyan, s=3
        {"an unsorted one", {recent, old, older}, {"yellow", "yellow", "cyan"}},
    };
    for (const Row& row : rows) {
        StartUp();
        races({{}});
        // A horse in front takes the quirk of the card's first line upon itself.
        horses({{.HN = "9", .PP = "20"}, {.PP = "13"}});
        std::vector<LineRow> table{{.HN = "9"}};
        for (const std::string& date : row.dates) table.push_back({.DATE = date});
        lines(table);
        Start();
        int line = 2;
        for (const std::string& shade : row.shades) EXPECT_EQ(shade, shadeOf(line++)) << row.what;
    }
}

TEST_F(CardLoadTest, ALineOutOfBoundsIsShadedSinceItsCountsCantBeTold) {
    races({{}});
    horses({{.HN = "9", .PP = "20"}, {.HORSE_NAME = "Beyond", .PP = "25"}});
    lines({{.HN = "9"}, {.DATE = "20250101"}});
    Start();
    EXPECT_EQ("cyan", shadeOf(2)); // each test that fails takes its branch, the cyan one last
    EXPECT_EQ("Beyond", cell(1, 2, 0));
    EXPECT_EQ("2", card.lineCells.read(2, 39));
}

// ---- Cells ----

TEST_F(CardLoadTest, ALineFillsItsRow) {
    races({{.TRACK = "ZZ"}});
    horses({{.HN = "9", .PP = "20"}, {.HN = "123", .PROGRAM = "13", .PP = "13", .DN = "2"}});
    lines({{.HN = "9"},
           {.HN = "123",
            .DATE = "20260304",
            .TRACK = "M",
            .PURSE = "8.5",
            .CR = "74.5",
            .CALL_1Q_BF = "x",
            .CALL_1Q_PK = "\xBA",
            .FAV = "*",
            .ODDS = "2.4",
            .DN = "2"}});
    Start();
    const char* const expected[40]{
        nullptr, "20260304", "1",    "13",     "13",   "123",    "",       "M1",
        "1",     "ft",                                                          //  1
        "8500",  "NW4000L5", "74.5", "27.1",   "56.2", "1:25.3", "1:53.4", "3", // 10
        "x",     "5",        "\xBA", "1a",     "2b",   "6",      "2k",     "2a",
        "3b",    "7",        "3k",   "3a",                                                 // 18
        "8",     "5",        "29.1", "1:54.3", "*",    "2.40",   "2",      "Goodblood, C", // 30
        nullptr, "2"};                                                                     // 38 the rating
    for (int column = 1; column <= 39; ++column) {
        const bool isRating = expected[column] == nullptr;
        EXPECT_EQ(isRating ? "  6.8" : expected[column], cell(1, 2, column)) << column;
        EXPECT_EQ(cell(1, 2, column), card.lineCells.read(2, column)) << column;
    }
    // 3 x 54.3 - 25.3 - 70 = 67.6; today's course is unknown and the Meadowlands' is worth 57: 10.6; parked
    // outside on a half mile, by its own column, 0.8: 9.8; a favourite's 3: 6.8; half a class point is 0
    EXPECT_EQ("  6.8", cell(1, 2, 38));
    EXPECT_EQ("  6.8", card.pastLine.read(1, 13, 1).rating);
    EXPECT_EQ("8.5", card.pastLine.read(1, 13, 1).PURSE);
    EXPECT_EQ("M", card.pastLine.read(1, 13, 1).TRACK); // raw in the store
    EXPECT_EQ("*", card.entry(1, 13).favMark);
    EXPECT_EQ("Date", cell(1, 0, 1)); // the heads stay
    EXPECT_EQ("", card.lineCells.read(2, 0));
    EXPECT_EQ("", card.lineCells.read(2, 40));
}

struct CellRow {
    const char* what;
    LineRow line;
    int column;
    const char* expected;
};

TEST_F(CardLoadTest, CellsThatStandForMissingFigures) {
    const CellRow rows[]{
        {"a class rating of 0", {.CR = "0"}, 12, "NA"},
        {"one not available", {.CR = "-99"}, 12, "NA"},
        {"a blank one", {.CR = ""}, 12, "NA"},
        {"no third time: the start of the final one",
         {.LEAD_TM_3Q = "-97", .LEAD_TM_FN = "1:53.4"},
         15,
         "1:53"},
        {"nor a final one", {.LEAD_TM_3Q = "", .LEAD_TM_FN = ""}, 15, "29"},
        {"no final time", {.HRSE_TM_FN = "-97"}, 33, "  --  "},
        {"a blank one", {.HRSE_TM_FN = ""}, 33, "  --  "},
        {"one marked as wrong", {.HRSE_TM_FN = "1:5@.3"}, 33, "  --  "},
        {"the last quarter in two characters", {.HRSE_TM_4Q = "29"}, 32, "29.0"},
        {"in one", {.HRSE_TM_4Q = "0"}, 32, "0"},
        {"no odds", {.ODDS = "-1"}, 35, ".00"},
        {"blank odds", {.ODDS = ""}, 35, ""},
        {"odds in words", {.ODDS = "n/a"}, 35, "n/a"},
        {"odds below one", {.ODDS = ".5"}, 35, ".50"},
        {"odds that no format holds", {.ODDS = "9E99"}, 35, ""},
        {"no purse", {.PURSE = ""}, 10, "0"},
        {"a purse of half a dollar more", {.PURSE = "1.0005"}, 10, "1000.5"},
        {"a driver that isn't there", {.DN = "301"}, 37, ""},
        {"one beyond 16 bits", {.DN = "99999"}, 37, ""},
        {"after all of them", {.DN = "99999"}, 39, "1"},
        {"a date that is none stands as it is", {.DATE = "2026"}, 1, "2026"},
    };
    for (const CellRow& row : rows) {
        StartUp();
        oneHorse({row.line});
        Start();
        EXPECT_EQ(row.expected, cell(1, 1, row.column)) << row.what;
        EXPECT_EQ(row.expected, card.lineCells.read(1, row.column)) << row.what;
    }
}

TEST_F(CardLoadTest, ALineWithoutCallsShowsDashesAndRatesByTheCallsBeforeIt) {
    races({{.TRACK = "ZZ"}});
    horses({{.HN = "9", .PP = "20"}, {.PP = "13"}});
    lines({{.HN = "9"},
           {.TRACK = "ZZ", .CALL_1Q_PO = "1", .CALL_1Q_PK = "\xB0"},
           {.TRACK = "ZZ", .POST = "0", .CALL_1Q_BF = "x", .CALL_1Q_PO = "9", .CALL_1Q_PK = ""}});
    Start();
    EXPECT_EQ("  --  ", cell(1, 3, 17));
    EXPECT_EQ("x", cell(1, 3, 18)); // as it stands
    for (int column = 19; column <= 31; ++column) EXPECT_EQ("-", cell(1, 3, column)) << column;
    EXPECT_EQ("29.1", cell(1, 3, 32));
    // 67.6; first on the lead 0.2, parked outside on a half mile 0.8, and that on the lead 0.2 more: 66.4
    EXPECT_EQ(" 66.4", cell(1, 2, 38));
    EXPECT_EQ(" 66.4", cell(1, 3, 38)); // from the same calls
    EXPECT_EQ("0", card.pastLine.read(1, 13, 2).POST);
    EXPECT_EQ("9", card.pastLine.read(1, 13, 2).CALL_1Q_PO);
}

TEST_F(CardLoadTest, FinalTimesComeFromTheirLastFourCharacters) {
    struct Row {
        const char* what;
        LineRow line;
        const char* rating;
    };
    const Row rows[]{
        {"as they stand", {.TRACK = "ZZ"}, " 67.6"},
        // 2:59.0 stands in: 3 x 59 - 25.3 - 70 = 81.7
        {"no time of its own", {.TRACK = "ZZ", .HRSE_TM_FN = "-97"}, " 81.7"},
        // "1:53": lenient 1, the colon ends it: 162.9 - 1 - 70 = 91.9
        {"the leader's final for its third", {.TRACK = "ZZ", .LEAD_TM_3Q = "-97"}, " 91.9"},
        // 162.9 - 29 - 70 = 63.9
        {"neither", {.TRACK = "ZZ", .LEAD_TM_3Q = "", .LEAD_TM_FN = ""}, " 63.9"},
    };
    for (const Row& row : rows) {
        StartUp();
        races({{.TRACK = "ZZ"}});
        horses({{.PP = "13"}});
        lines({row.line});
        Start();
        EXPECT_EQ(row.rating, cell(1, 1, 38)) << row.what;
    }
}

TEST_F(CardLoadTest, AFavouriteIsForgottenWithItsLastLine) {
    races({{.TRACK = "ZZ"}});
    horses({{.PP = "13"}, {.HN = "2", .PP = "14"}});
    lines({{.TRACK = "ZZ", .FAV = "*"},
           {.TRACK = "ZZ"},
           {.HN = "2", .TRACK = "ZZ"},
           {.HN = "2", .TRACK = "ZZ", .FAV = "*"}});
    Start();
    EXPECT_EQ(" 64.6", cell(1, 1, 38)); // 67.6 - 3
    EXPECT_EQ(" 64.6", cell(1, 2, 38));
    EXPECT_EQ(" 67.6", cell(1, 3, 38));
    EXPECT_EQ(" 67.6", cell(1, 4, 38));       // the mark of an older line sets nothing
    EXPECT_EQ("", card.entry(1, 13).favMark); // as in the last line
    EXPECT_EQ("*", card.entry(1, 14).favMark);
}

TEST_F(CardLoadTest, TheCardsFirstLinePaysForTheFirstHorsesPost) {
    races({{}});
    horses({{.PP = "8"}});
    lines({{}, {}});
    Start();
    // 67.6 on Bangor's half mile from Bangor: no course; post 8 costs 4.5, late post 0.9 off: 71.2
    EXPECT_EQ(" 71.2", cell(1, 1, 38));
    EXPECT_EQ(" 71.2", cell(1, 2, 38));
}

TEST_F(CardLoadTest, TheCardsFirstLineOfAHorseWithoutAPostPaysForPostOne) {
    races({{}});
    horses({{.PP = "99"}});
    lines({{}});
    Start();
    EXPECT_EQ(" 66.7", cell(1, 1, 38)); // 67.6 - 0.9, post 1 costing nothing
    EXPECT_EQ("1:1 ", linesOf(1, 0));
}

// ---- Bounds ----

// A past line has room for posts up to 20, five of its fields for posts up to 30.
TEST_F(CardLoadTest, OfAHorseAtPostTwentyFiveFiveFieldsOfEachLineAreStored) {
    races({{}});
    horses({{.PP = "2"}, {.HN = "2", .PP = "25"}});
    lines({{}, {.HN = "2"}, {.HN = "2"}});
    Start();
    EXPECT_EQ("1:2 2:3 ", linesOf(1, 25));
    for (const int line : {1, 2}) {
        const PastLine& stored = card.pastLine.read(1, 25, line);
        EXPECT_EQ("2b", stored.CALL_2Q_BF);
        EXPECT_EQ("2a", stored.CALL_2Q_AF);
        EXPECT_EQ("3b", stored.CALL_3Q_BF);
        EXPECT_EQ("3a", stored.CALL_3Q_AF);
        EXPECT_EQ("", stored.DATE);
        EXPECT_EQ("", stored.CALL_2Q_PO);
        EXPECT_EQ("", stored.rating);
    }
    EXPECT_EQ("99.9", cell(1, 2, 38)); // no entry to rate it for
    EXPECT_TRUE(journalTells("index (1, 25, 1) is out of bounds"));
}

TEST_F(CardLoadTest, AThirtyFirstLineIsLostButForItsCells) {
    std::vector<LineRow> rows(31);
    oneHorse(rows);
    Start();
    EXPECT_EQ(31, card.totalLines);
    EXPECT_EQ(30, card.pastLine.read(1, 13, 30).lineNumber);
    EXPECT_EQ("20260304", card.lineCells.read(31, 1));
    EXPECT_EQ("31", cell(1, 31, 39));
}

TEST_F(CardLoadTest, AViewHoldsTwoHundredRowsWithItsHead) {
    races({{}});
    std::vector<HorseRow> horseRows;
    std::vector<LineRow> lineRows;
    for (int horse = 1; horse <= 20; ++horse) {
        const std::string number = std::to_string(horse);
        horseRows.push_back({.HN = number, .PP = number});
        for (int line = 1; line <= 11; ++line) lineRows.push_back({.HN = number});
    }
    horses(horseRows);
    lines(lineRows); // 220 of them
    Start();
    EXPECT_EQ("199", cell(1, 199, 39));
    EXPECT_EQ(200, screen.dataView[1].rows());
    EXPECT_EQ(220, card.totalLines);
    EXPECT_EQ("220", card.lineCells.read(220, 39)); // stored though no view shows it
    EXPECT_EQ(220, card.pastLine.read(1, 20, 11).lineNumber);
}

TEST_F(CardLoadTest, LinesBeyondThreeThousandAreRatedAndShown) {
    std::vector<RaceRow> raceRows;
    std::vector<HorseRow> horseRows;
    std::vector<LineRow> lineRows;
    for (int race = 1; race <= 6; ++race) {
        const std::string raceNumber = std::to_string(race);
        raceRows.push_back({.RACE = raceNumber});
        for (int horse = 1; horse <= 20; ++horse) {
            const std::string hn = std::to_string(race * 100 + horse);
            horseRows.push_back({.RACE = raceNumber, .HN = hn, .PP = std::to_string(horse)});
            for (int line = 1; line <= 30 && lineRows.size() < 3001; ++line)
                lineRows.push_back({.TODAYSRACE = raceNumber, .HN = hn});
        }
    }
    races(raceRows);
    horses(horseRows);
    lines(lineRows);
    Start();
    EXPECT_EQ(3001, card.totalLines);
    EXPECT_EQ("20260304", card.lineCells.read(3000, 1)); // 5 races of 600 lines
    EXPECT_EQ(3001, card.pastLine.read(6, 1, 1).lineNumber);
    EXPECT_EQ("20260304", cell(6, 1, 1));
}

TEST_F(CardLoadTest, RacesAboveTwentyThreeAreStoredWithoutAView) {
    std::vector<RaceRow> raceRows;
    for (int race = 1; race <= 24; ++race) raceRows.push_back({.RACE = std::to_string(race)});
    races(raceRows);
    horses({{}, {.RACE = "24", .HN = "2", .PP = "2"}});
    lines({{}, {.TODAYSRACE = "24", .HN = "2"}});
    Start();
    EXPECT_EQ("1:2 ", linesOf(24, 2));
    EXPECT_EQ("24", card.lineCells.read(2, 2));
    // 67.6 + 0.01 - 0.9 = 66.71
    EXPECT_EQ(" 66.7", card.pastLine.read(24, 2, 1).rating);
    EXPECT_EQ("24", trimmed(cell(lineTableView, 2, 1))); // view 24 is the running-line table
}

TEST_F(CardLoadTest, TheRunningLineTableIsShownWhole) {
    oneHorse({{}, {.TRACK = "M"}});
    Start();
    EXPECT_EQ("TODAYSRACE", cell(lineTableView, 0, 1));
    EXPECT_EQ("TRACK", trimmed(cell(lineTableView, 0, 4)));
    EXPECT_EQ("M", trimmed(cell(lineTableView, 2, 4)));
}

TEST_F(CardLoadTest, GarbageInEveryFieldEndsInALoad) {
    const std::string junk = "\xFF\x01~,";
    races({{.RACE = junk, .CARD_ID = "~", .TRACK = "a/b", .TODAYS_CR = "??", .BULLETDATE = junk},
           {.RACE = "-5"},
           {.RACE = "1E9"}});
    horses(
        {{.RACE = "1", .HN = junk, .PP = junk, .DN = "-1", .TN = "x"}, {.RACE = "1", .HN = "", .PP = "-3"}});
    lines({{.TODAYSRACE = junk, .HN = "none", .DATE = junk, .POST = junk, .DN = junk},
           {.TODAYSRACE = "-7", .HN = junk},
           {.TODAYSRACE = "99999", .HN = ""}});
    Start();
    EXPECT_EQ("Select Race", screen.start.caption);
    EXPECT_EQ(3, card.totalLines);
    EXPECT_TRUE(exists("DriverList.txt"));
    EXPECT_GT(journal.count(), 0U);
}

// ---- The log ----

TEST_F(CardLoadTest, ALoadMakesTheLogFileAlsoWithoutTheMark) {
    oneHorse({{}});
    Start();
    EXPECT_EQ("", contentOf("TEST.txt"));
}

TEST_F(CardLoadTest, TheLogHasALineForEachLineWithTheIndicesOfItsFirstFigure) {
    races({{.TRACK = "ZZ"}});
    horses({{.PP = "13"}, {.HN = "2", .PP = "99"}});
    lines({{.TRACK = "ZZ"}, {.HN = "2", .TRACK = "ZZ"}});
    Diagnostic();
    Start();
    const std::string figures =
        "   67.6   67.6   67.6   67.6   67.6   67.6   67.6   67.6   67.6   67.6 67.6\r\n";
    EXPECT_EQ(" RACE  PP    LQC    POST   LH     PO     POW    POD    QU     CL     FAV    WPS\r\n"
              "\r\r\n   1   13 " +
                  figures +                     // the first line's too
                  "\r\r\n   1    1 " + figures, // under entry 1 until it is found to have no post
              contentOf("TEST.txt"));
}

} // namespace
} // namespace quillon

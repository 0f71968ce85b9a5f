// The factors of a line one by one, and whole lines on their road to a rating.
#include "card/fields.h"
#include "card/race_card.h"
#include "rating/diagnostic_log.h"
#include "rating/line_factors.h"
#include "rating/plain_line.h"
#include "support/card_test.h"
#include "tables/load_state.h"
#include "tables/table_builder.h"
#include "tables/track_table.h"

namespace quillon {
namespace {

constexpr const char* ring = "\xBA";
constexpr const char* otherRing = "\xB0";
constexpr const char* twoRings = "\xBA\xBA";
constexpr const char* otherTwoRings = "\xB0\xB0";

class LineFactorsTest : public CardTest {
protected:
    LineFactorsTest() {
        load = {};
        clearDiagnosticLog();
        cursor.race = 1;
        cursor.entry = 2;
        cursor.line = 1;
    }
};

// ---- LastQuarterCalc ----

struct LastQuarterRow {
    const char* what;
    const char* miles;
    const char* lastQuarter;
    const char* finish;
    const char* horseFinal;
    const char* leaderFinal;
    const char* expectedFigure;
    const char* expectedFinal;
};

TEST_F(LineFactorsTest, TheFirstFigureIsThreeFinalTimesLessTheLeadersThirdTimeAndSeventy) {
    const LastQuarterRow rows[]{
        // 3 x 54.3 - 25.3 - 70 = 67.6
        {"a mile in 1:54.3 after a third time of 1:25.3", "1", "29.0", "1", "54.3", "25.3", "67.6", "54.3"},
        {"four decimals of the distance", "1.0000", "29.0", "1", "54.3", "25.3", "67.6", "54.3"},
        {"two minutes flat has 60 seconds", "1", "30", "5", "00.0", "30.0", "80", "00.0"}, // 180 - 30 - 70
        {"2:01.2", "1", "30.1", "5", "01.2", "30.4", "83.2", "01.2"},  // 3 x 61.2 = 183.6, - 30.4 - 70
        {"2:19.9", "1", "30.1", "5", "19.9", "30.0", "139.7", "19.9"}, // 3 x 79.9 = 239.7, - 30 - 70
        {"20 seconds are not below 20", "1", "30.1", "5", "20.0", "30.0", "-40", "20.0"}, // 60 - 30 - 70
        {"a final that is no number is two minutes", "1", "30.1", "5", "x", "30.0", "80", "x"},
        {"a third time that is no number counts as 0", "1", "29", "5", "50.0", "", "80", "50.0"}, // 150 - 70
        {"a dash's final counts as 0", "0.6250", "29", "1", "14.0", "45.0", "-115", "14.0"},      // - 45 - 70
        {"no distance likewise", "", "29", "1", "54.3", "25.3", "-95.3", "54.3"},
        {"over a mile", "1.0625", "29.0", "1", "54.3", "25.3", "99.9", "54.3"},
        {"a mile and a quarter", "1.25", "", "", "54.3", "25.3", "99.9", "54.3"},
        {"no last quarter", "1", "", "1", "54.3", "25.3", "", "8"},
        {"a last quarter of 0", "1", "0", "1", "54.3", "25.3", "", "8"},
        {"any above 0 will do", "1", "0.1", "1", "54.3", "25.3", "67.6", "54.3"},
        {"one that is not available", "1", "-97", "1", "54.3", "25.3", "", "8"},
        {"one that is no number", "1", "29.1x", "1", "54.3", "25.3", "", "8"},
        {"no finish", "1", "29.1", "", "54.3", "25.3", "", "8"},
        {"a finish of 0", "1", "29.1", "0", "54.3", "25.3", "", "8"},
        {"a finish in letters", "1", "29.1", "dnf", "54.3", "25.3", "", "8"},
        {"a finish with a letter", "1", "29.1", "3x", "54.3", "25.3", "67.6", "54.3"},
    };
    for (const LastQuarterRow& row : rows) {
        load.line = {};
        load.line.DIST_MILES = row.miles;
        load.line.HRSE_TM_4Q = row.lastQuarter;
        load.line.CALL_FN_PO = row.finish;
        cursor.lineValue = "";
        cursor.horseFinal = row.horseFinal;
        cursor.leaderFinal = row.leaderFinal;
        LastQuarterCalc();
        EXPECT_EQ(row.expectedFigure, cursor.lineValue) << row.what;
        EXPECT_EQ(row.expectedFinal, cursor.horseFinal) << row.what;
        EXPECT_EQ(row.miles, card.pastLine.read(1, 2, 1).DIST_MILES) << row.what;
    }
    EXPECT_EQ(0U, journal.count()); // lines without a figure are no faults
}

TEST_F(LineFactorsTest, TheCardsFirstLineHasItsDistanceAsLineOne) {
    cursor.line = 0;
    load.line.DIST_MILES = "1";
    LastQuarterCalc();
    EXPECT_EQ("1", card.pastLine.read(1, 2, 1).DIST_MILES);
    EXPECT_EQ("", card.pastLine.read(1, 2, 0).DIST_MILES);
}

// ---- LeadHorse ----

struct CallsRow {
    const char* what;
    const char* first;
    const char* second;
    const char* third;
    const char* expected;
};

TEST_F(LineFactorsTest, ALeaderIsCreditedAtEachCall) {
    const CallsRow rows[]{
        {"at the quarter", "1", "2", "3", "59.8"},            // 60 - 0.2
        {"at the half", "2", "1", "3", "59.8"},               // 60 - 0.2
        {"at the three quarters", "2", "3", "1", "59.6"},     // 60 - 0.4
        {"all the way", "1", "1", "1", "59.2"},               // 60 - 0.2 - 0.2 - 0.4
        {"never", "2", "10", "11", " 60.0"},                  // not touched
        {"no calls", "", "", "", " 60.0"},                    //
        {"in letters", "x", "-", "be", " 60.0"},              // count as 0
        {"with a letter or blanks", "1x", " 1", "01", "59.2"} // are 1 in number
    };
    for (const CallsRow& row : rows) {
        cursor.lineValue = " 60.0";
        cursor.firstCall = row.first;
        cursor.secondCall = row.second;
        cursor.thirdCall = row.third;
        LeadHorse();
        EXPECT_EQ(row.expected, cursor.lineValue) << row.what;
    }
}

// ---- Park marks ----

struct ParkRow {
    const char* courseSize;
    const char* atFirst;
    const char* atSecond;
    const char* atThird;
    const char* atAll;
};

void parkAt(bool first, bool second, bool third, const char* mark) {
    cursor.lineValue = " 60.0";
    cursor.firstPark = first ? mark : "";
    cursor.secondPark = second ? mark : "";
    cursor.thirdPark = third ? mark : "";
}

void expectParkCredits(void (*step)(), const std::vector<ParkRow>& rows,
                       const std::vector<const char*>& marks) {
    const auto after = [&](bool first, bool second, bool third, const char* mark) {
        parkAt(first, second, third, mark);
        step();
        return cursor.lineValue;
    };
    for (const ParkRow& row : rows)
        for (const char* mark : marks) {
            cursor.lineSize = row.courseSize;
            EXPECT_EQ(row.atFirst, after(true, false, false, mark)) << row.courseSize << " first";
            EXPECT_EQ(row.atSecond, after(false, true, false, mark)) << row.courseSize << " second";
            EXPECT_EQ(row.atThird, after(false, false, true, mark)) << row.courseSize << " third";
            EXPECT_EQ(row.atAll, after(true, true, true, mark)) << row.courseSize << " all";
        }
}

constexpr const char* none = " 60.0"; // not touched

TEST_F(LineFactorsTest, ACallRacedOutsideIsCreditedByTheLinesCourse) {
    expectParkCredits(ParkOuts,
                      {
                          {"1/2", "59.2", "59.2", "59.2", "57.6"}, // 60 - 0.8 a call
                          {"5/8", "59.4", "59.4", "59.4", "58.2"}, // 0.6
                          {"7/8", "59.6", "59.6", "59.6", "58.8"}, // 0.4
                          {"1.M", "59.6", "59.6", "59.6", "58.8"}, // 0.4
                          {"3/4", none, none, none, none},
                          {"1.Q", none, none, none, none},
                          {"11/4", none, none, none, none},
                          {"1", none, none, none, none},
                          {"", none, none, none, none},
                      },
                      {ring, otherRing});
}

TEST_F(LineFactorsTest, ACallRacedTwoWideIsCreditedByTheLinesCourseAndTwiceAtTheThird) {
    expectParkCredits(ParkOutsDouble,
                      {
                          {"1/2", "59.2", "59.2", "58.4", "56.8"}, // 60 - 0.8 - 0.8 - 1.6
                          {"5/8", "59.4", "59.4", "58.8", "57.6"}, // 60 - 0.6 - 0.6 - 1.2
                          {"7/8", "59.6", "59.6", "59.2", "58.4"}, // 60 - 0.4 - 0.4 - 0.8
                          {"1.M", "59.6", "59.6", "59.2", "58.4"},
                          {"3/4", none, none, none, none},
                          {"1.Q", none, none, none, none},
                          {"11/4", none, none, none, none},
                          {"1", none, none, none, none},
                          {"", none, none, none, none},
                      },
                      {twoRings, otherTwoRings});
}

TEST_F(LineFactorsTest, AMarkOfAnotherKindIsNoParkMark) {
    cursor.lineSize = "1/2";
    cursor.firstCall = cursor.secondCall = cursor.thirdCall = "2";
    for (const char* mark :
         {"", "x", "o", "\xBA\xB0", "\xB0\xBA", "\xBA\xBA\xBA", "\xBA ", " \xB0", "\xBAx"}) {
        for (void (*step)() : {ParkOuts, ParkOutsWind, ParkOutsDouble}) {
            parkAt(true, true, true, mark);
            step();
            EXPECT_EQ(none, cursor.lineValue) << mark;
        }
    }
}

TEST_F(LineFactorsTest, SingleAndDoubleMarksAreToldApart) {
    cursor.lineSize = "1/2";
    cursor.firstCall = cursor.secondCall = cursor.thirdCall = "2";
    for (const char* mark : {twoRings, otherTwoRings}) {
        parkAt(true, true, true, mark);
        ParkOuts();
        ParkOutsWind();
        EXPECT_EQ(none, cursor.lineValue);
    }
    for (const char* mark : {ring, otherRing}) {
        parkAt(true, true, true, mark);
        ParkOutsDouble();
        EXPECT_EQ(none, cursor.lineValue);
    }
}

struct WindRow {
    const char* what;
    const char* first;
    const char* second;
    const char* third;
    const char* expected;
};

TEST_F(LineFactorsTest, ACallRacedOutsideOnTheLeadOrSecondIsCreditedAgain) {
    const WindRow rows[]{
        {"at the quarter", "2", "3", "4", "59.8"},            // 60 - 0.2
        {"at the half", "3", "2", "4", "59.8"},               // 60 - 0.2
        {"at the three quarters", "3", "4", "2", "59.6"},     // 60 - 0.4
        {"on the lead all the way", "1", "1", "1", "59.2"},   // 60 - 0.2 - 0.2 - 0.4
        {"third and worse", "3", "5", "10", none},            //
        {"no call, or none in number", "", "x", "-", "59.2"}, // they count as 0, which is not above 2
    };
    for (const WindRow& row : rows)
        for (const char* mark : {ring, otherRing})
            for (const char* size : {"1/2", "1.Q", ""}) { // the course says nothing here
                parkAt(true, true, true, mark);
                cursor.lineSize = size;
                cursor.firstCall = row.first;
                cursor.secondCall = row.second;
                cursor.thirdCall = row.third;
                ParkOutsWind();
                EXPECT_EQ(row.expected, cursor.lineValue) << row.what;
            }
}

TEST_F(LineFactorsTest, ACallThatWasNotParkedHasNoSecondCredit) {
    cursor.lineValue = none;
    cursor.firstCall = cursor.secondCall = cursor.thirdCall = "1";
    ParkOutsWind();
    EXPECT_EQ(none, cursor.lineValue);
    cursor.secondPark = ring;
    ParkOutsWind();
    EXPECT_EQ("59.8", cursor.lineValue); // the half alone
}

// ---- Class ----

struct ClassRow {
    const char* what;
    double today;
    double line;
    double finish;
    double expected;
};

TEST_F(LineFactorsTest, AClassDifferenceIsWeighedAgainstTheFinish) {
    const ClassRow rows[]{
        {"the same class", 75, 75, 1, 0},
        {"a drop below 3", 75, 77.9, 1, 0},
        {"a drop of exactly 3, fourth", 75, 78, 4, -3},
        {"a drop of exactly 3, fifth", 75, 78, 5, 2},
        {"a drop of 8, winner", 70, 78, 1, -8},
        {"a drop of 8, no finish in number", 70, 78, 0, -8},
        {"a drop of 8, ninth", 70, 78, 9, 2},
        {"a rise below 3", 77.9, 75, 9, 0},
        {"a rise of exactly 3, third", 78, 75, 3, 1.5},
        {"a rise of exactly 3, fourth", 78, 75, 4, 3},
        {"a rise of 7, winner", 80, 73, 1, 3.5},
        {"a rise of 7, ninth", 80, 73, 9, 7},
        {"a rise of 3 that binary fractions blur", 64.2, 61.2, 4, 3},
        {"a drop of 3 that binary fractions blur", 61.2, 64.2, 5, 2},
        {"no rating of the line", 75, 0, 9, -3},
        {"one that is not available", 75, -99, 1, -3},
        {"the lowest rating there is", 3, 0.1, 1, 0},
        {"no rating of today's race", 0, 75, 1, -75},
        {"no rating of today's race, fifth", 0, 75, 5, 2},
        {"none of either", 0, 0, 1, -3},
    };
    for (const ClassRow& row : rows)
        EXPECT_DOUBLE_EQ(row.expected, classPoints(row.today, row.line, row.finish)) << row.what;
}

TEST_F(LineFactorsTest, TheClassOfTodaysRaceIsThatOfTheLinesRace) {
    cursor.race = 3;
    card.raceInfo(3).todaysCr = "80";
    card.raceInfo(1).todaysCr = "60";
    load.line.CR = "76";
    load.line.CALL_FN_PO = "2";
    cursor.lineValue = " 60.0";
    ClassChange();
    EXPECT_EQ("62", cursor.lineValue); // 60 + (80 - 76) / 2
    load.line.CR = "80";
    cursor.lineValue = " 60.0";
    ClassChange();
    EXPECT_EQ(" 60.0", cursor.lineValue); // the same class touches nothing
}

TEST_F(LineFactorsTest, RatingsInLettersCountAsNought) {
    card.raceInfo(1).todaysCr = "NA";
    load.line.CR = "NA";
    cursor.lineValue = " 60.0";
    ClassChange();
    EXPECT_EQ("57", cursor.lineValue); // no rating of the line: 60 - 3
}

TEST_F(LineFactorsTest, AQualifierIsCreditedAndHasNoClass) {
    card.raceInfo(1).todaysCr = "80";
    load.line.CR = "";
    for (const char* text : {"QUA", "QU", "TQUAL"}) {
        load.line.CLASS = text;
        cursor.lineValue = " 60.0";
        QualifierCredit();
        EXPECT_EQ("57", cursor.lineValue) << text; // 60 - 3
        ClassChange();
        EXPECT_EQ("57", cursor.lineValue) << text;
    }
    for (const char* text : {"", "qua", "Q U", "NW4000"}) {
        load.line.CLASS = text;
        cursor.lineValue = " 60.0";
        QualifierCredit();
        EXPECT_EQ(" 60.0", cursor.lineValue) << text;
        ClassChange();
        EXPECT_EQ("57", cursor.lineValue) << text; // no class rating: 60 - 3
    }
}

// ---- Favourite ----

struct FavouriteRow {
    const char* what;
    const char* was;
    const char* mark;
    int line;
    const char* expected;
    const char* expectedMark;
};

TEST_F(LineFactorsTest, AFavouriteInItsLatestRaceIsCreditedOnEveryLine) {
    const FavouriteRow rows[]{
        {"its latest line", "", "*", 1, "57", "Y"},
        {"a later line of a favourite", "Y", "", 4, "57", "Y"},
        {"a mark on a later line sets nothing", "", "*", 2, " 60.0", ""},
        {"no favourite", "", "", 1, " 60.0", ""},
        {"another mark", "", "e", 1, " 60.0", ""},
        {"a mark and more", "", "*e", 1, " 60.0", ""},
    };
    for (const FavouriteRow& row : rows) {
        cursor.wasFavourite = row.was;
        cursor.line = static_cast<Integer>(row.line);
        load.line.FAV = row.mark;
        cursor.lineValue = " 60.0";
        FavouriteCredit();
        EXPECT_EQ(row.expected, cursor.lineValue) << row.what;
        EXPECT_EQ(row.expectedMark, cursor.wasFavourite) << row.what;
    }
}

// ---- WPS ----

TEST_F(LineFactorsTest, TheFirstFourAreCredited) {
    const struct {
        const char* finish;
        const char* expected;
    } rows[]{
        {"1", "56"}, {"2", "57"},  {"3", "58"},   {"4", "59"},  {"5", none},  {"10", none},  {"0", none},
        {"", none},  {"-1", none}, {"dnf", none}, {" 1", "56"}, {"2x", "57"}, {"1.5", none}, {"3dh", "58"},
    };
    for (const auto& row : rows) {
        load.line.CALL_FN_PO = row.finish;
        cursor.lineValue = none;
        WPS();
        EXPECT_EQ(row.expected, cursor.lineValue) << row.finish;
    }
}

TEST_F(LineFactorsTest, AFigureThatIsNoNumberPassesEveryFactor) {
    card.raceInfo(1).todaysCr = "80";
    load.line.CLASS = "QUA";
    load.line.CALL_FN_PO = "1";
    load.line.FAV = "*";
    cursor.lineSize = "1/2";
    cursor.firstCall = cursor.secondCall = cursor.thirdCall = "1";
    for (const char* figure : {"", "   - ", "***"})
        for (void (*step)() :
             {LeadHorse, ParkOuts, ParkOutsWind, ParkOutsDouble, QualifierCredit, ClassChange,
              FavouriteCredit, WPS, LengthOfStretch, LengthsGained, DriverRating}) {
            for (const char* mark : {ring, twoRings}) {
                cursor.firstPark = cursor.secondPark = cursor.thirdPark = mark;
                cursor.lineValue = figure;
                step();
                EXPECT_EQ(figure, cursor.lineValue);
            }
        }
    EXPECT_EQ(0U, journal.count());
}

TEST_F(LineFactorsTest, ThePlacesKeptForFactorsToComeChangeNothing) {
    cursor.lineValue = " 60.0";
    for (void (*step)() : {LengthOfStretch, LengthsGained, DriverRating}) step();
    EXPECT_EQ(" 60.0", cursor.lineValue);
}

// ---- The close ----

TEST_F(LineFactorsTest, ALineClosesWithFiveCharactersOrAsUnusable) {
    const struct {
        const char* lineValue;
        const char* expected;
    } rows[]{
        {" 57.3", " 57.3"}, {"101.5", "101.5"}, {"1234.5", "1234."}, {"  1.1", "  1.1"},  {"  1.0", "99.9"},
        {"   .5", "99.9"},  {"-57.3", "99.9"},  {"   - ", "99.9"},   {"     - ", "99.9"}, {"***", "99.9"},
        {"", "99.9"},       {"57", "57.0"},     {"7", "7"},          {" 7", " 7.0"},      {"157", "157"},
    };
    for (const auto& row : rows) EXPECT_EQ(row.expected, closedRating(row.lineValue)) << row.lineValue;
}

// ---- Whole lines ----

// A line at a track of three quarters of a mile, where course, post and trip cost nothing: its figure is its
// rating, unless a test adds something.
class RateLineTest : public LineFactorsTest {
protected:
    RateLineTest() {
        put("TrackEditor.ini", trackRow("TQ", "3/4") + trackRow("HALF", "1/2") + trackRow("FIVE", "5/8") +
                                   trackRow("MILE", "1.M") + trackRow("M1", "1.M"));
        readTrackTable();
        setPlainLine();
        card.driverTable(7).name = "Mapes, J";
        load.line.DN = "7";
    }

    /// The post of the line's horse.
    static void setPost(TextView post) { load.horse.PP = post; }

    static const PastLine& stored(int race = 1, int entry = 2, int line = 1) {
        return card.pastLine.read(race, entry, line);
    }

    static Text shownRating(int race = 1) {
        return screen.dataView[static_cast<std::size_t>(race)].text(3, 38);
    }

    /// The log line of one rated line, without the lone carriage return in front of it.
    static Text logOfRateLine() {
        screen.item(CommandId::Diagnostic).checked = true;
        RateLine();
        appendDiagnosticLog();
        const Text log = contentOf("TEST.txt");
        EXPECT_EQ("\r\r\n", log.substr(0, 3));
        return log.substr(3);
    }
};

TEST_F(RateLineTest, ALineWithNothingSpecialRatesItsFirstFigure) {
    RateLine();
    EXPECT_EQ(" 67.6", stored().rating);
    EXPECT_EQ(" 67.6", shownRating());
    EXPECT_EQ(0U, journal.count());
}

TEST_F(RateLineTest, AGoodLineOnAMileComesToAHalfMile) {
    card.trackSize = "1/2";
    cursor.entry = 6;
    setPost("6");
    load.line.TRACK = "MILE";
    load.line.TRACKSIZE = "1";
    load.line.CLASS = "NW4000L5";
    load.line.CR = "72";
    load.line.CALL_FN_PO = "2";
    load.line.FAV = "*";
    cursor.firstCall = "3";
    cursor.secondCall = "1";
    cursor.secondPark = ring;
    cursor.thirdCall = "1";
    // LQC  3 x 54.3 - 25.3 - 70 = 67.6, and + 4 to come to the half mile (61 - 57) = 71.6
    // POST + 1.5 for post 6 = 73.1, - 0.9 for a late post (no finish is stored yet) = 72.2
    // LH   - 0.2 at the half, - 0.4 at the three quarters = 71.6
    // PO   - 0.4 parked at the half, on a mile = 71.2
    // POW  - 0.2 parked at the half on the lead = 71.0
    // POD, QU as they stand
    // CL   75 today, 72 then, second: + 1.5 = 72.5
    // FAV  - 3 = 69.5
    // WPS  - 3 = 66.5
    EXPECT_EQ("   1    6    67.6   72.2   71.6   71.2   71.0   71.0   71.0   72.5   69.5   66.5 66.5\r\n",
              logOfRateLine());
    EXPECT_EQ(" 66.5", stored(1, 6, 1).rating);
    EXPECT_EQ(" 66.5", shownRating());
    EXPECT_EQ("Y", cursor.wasFavourite);
}

TEST_F(RateLineTest, AQualifierOnAHalfMileComesToAFiveEighths) {
    card.trackSize = "5/8";
    card.maxPosts = 10;
    cursor.race = 11;
    cursor.entry = 10;
    cursor.line = 3;
    setPost("10");
    load.line.TRACK = "HALF";
    load.line.TRACKSIZE = "1/2";
    load.line.CLASS = "QUA";
    load.line.CR = "-99";
    load.line.CALL_FN_PO = "4";
    load.line.FAV = "*"; // not its latest line
    cursor.horseFinal = "01.2";
    cursor.leaderFinal = "32.1";
    cursor.firstCall = "2";
    cursor.firstPark = otherTwoRings;
    cursor.secondCall = "2";
    cursor.secondPark = otherRing;
    cursor.thirdCall = "2";
    cursor.thirdPark = twoRings;
    // LQC  3 x 61.2 - 32.1 - 70 = 81.5, and - 1 to come to the five eighths (61 - 60) = 80.5
    // POST + 1.0 for post 10, the limit not being above it = 81.5, - 0.8 for a late post = 80.7
    // LH   never on the lead
    // PO   - 0.8 parked at the half, on a half mile = 79.9
    // POW  - 0.2 parked second at the half = 79.7
    // POD  - 0.8 at the quarter, - 1.6 at the three quarters = 77.3
    // QU   - 3 = 74.3, and neither class nor favourite
    // WPS  - 1 = 73.3
    EXPECT_EQ("  11   10    81.5   80.7   80.7   79.9   79.7   77.3   74.3   74.3   74.3   73.3 73.3\r\n",
              logOfRateLine());
    EXPECT_EQ(" 73.3", stored(11, 10, 3).rating);
    EXPECT_EQ(" 73.3", shownRating(11));
}

TEST_F(RateLineTest, HundredthsOfAPostChargeAreRoundedAwayWithTheLatePostCredit) {
    card.trackSize = "7/8";
    load.line.TRACK = "MILE"; // 67.6 + 58 - 57 = 68.6
    cursor.entry = 4;
    RateLine();
    EXPECT_EQ(" 68.0", stored().rating); // 68.6 + 0.03 - 0.6 = 68.03: the smallest charges leave no trace
    cursor.entry = 8;
    RateLine();
    EXPECT_EQ(" 69.8", stored().rating); // 68.6 + 1.75 - 0.6 = 69.75
}

TEST_F(RateLineTest, ALineOfMoreThanAMileIsUnusable) {
    load.line.DIST_MILES = "1.0625";
    EXPECT_EQ("   1    2    99.9     -      -      -      -      -      -      -      -      - 99.9\r\n",
              logOfRateLine());
    EXPECT_EQ("99.9", stored().rating);
    EXPECT_EQ("99.9", shownRating());
    EXPECT_EQ("1.0625", stored().DIST_MILES);
}

TEST_F(RateLineTest, ALineWithoutALastQuarterIsUnusableAndStored) {
    load.line.HRSE_TM_4Q = "";
    load.line.CR = "72";
    EXPECT_EQ("   1    2             -      -      -      -      -      -      -      -      - 99.9\r\n",
              logOfRateLine());
    EXPECT_EQ("99.9", stored().rating);
    EXPECT_EQ("72", stored().CR);
    EXPECT_EQ(12, stored().lineNumber);
    EXPECT_EQ(0U, journal.count());
}

TEST_F(RateLineTest, ADashIsUnusable) {
    load.line.DIST_MILES = "0.6250";
    RateLine();
    EXPECT_EQ("99.9", stored().rating);
}

struct RangeRow {
    const char* what;
    const char* horseFinal;
    const char* leaderFinal;
    const char* expected;
};

TEST_F(RateLineTest, FiguresOutOfRangeAreThrownOut) {
    const RangeRow rows[]{
        {"exactly 40", "50.0", "40.0", "99.9"},   // 150 - 40 - 70
        {"40.1", "50.0", "39.9", " 40.1"},        // 150 - 39.9 - 70
        {"99.8", "00.0", "10.2", " 99.8"},        // 180 - 10.2 - 70
        {"exactly 99.9", "00.0", "10.1", "99.9"}, // 180 - 10.1 - 70
        {"below 0", "30.0", "30.0", "99.9"},      // 90 - 30 - 70 = -10
        {"above 100", "05.0", "10.0", "99.9"},    // 195 - 10 - 70 = 115
    };
    for (const RangeRow& row : rows) {
        cursor.entry = 2;
        cursor.horseFinal = row.horseFinal;
        cursor.leaderFinal = row.leaderFinal;
        RateLine();
        EXPECT_EQ(row.expected, stored().rating) << row.what;
    }
}

TEST_F(RateLineTest, AFigureMayLeaveTheRangeAfterTheRangeTest) {
    cursor.horseFinal = "00.0";
    cursor.leaderFinal = "10.2"; // 99.8
    load.line.TRACK = "MILE";    // + 59 - 57
    RateLine();
    EXPECT_EQ("101.8", stored().rating);
}

TEST_F(RateLineTest, AFigureThatFallsToOneOrLessIsUnusable) {
    cursor.horseFinal = "50.0";
    cursor.leaderFinal = "39.9"; // 40.1
    card.raceInfo(1).todaysCr = "40";
    load.line.CALL_FN_PO = "4";
    load.line.CR = "78"; // a drop of 38, fourth: 40.1 - 38 - 1 = 1.1
    RateLine();
    EXPECT_EQ("  1.1", stored().rating);
    cursor.horseFinal = "50.0";
    load.line.CR = "78.1"; // 1.0
    RateLine();
    EXPECT_EQ("99.9", stored().rating);
}

TEST_F(RateLineTest, AFigureBelowOneIsWrittenWithoutALeadingNought) {
    cursor.horseFinal = "50.0";
    cursor.leaderFinal = "39.9";
    card.raceInfo(1).todaysCr = "40";
    load.line.CALL_FN_PO = "4";
    load.line.CR = "79.6"; // a drop of 39.6, fourth: 40.1 - 39.6 = 0.5, and - 1 = -0.5
    EXPECT_EQ("   1    2    40.1   40.1   40.1   40.1   40.1   40.1   40.1     .5     .5    -.599.9\r\n",
              logOfRateLine());
}

// A line without calls: the load leaves what it kept of the line before.
TEST_F(RateLineTest, PositionAndParkMarksAreThoseTheLoadKept) {
    load.line.POST = "0";
    load.line.TRACKSIZE = "1/2";
    load.line.CALL_1Q_PO = "9";
    cursor.firstCall = "1";
    cursor.thirdPark = ring;
    cursor.thirdCall = "5";
    RateLine();
    EXPECT_EQ(" 66.6", stored().rating); // 67.6 - 0.2 on the lead - 0.8 parked
}

struct LineSizeRow {
    const char* trackSize;
    const char* expected;
};

TEST_F(RateLineTest, TheParkFactorsGoByTheVendorsCourseSize) {
    cursor.firstPark = ring;
    cursor.firstCall = "5";
    const LineSizeRow rows[]{
        {"1", " 67.2"},     // a mile: 67.6 - 0.4
        {" 5/8 ", " 67.0"}, // - 0.6
        {"11/4", " 67.6"},  // a mile and a quarter earns nothing, in neither form
        {"1.Q", " 67.6"},   {"1 1/4", " 67.6"}, {"", " 67.6"}, // not the 3/4 of the track table either
    };
    for (const LineSizeRow& row : rows) {
        cursor.entry = 2;
        cursor.horseFinal = "54.3";
        load.line.TRACKSIZE = row.trackSize;
        RateLine();
        EXPECT_EQ(row.expected, stored().rating) << row.trackSize;
    }
}

// ---- The late post credit ----

struct LatePostRow {
    const char* what;
    const char* storedFinish;
    double post;
    const char* expected;
};

TEST_F(RateLineTest, ALineThatIsNotStoredYetHasTheLatePostCredit) {
    card.trackSize = "1.Q"; // 67.6, - 3 to come from the three quarters; post 2 costs 0.01; the credit is 0.4
    const LatePostRow rows[]{
        {"an empty cell", "", 1, " 64.2"},      {"a cell that is no number", "3x", 1, " 64.2"},
        {"third from post 7", "3", 7, " 64.2"}, {"winner from post 10", "1", 10, " 64.2"},
        {"third from post 6", "3", 6, " 64.6"}, {"fourth from post 7", "4", 7, " 64.6"},
    };
    for (const LatePostRow& row : rows) {
        card.pastLine.write(1, 2, 1).CALL_FN_PO = row.storedFinish;
        cursor.entry = 2;
        cursor.postNumber = row.post;
        RateLine();
        EXPECT_EQ(row.expected, stored().rating) << row.what;
        EXPECT_EQ("5", stored().CALL_FN_PO) << row.what; // stored after the test
    }
}

// ---- Indices ----

TEST_F(RateLineTest, TheCardsFirstLineIsLineOneOfRaceOne) {
    cursor.race = 0;
    cursor.line = 0;
    RateLine();
    EXPECT_EQ(1, cursor.race);
    EXPECT_EQ(1, cursor.line);
    EXPECT_EQ(" 67.6", stored().rating);
    EXPECT_EQ("", stored(0, 2, 0).rating);
    EXPECT_EQ("", stored(1, 2, 0).rating);
}

TEST_F(RateLineTest, TheEntryIsFoundAnewBeforeTheLineIsStored) {
    cursor.entry = 1;
    setPost("9");
    RateLine();
    EXPECT_EQ(9, cursor.entry);
    EXPECT_EQ(" 67.6", stored(1, 9, 1).rating);
    EXPECT_EQ("", stored(1, 1, 1).rating);
}

TEST_F(RateLineTest, AnEntryWithoutAPostIsEntryNoughtAndPaysForPostOneMeanwhile) {
    card.trackSize = "5/8";
    cursor.entry = 1; // as the counters of its lines leave it
    setPost("99");
    // 67.6 + 1 to come to the five eighths - 0.8 = 67.8, post 1 costing nothing; the log shows post 1
    EXPECT_EQ("   1    1    67.6   67.8", logOfRateLine().substr(0, 24));
    EXPECT_EQ(0, cursor.entry);
    EXPECT_EQ(" 67.8", stored(1, 0, 1).rating);
}

TEST_F(RateLineTest, PostsFrom21To30HaveFiveFieldsOfTheLineStored) {
    load.line.CALL_2Q_BF = "2b";
    load.line.CALL_2Q_AF = "2a";
    load.line.CALL_3Q_BF = "3b";
    load.line.CALL_3Q_AF = "3a";
    for (const int post : {21, 30}) {
        setPost(std::to_string(post));
        cursor.entry = 2;
        RateLine();
        EXPECT_EQ(" 67.6", shownRating()) << post;
        Text given;
        forEachField(pastLineFields, stored(1, post), [&](TextView name, const auto& value) {
            if (value != std::decay_t<decltype(value)>{}) given += Text{name} + " ";
        });
        EXPECT_EQ("CALL_2Q_BF CALL_2Q_AF CALL_3Q_BF CALL_3Q_AF lineNumber ", given) << post;
        EXPECT_EQ("2b", stored(1, post).CALL_2Q_BF) << post;
        EXPECT_EQ("2a", stored(1, post).CALL_2Q_AF) << post;
        EXPECT_EQ("3b", stored(1, post).CALL_3Q_BF) << post;
        EXPECT_EQ("3a", stored(1, post).CALL_3Q_AF) << post;
        EXPECT_EQ(12, stored(1, post).lineNumber) << post;
        EXPECT_TRUE(journalTells("index (1, " + std::to_string(post) + ", 1) is out of bounds")) << post;
    }
}

TEST_F(RateLineTest, APostBeyondAllBoundsLosesTheLineAndNothingElse) {
    setPost("31");
    RateLine();
    EXPECT_EQ(" 67.6", shownRating());
    EXPECT_TRUE(journalTells("index (1, 31, 1) is out of bounds"));
    setPost("99999");
    cursor.entry = 2;
    RateLine();
    EXPECT_EQ(" 67.6", stored().rating); // no entry index: it stays
}

TEST_F(RateLineTest, AThirtyFirstLineIsLostAndShownAsUnusable) {
    cursor.line = 31;
    RateLine();
    EXPECT_EQ("99.9", shownRating());
    EXPECT_TRUE(journalTells("LastQuarterCalc"));
}

TEST_F(RateLineTest, RacesBeyondTheViewsAreRatedAndStored) {
    for (const int race : {23, 24, 30}) {
        cursor.race = static_cast<Integer>(race);
        card.raceInfo(race).todaysCr = "75";
        RateLine();
        EXPECT_EQ(" 67.6", stored(race).rating) << race;
        cursor.entry = 2;
    }
    EXPECT_EQ(" 67.6", shownRating(23));
    EXPECT_EQ("", shownRating(24)); // the view of the running-line table
}

TEST_F(RateLineTest, ARowAfterTheViewIsStored) {
    cursor.row = 200;
    RateLine();
    EXPECT_EQ(" 67.6", stored().rating);
}

// ---- The store ----

struct CellRow {
    Text SourceLine::*from;
    Text PastLine::*to;
};

TEST_F(RateLineTest, EveryCellOfTheLineIsStoredAsItStands) {
    const CellRow rows[]{
        {&SourceLine::DATE, &PastLine::DATE},
        {&SourceLine::TRACK, &PastLine::TRACK},
        {&SourceLine::COND, &PastLine::COND},
        {&SourceLine::PURSE, &PastLine::PURSE},
        {&SourceLine::CLASS, &PastLine::CLASS},
        {&SourceLine::CR, &PastLine::CR},
        {&SourceLine::DIST_MILES, &PastLine::DIST_MILES},
        {&SourceLine::LEAD_TM_1Q, &PastLine::LEAD_TM_1Q},
        {&SourceLine::LEAD_TM_2Q, &PastLine::LEAD_TM_2Q},
        {&SourceLine::LEAD_TM_3Q, &PastLine::LEAD_TM_3Q},
        {&SourceLine::LEAD_TM_FN, &PastLine::LEAD_TM_FN},
        {&SourceLine::POST, &PastLine::POST},
        {&SourceLine::CALL_1Q_BF, &PastLine::CALL_1Q_BF},
        {&SourceLine::CALL_1Q_PO, &PastLine::CALL_1Q_PO},
        {&SourceLine::CALL_1Q_PK, &PastLine::CALL_1Q_PK},
        {&SourceLine::CALL_1Q_AF, &PastLine::CALL_1Q_AF},
        {&SourceLine::CALL_2Q_BF, &PastLine::CALL_2Q_BF},
        {&SourceLine::CALL_2Q_PO, &PastLine::CALL_2Q_PO},
        {&SourceLine::CALL_2Q_PK, &PastLine::CALL_2Q_PK},
        {&SourceLine::CALL_2Q_AF, &PastLine::CALL_2Q_AF},
        {&SourceLine::CALL_3Q_BF, &PastLine::CALL_3Q_BF},
        {&SourceLine::CALL_3Q_PO, &PastLine::CALL_3Q_PO},
        {&SourceLine::CALL_3Q_PK, &PastLine::CALL_3Q_PK},
        {&SourceLine::CALL_3Q_AF, &PastLine::CALL_3Q_AF},
        {&SourceLine::CALL_ST_PO, &PastLine::CALL_ST_PO},
        {&SourceLine::CALL_FN_PO, &PastLine::CALL_FN_PO},
        {&SourceLine::HRSE_TM_4Q, &PastLine::HRSE_TM_4Q},
        {&SourceLine::HRSE_TM_FN, &PastLine::HRSE_TM_FN},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) load.line.*rows[i].from = "cell " + std::to_string(i);
    load.line.TRACK = "M"; // not yet "M1"
    RateLine();
    for (const CellRow& row : rows) EXPECT_EQ(load.line.*row.from, stored().*row.to);
    // No cell was left out: every text of a past line has been given.
    forEachField(pastLineFields, stored(), [](TextView name, const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
            EXPECT_NE("", value) << name;
        }
    });
    EXPECT_EQ("Mapes, J", stored().driverName);
    EXPECT_EQ(12, stored().lineNumber);
}

TEST_F(RateLineTest, ADriverNumberThatNamesNobodyLeavesTheRestOfTheLine) {
    load.line.DN = "301";
    RateLine();
    EXPECT_EQ("", stored().driverName);
    EXPECT_EQ(12, stored().lineNumber);
    EXPECT_EQ(" 67.6", stored().rating);
    EXPECT_TRUE(journalTells("StoreLine"));
}

TEST_F(RateLineTest, ABlankDriverNumberIsDriverNought) {
    load.line.DN = "";
    card.pastLine.write(1, 2, 1).driverName = "left over";
    RateLine();
    EXPECT_EQ("", stored().driverName);
    EXPECT_EQ(0U, journal.count());
}

TEST_F(RateLineTest, AFavouritesLinesAreAllCreditedUntilTheNextEntry) {
    load.line.FAV = "*";
    RateLine();
    EXPECT_EQ(" 64.6", stored(1, 2, 1).rating); // 67.6 - 3
    load.line.FAV = "";
    cursor.line = 2;
    RateLine();
    EXPECT_EQ(" 64.6", stored(1, 2, 2).rating);
    cursor.wasFavourite.clear(); // as the load does at the next entry
    cursor.line = 3;
    RateLine();
    EXPECT_EQ(" 67.6", stored(1, 2, 3).rating);
}

// ---- The log ----

TEST_F(RateLineTest, WithoutTheMarkNothingIsLoggedAndTheFileIsMadeAllTheSame) {
    RateLine();
    appendDiagnosticLog();
    EXPECT_EQ("", contentOf("TEST.txt"));
}

TEST_F(RateLineTest, NothingToLogLeavesTheFileAsItIs) {
    put("TEST.txt", "the user's note, without an end");
    RateLine();
    appendDiagnosticLog();
    EXPECT_EQ("the user's note, without an end", contentOf("TEST.txt"));
}

TEST_F(RateLineTest, LogLinesFollowTheHeadingAndAreWrittenOnce) {
    Diagnostic();
    EXPECT_TRUE(screen.item(CommandId::Diagnostic).checked);
    const Text heading =
        " RACE  PP    LQC    POST   LH     PO     POW    POD    QU     CL     FAV    WPS\r\n";
    EXPECT_EQ(heading, contentOf("TEST.txt"));
    RateLine();
    EXPECT_EQ(heading, contentOf("TEST.txt")); // nothing is written a line at a time
    cursor.line = 2;
    RateLine();
    appendDiagnosticLog();
    const Text line =
        "\r\r\n   1    2    67.6   67.6   67.6   67.6   67.6   67.6   67.6   67.6   67.6   67.6 67.6\r\n";
    EXPECT_EQ(heading + line + line, contentOf("TEST.txt"));
    appendDiagnosticLog();
    EXPECT_EQ(heading + line + line, contentOf("TEST.txt"));
}

TEST_F(RateLineTest, ARaceOrEntryOfNoughtIsBlankInTheLog) {
    cursor.race = 0;
    cursor.entry = 0;
    EXPECT_EQ(blanks(10), logOfRateLine().substr(0, 10));
}

TEST_F(LineFactorsTest, DiagnosticIsSwitchedOnWithAFreshFileAndOffWithTheFileAsItIs) {
    put("TEST.txt", "old\r\n");
    Diagnostic();
    const Text fresh = contentOf("TEST.txt");
    EXPECT_EQ(0U, fresh.find(" RACE  PP    LQC"));
    EXPECT_EQ(Text::npos, fresh.find("old"));
    EXPECT_TRUE(diagnosticLogIsOn());
    put("TEST.txt", "kept\r\n");
    Diagnostic();
    EXPECT_FALSE(diagnosticLogIsOn());
    EXPECT_EQ("kept\r\n", contentOf("TEST.txt"));
    Diagnostic();
    EXPECT_EQ(fresh, contentOf("TEST.txt"));
}

TEST_F(LineFactorsTest, DiagnosticStaysOffWhereItsFileCantBeWritten) {
    std::filesystem::create_directory("TEST.txt");
    std::filesystem::create_directory("TEST.txt/in the way");
    EXPECT_FALSE(attempt(Diagnostic));
    EXPECT_FALSE(diagnosticLogIsOn());
    EXPECT_TRUE(journalTells("TEST.txt"));
}

TEST_F(LineFactorsTest, AForgottenLogIsNotWritten) {
    beginLogLine();
    addToLogLine("   60.0");
    endLogLine(" 60.0");
    clearDiagnosticLog();
    appendDiagnosticLog();
    EXPECT_EQ("", contentOf("TEST.txt"));
}

} // namespace
} // namespace quillon

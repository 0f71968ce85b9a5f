#include "cardfiles/card_file.h"

#include "card_lines.h"
#include "support/card_test.h"

#include <functional>

namespace quillon {
namespace {

using CardFileTest = CardTest;

// The 44 values of an entry in the order of the file, each with the column of the race view that shows it
// (-1: none), and whether a save takes the cell back from there.
struct ValueCase {
    const char* name;
    std::function<std::string(const RaceEntry&, const RaceInfo&)> get;
    std::function<void(RaceEntry&, RaceInfo&, const std::string&)> set;
    int column = -1;
    bool takenBack = false;
};

template <class Value>
ValueCase ofEntry(const char* name, Value RaceEntry::*member, int column = -1, bool takenBack = false) {
    return {name, [=](const RaceEntry& e, const RaceInfo&) { return static_cast<const Text&>(e.*member); },
            [=](RaceEntry& e, RaceInfo&, const std::string& text) { e.*member = text; }, column, takenBack};
}
ValueCase ofLine(const char* name, Text PastLine::*member, int column, bool takenBack = true) {
    return {name, [=](const RaceEntry& e, const RaceInfo&) { return e.chosen.*member; },
            [=](RaceEntry& e, RaceInfo&, const std::string& text) { e.chosen.*member = text; }, column,
            takenBack};
}
ValueCase ofRace(const char* name, Text RaceInfo::*member) {
    return {name, [=](const RaceEntry&, const RaceInfo& i) { return i.*member; },
            [=](RaceEntry&, RaceInfo& i, const std::string& text) { i.*member = text; }};
}
ValueCase ofCount(const char* name, Integer RaceEntry::*member) {
    return {name, [=](const RaceEntry& e, const RaceInfo&) { return std::to_string(e.*member); },
            [=](RaceEntry& e, RaceInfo&, const std::string& text) {
                e.*member = static_cast<Integer>(std::stoi(text));
            }};
}

const std::vector<ValueCase>& valueCases() {
    static const std::vector<ValueCase> cases{
        ofEntry("horseName", &RaceEntry::horseName, 0),              //  1
        ofEntry("morningOdds", &RaceEntry::morningOdds, 1),          //  2
        ofEntry("programNumber", &RaceEntry::programNumber, 2),      //  3
        ofLine("chosen.TRACK", &PastLine::TRACK, 4, false),          //  4
        ofLine("chosen.PURSE", &PastLine::PURSE, 5, false),          //  5
        ofLine("chosen.CLASS", &PastLine::CLASS, 6),                 //  6
        ofLine("chosen.CR", &PastLine::CR, 7),                       //  7
        ofLine("chosen.LEAD_TM_1Q", &PastLine::LEAD_TM_1Q, 8),       //  8
        ofLine("chosen.LEAD_TM_2Q", &PastLine::LEAD_TM_2Q, 9),       //  9
        ofLine("chosen.LEAD_TM_3Q", &PastLine::LEAD_TM_3Q, 10),      // 10
        ofLine("chosen.LEAD_TM_FN", &PastLine::LEAD_TM_FN, 11),      // 11
        ofLine("chosen.POST", &PastLine::POST, 12),                  // 12
        ofLine("chosen.CALL_1Q_PO", &PastLine::CALL_1Q_PO, 14),      // 13
        ofLine("chosen.CALL_2Q_PO", &PastLine::CALL_2Q_PO, 18),      // 14
        ofLine("chosen.CALL_3Q_PO", &PastLine::CALL_3Q_PO, 22),      // 15
        ofLine("chosen.CALL_1Q_PK", &PastLine::CALL_1Q_PK, 15),      // 16
        ofLine("chosen.CALL_2Q_PK", &PastLine::CALL_2Q_PK, 19),      // 17
        ofLine("chosen.CALL_3Q_PK", &PastLine::CALL_3Q_PK, 23),      // 18
        ofLine("chosen.CALL_1Q_BF", &PastLine::CALL_1Q_BF, 13),      // 19
        ofLine("chosen.CALL_1Q_AF", &PastLine::CALL_1Q_AF, 16),      // 20
        ofLine("chosen.CALL_2Q_BF", &PastLine::CALL_2Q_BF, 17),      // 21
        ofLine("chosen.CALL_2Q_AF", &PastLine::CALL_2Q_AF, 20),      // 22
        ofLine("chosen.CALL_3Q_BF", &PastLine::CALL_3Q_BF, 21),      // 23
        ofLine("chosen.CALL_3Q_AF", &PastLine::CALL_3Q_AF, 24),      // 24
        ofLine("chosen.CALL_ST_PO", &PastLine::CALL_ST_PO, 25),      // 25
        ofLine("chosen.CALL_FN_PO", &PastLine::CALL_FN_PO, 26),      // 26
        ofLine("chosen.HRSE_TM_4Q", &PastLine::HRSE_TM_4Q, 27),      // 27
        ofLine("chosen.HRSE_TM_FN", &PastLine::HRSE_TM_FN, 28),      // 28
        ofEntry("favMark", &RaceEntry::favMark, 29, true),           // 29
        ofEntry("chosenDriver", &RaceEntry::chosenDriver, 30),       // 30
        ofEntry("driverUdr", &RaceEntry::driverUdr, 31),             // 31
        ofEntry("rating", &RaceEntry::rating, 32, true),             // 32
        ofRace("postTime", &RaceInfo::postTime),                     // 33
        ofRace("purse", &RaceInfo::purse),                           // 34
        ofRace("classText", &RaceInfo::classText),                   // 35
        ofRace("todaysCr", &RaceInfo::todaysCr),                     // 36
        ofRace("wagering", &RaceInfo::wagering),                     // 37
        ofRace("trackCode", &RaceInfo::trackCode),                   // 38
        ofRace("trackInfo", &RaceInfo::trackInfo),                   // 39
        ofCount("linesInLastWindow", &RaceEntry::linesInLastWindow), // 40
        ofCount("linesInFiftyDays", &RaceEntry::linesInFiftyDays),   // 41
        ofEntry("trainerName", &RaceEntry::trainerName),             // 42
        ofRace("gait", &RaceInfo::gait),                             // 43
        ofRace("raceLabelDistance", &RaceInfo::raceLabelDistance),   // 44
    };
    return cases;
}

bool isCount(const ValueCase& value) { return std::string_view{value.name}.starts_with("linesIn"); }

// A text of its own for each value; counts get a number of their own.
std::string distinct(const ValueCase& value, int number) {
    return isCount(value) ? std::to_string(number) : " " + std::string{value.name} + " ";
}

std::string quoted(const std::string& text) { return '"' + text + '"'; }

void readBack(const std::string& content) { takeCardFile(content, card); }

// ---- the card file as it is written ----

TEST_F(CardFileTest, AnEmptyCardHasEveryLineOfTheCardFile) {
    // 23 races x 12 entries x 44 values = 12,144; outcomes 23 x 8 = 184; payoffs 23 x 21 = 483;
    // selections 23 x 4 x 4 = 368; together 13,179
    const auto lines = linesOf(cardFileContent(card));
    EXPECT_EQ(13'179U, lines.size() - 1);
    EXPECT_EQ(13'179, cardFileLines);
}

TEST_F(CardFileTest, AnEmptyCardHasEveryLineOfTheArchive) {
    const std::string content = archiveContent(card);
    EXPECT_EQ(89'700U, linesOf(content).size() - 1); // 2,300 rows x 39 columns
    EXPECT_EQ(89'700U * 4, content.size());          // two quotes, CR, LF
}

TEST_F(CardFileTest, EachValueOfAnEntryStandsOnItsOwnLine) {
    int number = 0;
    for (const ValueCase& value : valueCases()) {
        ++number;
        value.set(card.entry(2, 3), card.raceInfo(2), distinct(value, number));
    }
    ASSERT_EQ(44, number);

    // race 2, entry 3: after 12 + 2 entries of 44 values come lines 617 to 660
    const auto lines = linesOf(cardFileContent(card));
    number = 0;
    for (const ValueCase& value : valueCases()) {
        ++number;
        const std::string text = distinct(value, number);
        EXPECT_EQ(isCount(value) ? text : quoted(text), lines.at(616 + static_cast<std::size_t>(number)))
            << value.name;
    }
}

TEST_F(CardFileTest, ARacesConditionsRepeatForEveryEntry) {
    card.raceInfo(23).purse = "9000";
    const auto lines = linesOf(cardFileContent(card));
    for (int entry = 1; entry <= 12; ++entry)
        EXPECT_EQ("\"9000\"", lines.at(static_cast<std::size_t>(entryLine(23, entry, 34)))) << entry;
}

TEST_F(CardFileTest, OutcomesPayoffsAndSelectionsFollowInTheirBlocks) {
    card.raceOutcome(1, 1) = "first";
    card.raceOutcome(23, 8) = "last";
    card.payoffRecord(1, 1) = "win";
    card.payoffRecord(23, 21) = "spare";
    card.selection(1, 1) = {.selectionName = "name",
                            .selectionDriver = "driver",
                            .selectionOdds = "odds",
                            .selectionRating = "rating"};
    card.selection(23, 4).selectionRating = "end";

    const auto lines = linesOf(cardFileContent(card));
    EXPECT_EQ("\"first\"", lines.at(12'145)); // after 12,144 lines of block 1
    EXPECT_EQ("\"last\"", lines.at(12'328));  // 12,144 + 23 x 8
    EXPECT_EQ("\"win\"", lines.at(12'329));   // the next one
    EXPECT_EQ("\"spare\"", lines.at(12'811)); // 12,328 + 23 x 21
    EXPECT_EQ("\"name\"", lines.at(12'812));  // the next one
    EXPECT_EQ("\"driver\"", lines.at(12'813));
    EXPECT_EQ("\"odds\"", lines.at(12'814));
    EXPECT_EQ("\"rating\"", lines.at(12'815));
    EXPECT_EQ("\"end\"", lines.at(13'179)); // 12,811 + 23 x 16
}

TEST_F(CardFileTest, WhatTheLayoutHasNoRoomForIsNotWritten) {
    const std::string empty = cardFileContent(card);
    card.entry(1, 13).horseName = "outside post 12";
    card.entry(1, 0).horseName = "no post";
    card.entry(24, 1).horseName = "beyond race 23";
    card.raceOutcome(1, 9) = "5";
    card.selection(1, 5).selectionName = "fifth horse";
    card.selection(1, 1).selectionPost = "4";
    card.entry(1, 1).driverName = "Not, K";
    EXPECT_EQ(empty, cardFileContent(card));
}

TEST_F(CardFileTest, ACellWithoutAValueIsAnEmptyLineAndAnEmptyTextIsTwoQuotes) {
    card.entry(1, 2).horseName = "";
    card.entry(1, 2).morningOdds = "";
    card.entry(1, 2).programNumber = "";
    card.entry(1, 2).chosenDriver = "";
    const auto lines = linesOf(cardFileContent(card));
    for (const int value : {1, 2, 3, 30}) {
        EXPECT_EQ("", lines.at(static_cast<std::size_t>(entryLine(1, 1, value)))) << value;
        EXPECT_EQ("\"\"", lines.at(static_cast<std::size_t>(entryLine(1, 2, value)))) << value;
    }
    EXPECT_EQ("\"\"", lines.at(static_cast<std::size_t>(entryLine(1, 1, 4)))); // a text is never unset
    EXPECT_EQ("0", lines.at(static_cast<std::size_t>(entryLine(1, 1, 40))));
}

TEST_F(CardFileTest, BlanksAndQuotesOfAValueStayAsTheyAre) {
    card.entry(1, 1).horseName = "  The \"Flyer\"  ";
    card.entry(1, 1).linesInLastWindow = -3;
    card.raceInfo(1).classText = "\"";
    const auto lines = linesOf(cardFileContent(card));
    EXPECT_EQ("\"  The \"Flyer\"  \"", lines.at(1));
    EXPECT_EQ("\"\"\"", lines.at(35));
    EXPECT_EQ("-3", lines.at(40));
}

TEST_F(CardFileTest, ALineEndInsideAValueCannotMoveTheValuesAfterIt) {
    card.raceInfo(1).classText = "NW 4000\r\nAE: 2";
    card.raceInfo(1).wagering = "Exacta\nTrifecta";
    const auto lines = linesOf(cardFileContent(card));
    EXPECT_EQ(13'179U, lines.size() - 1);
    EXPECT_EQ("\"NW 4000  AE: 2\"", lines.at(35));
    EXPECT_EQ("\"Exacta Trifecta\"", lines.at(37));
}

TEST_F(CardFileTest, TheArchiveHoldsRowsOneTo2300AndColumnsOneTo39) {
    writeLineCell(1, 1, "20260301");
    writeLineCell(2, 38, " 61.3");
    writeLineCell(2300, 39, "last");
    writeLineCell(2301, 1, "a row too many");
    writeLineCell(1, 0, "no such column");
    writeLineCell(1, 40, "nor this");
    const auto lines = linesOf(archiveContent(card));
    ASSERT_EQ(89'700U, lines.size() - 1);
    EXPECT_EQ("\"20260301\"", lines.at(1));
    EXPECT_EQ("\" 61.3\"", lines.at(77)); // 39 of row 1 + 38
    EXPECT_EQ("\"last\"", lines.at(89'700));
    EXPECT_EQ("\"\"", lines.at(40)); // row 2 begins with its column 1
}

// ---- reading it ----

TEST_F(CardFileTest, EachLineOfAnEntryComesBackIntoItsOwnField) {
    auto lines = emptyCardLines();
    int number = 0;
    for (const ValueCase& value : valueCases()) {
        ++number;
        const std::string text = distinct(value, number);
        lines[static_cast<std::size_t>(entryLine(23, 12, number))] = isCount(value) ? text : quoted(text);
    }
    readBack(fileOf(lines));
    number = 0;
    for (const ValueCase& value : valueCases()) {
        ++number;
        EXPECT_EQ(distinct(value, number), value.get(card.entry(23, 12), card.raceInfo(23))) << value.name;
    }
    EXPECT_EQ("", card.entry(23, 11).rating); // and into no other
}

TEST_F(CardFileTest, TheLaterBlocksComeBack) {
    auto lines = emptyCardLines();
    const auto put = [&](int line, const char* text) { lines[static_cast<std::size_t>(line)] = text; };
    put(outcomeLine(4, 5), "\" 7\"");
    put(payoffLine(23, 20), "\"4.20\"");
    put(selectionLine(23, 4, 4), "\" 61.0\"");
    put(selectionLine(2, 3, 2), "\"Ames, J\"");
    readBack(fileOf(lines));
    EXPECT_EQ(" 7", card.raceOutcome(4, 5));
    EXPECT_EQ("4.20", card.payoffRecord(23, 20));
    EXPECT_EQ(" 61.0", card.selection(23, 4).selectionRating);
    EXPECT_EQ("Ames, J", card.selection(2, 3).selectionDriver);
}

struct ReadingCase {
    const char* what;
    std::string line;
    const char* expected; // of a text that held "before"
};

TEST_F(CardFileTest, ATextIsWhatStandsBetweenTheFirstAndTheLastCharacterOfItsLine) {
    const ReadingCase cases[] = {
        {"plain", "\"abc\"", "abc"},
        {"blanks kept", "\"  a  c \"", "  a  c "},
        {"inner quotes kept", "\"a\"b\"", "a\"b"},
        {"a text of one quote", "\"\"\"", "\""},
        {"empty text", "\"\"", ""},
        {"empty line", "", ""},
        {"comma", "\"a,b\"", "a,b"},
        {"no quotes at all", "abc", "abc"},
        {"a number", "12", "12"},
        {"no closing quote", "\"abc", "before"},
        {"a quote alone", "\"", "before"},
        {"a blank after the quote", "\"abc\" ", "before"},
        {"code page bytes", "\"\xC9\xB0\"", "\xC9\xB0"},
        {"a zero byte", std::string("\"a\0b\"", 5), nullptr},
        {"a very long line", '"' + std::string(100'000, 'x') + '"', nullptr},
    };
    for (const ReadingCase& row : cases) {
        card.entry(1, 1).rating = "before";
        readBack(cardFileWithLine(32, row.line));
        const std::string expected = row.expected ? row.expected : row.line.substr(1, row.line.size() - 2);
        EXPECT_EQ(expected, card.entry(1, 1).rating) << row.what;
    }
    EXPECT_TRUE(journalTells("line 32"));
}

TEST_F(CardFileTest, AnEmptyLineMakesACellUnsetAgain) {
    card.entry(1, 1).chosenDriver = "Ames, J";
    readBack(cardFileWithLine(30, ""));
    EXPECT_FALSE(card.entry(1, 1).chosenDriver.given());
    EXPECT_TRUE(card.entry(1, 2).chosenDriver.given()); // its line holds an empty text
}

TEST_F(CardFileTest, ACountThatIsNoSixteenBitNumberIsPassedOver) {
    const struct {
        const char* line;
        Integer expected; // of a count that was 5
    } cases[] = {
        {"4", 4},
        {" 4 ", 4},
        {"-1", -1},
        {"32767", 32767},
        {"32768", 5},
        {"-32769", 5},
        {"99999999999999999999", 5},
        {"four", 5},
        {"4x", 5},
        {"\"4\"", 5},
        {"", 0},
        {"1e99", 5},
        {"2.5", 2}, // halves to even
    };
    for (const auto& row : cases) {
        card.entry(1, 1).linesInFiftyDays = 5;
        readBack(cardFileWithLine(41, row.line));
        EXPECT_EQ(row.expected, card.entry(1, 1).linesInFiftyDays) << row.line;
    }
}

TEST_F(CardFileTest, FilesOfOtherLineEndsReadTheSame) {
    card.entry(1, 1).horseName = "Some Horse";
    card.raceOutcome(1, 1) = "  4";
    card.selection(23, 4).selectionRating = " 61.0";
    const std::string written = cardFileContent(card);
    std::string lfOnly = written;
    std::erase(lfOnly, '\r');
    const std::string unfinished = written.substr(0, written.size() - 2); // no end after the last line
    for (const std::string& content : {lfOnly, unfinished}) {
        card.clear();
        readBack(content);
        EXPECT_EQ(written, cardFileContent(card));
    }
}

TEST_F(CardFileTest, WhatStandsAfterTheLastValueIsNotRead) {
    card.selection(23, 4).selectionRating = " 61.0";
    const std::string written = cardFileContent(card);
    card.clear();
    readBack(written + "\"more\"\r\n\"and more\"\r\n");
    EXPECT_EQ(written, cardFileContent(card));

    writeLineCell(2300, 39, "12");
    const std::string archive = archiveContent(card);
    takeArchive(archive + "\"more\"\r\n", card);
    EXPECT_EQ(archive, archiveContent(card));
    EXPECT_EQ("", card.lineCells.read(2301, 1));
}

TEST_F(CardFileTest, AFileThatEndsEarlyLeavesTheRestAsItWas) {
    card.entry(1, 1).rating = "old 1";
    card.entry(1, 2).rating = "old 2";
    card.entry(1, 2).horseName = "old name";
    card.raceInfo(1).label = "7";
    card.raceInfo(2).label = "8";
    card.payoffRecord(1, 1) = "old pay";
    // The file ends after value 2 of entry 2: 44 + 2 lines.
    readBack(cardFileWithLine(32, "\"new 1\"", 46));
    EXPECT_EQ("new 1", card.entry(1, 1).rating);
    EXPECT_EQ("old 2", card.entry(1, 2).rating);
    EXPECT_EQ("", card.entry(1, 2).horseName);
    EXPECT_EQ("", card.raceInfo(1).label); // the file says that this race has none
    EXPECT_EQ("8", card.raceInfo(2).label);
    EXPECT_EQ("old pay", card.payoffRecord(1, 1));
}

TEST_F(CardFileTest, EveryPrefixOfAFileIsReadAsFarAsItGoes) {
    for (int race = 1; race <= 23; ++race)
        for (int entry = 1; entry <= 12; ++entry) card.entry(race, entry).rating = " 61.3";
    const std::string written = cardFileContent(card);
    for (std::size_t length = 0; length <= written.size(); length += 997) {
        card.clear();
        readBack(written.substr(0, length));
        // the rating of race 1, entry 1 is there when its whole line is: lines 1 to 32 are 3 empty ones, 26
        // of two quotes, an empty one, two quotes again, and the rating
        const std::size_t ratingEnds = 3 * 2 + 26 * 4 + 2 + 4 + std::string{"\" 61.3\""}.size();
        EXPECT_EQ(length >= ratingEnds ? " 61.3" : "", card.entry(1, 1).rating) << length;
    }
}

TEST_F(CardFileTest, AFileThatIsNoCardAtAllDoesNoHarm) {
    std::string bytes;
    unsigned state = 12345;
    for (int at = 0; at < 300'000; ++at) {
        state = state * 1'664'525U + 1'013'904'223U;
        bytes += static_cast<char>(state >> 24U);
    }
    readBack(bytes);
    takeArchive(bytes, card);
    readBack("");
    takeArchive("", card);
    EXPECT_EQ("", card.lineCells.read(1, 1));
}

TEST_F(CardFileTest, CellsThatAnArchiveDoesNotHoldAreEmpty) {
    writeLineCell(1, 2, "left by another card");
    writeLineCell(2301, 1, "left by another card");
    takeArchive("\"20260301\"\r\n", card);
    EXPECT_EQ("20260301", card.lineCells.read(1, 1));
    EXPECT_EQ("", card.lineCells.read(1, 2));
    EXPECT_EQ("", card.lineCells.read(2301, 1));
}

// ---- label and distance ----

TEST(LabelAndDistance, AreTakenApartByLetterLengthAndSlash) {
    const struct {
        const char* joined;
        const char* label;
        const char* distance; // nullptr: neither is told
    } cases[] = {
        {"1A1", "1A", "1"}, // a card letter in the second place
        {"2B1", "2B", "1"},
        {"1A1 1/16", "1A", "6"}, // the letter decides before the length: the last character
        {"1A", "1A", "A"},       // an empty distance splits wrongly
        {"71", "7", "1"},        // length 2
        {"12", "1", "2"},        // label 12 without a distance: wrongly too
        {"121", "12", "1"},      // length 3
        {"71 1/8", "7", "1/8"},  // "/" in place 5: 7 characters from place 4
        {"71 1/16", "7", "1/16"},
        {"121 1/8", "12", "1/8"},    // "/" in place 6: 8 characters from place 5
        {"12 1 1/16", "12", "1/16"}, // "/" in place 7: two characters of label all the same
        {"75/8", nullptr, nullptr},  // length 4
        {"125/8", nullptr, nullptr}, // length 5
        {"7", nullptr, nullptr},
        {"", nullptr, nullptr},
        {"1C1", "1C", "1"},           // no such letter, but length 3
        {"10A1", nullptr, nullptr},   // the letter stands in the third place, length 4
        {"711/16", nullptr, nullptr}, // "/" in place 4
        {"7 furlongs", nullptr, nullptr},
    };
    for (const auto& row : cases) {
        const auto parts = splitLabelAndDistance(row.joined);
        ASSERT_EQ(row.label != nullptr, parts.has_value()) << row.joined;
        if (!parts) continue;
        EXPECT_EQ(row.label, parts->label) << row.joined;
        EXPECT_EQ(row.distance, parts->distance) << row.joined;
    }
}

TEST_F(CardFileTest, LabelAndDistanceComeBackFromTheJoinedText) {
    readBack(cardFileWithLine(entryLine(5, 12, 44), "\"5A1\""));
    EXPECT_EQ("5A", card.raceInfo(5).label);
    EXPECT_EQ("1", card.raceInfo(5).distance);
}

TEST_F(CardFileTest, AJoinedTextThatTellsNothingLeavesTheLabelAndDistanceThatItWasJoinedFrom) {
    card.raceInfo(5) = {.label = "5", .distance = "5/8", .raceLabelDistance = "55/8"};
    readBack(cardFileContent(card));
    EXPECT_EQ("5", card.raceInfo(5).label);
    EXPECT_EQ("5/8", card.raceInfo(5).distance);
}

TEST_F(CardFileTest, AJoinedTextThatTellsNothingLeavesNoLabelOfAnotherCard) {
    card.raceInfo(5).label = "5";
    card.raceInfo(5).distance = "1";
    readBack(cardFileWithLine(entryLine(5, 12, 44), "\"55/8\""));
    EXPECT_EQ("", card.raceInfo(5).label);
    EXPECT_EQ("", card.raceInfo(5).distance);
}

// ---- rows of the race view ----

TEST_F(CardFileTest, ARaceViewRowShowsTheValuesInTheirColumns) {
    RaceEntry entry;
    RaceInfo race;
    for (const ValueCase& value : valueCases()) value.set(entry, race, distinct(value, 1));
    Grid view{raceViewRows, raceViewColumns};
    fillRaceViewRow(view, 4, entry);
    int shown = 0;
    for (const ValueCase& value : valueCases()) {
        if (value.column < 0) continue;
        ++shown;
        EXPECT_EQ(distinct(value, 1), view.text(4, value.column)) << value.name;
    }
    EXPECT_EQ(32, shown);
    EXPECT_EQ("", view.text(4, 3)); // the post's column is not the entry's
    EXPECT_EQ("", view.text(3, 0));
}

TEST_F(CardFileTest, OnlyTheChosenLineTheMarkAndTheRatingAreTakenBack) {
    Grid view{raceViewRows, raceViewColumns};
    for (int column = 0; column < raceViewColumns; ++column) view(4, column).text = std::to_string(column);
    RaceEntry entry;
    takeBackRaceViewRow(view, 4, entry);
    const RaceInfo race;
    for (const ValueCase& value : valueCases()) {
        if (isCount(value)) continue;
        EXPECT_EQ(value.takenBack ? std::to_string(value.column) : "", value.get(entry, race)) << value.name;
    }
    EXPECT_EQ("29", entry.favMark);
    EXPECT_EQ("32", entry.rating);
    EXPECT_EQ("6", entry.chosen.CLASS); // the first column taken back
    EXPECT_EQ("", entry.chosen.PURSE);  // column 5 is not
}

} // namespace
} // namespace quillon

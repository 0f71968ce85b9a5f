#include "day/recall.h"

#include "cardfiles/card_file.h"
#include "cardfiles/card_lines.h"
#include "day/save.h"
#include "results/auto_record.h"
#include "results/board.h"
#include "support/card_test.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

constexpr const char* cardName = "M1_20260314.pmd";

class RecallTest : public CardTest {
protected:
    /// Writes the store to the card's two files and goes on as a process that has just started.
    static void saveAndStartAnew() {
        put(cardPath, cardFileContent(card));
        put(archivePath, archiveContent(card));
        startAnew();
    }

    static void startAnew() {
        card.clear();
        cursor = {};
        screen.clear();
        screen.offer(StartOffer::load);
        for (Button& button : screen.raceButtons) button = {.visible = false};
        for (Button& button : screen.entryButtons) button.enabled = false;
    }

    static void recall(const Text& name = cardName) {
        RecallRaceCard();
        ChooseFile(name);
    }

    /// An entry with a name, shown by a recall.
    static RaceEntry& named(int race, int entry, const char* name = "Some Horse") {
        RaceEntry& made = card.entry(race, entry);
        made.horseName = name;
        return made;
    }

    /// A past line in the archive's columns: race, post, HN and its date.
    static void line(int row, const char* race, const char* post, const char* horse, const char* date) {
        writeLineCell(row, 1, date);
        writeLineCell(row, 2, race);
        writeLineCell(row, 4, post);
        writeLineCell(row, 5, horse);
    }

    static Text dataCell(int race, int row, int column) {
        return screen.dataView.at(static_cast<std::size_t>(race)).text(row, column);
    }
    static Text raceCell(int race, int row, int column) {
        return screen.raceView.at(static_cast<std::size_t>(race)).text(row, column);
    }
};

// ---- the picker ----

TEST_F(RecallTest, ShowsTheSavedCardsAndTurnsRecallModeOn) {
    put("A Quillon PRO/Race Cards/M1_20260314.pmd", "");
    put("A Quillon PRO/Race Cards/lex_20260401.PMD", "");
    put("A Quillon PRO/Race Cards/M1_20260314.pmd2", "");
    put("A Quillon PRO/Race Cards/notes.txt", "");
    startAnew();
    RecallRaceCard();
    EXPECT_EQ("R", card.recallMode);
    EXPECT_TRUE(screen.fileList.visible);
    EXPECT_EQ((std::vector<Text>{"M1_20260314.pmd", "lex_20260401.PMD"}), screen.fileList.lines);
    EXPECT_FALSE(screen.item(CommandId::NewRC).enabled);
    EXPECT_FALSE(screen.item(CommandId::RecallRaceCard).enabled);
    for (int button = 1; button <= 12; ++button)
        EXPECT_TRUE(screen.entryButtons.at(static_cast<std::size_t>(button)).enabled);
    EXPECT_TRUE(screen.raceChecks[1].visible);
    EXPECT_EQ("1", screen.raceChecks[1].caption);
}

TEST_F(RecallTest, MakesTheCommandsOfAnOpenCardAvailable) {
    constexpr CommandId items[] = {CommandId::SelectionResults, CommandId::Entries, CommandId::ViewSummary,
                                   CommandId::ViewCondensedProgram, CommandId::PrintCondensedProgram};
    for (const CommandId item : items) screen.item(item).enabled = false;
    RecallRaceCard();
    for (const CommandId item : items) EXPECT_TRUE(screen.item(item).enabled) << static_cast<int>(item);
}

TEST_F(RecallTest, WithoutAFolderOfCardsTheListIsEmpty) {
    RecallRaceCard();
    EXPECT_TRUE(screen.fileList.lines.empty());
    EXPECT_FALSE(exists("A Quillon PRO")); // and none is made
}

TEST_F(RecallTest, AChoiceHidesTheListAndTurnsTheStartButton) {
    saveAndStartAnew();
    screen.start.enabled = false;
    screen.item(CommandId::ViewSummary).enabled = false;
    recall();
    EXPECT_FALSE(screen.fileList.visible);
    EXPECT_EQ("View Races", screen.start.caption);
    EXPECT_TRUE(screen.start.enabled);
    EXPECT_TRUE(screen.item(CommandId::ViewSummary).enabled);
    EXPECT_EQ("M1_20260314.pmd", card.cardFileName);
}

TEST_F(RecallTest, RecordWaitsForTheChosenCardsOwnSummary) {
    saveAndStartAnew();
    screen.record.enabled = true; // the summary of a card before it
    recall();
    EXPECT_FALSE(screen.record.enabled);
}

// ---- the race views ----

TEST_F(RecallTest, AnEntryComesBackIntoItsRow) {
    RaceEntry& entry = named(3, 4);
    entry.morningOdds = " 5/2";
    entry.programNumber = "  4";
    entry.chosen = {.TRACK = "   M1", .PURSE = "5000", .CLASS = "CLM5000", .CR = "78", .CALL_1Q_BF = " i"};
    entry.favMark = "*";
    entry.chosenDriver = "Ames, J";
    entry.driverUdr = "0.250";
    entry.rating = " 61.3";
    entry.chosen.HRSE_TM_FN = "1:54.3";
    saveAndStartAnew();
    recall();
    EXPECT_EQ("Some Horse", raceCell(3, 4, 0));
    EXPECT_EQ("5/2", raceCell(3, 4, 1)); // trimmed
    EXPECT_EQ("  4", raceCell(3, 4, 2));
    EXPECT_EQ("4", raceCell(3, 4, 3));  // the row itself
    EXPECT_EQ("M1", raceCell(3, 4, 4)); // trimmed
    EXPECT_EQ("5000", raceCell(3, 4, 5));
    EXPECT_EQ("CLM5000", raceCell(3, 4, 6));
    EXPECT_EQ("78", raceCell(3, 4, 7));
    EXPECT_EQ(" i", raceCell(3, 4, 13));
    EXPECT_EQ("1:54.3", raceCell(3, 4, 28));
    EXPECT_EQ("*", raceCell(3, 4, 29));
    EXPECT_EQ("Ames, J", raceCell(3, 4, 30));
    EXPECT_EQ("0.250", raceCell(3, 4, 31));
    EXPECT_EQ(" 61.3", raceCell(3, 4, 32));
    EXPECT_EQ("5/2", card.entry(3, 4).morningOdds.text()); // in the store too
    EXPECT_EQ("M1", card.entry(3, 4).chosen.TRACK);
}

TEST_F(RecallTest, ProgramNumbersAreInTheColoursOfTheSaddleCloths) {
    named(1, 2).programNumber = "1A";
    saveAndStartAnew();
    recall();
    EXPECT_EQ(" 1A", raceCell(1, 2, 2));
    EXPECT_EQ((Colour{255, 0, 0}), screen.raceView[1].read(2, 2).background); // number 1 is red
}

TEST_F(RecallTest, AMorningLineThatWasNeverGivenStaysSo) {
    named(1, 1);
    saveAndStartAnew();
    recall();
    EXPECT_FALSE(card.entry(1, 1).morningOdds.given());
}

TEST_F(RecallTest, EveryEntryWithANameIsShownAlsoAfterAGap) {
    named(2, 1);
    named(2, 3, "Behind A Gap");
    named(2, 4, "    ");
    named(2, 12, "Twelfth");
    saveAndStartAnew();
    recall();
    EXPECT_EQ("Some Horse", raceCell(2, 1, 0));
    EXPECT_EQ("", raceCell(2, 2, 3));
    EXPECT_EQ("Behind A Gap", raceCell(2, 3, 0));
    EXPECT_EQ("", raceCell(2, 4, 0)); // a name of blanks is none
    EXPECT_EQ("Twelfth", raceCell(2, 12, 0));
}

TEST_F(RecallTest, RacesAreCountedUpToTheLastWithAnEntry) {
    named(1, 1);
    named(5, 7, "1st Of Its Name"); // neither at post 1 nor at a letter
    saveAndStartAnew();
    recall();
    EXPECT_EQ(5, card.raceCount);
}

// ---- buttons, heading and board ----

TEST_F(RecallTest, AButtonShowsForEachRaceWithItsLabel) {
    named(3, 1);
    card.raceInfo(1).raceLabelDistance = "1A1";
    card.raceInfo(2).raceLabelDistance = "11";
    card.raceInfo(3).raceLabelDistance = "21";
    saveAndStartAnew();
    recall();
    EXPECT_EQ("1A", screen.raceButtons[1].caption);
    EXPECT_EQ("1", screen.raceButtons[2].caption);
    EXPECT_EQ("2", screen.raceButtons[3].caption);
    for (std::size_t race = 1; race <= 23; ++race)
        EXPECT_EQ(race <= 3, screen.raceButtons.at(race).visible) << race;
    EXPECT_TRUE(screen.raceButtons[1].current);
    EXPECT_FALSE(screen.raceButtons[2].current);
    EXPECT_EQ((std::vector<Text>{"RACE 1", "RACE 2", "RACE 3"}), screen.raceList.lines);
}

TEST_F(RecallTest, RaceOneHeadsTheScreen) {
    named(1, 1);
    card.raceInfo(1) = {.trackCode = "M1",
                        .trackInfo = "One mile",
                        .purse = "9000",
                        .classText = "CLM",
                        .todaysCr = "78",
                        .wagering = "Exacta",
                        .postTime = "7:00",
                        .gait = "P",
                        .raceLabelDistance = "11"};
    saveAndStartAnew();
    recall();
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ("M1", screen.header.track.caption);
    EXPECT_TRUE(screen.header.track.visible);
    EXPECT_EQ("One mile", screen.header.trackInfo);
    EXPECT_EQ("CLM", screen.header.classText);
    EXPECT_EQ("78", screen.header.cr);
    EXPECT_EQ("Exacta", screen.header.wagering);
    EXPECT_EQ("7:00", screen.header.postTime);
    EXPECT_EQ("P", screen.header.gait);
    EXPECT_EQ("1", screen.header.distance);
    EXPECT_EQ("20260314", card.cardDate);
    EXPECT_EQ("20260314", screen.header.date.caption);
    EXPECT_TRUE(screen.header.date.visible);
}

TEST_F(RecallTest, TheDateIsTheEightCharactersAfterTheFirstBar) {
    const struct {
        const char* name;
        const char* date;
    } cases[] = {{"M1_20260314.pmd", "20260314"},
                 {"LEX_20260314_old.pmd", "20260314"},
                 {"M1_2026", "2026"},
                 {"card.pmd", ""}};
    for (const auto& row : cases) {
        startAnew();
        recall(row.name);
        EXPECT_EQ(row.date, card.cardDate) << row.name;
    }
}

TEST_F(RecallTest, RaceOnesBoardIsShown) {
    named(1, 1);
    for (int cell = 1; cell <= 8; ++cell) card.raceOutcome(1, cell) = std::to_string(cell);
    for (int cell = 1; cell <= 11; ++cell) card.payoffRecord(1, cell) = std::to_string(cell) + ".40";
    card.payoffRecord(1, 10) = " 5";
    saveAndStartAnew();
    recall();
    EXPECT_EQ("1", screen.boxes[0].text);
    EXPECT_EQ("8", screen.boxes[7].text);
    EXPECT_EQ("1.40", screen.tote[1]);
    EXPECT_EQ("9.40", screen.tote[9]);
    EXPECT_EQ("11.40", screen.tote[11]);
    EXPECT_EQ(" 5", screen.refunds);
}

TEST_F(RecallTest, AHeadingOfALaterRaceIsRewrittenInSmallLetters) {
    const struct {
        const char* before;
        const char* after;
    } cases[] = {
        {"RACE:  5", "Race:  1"}, {"RACE:  12", "Race:  1"}, {"RACE:  1", "RACE:  1"}, {"", "RACE:  1"}};
    named(1, 1);
    saveAndStartAnew();
    for (const auto& row : cases) {
        screen.tote[0] = row.before;
        recall();
        EXPECT_EQ(row.after, screen.tote[0]) << row.before;
    }
}

TEST_F(RecallTest, EntryButtonsShowRaceOnesProgramNumbers) {
    named(1, 1).programNumber = "  7";
    named(1, 2).programNumber = "1A";
    named(2, 3).programNumber = "  3";
    saveAndStartAnew();
    recall();
    EXPECT_EQ("  7", screen.entryButtons[1].caption);
    EXPECT_EQ(" 1A", screen.entryButtons[2].caption);
    EXPECT_EQ("", screen.entryButtons[3].caption); // unset in race 1
}

TEST_F(RecallTest, OnlyTheFirstRacesViewIsUp) {
    named(2, 1);
    saveAndStartAnew();
    screen.racePanelsVisible = false;
    screen.profileVisible = true;
    recall();
    for (const bool visible : screen.dataViewVisible) EXPECT_FALSE(visible);
    for (std::size_t race = 0; race < screen.raceViewVisible.size(); ++race)
        EXPECT_EQ(race == 1, screen.raceViewVisible.at(race)) << race;
    EXPECT_EQ("RACE 23", dataCell(23, 0, 0));
    EXPECT_TRUE(screen.racePanelsVisible);
    EXPECT_FALSE(screen.profileVisible);
}

// ---- the data views ----

TEST_F(RecallTest, LinesComeBackIntoTheViewOfTheirRace) {
    line(1, "1", "1", "1", "20260301");
    line(2, "2", "1", "2", "20260302");
    line(3, "1", "2", "3", "20260303");
    writeLineCell(3, 38, " 61.3");
    writeLineCell(3, 39, "2");
    line(4, "", "1", "3", "20260304");   // of no race
    line(5, "24", "1", "3", "20260305"); // of a race without a view
    saveAndStartAnew();
    recall();
    EXPECT_EQ("20260301", dataCell(1, 1, 1));
    EXPECT_EQ("20260303", dataCell(1, 2, 1)); // the second row of race 1
    EXPECT_EQ(" 61.3", dataCell(1, 2, 38));
    EXPECT_EQ("2", dataCell(1, 2, 39));
    EXPECT_EQ("20260302", dataCell(2, 1, 1));
    EXPECT_EQ("", dataCell(1, 3, 1));
    EXPECT_EQ("", dataCell(2, 2, 1));
}

TEST_F(RecallTest, AnEntrysNameOddsAndNumberHeadItsLines) {
    RaceEntry& first = named(1, 1, "First");
    first.morningOdds = " 5/2";
    first.programNumber = "  1";
    RaceEntry& second = named(1, 2, "Second");
    second.morningOdds = " 8/1";
    second.programNumber = "  2";
    for (const int row : {1, 2, 3, 4}) line(row, "1", "1", "1", "20260301");
    for (const int row : {5, 6}) line(row, "1", "2", "2", "20260301");
    saveAndStartAnew();
    recall();
    EXPECT_EQ("First", dataCell(1, 1, 0));
    EXPECT_EQ("5/2", dataCell(1, 2, 0)); // trimmed with the race view
    EXPECT_EQ("  1", dataCell(1, 3, 0));
    EXPECT_EQ("", dataCell(1, 4, 0));
    EXPECT_EQ("Second", dataCell(1, 5, 0));
    EXPECT_EQ("8/1", dataCell(1, 6, 0));
    EXPECT_EQ("  2", dataCell(1, 7, 0)); // stands beside no line
    EXPECT_EQ("", dataCell(1, 7, 1));
}

TEST_F(RecallTest, TheHeadOfTheNextEntryOverwritesThatOfAShortOne) {
    named(1, 1, "First").morningOdds = " 5/2";
    named(1, 2, "Second");
    line(1, "1", "1", "1", "20260301");
    line(2, "1", "2", "2", "20260301");
    saveAndStartAnew();
    recall();
    EXPECT_EQ("First", dataCell(1, 1, 0));
    EXPECT_EQ("Second", dataCell(1, 2, 0));
}

TEST_F(RecallTest, EntriesWithoutLinesDoNotShiftTheHeadsOfThoseAfter) {
    named(1, 1, "First");
    named(1, 2, "First Time Starter"); // HN 2 has no line
    named(1, 3, "Third");
    line(1, "1", "1", "1", "20260301");
    line(2, "1", "3", "3", "20260301");
    line(3, "1", "3", "3", "20260201");
    saveAndStartAnew();
    recall();
    EXPECT_EQ("First", dataCell(1, 1, 0));
    EXPECT_EQ("Third", dataCell(1, 2, 0));
}

TEST_F(RecallTest, APostWithoutAnEntryLosesItsHeadAndKeepsItsLines) {
    named(1, 1, "First");
    line(1, "1", "1", "1", "20260301");
    line(2, "1", "99", "2", "20260302"); // no post: entry 0, which no file carries
    line(3, "1", "50", "3", "20260303"); // beyond all posts
    saveAndStartAnew();
    recall();
    EXPECT_EQ("20260302", dataCell(1, 2, 1));
    EXPECT_EQ("", dataCell(1, 2, 0));
    EXPECT_EQ("20260303", dataCell(1, 3, 1));
}

TEST_F(RecallTest, AViewTakesItsFirst199Lines) {
    named(1, 2, "Last");
    for (int row = 1; row <= 201; ++row) line(row, "1", "1", "1", std::to_string(row).c_str());
    writeLineCell(199, 5, "2"); // a head whose second and third cell lie past the view
    writeLineCell(199, 4, "2");
    line(202, "2", "1", "3", "20260301");
    saveAndStartAnew();
    recall();
    EXPECT_EQ("199", dataCell(1, 199, 1));
    EXPECT_EQ("Last", dataCell(1, 199, 0));
    EXPECT_EQ("20260301", dataCell(2, 1, 1)); // the races after are not shortened
}

TEST_F(RecallTest, LinesUpToRow2300AreShown) {
    line(1, "1", "1", "1", "20260301"); // the card starts at race 1
    line(2300, "23", "1", "2", "20260302");
    saveAndStartAnew();
    recall();
    EXPECT_EQ("20260302", dataCell(23, 1, 1));
}

// ---- the first race of a card ----

// Cards of two races or three, with a horse in each and two lines of different races.
class FirstRaceRecall : public RecallTest {
protected:
    static void races(int count, int firstLabel) {
        for (int race = 1; race <= count; ++race) {
            named(race, 1);
            card.raceInfo(race).raceLabelDistance = std::to_string(firstLabel + race - 1) + "1";
        }
    }

    static void recallLines(const char* first, const char* second) {
        line(1, first, "1", "1", "20260301");
        line(2, second, "1", "2", "20260302");
        saveAndStartAnew();
        recall();
    }

    /// The views with a line, by the day of their first: "1:1 2:2".
    static Text shownLines() {
        Text found;
        for (int race = 1; race <= 23; ++race)
            if (const Text date = dataCell(race, 1, 1); !date.empty())
                found += (found.empty() ? "" : " ") + std::to_string(race) + ":" + date.substr(7);
        return found;
    }
};

TEST_F(FirstRaceRecall, LinesOfAPartialCardStandWithTheirRace) {
    races(2, 5);
    recallLines("5", "6");
    EXPECT_EQ("1:1 2:2", shownLines());
    EXPECT_EQ("Some Horse", dataCell(1, 1, 0)); // headed by the race's own entry
    EXPECT_EQ("5", dataCell(1, 1, 2));          // as the table told it
}

TEST_F(FirstRaceRecall, ALabelTellsTheFirstRaceOfACardThatHasNoLinesThere) {
    races(3, 5);
    recallLines("6", "7");
    EXPECT_EQ("2:1 3:2", shownLines());
}

TEST_F(FirstRaceRecall, ACardThatStartsAtRaceOneMayHaveNoLinesThere) {
    races(3, 1);
    recallLines("2", "3");
    EXPECT_EQ("2:1 3:2", shownLines());
}

TEST_F(FirstRaceRecall, ALetterInTheLabelIsPassedOver) {
    races(3, 1);
    card.raceInfo(1).raceLabelDistance = "1A1";
    recallLines("2", "3");
    EXPECT_EQ("2:1 3:2", shownLines());
}

TEST_F(FirstRaceRecall, WhereTheLabelIsLostTheFirstLineTellsIt) {
    races(2, 5);
    card.raceInfo(1).raceLabelDistance = "5mile"; // five characters, which can't be split
    recallLines("5", "6");
    EXPECT_EQ("1:1 2:2", shownLines());
}

TEST_F(FirstRaceRecall, WithoutItsLabelTooACardMayHaveNoLinesInRaceOne) {
    races(3, 1);
    card.raceInfo(1).raceLabelDistance = "1mile";
    recallLines("2", "3");
    EXPECT_EQ("", card.raceInfo(1).label);
    EXPECT_EQ("2:1 3:2", shownLines());
}

TEST_F(FirstRaceRecall, ALabelAfterTheFirstLineTellsNothing) {
    races(2, 8);
    recallLines("1", "2");
    EXPECT_EQ("1:1 2:2", shownLines());
}

// The two-digit label of a race without a distance comes back cut to its first digit.
TEST_F(FirstRaceRecall, ALabelThatLeavesLinesAfterTheLastRaceTellsNothing) {
    races(2, 10);
    card.raceInfo(1).raceLabelDistance = "10";
    recallLines("10", "11");
    EXPECT_EQ("1", card.raceInfo(1).label);
    EXPECT_EQ("1:1 2:2", shownLines());
}

TEST_F(FirstRaceRecall, ATableNumberedFromOneHasTheLinesOfALaterRaceWithIt) {
    races(2, 1);
    recallLines("2", "3");
    EXPECT_EQ("1:1 2:2", shownLines());
}

TEST_F(FirstRaceRecall, LinesOfNoRaceInFrontTellNothing) {
    races(2, 5);
    card.raceInfo(1).raceLabelDistance = "";
    line(3, "6", "1", "2", "20260303");
    recallLines("", "5");
    EXPECT_EQ("1:2 2:3", shownLines());
}

// ---- damaged and missing files ----

TEST_F(RecallTest, AMissingCardFileShowsWhatWasThere) {
    startAnew();
    named(2, 3, "In The Store").linesInLastWindow = 4;
    card.raceInfo(1).purse = "9000";
    recall("LEX_20260401.pmd");
    EXPECT_EQ("In The Store", raceCell(2, 3, 0));
    EXPECT_EQ(2, card.raceCount);
    EXPECT_EQ("LEX_20260401.pmd", card.cardFileName);
    EXPECT_EQ("View Races", screen.start.caption);
    EXPECT_EQ(0, card.entry(2, 3).linesInLastWindow); // cleared before any file is read
}

// Either ends the recall mode, which a choice takes up again: without it the card would have no date, and be
// saved under another name.
TEST_F(RecallTest, WhatEndsTheRecallModeBeforeTheChoiceCostsTheCardNoDate) {
    named(1, 1);
    saveAndStartAnew();
    for (void (*const step)() : {EBET, Get_Textbox_Data}) {
        startAnew();
        screen.header.race = "1";
        RecallRaceCard();
        step();
        ASSERT_NE("R", card.recallMode);
        ChooseFile(cardName);
        EXPECT_EQ("20260314", card.cardDate);
        EXPECT_EQ("20260314", screen.header.date.caption);
    }
}

TEST_F(RecallTest, ACardLoadedSinceTheListCameUpLeavesNoRowsInTheViews) {
    named(1, 1);
    saveAndStartAnew();
    RecallRaceCard();
    screen.raceView[1](6, 32).text = " 74.0";
    screen.raceView[5](1, 0).text = "Of The Loaded Card";
    screen.dataView[7](3, 1).text = "20260301";
    ChooseFile(cardName);
    EXPECT_EQ("Some Horse", raceCell(1, 1, 0));
    EXPECT_EQ("", raceCell(1, 6, 32));
    EXPECT_EQ("", raceCell(5, 1, 0));
    EXPECT_EQ("", dataCell(7, 3, 1));
}

TEST_F(RecallTest, ACardThatCouldNotBeReadIsNotWrittenOver) {
    named(1, 1);
    saveAndStartAnew();
    const std::string whole = contentOf(cardPath);
    writeLineCell(1, 2, "1"); // left by a card before it
    recall("M1_20260314");    // without its extension no file
    EXPECT_EQ("", card.lineCells.read(1, 2));
    screen.header.track.caption = "M1";
    shown.clear();
    const std::vector<std::string> told{"error: Card is not saved, since it couldn't be read: "
                                        "C:\\A Quillon PRO\\Race Cards\\M1_20260314"};
    EXPECT_FALSE(attempt(Save));
    EXPECT_EQ(told, shown);
    EXPECT_EQ(whole, contentOf(cardPath));

    shown.clear();
    CloseRC();
    EXPECT_EQ(told, shown);
    EXPECT_EQ("", card.cardFileName); // it can be put away
    EXPECT_EQ(whole, contentOf(cardPath));

    recall();
    shown.clear();
    Save();
    EXPECT_EQ(std::vector<std::string>{}, shown);
    EXPECT_EQ(whole, contentOf(cardPath));
}

TEST_F(RecallTest, AnArchiveThatCouldNotBeReadIsNotWrittenOver) {
    named(1, 1);
    saveAndStartAnew();
    constexpr std::uintmax_t tooLarge = (std::uintmax_t{1} << 30) + 1;
    fs::resize_file(archivePath, tooLarge);
    recall();
    EXPECT_EQ("Some Horse", raceCell(1, 1, 0));
    EXPECT_FALSE(attempt(Save));
    EXPECT_EQ(tooLarge, fs::file_size(archivePath));
}

TEST_F(RecallTest, RacesAfterTheEndOfACutFileKeepTheirLabels) {
    for (const int race : {1, 2}) {
        named(race, 1);
        card.raceInfo(race).raceLabelDistance = std::to_string(race) + "1";
    }
    saveAndStartAnew();
    recall();
    put(cardPath, contentOf(cardPath).substr(0, 200)); // ends within entry 1
    recall();
    EXPECT_EQ("2", card.raceInfo(2).label);
    EXPECT_EQ("1", card.raceInfo(2).distance);
    EXPECT_EQ("2", screen.raceButtons[2].caption);
}

TEST_F(RecallTest, AMissingArchiveLeavesTheCardWithoutLines) {
    named(1, 1);
    line(1, "1", "1", "1", "20260301");
    saveAndStartAnew();
    fs::remove(archivePath);
    writeLineCell(1, 2, "1"); // left by a card before it
    recall();
    EXPECT_EQ("Some Horse", raceCell(1, 1, 0));
    EXPECT_EQ("", card.lineCells.read(1, 2));
    EXPECT_EQ("", dataCell(1, 1, 2));
}

TEST_F(RecallTest, WindowCountsThatTheFileDoesNotTellAreZero) {
    named(1, 1).linesInLastWindow = 3;
    card.entry(1, 2).linesInFiftyDays = 5;
    saveAndStartAnew();
    put(cardPath, contentOf(cardPath).substr(0, 200)); // ends within entry 1
    card.entry(1, 2).linesInFiftyDays = 7;
    card.entry(30, 20).linesInLastWindow = 7;
    recall();
    EXPECT_EQ(0, card.entry(1, 2).linesInFiftyDays);
    EXPECT_EQ(0, card.entry(30, 20).linesInLastWindow);
}

TEST_F(RecallTest, DamagedFilesAreShownAsFarAsTheyGo) {
    named(1, 1).rating = " 61.3";
    named(9, 1);
    card.selection(9, 4).selectionRating = " 70.1";
    line(1, "1", "1", "1", "20260301");
    line(300, "9", "1", "2", "20260302");
    saveAndStartAnew();
    const std::string wholeCard = contentOf(cardPath);
    const std::string wholeArchive = contentOf(archivePath);
    for (const std::size_t part : {0U, 1U, 3U, 50U, 99U}) {
        startAnew();
        put(cardPath, wholeCard.substr(0, wholeCard.size() * part / 100));
        put(archivePath, wholeArchive.substr(0, wholeArchive.size() * part / 100));
        recall();
        EXPECT_EQ(part >= 1 ? " 61.3" : "", raceCell(1, 1, 32)) << part; // within the first 130 lines
        EXPECT_EQ(part >= 50 ? 9 : part >= 1 ? 1 : 0, card.raceCount) << part;
        EXPECT_EQ(part >= 1 ? "20260301" : "", dataCell(1, 1, 1)) << part;
        EXPECT_EQ(part >= 50 ? "20260302" : "", dataCell(9, 1, 1)) << part; // row 300 of 2,300
    }
}

TEST_F(RecallTest, AFileThatIsNoCardDoesNoHarm) {
    put(cardPath, "This is\r\na letter\n\"with\" some\n\n\nlines\r\n");
    put(archivePath, std::string(100'000, '\xFF'));
    recall();
    EXPECT_EQ("This is", raceCell(1, 1, 0));
    EXPECT_EQ(1, card.raceCount);
}

TEST_F(RecallTest, ANameThatLeadsElsewhereIsNoCard) {
    put("secret.pmd", cardFileWithLine(1, "\"Elsewhere\""));
    recall("../../secret.pmd");
    EXPECT_EQ("", raceCell(1, 1, 0));
    recall("");
    EXPECT_EQ(0, card.raceCount);
}

TEST_F(RecallTest, NothingOnDiskChanges) {
    named(1, 1);
    saveAndStartAnew();
    const std::string before = contentOf(cardPath);
    const std::string archiveBefore = contentOf(archivePath);
    recall();
    EXPECT_EQ(before, contentOf(cardPath));
    EXPECT_EQ(archiveBefore, contentOf(archivePath));
    int files = 0;
    for (const auto& file : fs::directory_iterator{"."}) files += file.is_regular_file() ? 1 : 0;
    for (const auto& file : fs::recursive_directory_iterator{"A Quillon PRO"})
        files += file.is_regular_file() ? 1 : 0;
    EXPECT_EQ(2, files);
}

// ---- dead heats ----

// Race 1 had two winners, race 2 a plain finish.
constexpr std::string_view resultsText = "Race: 1\r\n"
                                         "1st 10 Big Ben  3.20  2.60  2.10\r\n"
                                         "1st  3 Late Lady  6.40  4.20  3.00\r\n"
                                         "Race: 2\r\n"
                                         "1st  5 Fast Nellie 12.40  5.20  3.10\r\n"
                                         "2nd  2 Slow Bill  4.60  2.80\r\n";

class DeadHeatRecall : public RecallTest {
protected:
    static void recallWithSecondPayoffs(std::initializer_list<int> races) {
        for (int race = 1; race <= 3; ++race) named(race, 1);
        for (const int race : races) card.payoffRecord(race, 20) = "6.40";
        put("A Quillon PRO/Results/M1_20260314.pmr", resultsText);
        saveAndStartAnew();
        recall();
    }
};

TEST_F(DeadHeatRecall, TheResultsTextBringsTheCountersBack) {
    recallWithSecondPayoffs({1});
    EXPECT_EQ(2, card.winHeat(1));
    EXPECT_EQ(1, card.winHeat(2));
    EXPECT_EQ(1, card.placeHeat(2));
    EXPECT_TRUE(screen.boxTenVisible); // race 1 is on show
    EXPECT_EQ("RX", card.recallMode);
}

TEST_F(DeadHeatRecall, EachRaceWithASecondPayoffCountsAllRacesAgain) {
    recallWithSecondPayoffs({1, 3});
    EXPECT_EQ(4, card.winHeat(1)); // two winners in each of two passes
    EXPECT_EQ(2, card.winHeat(2)); // a plain race by now counts as a dead heat
}

TEST_F(DeadHeatRecall, WithoutASecondPayoffNothingIsCounted) {
    recallWithSecondPayoffs({});
    EXPECT_EQ(0, card.winHeat(1));
    EXPECT_EQ("R", card.recallMode);
}

TEST_F(DeadHeatRecall, AMissingResultsTextIsNoFault) {
    named(1, 1);
    card.payoffRecord(1, 20) = "6.40";
    saveAndStartAnew();
    recall();
    EXPECT_EQ(0, card.winHeat(1));
    EXPECT_EQ("View Races", screen.start.caption);
    EXPECT_EQ("Some Horse", raceCell(1, 1, 0));
    EXPECT_TRUE(shown.empty());
}

// ---- two cards in one process ----

TEST_F(RecallTest, NothingOfTheCardBeforeItPassesForTheRecalledCards) {
    named(1, 1, "Of The File");
    saveAndStartAnew();

    RaceEntry& before = named(1, 1, "Of The Card Before");
    before.driverName = "Other, D";
    before.driverNumber = 12;
    before.postPosition = "  9";
    before.chosenLineNumber = 77;
    card.entry(1, 0).horseName = "Without A Post";
    card.entry(1, 13).horseName = "Thirteenth";
    card.driverTable(12).name = "Other, D";
    card.trainerTable(1) = "Trainer";
    card.pastLine.write(1, 1, 1).CR = "80";
    card.selection(1, 5).selectionName = "Fifth";
    card.selection(1, 1).selectionPost = "  9";
    card.raceOutcome(1, 9) = "5";
    card.raceInfo(1).ratingNote = 40;
    card.pickPayoff(1, 3) = "12.00";
    card.pickLegs(1, 1) = "4";
    card.heatPost(14, 2) = 3;
    card.heatRating(14, 2) = "60.1";
    card.labelledRaces = 2;
    card.raceOffset = 4;
    card.trackSize = "1/2";
    card.stretchLength = 500;
    card.maxPosts = 8;
    card.totalLines = 900;
    recall();

    EXPECT_EQ("Of The File", card.entry(1, 1).horseName.text());
    EXPECT_EQ("", card.entry(1, 1).driverName);
    EXPECT_EQ(0, card.entry(1, 1).driverNumber);
    EXPECT_EQ("", card.entry(1, 1).postPosition);
    EXPECT_EQ(0, card.entry(1, 1).chosenLineNumber);
    EXPECT_FALSE(card.entry(1, 0).horseName.given());
    EXPECT_FALSE(card.entry(1, 13).horseName.given());
    EXPECT_EQ("", card.driverTable(12).name);
    EXPECT_EQ("", card.trainerTable(1));
    EXPECT_EQ("", card.pastLine.read(1, 1, 1).CR);
    EXPECT_EQ("", card.selection(1, 5).selectionName);
    EXPECT_EQ("", card.selection(1, 1).selectionPost);
    EXPECT_EQ("", card.raceOutcome(1, 9));
    EXPECT_EQ(0, card.raceInfo(1).ratingNote);
    EXPECT_EQ("", card.pickPayoff(1, 3));
    EXPECT_EQ("", card.pickLegs(1, 1));
    EXPECT_EQ(0, card.heatPost(14, 2));
    EXPECT_EQ("", card.heatRating(14, 2));
    EXPECT_EQ(0, card.labelledRaces);
    EXPECT_EQ(0, card.raceOffset);
    EXPECT_EQ("", card.trackSize);
    EXPECT_EQ(0, card.stretchLength);
    EXPECT_EQ(0, card.maxPosts);
    EXPECT_EQ(0, card.totalLines);
}

TEST_F(RecallTest, ARaceThatTheRecalledCardHasNotKeepsNothingOfTheCardBeforeIt) {
    named(1, 1);
    card.raceInfo(1) = {.trackCode = "M1", .raceLabelDistance = "11"};
    saveAndStartAnew();
    const std::string saved = contentOf(cardPath);

    card.raceInfo(12).label = "12"; // its label and distance are in the joined text alone, which is empty
    card.raceInfo(12).distance = "1";
    for (const int race : {0, 24}) { // and no file has these races
        card.raceInfo(race).label = "24";
        card.raceOutcome(race, 1) = "5";
        card.payoffRecord(race, 9) = "812.40";
        card.selection(race, 1).selectionName = "Of The Card Before";
    }
    recall();
    EXPECT_EQ("", card.raceInfo(12).label);
    EXPECT_EQ("", card.raceInfo(12).distance);
    for (const int race : {0, 24}) {
        EXPECT_EQ("", card.raceInfo(race).label) << race;
        EXPECT_EQ("", card.raceOutcome(race, 1)) << race;
        EXPECT_EQ("", card.payoffRecord(race, 9)) << race;
        EXPECT_EQ("", card.selection(race, 1).selectionName) << race;
    }
    Save();
    EXPECT_EQ(saved, contentOf(cardPath));
}

TEST_F(RecallTest, DeadHeatCountersAreNotBegunAnew) {
    named(1, 1);
    saveAndStartAnew();
    card.winHeat(1) = 2;
    card.placeHeat(3) = 1;
    recall();
    EXPECT_EQ(2, card.winHeat(1));
    EXPECT_EQ(1, card.placeHeat(3));
}

} // namespace
} // namespace quillon

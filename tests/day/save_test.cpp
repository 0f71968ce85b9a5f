#include "day/save.h"

#include "cardfiles/card_lines.h"
#include "support/card_test.h"

#include <algorithm>

namespace quillon {
namespace {

namespace fs = std::filesystem;

constexpr const char* cardsFolder = "A Quillon PRO/Race Cards";
constexpr const char* archivesFolder = "A Quillon PRO/Archives";

class SaveTest : public CardTest {
protected:
    SaveTest() {
        card.cardFileName = "M1_20260314.pmd";
        screen.header.track.caption = "M1";
        screen.header.date.caption = "20260314";
    }

    static std::string savedLine(int number) {
        return linesOf(contentOf(cardPath)).at(static_cast<std::size_t>(number));
    }

    static std::vector<std::string> filesUnder(const char* folder) {
        std::vector<std::string> names;
        if (fs::is_directory(folder))
            for (const auto& file : fs::directory_iterator{folder})
                names.push_back(file.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
};

using Names = std::vector<std::string>;

TEST_F(SaveTest, WritesTheCardFileAndItsArchive) {
    Save();
    EXPECT_EQ(13'179U, linesOf(contentOf(cardPath)).size() - 1);
    EXPECT_EQ(89'700U, linesOf(contentOf(archivePath)).size() - 1);
    EXPECT_EQ(Names{"M1_20260314.pmd"}, filesUnder(cardsFolder)); // and leaves nothing else behind
    EXPECT_EQ(Names{"M1_20260314.pmx"}, filesUnder(archivesFolder));
    EXPECT_EQ(Names{}, shown);
}

TEST_F(SaveTest, ReplacesTheFilesOfAnEarlierSaveInAnyCaseOfTheirNames) {
    put("A Quillon PRO/Race Cards/m1_20260314.PMD", std::string(500'000, 'x'));
    card.entry(1, 1).horseName = "Some Horse";
    Save();
    EXPECT_EQ(Names{"m1_20260314.PMD"}, filesUnder(cardsFolder));
    EXPECT_EQ("\"Some Horse\"", linesOf(contentOf("A Quillon PRO/Race Cards/m1_20260314.PMD")).at(1));
}

TEST_F(SaveTest, WithoutACardDoesNothing) {
    for (const char* name : {"", "3M_20260314.pmd"}) { // in text order "3" is below "A"
        card.cardFileName = name;
        Save();
        EXPECT_FALSE(exists("A Quillon PRO")) << name;
    }
}

TEST_F(SaveTest, TheBoardOnShowIsSaved) {
    screen.header.race = "2";
    card.raceCount = 9;
    screen.boxes[4].text = " 7 ";
    screen.tote[1] = "4.20";
    Save();
    EXPECT_EQ("\"7\"", savedLine(outcomeLine(2, 5)));
    EXPECT_EQ("\"4.20\"", savedLine(payoffLine(2, 1)));
}

// ---- the card's name ----

TEST_F(SaveTest, TheCardIsNamedByTheTrackAndDateOnShow) {
    const struct {
        const char* what;
        const char* before;
        const char* track;
        const char* date;
        const char* after;
    } cases[] = {
        {"as shown", "M1_20260314.pmd", "M1", "20260314", "M1_20260314.pmd"},
        {"a partial card", "M1_20260314.pmd2", "M1", "20260314", "M1_20260314.pmd"},
        {"upper case", "m1_20260314.pmd", "m1", "20260314", "M1_20260314.pmd"},
        {"another track on show", "M1_20260314.pmd", "LEX", "20260314", "LEX_20260314.pmd"},
        {"a race without a track", "M1_20260314.pmd2", "", "20260314", "M1_20260314.pmd"},
        {"no date on show", "M1_20260314.pmd", "M1", "", "M1_20260314.pmd"},
    };
    for (const auto& row : cases) {
        card.cardFileName = row.before;
        screen.header.track.caption = row.track;
        screen.header.date.caption = row.date;
        Save_It();
        EXPECT_EQ(row.after, card.cardFileName) << row.what;
        EXPECT_TRUE(exists(fs::path{cardsFolder} / row.after)) << row.what;
        fs::remove_all("A Quillon PRO");
    }
}

// ---- cells taken back from the race views ----

TEST_F(SaveTest, EditedCellsOfShownRowsAreSaved) {
    card.entry(2, 3).chosen.CLASS = "CLM5000";
    card.entry(2, 3).rating = " 61.3";
    Grid& view = screen.raceView[2];
    view(3, 0).text = "Some Horse";
    view(3, 6).text = "CLM6000";
    view(3, 29).text = "*";
    view(3, 32).text = "60.0";
    Save();
    EXPECT_EQ("CLM6000", card.entry(2, 3).chosen.CLASS);
    EXPECT_EQ("\"CLM6000\"", savedLine(entryLine(2, 3, 6)));
    EXPECT_EQ("\"*\"", savedLine(entryLine(2, 3, 29)));
    EXPECT_EQ("\"60.0\"", savedLine(entryLine(2, 3, 32)));
}

TEST_F(SaveTest, RowsThatTheRaceViewDoesNotShowKeepWhatTheStoreHas) {
    card.entry(2, 3).chosen.CLASS = "CLM5000";
    card.entry(2, 3).favMark = "*";
    card.entry(2, 3).rating = " 61.3";
    screen.raceView[2](3, 6).text = "a cell without a name beside it";
    Save();
    EXPECT_EQ("\"CLM5000\"", savedLine(entryLine(2, 3, 6)));
    EXPECT_EQ("\"*\"", savedLine(entryLine(2, 3, 29)));
    EXPECT_EQ("\" 61.3\"", savedLine(entryLine(2, 3, 32)));
}

TEST_F(SaveTest, NameOddsNumberTrackPurseAndDriverAreNotTakenBack) {
    RaceEntry& entry = card.entry(2, 3);
    entry.horseName = "Some Horse";
    entry.morningOdds = " 5/2";
    entry.programNumber = "  3";
    entry.chosen.TRACK = "   M1";
    entry.chosen.PURSE = "5000";
    entry.chosenDriver = "Ames, J";
    entry.driverUdr = "0.250";
    for (const int column : {0, 1, 2, 3, 4, 5, 30, 31}) screen.raceView[2](3, column).text = "edited";
    Save();
    EXPECT_EQ("\"Some Horse\"", savedLine(entryLine(2, 3, 1)));
    EXPECT_EQ("\" 5/2\"", savedLine(entryLine(2, 3, 2)));
    EXPECT_EQ("\"  3\"", savedLine(entryLine(2, 3, 3)));
    EXPECT_EQ("\"   M1\"", savedLine(entryLine(2, 3, 4)));
    EXPECT_EQ("\"5000\"", savedLine(entryLine(2, 3, 5)));
    EXPECT_EQ("\"Ames, J\"", savedLine(entryLine(2, 3, 30)));
    EXPECT_EQ("\"0.250\"", savedLine(entryLine(2, 3, 31)));
}

TEST_F(SaveTest, RowsOfPostsAbove12AreNotTakenBack) {
    card.entry(1, 13).rating = " 61.3";
    screen.raceView[1](13, 0).text = "Thirteenth";
    screen.raceView[1](13, 32).text = "99.9";
    Save();
    EXPECT_EQ(" 61.3", card.entry(1, 13).rating);
}

// ---- class ratings ----

TEST_F(SaveTest, AMissingClassRatingIsADashAndOthersAreTrimmed) {
    const struct {
        const char* what;
        const char* classText;
        const char* cr;
        const char* saved;
    } cases[] = {
        {"a rating", "CLM5000", " 78", "78"},
        {"blanks on both sides", "CLM5000", " 78 ", "78"},
        {"none", "CLM5000", "-99", "--"},
        {"none, with blanks: tested before it is trimmed", "CLM5000", " -99", "-99"},
        {"a qualifier", "QUA", "QUA", "--"},
        {"a class that begins with Q", "Q", " 78", "--"},
        {"another class that has QU in it", "NW QU", "QUA", "QUA"},
        {"a small q", "qua", "QUA", "QUA"},
        {"empty", "", "", ""},
    };
    for (const auto& row : cases) {
        card.entry(3, 5).chosen = {.CLASS = row.classText, .CR = row.cr};
        Save();
        EXPECT_EQ('"' + std::string{row.saved} + '"', savedLine(entryLine(3, 5, 7))) << row.what;
        EXPECT_EQ(row.saved, card.entry(3, 5).chosen.CR) << row.what; // and stays so in the store
    }
}

TEST_F(SaveTest, TheClassThatDecidesIsTheOneTakenBack) {
    card.entry(3, 5).chosen = {.CLASS = "CLM5000", .CR = "78"};
    screen.raceView[3](5, 0).text = "Some Horse";
    screen.raceView[3](5, 6).text = "QUA";
    screen.raceView[3](5, 7).text = "NA";
    Save();
    EXPECT_EQ("\"--\"", savedLine(entryLine(3, 5, 7)));
}

// ---- label and distance ----

TEST_F(SaveTest, LabelAndDistanceAreJoinedWithNothingBetween) {
    card.raceInfo(1).label = "1A";
    card.raceInfo(1).distance = "1";
    card.raceInfo(10).label = "10";
    card.raceInfo(10).distance = "1 1/16";
    Save();
    EXPECT_EQ("\"1A1\"", savedLine(entryLine(1, 1, 44)));
    EXPECT_EQ("\"1A1\"", savedLine(entryLine(1, 12, 44)));
    EXPECT_EQ("\"101 1/16\"", savedLine(entryLine(10, 7, 44)));
    EXPECT_EQ("101 1/16", card.raceInfo(10).raceLabelDistance);
}

TEST_F(SaveTest, ALoadedCardJoinsThemAnewInEachSave) {
    card.raceInfo(1).raceLabelDistance = "old";
    card.raceInfo(1).label = "1";
    card.raceInfo(1).distance = "1";
    Save();
    EXPECT_EQ("\"11\"", savedLine(entryLine(1, 1, 44)));
}

TEST_F(SaveTest, ARecalledCardKeepsADistanceThatTheRecallShortened) {
    screen.offer(StartOffer::viewRaces);
    card.raceInfo(1).raceLabelDistance = "71 1/16"; // which a recall splits into "7" and "1/16"
    card.raceInfo(1).label = "7";
    card.raceInfo(1).distance = "1/16";
    card.raceInfo(2).label = "8"; // read from no file
    card.raceInfo(2).distance = "1";
    Save();
    EXPECT_EQ("\"71 1/16\"", savedLine(entryLine(1, 1, 44)));
    EXPECT_EQ("\"81\"", savedLine(entryLine(2, 1, 44)));
}

// ---- saves that fail ----

TEST_F(SaveTest, AFolderThatCanNotBeMadeEndsTheSaveWithThePlainFileError) {
    put(cardsFolder, "a file in the folder's place");
    attempt(Save);
    ASSERT_EQ(1U, shown.size());
    EXPECT_EQ("error: Path not found: C:\\A Quillon PRO\\Race Cards\\M1_20260314.pmd", shown[0]);
    EXPECT_EQ("a file in the folder's place", contentOf(cardsFolder));
    EXPECT_EQ(Names{}, filesUnder(archivesFolder));
}

TEST_F(SaveTest, WithoutAFolderForTheArchiveTheOldCardStays) {
    put(cardPath, "old card");
    put(archivesFolder, "a file in the folder's place");
    attempt(Save);
    ASSERT_EQ(1U, shown.size());
    EXPECT_EQ("error: Path not found: C:\\A Quillon PRO\\Archives\\M1_20260314.pmx", shown[0]);
    EXPECT_EQ("old card", contentOf(cardPath));
    EXPECT_EQ(Names{"M1_20260314.pmd"}, filesUnder(cardsFolder));
}

TEST_F(SaveTest, AnArchiveThatCanNotBeReplacedLeavesTheOldCard) {
    put(cardPath, "old card");
    fs::create_directories(fs::path{archivePath} / "a folder in the archive's place");
    card.entry(1, 1).horseName = "Some Horse";
    attempt(Save);
    ASSERT_EQ(1U, shown.size());
    EXPECT_EQ("error: Files can't be replaced: C:\\A Quillon PRO\\Race Cards\\M1_20260314.pmd, "
              "C:\\A Quillon PRO\\Archives\\M1_20260314.pmx",
              shown[0]);
    EXPECT_EQ("old card", contentOf(cardPath));
    EXPECT_EQ(Names{"M1_20260314.pmd"}, filesUnder(cardsFolder)); // no part of the new files is left
    EXPECT_EQ(Names{"M1_20260314.pmx"}, filesUnder(archivesFolder));
}

TEST_F(SaveTest, AnArchiveThatCanNotBeReplacedLeavesNoCardWhereThereWasNone) {
    fs::create_directories(fs::path{archivePath} / "a folder in the archive's place");
    attempt(Save);
    EXPECT_EQ(1U, shown.size());
    EXPECT_EQ(Names{}, filesUnder(cardsFolder));
}

TEST_F(SaveTest, ACardFileThatCanNotBeReplacedLeavesTheOldArchive) {
    put(archivePath, "old archive");
    fs::create_directories(fs::path{cardPath} / "a folder in the card's place");
    attempt(Save);
    EXPECT_EQ(1U, shown.size());
    EXPECT_EQ("old archive", contentOf(archivePath));
    EXPECT_EQ(Names{"M1_20260314.pmd"}, filesUnder(cardsFolder));
    EXPECT_EQ(Names{"M1_20260314.pmx"}, filesUnder(archivesFolder));
}

TEST_F(SaveTest, AFileThatCanNotBeWrittenLeavesBothOldFiles) {
    put(cardPath, "old card");
    put(archivePath, "old archive");
    fs::create_directories(std::string{archivePath} + ".quillon-new"); // in the way of the new file
    attempt(Save);
    ASSERT_EQ(1U, shown.size());
    EXPECT_EQ("error: File can't be written: C:\\A Quillon PRO\\Archives\\M1_20260314.pmx", shown[0]);
    EXPECT_EQ("old card", contentOf(cardPath));
    EXPECT_EQ("old archive", contentOf(archivePath));
    EXPECT_EQ(Names{"M1_20260314.pmd"}, filesUnder(cardsFolder));
}

TEST_F(SaveTest, ATrackThatMakesNoFileNameIsAFileErrorToo) {
    screen.header.track.caption = "../M1";
    attempt(Save);
    ASSERT_EQ(1U, shown.size());
    EXPECT_TRUE(shown[0].starts_with("error: File can't be written: ")) << shown[0];
    EXPECT_EQ(Names{}, filesUnder(cardsFolder));
}

TEST_F(SaveTest, ASaveAfterAFailedOneGoesThrough) {
    put(cardsFolder, "a file in the folder's place");
    attempt(Save);
    fs::remove(cardsFolder);
    attempt(Save);
    EXPECT_EQ(1U, shown.size());
    EXPECT_TRUE(exists(cardPath));
}

// ---- closing ----

class CloseTest : public SaveTest {
protected:
    CloseTest() {
        screen.header = {.race = "1",
                         .track = {.caption = "M1"},
                         .date = {.caption = "20260314"},
                         .purse = "$ 9000",
                         .classText = "CLM",
                         .cr = "78",
                         .wagering = "Exacta",
                         .postTime = "7:00",
                         .gait = "P",
                         .distance = "1",
                         .trackInfo = "One mile"};
        screen.item(CommandId::NewRC).enabled = false;
        screen.item(CommandId::RecallRaceCard).enabled = false;
        for (Grid& view : screen.dataView) fill(view);
        for (Grid& view : screen.raceView) fill(view);
        screen.summary = Grid{23, 30};
        screen.profile = Grid{23, 21};
        fill(screen.summary);
        fill(screen.profile);
        screen.boxes.fill({.text = "4", .colour = closeMagenta});
        screen.tote.fill("2.40");
        screen.refunds = " 5";
        card.raceCount = 9;
        card.entry(1, 1).horseName = "Some Horse";
    }

    static void fill(Grid& view) {
        view(0, 1).text = "head";
        view(1, 1).text = "cell";
    }
};

TEST_F(CloseTest, SavesAndClearsViewsHeadingAndBoard) {
    CloseRC();
    EXPECT_TRUE(exists(cardPath));
    EXPECT_TRUE(exists(archivePath));
    EXPECT_TRUE(screen.item(CommandId::NewRC).enabled);
    EXPECT_TRUE(screen.item(CommandId::RecallRaceCard).enabled);
    for (const Grid& view : screen.dataView) EXPECT_EQ("", view.text(1, 1));
    for (const Grid& view : screen.raceView) EXPECT_EQ("", view.text(1, 1));
    EXPECT_EQ("", screen.summary.text(1, 1));
    EXPECT_EQ("", screen.profile.text(1, 1));
    for (const Box& box : screen.boxes) {
        EXPECT_EQ("", box.text);
        EXPECT_EQ(white, box.colour);
    }
    for (const Text& text : screen.tote) EXPECT_EQ("", text);
    EXPECT_EQ("", screen.refunds);
    EXPECT_EQ("", card.cardFileName);

    const RaceHeader& header = screen.header;
    for (const Text& caption :
         {header.race, header.track.caption, header.date.caption, header.purse, header.classText, header.cr,
          header.wagering, header.postTime, header.gait, header.distance, header.trackInfo})
        EXPECT_EQ("", caption);
}

TEST_F(CloseTest, TheHeadsOfTheViewsStay) {
    screen.dataView[3](0, 0).text = "RACE 3"; // but for the closed card's label
    CloseRC();
    EXPECT_EQ("head", screen.dataView[1].text(0, 1));
    EXPECT_EQ("head", screen.raceView[1].text(0, 1));
    EXPECT_EQ("", screen.dataView[3].text(0, 0));
}

TEST_F(CloseTest, TheStoreStays) {
    CloseRC();
    EXPECT_EQ("Some Horse", card.entry(1, 1).horseName.text());
    EXPECT_EQ(9, card.raceCount);
}

TEST_F(CloseTest, TheFrameOfPastLinesCloses) {
    screen.pastPerformanceOpen = true;
    screen.dataViewVisible[pastPerformanceView] = true;
    screen.currentEntry = 4;
    screen.pastPerformanceHeading = "4  Some Horse";
    CloseRC();
    EXPECT_FALSE(screen.pastPerformanceOpen);
    EXPECT_FALSE(screen.dataViewVisible[pastPerformanceView]);
    EXPECT_EQ(0, screen.currentEntry);
    EXPECT_EQ("", screen.pastPerformanceHeading);
}

TEST_F(CloseTest, RecordGoesWithTheCard) {
    screen.record.enabled = true;
    CloseRC();
    EXPECT_FALSE(screen.record.enabled);
}

TEST_F(CloseTest, WithoutACardItClearsAndWritesNothing) {
    card.cardFileName = "";
    CloseRC();
    EXPECT_FALSE(exists("A Quillon PRO"));
    EXPECT_EQ("", screen.raceView[1].text(1, 1));
    EXPECT_EQ("", screen.boxes[0].text);
    EXPECT_TRUE(screen.item(CommandId::RecallRaceCard).enabled);
}

TEST_F(CloseTest, ACardIsSavedWhateverItsNameBeginsWith) {
    card.cardFileName = "3M_20260314.pmd";
    screen.header.track.caption = "3M";
    CloseRC();
    EXPECT_TRUE(exists("A Quillon PRO/Race Cards/3M_20260314.pmd"));
}

TEST_F(CloseTest, ACardThatCanNotBeSavedStaysOpen) {
    put(cardsFolder, "a file in the folder's place");
    attempt(CloseRC);
    EXPECT_EQ(1U, shown.size());
    EXPECT_EQ("M1_20260314.pmd", card.cardFileName);
    EXPECT_EQ("cell", screen.raceView[1].text(1, 1));
    EXPECT_EQ("4", screen.boxes[0].text);
    EXPECT_FALSE(screen.item(CommandId::NewRC).enabled);
}

} // namespace
} // namespace quillon

// The list of changes: what is a change, and what taking it back does to files and to what is unsaved.
#include "day/changes.h"
#include "support/card_test.h"

namespace quillon {
namespace {

const FilePlace sheet{Folder::working, "sheet.txt"};

class ChangesTest : public CardTest {
protected:
    ChangesTest() {
        put("sheet.txt", "as loaded");
        changes.begin();
    }
    ~ChangesTest() override { changes.end(); }

    /// A command that rates entry 1 of race 1 and writes the sheet.
    static void rate(const Text& rating) {
        changes.run({.run =
                         [&] {
                             card.entry(1, 1).rating = rating;
                             writeFile(sheet, "rated " + rating);
                         },
                     .race = 1,
                     .words = [] { return Text{"rated"}; }});
    }

    static Text rating() { return card.entry(1, 1).rating; }
};

TEST_F(ChangesTest, ACommandThatChangesNothingIsNoChange) {
    changes.run({.run = [] { card.entry(1, 1).rating = ""; }, .words = [] { return Text{"none"}; }});
    changes.run({.run = [] { cursor.race = 3; }, .words = [] { return Text{"none"}; }});
    changes.run({.run = [] { writeFile(sheet, "as loaded"); }, .words = [] { return Text{"none"}; }});
    changes.run({.run = [] { card.recallMode = "R"; }, .words = [] { return Text{"none"}; }});
    EXPECT_TRUE(changes.standing().empty());
    EXPECT_EQ(0U, changes.unsaved());
}

TEST_F(ChangesTest, ABoxOrAViewOrAFileAloneIsAChange) {
    const auto run = [](std::function<void()> command, Compared compared = Compared::everything) {
        changes.run({.run = std::move(command), .compared = compared, .words = [] { return Text{"one"}; }});
        return changes.standing().size();
    };
    EXPECT_EQ(1U, run([] { screen.boxes[4].text = "7"; }));
    EXPECT_EQ(2U, run([] { screen.raceView[2](1, 1).text = "5/2"; }));
    EXPECT_EQ(3U, run([] { screen.tote[1] = "8.80"; }));
    EXPECT_EQ(4U, run([] { writeFile({Folder::working, "new.txt"}, "x"); }));
    // A command that walks the races shows other boxes, and that is no change.
    EXPECT_EQ(4U, run([] { screen.boxes[4].text = "3"; }, Compared::store));
    EXPECT_EQ(5U, run([] { card.raceOutcome(1, 5) = "3"; }, Compared::store));
}

TEST_F(ChangesTest, FilesGoBackAndForthWithTheirChanges) {
    rate("60.0");
    rate("61.0");
    changes.undo();
    EXPECT_EQ("60.0", rating());
    EXPECT_EQ("rated 60.0", contentOf("sheet.txt"));
    changes.redo();
    EXPECT_EQ("61.0", rating());
    EXPECT_EQ("rated 61.0", contentOf("sheet.txt"));
    changes.undoTo(0);
    EXPECT_EQ("", rating());
    EXPECT_EQ("as loaded", contentOf("sheet.txt"));
}

TEST_F(ChangesTest, AFileThatAChangeMadeIsGoneWhenItIsTakenBack) {
    changes.run({.run =
                     [] {
                         appendToFile({Folder::results, "M1_20260314.pmr"}, "REFUNDS: R1         4\r\n");
                     },
                 .words = [] { return Text{"scratched"}; }});
    EXPECT_TRUE(exists("A Quillon PRO/Results/M1_20260314.pmr"));
    changes.undo();
    EXPECT_FALSE(exists("A Quillon PRO/Results/M1_20260314.pmr"));
}

TEST_F(ChangesTest, AFileThatAnotherHandChangedIsLeftAndTold) {
    rate("60.0");
    put("sheet.txt", "edited by the user");
    changes.undo();
    EXPECT_EQ("", rating());
    EXPECT_EQ("edited by the user", contentOf("sheet.txt"));
    EXPECT_EQ(std::vector<std::string>{"note: sheet.txt has changed since"}, shown);
}

TEST_F(ChangesTest, WhatIsUnsavedCountsFromTheSaveInBothDirections) {
    rate("60.0");
    rate("61.0");
    EXPECT_EQ(2U, changes.unsaved());
    changes.saved();
    EXPECT_EQ(0U, changes.unsaved());
    changes.undo();
    EXPECT_EQ(1U, changes.unsaved()); // one that the saved card has is taken back
    changes.redo();
    EXPECT_EQ(0U, changes.unsaved());
    changes.undo();
    rate("62.0");
    EXPECT_EQ(2U, changes.unsaved()); // the saved one is gone, and one is new
    changes.undo();
    EXPECT_EQ(1U, changes.unsaved());
}

TEST_F(ChangesTest, ACardThatIsRecordedIsNotOfferedForItAgain) {
    screen.record.enabled = true;
    rate("60.0");
    screen.record.enabled = false;
    changes.recorded();
    changes.undo();
    EXPECT_FALSE(screen.record.enabled);
}

TEST_F(ChangesTest, WithoutACardCommandsRunAndAreNotKept) {
    changes.end();
    rate("60.0");
    EXPECT_EQ("60.0", rating());
    EXPECT_FALSE(changes.canUndo());
    changes.undo();
    changes.redo();
    changes.undoTo(0);
    EXPECT_EQ("60.0", rating());
}

} // namespace
} // namespace quillon

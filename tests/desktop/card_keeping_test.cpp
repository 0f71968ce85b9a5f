// The window keeps the open card against a crash, and offers what a crash has left.
#include "desktop/card_keeping.h"

#include "app/start_up.h"
#include "core/failure.h"
#include "day/changes.h"
#include "day/keeping.h"
#include "desktop/main_window_test.h"
#include "desktop/shown_text.h"

#include <QLabel>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

const fs::path folder = "A Quillon PRO/Recovery";
const fs::path ownFile = folder / "MVR_20260314-1.recovery";
const fs::path leftFile = folder / "MVR_20260314-7.recovery";

class CardKeepingTest : public MainWindowTest {
protected:
    ~CardKeepingTest() override { keepWithin = usual; }

    void scratch(int entry) {
        answers = {"Yes"};
        click(child<QAbstractButton>(*window, QString{"ScratchButton%1"}.arg(entry)));
    }

    /// The program started anew after a crash with one scratch.
    void startAfterACrash() {
        startInWindow();
        scratch(1);
        KeepCard();
        fs::copy_file(ownFile, leftFile);
        changes.end();
        noticeChanges();
        StartUp();
        openWindow();
    }

    const milliseconds usual = keepWithin;
};

TEST_F(CardKeepingTest, AChangeIsKeptByItselfWhenItsTimeHasCome) {
    keepWithin = milliseconds{50};
    startInWindow();
    scratch(1);
    EXPECT_FALSE(exists(ownFile));
    EXPECT_TRUE(QTest::qWaitFor([] { return exists(ownFile); }));
    choose("Save");
    EXPECT_FALSE(exists(ownFile));
}

TEST_F(CardKeepingTest, TheStartSaysWhatWasLeftAndRestoresIt) {
    EXPECT_EQ("", notice("leftBehind"));
    startAfterACrash();
    const std::string text = notice("leftBehind");
    EXPECT_EQ(
        0U, text.find("Quillon ended without a close. What it kept: MVR, Saturday 14 March 2026, 1 change, "))
        << text;
    EXPECT_FALSE(cardIsOpen());
    click(child<QAbstractButton>(*window, "NoticeAction.leftBehind"));
    EXPECT_EQ("99.9", trimmed(card.entry(1, 1).rating));
    EXPECT_EQ("MVR, Saturday 14 March 2026[*]", window->windowTitle());
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ("", notice("leftBehind"));
    choose("Undo");
    EXPECT_NE("99.9", trimmed(card.entry(1, 1).rating));
    EXPECT_FALSE(exists(leftFile)); // as loaded: there is nothing to lose
}

TEST_F(CardKeepingTest, WhatIsPutAwayIsGone) {
    startAfterACrash();
    click(child<QAbstractButton>(*window, "NoticeAction.leftBehind.2"));
    EXPECT_EQ("", notice("leftBehind"));
    EXPECT_FALSE(exists(leftFile));
    EXPECT_FALSE(cardIsOpen());
}

TEST_F(CardKeepingTest, OneThatIsReadWaitsInTheMenu) {
    startAfterACrash();
    click(child<QWidget>(*window, "NoticeClose.leftBehind"));
    EXPECT_EQ("", notice("leftBehind"));
    choose("Recover");
    EXPECT_EQ("99.9", trimmed(card.entry(1, 1).rating));
}

TEST_F(CardKeepingTest, RestoringOverAnUnsavedCardAsks) {
    startAfterACrash();
    click(child<QAbstractButton>(*window, "Start"));
    scratch(2);
    choices = {cancelAnswer};
    choose("Recover");
    EXPECT_EQ((std::vector<std::string>{"MVR, Saturday 14 March 2026: 1 change is not saved."}), asked);
    EXPECT_NE("99.9", trimmed(card.entry(1, 1).rating));
    EXPECT_EQ("99.9", trimmed(card.entry(1, 2).rating));
    EXPECT_TRUE(exists(leftFile));
}

TEST_F(CardKeepingTest, AnEndThatDiscardsLeavesNothing) {
    startInWindow();
    scratch(1);
    KeepCard();
    ASSERT_TRUE(exists(ownFile));
    choices = {goOnAnswer};
    choose("Exit_QL");
    emit QApplication::instance()->aboutToQuit({}); // the tests' own application goes on
    EXPECT_FALSE(exists(ownFile));
}

TEST_F(CardKeepingTest, ACardThatCanNotBeKeptIsTold) {
    startInWindow();
    put(folder, "a file in its place");
    scratch(1);
    EXPECT_FALSE(attempt(KeepCard));
    const QString told = child<QWidget>(*window, "NoticeBar").findChild<QLabel*>()->accessibleName();
    EXPECT_TRUE(told.endsWith("So a crash would lose the changes that are not saved.")) << told.toStdString();
}

} // namespace
} // namespace quillon

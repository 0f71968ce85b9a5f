#include "desktop/fault_journal_dialog.h"

#include "core/failure.h"
#include "core/journal.h"
#include "desktop/window_test.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>

namespace quillon {
namespace {

struct FaultJournalTest : WindowTest {
    FaultJournalTest() { journal.clear(); }

    static void addFaults(int count) {
        for (int n = 1; n <= count; ++n) journal.add({"WPS", "line " + std::to_string(n)});
    }
    static QString countsOf(FaultJournalDialog& dialog) {
        return child<QLabel>(dialog, "FaultCounts").text();
    }
    static CellTableView& tableOf(FaultJournalDialog& dialog) {
        return child<CellTableView>(dialog, "FaultTable");
    }
};

TEST_F(FaultJournalTest, AnEmptyJournalSaysSo) {
    FaultJournalDialog dialog{appearance};
    EXPECT_EQ("Nothing was passed over since the start.", countsOf(dialog));
    EXPECT_EQ(0, tableOf(dialog).model()->rowCount());
}

TEST_F(FaultJournalTest, TheLastThousandAreShownAndAllAreCounted) {
    addFaults(1204);
    passOver();
    FaultJournalDialog dialog{appearance};
    EXPECT_EQ("1,204 passed over since the start; the last 1,000 are kept."
              " Readings that found nothing, as on any card in good order: 1.",
              countsOf(dialog));
    const auto* model = tableOf(dialog).model();
    ASSERT_EQ(1000, model->rowCount());
    EXPECT_EQ("line 205", model->index(0, 1).data().toString()); // 1,204 less 1,000, and the one after it
    EXPECT_EQ("line 1204", model->index(999, 1).data().toString());
    EXPECT_EQ("WPS", model->index(999, 0).data().toString());
}

TEST_F(FaultJournalTest, RefreshTakesUpWhatHasComeInSince) {
    addFaults(1);
    FaultJournalDialog dialog{appearance};
    addFaults(2);
    EXPECT_EQ(1, tableOf(dialog).model()->rowCount());
    click(child<QPushButton>(dialog, "RefreshFaults"));
    EXPECT_EQ(3, tableOf(dialog).model()->rowCount());
    EXPECT_EQ("3 passed over since the start.", countsOf(dialog));
}

TEST_F(FaultJournalTest, CopyTakesAllLinesOrTheSelectedOnes) {
    addFaults(2);
    FaultJournalDialog dialog{appearance};
    click(child<QPushButton>(dialog, "CopyFaults"));
    EXPECT_EQ("WPS\tline 1\nWPS\tline 2\n", QApplication::clipboard()->text());
    tableOf(dialog).selectRow(1);
    click(child<QPushButton>(dialog, "CopyFaults"));
    EXPECT_EQ("Step\tWhat\nWPS\tline 2", QApplication::clipboard()->text());
}

TEST_F(FaultJournalTest, ItIsSavedAsText) {
    journal.add({"Load", "Ren\xE9"
                         "e"});
    const FaultJournalDialog dialog{appearance};
    EXPECT_TRUE(dialog.saveTo("faults.txt"));
    EXPECT_EQ("Load\tRen\xC3\xA9"
              "e\n",
              contentOf("faults.txt"));
    EXPECT_FALSE(dialog.saveTo("no such folder/faults.txt"));
}

} // namespace
} // namespace quillon

#include "desktop/print_preview.h"

#include "desktop/window_test.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsView>
#include <QLabel>
#include <QPrinterInfo>
#include <QScrollBar>
#include <QStatusBar>

namespace quillon {
namespace {

using Page = std::vector<PrintedLine>;

PrintDocument documentOf(int lines, const QString& line) {
    PrintDocument document;
    document.name = "M1_20260314";
    for (int i = 0; i < lines; ++i) document.addLine(line);
    return document;
}

// The pages of a PDF file, by the entry of each in its page tree.
int pagesOfPdf(const std::string& pdf) {
    int pages = 0;
    for (auto at = pdf.find("/Type /Page"); at != std::string::npos; at = pdf.find("/Type /Page", at + 1))
        if (pdf.compare(at, 12, "/Type /Pages") != 0) ++pages;
    return pages;
}

TEST(PrintedPages, AFullPageEndsAndASectionBeginsOne) {
    PrintDocument document;
    for (const char* line : {"a", "b", "c"}) document.addLine(line);
    document.beginPage();
    document.addLine("d", true);
    const std::vector<Page> expected{{{"a"}, {"b"}}, {{"c"}}, {{"d", true}}};
    EXPECT_EQ(expected, pagesOf(document, 80, 2));
}

TEST(PrintedPages, ASectionWithoutATextMakesNoPage) {
    PrintDocument document;
    document.addLine("a");
    document.beginPage();
    document.addLine("  ");
    document.beginPage();
    EXPECT_EQ(1U, pagesOf(document, 80, 10).size());
    EXPECT_TRUE(pagesOf(PrintDocument{}, 80, 10).empty());
}

TEST(PrintedPages, ALongLineGoesOnInTheNextRow) {
    PrintDocument document;
    document.addLine("abcdefgh", true);
    document.addLine("");
    EXPECT_EQ((std::vector<Page>{{{"abc", true}, {"def", true}, {"gh", true}}, {{""}}}),
              pagesOf(document, 3, 3));
}

TEST(PrintedPages, TabsBecomeBlanksToTheNextColumnOfEight) {
    PrintDocument document;
    document.addLine("ab\tc\td");
    EXPECT_EQ("ab      c       d", document.sections.front().front().text);
}

TEST(PrintedPages, MoreThanAHundredCharactersLieAcrossThePage) {
    EXPECT_FALSE(wantsLandscape(documentOf(1, QString(100, 'x'))));
    EXPECT_TRUE(wantsLandscape(documentOf(1, QString(101, 'x'))));
}

TEST(PrintedPages, AnEntryIsNotSplit) {
    PrintDocument document;
    for (const char* head : {"A", "B", "C"}) {
        document.addLine(head, true);
        document.addLine("line 1");
        document.addLine("line 2");
    }
    // Three rows each on pages of eight: the third would begin on row 7.
    const Page entry{{"C", true}, {"line 1"}, {"line 2"}};
    const auto pages = pagesOf(document, 80, 8);
    ASSERT_EQ(2U, pages.size());
    EXPECT_EQ(6U, pages[0].size());
    EXPECT_EQ(entry, pages[1]);
}

TEST(PrintedPages, AParagraphOfMoreThanHalfAPageIsSplitWhereThePageEnds) {
    PrintDocument document;
    document.addLine("head", true);
    for (int line = 0; line < 9; ++line) document.addLine("line");
    const auto pages = pagesOf(document, 80, 8);
    ASSERT_EQ(2U, pages.size());
    EXPECT_EQ(8U, pages[0].size());
}

struct PrintPreviewTest : WindowTest {};

TEST_F(PrintPreviewTest, APdfHasAPageForEachSection) {
    PrintDocument document = documentOf(10, "RACE 1");
    document.beginPage();
    document.addLine("RACE 2");
    document.beginPage(); // the rule after the last race
    PrintPreview preview{document};
    ASSERT_TRUE(preview.savePdf("program.pdf"));
    EXPECT_EQ(2, pagesOfPdf(contentOf("program.pdf")));
    EXPECT_EQ(2, preview.pageCount());
}

// 300 lines at 10 points: a line is at least 10 points high, and an A4 or Letter page less than 842, so at
// least 300 / 84 = 3.6 pages; and at most 15 points high on more than 500 points, so at most 300 / 33 = 9.1.
TEST_F(PrintPreviewTest, FullPagesBreak) {
    PrintPreview preview{documentOf(300, "a line")};
    EXPECT_GE(preview.pageCount(), 4);
    EXPECT_LE(preview.pageCount(), 10);
    ASSERT_TRUE(preview.savePdf("lines.pdf"));
    EXPECT_EQ(preview.pageCount(), pagesOfPdf(contentOf("lines.pdf")));
}

TEST_F(PrintPreviewTest, LongLinesLieAcrossAndTheUserMayTurnThem) {
    PrintPreview preview{documentOf(30, QString(129, '-') + "x")}; // a page either way
    preview.show();
    EXPECT_TRUE(preview.isLandscape());
    EXPECT_TRUE(child<QAction>(preview, "Landscape").isChecked());
    child<QAction>(preview, "Portrait").trigger();
    EXPECT_FALSE(preview.isLandscape());
    EXPECT_EQ(1, preview.pageCount());
    EXPECT_EQ(" Page 1 of 1 ", child<QLabel>(preview, "PagePlace").text());
}

// 60 rows of 10 points don't stand on a page of 595 points, but do on 842, in smaller letters.
TEST_F(PrintPreviewTest, UprightPagesAreTakenWhereTheyAreHalfAsMany) {
    const PrintPreview preview{documentOf(60, QString(129, '-') + "x")};
    EXPECT_FALSE(preview.isLandscape());
    EXPECT_EQ(1, preview.pageCount());
}

TEST_F(PrintPreviewTest, ThePageInTheMiddleOfTheViewIsToldWhileItIsScrolled) {
    PrintDocument document = documentOf(1, "RACE 1");
    for (int race = 2; race <= 5; ++race) {
        document.beginPage();
        document.addLine("RACE");
    }
    PrintPreview preview{document};
    preview.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&preview));
    QApplication::processEvents();
    auto& place = child<QLabel>(preview, "PagePlace");
    EXPECT_EQ(" Page 1 of 5 ", place.text());
    auto* view = preview.findChild<QGraphicsView*>();
    ASSERT_TRUE(view);
    QScrollBar& bar = *view->verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    bar.setValue(bar.maximum());
    EXPECT_EQ(" Page 5 of 5 ", place.text());
    bar.setValue(bar.maximum() / 2); // five pages of the same size: the third is in the middle
    EXPECT_EQ(" Page 3 of 5 ", place.text());
    child<QAction>(preview, "NextPage").trigger();
    EXPECT_EQ(" Page 4 of 5 ", place.text());
}

TEST_F(PrintPreviewTest, WithoutAPrinterASentenceSaysWhatToDo) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "there is a printer";
    PrintPreview preview{documentOf(1, "x")};
    preview.show();
    child<QAction>(preview, "Print").trigger();
    EXPECT_TRUE(preview.findChild<QStatusBar*>()->currentMessage().contains("no printer"));
}

TEST_F(PrintPreviewTest, AFileThatCantBeWrittenIsTold) {
    PrintPreview preview{documentOf(1, "x")};
    EXPECT_FALSE(preview.savePdf("no such folder/x.pdf"));
}

} // namespace
} // namespace quillon

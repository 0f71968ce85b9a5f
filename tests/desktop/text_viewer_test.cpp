#include "desktop/text_viewer.h"

#include "desktop/dialog_answers.h"
#include "desktop/find_bar.h"
#include "desktop/print_preview.h"
#include "desktop/window_test.h"

#include <QLabel>
#include <QMessageBox>

namespace quillon {
namespace {

using Lines = std::vector<Text>;

TEST(EditableText, LinesKeepTheEndsThatTheyHaveInTheFile) {
    const std::vector<FileLine> expected{{"a", "\r\n"}, {"", "\r\r\n"}, {"b", "\n"}, {"c", ""}};
    EXPECT_EQ(expected, fileLines("a\r\n\r\r\nb\nc"));
    EXPECT_EQ((std::vector<FileLine>{{"", ""}}), fileLines(""));
    EXPECT_EQ((std::vector<FileLine>{{"a\rb", "\r\n"}, {"", ""}}), fileLines("a\rb\r\n"));
}

TEST(EditableText, EveryByteOfAnUntouchedFileComesBack) {
    Text content;
    for (int byte = 0; byte < 256; ++byte) content += static_cast<char>(byte);
    content += "\r\r\nx\r\n\n\r\r\r\n\r";
    const std::vector<FileLine> old = fileLines(content);
    Lines lines;
    for (const FileLine& line : old) lines.push_back(editedLine(editableLine(line.text)));
    EXPECT_EQ(content, editedContent(old, lines));
}

TEST(EditableText, ControlCharactersAreShownByTheirPictures) {
    EXPECT_EQ(QString::fromUtf8("a\u2400\u240d\tb\u2421"), editableLine(Text{"a\0\r\tb\x7F", 6}));
}

struct EndsCase {
    const char* what;
    Lines lines;
    const char* content;
};

// The old file: one CR CR LF b CR LF c CR CR LF d LF, and nothing after it.
TEST(EditableText, EndsFollowTheirLinesAndNewLinesEndInCrLf) {
    const std::vector<FileLine> old = fileLines("a\r\r\nb\r\nc\r\r\nd\n");
    const std::vector<EndsCase> cases{
        {"nothing", {"a", "b", "c", "d", ""}, "a\r\r\nb\r\nc\r\r\nd\n"},
        {"a line changed", {"a", "b", "C", "d", ""}, "a\r\r\nb\r\nC\r\r\nd\n"},
        {"a line put in", {"a", "new", "b", "c", "d", ""}, "a\r\r\nnew\r\nb\r\nc\r\r\nd\n"},
        {"a line taken out", {"a", "c", "d", ""}, "a\r\r\nc\r\r\nd\n"},
        {"two places", {"x", "a", "b", "c", "D", ""}, "x\r\na\r\r\nb\r\nc\r\r\nD\n"},
        {"lines at the end", {"a", "b", "c", "d", "e", "f"}, "a\r\r\nb\r\nc\r\r\nd\ne\r\nf"},
        {"the last line end taken out", {"a", "b", "c", "d"}, "a\r\r\nb\r\nc\r\r\nd"},
        {"everything", {"z"}, "z"},
    };
    for (const EndsCase& row : cases) EXPECT_EQ(row.content, editedContent(old, row.lines)) << row.what;
}

TEST(EditableText, CharactersOutsideTheCodePageAreTold) {
    const auto isKept = [](const QString& line) { return canBeKept(line, editedLine(line)); };
    EXPECT_TRUE(isKept(QString::fromUtf8("Ren\u00e9e? \u20ac\t\u2400")));
    EXPECT_FALSE(isKept(QString::fromUtf8("?\u0416")));
    EXPECT_FALSE(isKept(QString::fromUtf8("\U0001F40E"))); // a horse, beyond the first plane
}

struct TextViewerTest : WindowTest {
    const FilePlace file{Folder::results, "M1_20260314.pmr"};
    const std::filesystem::path path = "A Quillon PRO/Results/M1_20260314.pmr";

    static QPlainTextEdit& editorOf(TextViewer& viewer) { return child<QPlainTextEdit>(viewer, "Text"); }
    /// Shortcuts come to the active window alone.
    static void showActive(TextViewer& viewer) {
        viewer.show();
        QApplication::setActiveWindow(&viewer);
    }
    static QString noticeOf(TextViewer& viewer) { return child<QLabel>(viewer, "Notice").text(); }
};

TEST_F(TextViewerTest, AFileIsShownInItsCharactersAndFixedPitch) {
    put(path, "Ren\xE9"
              "e\r\r\nb\r\n");
    TextViewer viewer{file, appearance};
    EXPECT_EQ(QString::fromUtf8("Ren\u00e9e\nb\n"), editorOf(viewer).toPlainText());
    EXPECT_TRUE(QFontInfo{editorOf(viewer).font()}.fixedPitch());
    EXPECT_EQ("", noticeOf(viewer));
    EXPECT_FALSE(viewer.isModified());
}

TEST_F(TextViewerTest, WhatIsTypedIsSavedAndTheRestStaysByteForByte) {
    put(path, "a\r\r\nb\n\x81\x9D\r\n");
    TextViewer viewer{file, appearance};
    showActive(viewer);
    QTest::keyClicks(&editorOf(viewer), "x");
    EXPECT_TRUE(viewer.isModified());
    QTest::keyClick(&editorOf(viewer), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("xa\r\r\nb\n\x81\x9D\r\n", contentOf(path));
    EXPECT_FALSE(viewer.isModified());
}

TEST_F(TextViewerTest, ALineBreakOfEitherKindIsALineOfTheFile) {
    TextViewer viewer{file, appearance};
    showActive(viewer);
    QTest::keyClicks(&editorOf(viewer), "a");
    QTest::keyClick(&editorOf(viewer), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&editorOf(viewer), "b");
    QTest::keyClick(&editorOf(viewer), Qt::Key_Return);
    EXPECT_TRUE(viewer.save());
    EXPECT_EQ("a\r\nb\r\n", contentOf(path));
}

TEST_F(TextViewerTest, AMissingFileIsEmptyAndMadeBySave) {
    TextViewer viewer{file, appearance};
    EXPECT_EQ("This file is not there yet; saving makes it.", noticeOf(viewer));
    EXPECT_FALSE(exists(path));
    editorOf(viewer).insertPlainText("Results");
    EXPECT_TRUE(viewer.save());
    EXPECT_EQ("Results", contentOf(path));
    EXPECT_EQ("", noticeOf(viewer));
}

TEST_F(TextViewerTest, AFileThatChangedMeanwhileIsReplacedOnlyOnYes) {
    put(path, "old");
    TextViewer viewer{file, appearance};
    editorOf(viewer).insertPlainText("mine ");
    put(path, "somebody else's");
    DialogAnswers no{QMessageBox::No};
    EXPECT_FALSE(viewer.save());
    EXPECT_EQ(1, no.count());
    EXPECT_EQ("somebody else's", contentOf(path));
    EXPECT_TRUE(viewer.isModified());
    DialogAnswers yes{QMessageBox::Yes};
    EXPECT_TRUE(viewer.save());
    EXPECT_EQ("mine old", contentOf(path));
}

TEST_F(TextViewerTest, CharactersThatWouldBeLostAreAskedFor) {
    TextViewer viewer{file, appearance};
    editorOf(viewer).insertPlainText(QString::fromUtf8("\u0416 7"));
    DialogAnswers no{QMessageBox::No};
    EXPECT_FALSE(viewer.save());
    DialogAnswers yes{QMessageBox::Yes};
    EXPECT_TRUE(viewer.save());
    EXPECT_EQ("? 7", contentOf(path));
}

TEST_F(TextViewerTest, AFileThatCantBeWrittenIsToldAndTheTextKept) {
    put("A Quillon PRO/Results", "a file where the folder should be");
    TextViewer viewer{file, appearance};
    editorOf(viewer).insertPlainText("text");
    DialogAnswers ok{QMessageBox::Ok};
    EXPECT_FALSE(viewer.save());
    EXPECT_EQ(1, ok.count());
    EXPECT_TRUE(viewer.isModified());
    EXPECT_EQ("text", editorOf(viewer).toPlainText());
}

TEST_F(TextViewerTest, ClosingAsksForUnsavedText) {
    put(path, "old");
    TextViewer viewer{file, appearance};
    viewer.show();
    editorOf(viewer).insertPlainText("new ");
    DialogAnswers cancel{QMessageBox::Cancel};
    EXPECT_FALSE(viewer.close());
    DialogAnswers save{QMessageBox::Save};
    EXPECT_TRUE(viewer.close());
    EXPECT_EQ("new old", contentOf(path));
}

TEST_F(TextViewerTest, DiscardedTextIsNotSaved) {
    put(path, "old");
    TextViewer viewer{file, appearance};
    viewer.show();
    editorOf(viewer).insertPlainText("new ");
    DialogAnswers discard{QMessageBox::Discard};
    EXPECT_TRUE(viewer.close());
    EXPECT_EQ("old", contentOf(path));
}

TEST_F(TextViewerTest, AnUntouchedTextTakesUpWhatTheDiskHolds) {
    put(path, "old");
    TextViewer viewer{file, appearance};
    put(path, "newer");
    viewer.takeUpFile();
    EXPECT_EQ("newer", editorOf(viewer).toPlainText());
    editorOf(viewer).insertPlainText("x");
    put(path, "newest of all");
    viewer.takeUpFile();
    EXPECT_EQ("xnewer", editorOf(viewer).toPlainText());
}

TEST_F(TextViewerTest, OfAHugeFileTheEndIsShownToBeRead) {
    std::filesystem::create_directories("A Quillon PRO/Results");
    const Text line =
        "0123456789012345678901234567890123456789012345678901234567890123456789\r\n"; // 72 bytes
    Text content;
    while (content.size() <= TextViewer::largestEdited) content += line;
    put(path, content + "last line");
    QElapsedTimer clock;
    clock.start();
    TextViewer viewer{file, appearance};
    EXPECT_LT(clock.elapsed(), 3000);
    EXPECT_TRUE(editorOf(viewer).isReadOnly());
    EXPECT_TRUE(noticeOf(viewer).contains("too large"));
    EXPECT_TRUE(editorOf(viewer).toPlainText().startsWith("0123"));
    EXPECT_TRUE(editorOf(viewer).toPlainText().endsWith("last line"));
    EXPECT_FALSE(viewer.save());
}

TEST_F(TextViewerTest, FindGoesRoundTheText) {
    put(path, "Blue Ribbon Bess\r\nCorner Boy\r\nBlue Moon\r\n");
    TextViewer viewer{file, appearance};
    showActive(viewer);
    QTest::keyClick(&editorOf(viewer), Qt::Key_F, Qt::ControlModifier);
    auto& field = child<QLineEdit>(viewer, "FindField");
    EXPECT_TRUE(child<FindBar>(viewer, "FindBar").isVisible());
    QTest::keyClicks(&field, "blue");
    const auto lineFound = [&] { return editorOf(viewer).textCursor().blockNumber(); };
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(0, lineFound());
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(2, lineFound());
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(0, lineFound());
    QTest::keyClick(&field, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(2, lineFound());
    field.setText("nobody");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ("not found", child<QLabel>(viewer, "FindWords").text());
    EXPECT_EQ(2, lineFound());
}

TEST_F(TextViewerTest, PrintOpensThePreviewOfTheText) {
    put(path, "one page\r\n");
    TextViewer viewer{file, appearance};
    showActive(viewer);
    QTest::keyClick(&editorOf(viewer), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(1, child<PrintPreview>(viewer, "PrintPreview").pageCount());
}

TEST_F(TextViewerTest, TheCursorsLineAndColumnCountFromOne) {
    put(path, "abc\r\ndef\r\n");
    TextViewer viewer{file, appearance};
    showActive(viewer);
    QTest::keyClick(&editorOf(viewer), Qt::Key_Down);
    QTest::keyClick(&editorOf(viewer), Qt::Key_Right);
    EXPECT_EQ("Line 2, column 2", child<QLabel>(viewer, "Place").text());
}

TEST_F(TextViewerTest, ZoomEnlargesTheText) {
    TextViewer viewer{file, appearance};
    const qreal before = editorOf(viewer).font().pointSizeF();
    appearance.setZoom(150);
    EXPECT_DOUBLE_EQ(1.5 * before, editorOf(viewer).font().pointSizeF());
}

} // namespace
} // namespace quillon

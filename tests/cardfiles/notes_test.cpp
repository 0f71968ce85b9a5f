#include "cardfiles/notes.h"

#include "support/card_test.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr const char* file = "Notes.txt";

class NotesTest : public CardTest {
protected:
    NotesTest() {
        card.cardFileName = "MVR_20260314.pmd";
        card.cardDate = "20260314";
    }

    static std::vector<NoteLine> on(TextView name) {
        notes.takeUp();
        return notes.on(name);
    }
    static std::vector<Text> textsOn(TextView name) {
        std::vector<Text> texts;
        for (const NoteLine& note : on(name)) texts.push_back(note.text);
        return texts;
    }
};

using Texts = std::vector<Text>;

TEST_F(NotesTest, ANoteIsALineWithTheCardItWasWrittenOn) {
    Note("Cranberry Bog = wants the rail");
    EXPECT_EQ("20260314\tMVR_20260314\tCranberry Bog\twants the rail\r\n", contentOf(file));
    EXPECT_EQ((std::vector<NoteLine>{{"20260314", "MVR_20260314", "Cranberry Bog", "wants the rail"}}),
              on("Cranberry Bog"));
}

TEST_F(NotesTest, NamesMatchWhateverTheirCaseAndTheBlanksAtTheirEnds) {
    Note("Cranberry Bog = one");
    Note("  CRANBERRY BOG  =  two  ");
    Note("Cranberry Bogs = of another horse");
    EXPECT_EQ((Texts{"one", "two"}), textsOn(" cranberry bog "));
    Note("Caf\xE9 Noir = accents too");
    EXPECT_EQ((Texts{"accents too"}), textsOn("CAF\xC9 NOIR"));
    EXPECT_TRUE(on("Cranberry").empty());
    EXPECT_TRUE(on("").empty());
}

TEST_F(NotesTest, ANoteIsFoundOnALaterCardAndTheOrderIsThatOfTheFile) {
    Note("Roe, C = of March");
    card.cardFileName = "NFLD_20260412.pmd";
    card.cardDate = "20260412";
    Note("Roe, C = of April");
    EXPECT_EQ((std::vector<NoteLine>{{"20260314", "MVR_20260314", "Roe, C", "of March"},
                                     {"20260412", "NFLD_20260412", "Roe, C", "of April"}}),
              on("roe, c"));
}

TEST_F(NotesTest, ANoteOnARaceBelongsToItsCard) {
    Note("Race 3 = a duel early on");
    notes.takeUp();
    ASSERT_EQ(1u, notes.onRace(3).size());
    EXPECT_EQ("a duel early on", notes.onRace(3)[0].text);
    EXPECT_TRUE(notes.onRace(2).empty());
    card.cardFileName = "MVR_20260321.pmd";
    EXPECT_TRUE(notes.onRace(3).empty());
}

TEST_F(NotesTest, WordsAreTakenApartAtTheFirstSign) {
    const auto note = noteWords(" Bold Eagle=1:52 = fast ");
    ASSERT_TRUE(note);
    EXPECT_EQ("Bold Eagle", note->name);
    EXPECT_EQ("1:52 = fast", note->text);
    for (const char* words : {"", "Bold Eagle", "= text", "   = text", "Bold Eagle =", "Bold Eagle = \t "})
        EXPECT_FALSE(noteWords(words)) << words;
}

TEST_F(NotesTest, ANoteStaysOnItsLine) {
    Note("Bold\tEagle = first\r\nsecond\tthird");
    EXPECT_EQ("20260314\tMVR_20260314\tBold Eagle\tfirst  second third\r\n", contentOf(file));
}

TEST_F(NotesTest, TheFileIsUtf8) {
    Note("Caf\xE9 = \x80 5");
    EXPECT_EQ("20260314\tMVR_20260314\tCaf\xC3\xA9\t\xE2\x82\xAC 5\r\n", contentOf(file));
    EXPECT_EQ((Texts{"\x80 5"}), textsOn("Caf\xE9"));
}

TEST_F(NotesTest, LinesThatAreNoNotesStayAsTheyAre) {
    const Text strange = "\xEF\xBB\xBF# my own remark\n"
                         "20260301\tNFLD_20260301\tRoe, C\twith LF\n"
                         "\r\n"
                         "only\ttwo places\r\n"
                         "a\tb\t \tno name\r\n"
                         "a\tb\tRoe, C\t\r\n"
                         "20260302\tNFLD_20260302\tRoe, C\twith\ttab\r\n"
                         "20260303\tNFLD_20260303\tRoe, C\tno UTF-8: \xFF\xFE\r\n"
                         "20260304\tNFLD_20260304\tRoe, C\ttorn";
    put(file, strange);
    EXPECT_EQ((Texts{"with LF", "with\ttab", "no UTF-8: ??", "torn"}), textsOn("Roe, C"));
    Note("Roe, C = new");
    EXPECT_EQ(strange + "\r\n20260314\tMVR_20260314\tRoe, C\tnew\r\n", contentOf(file));
    EXPECT_EQ((Texts{"with LF", "with\ttab", "no UTF-8: ??", "torn", "new"}), textsOn("Roe, C"));
}

TEST_F(NotesTest, TheMarkBeforeTheFirstLineIsNotPartOfIt) {
    put(file, "\xEF\xBB\xBF"
              "20260301\tNFLD_20260301\tRoe, C\tfirst\r\n");
    ASSERT_EQ(1u, on("Roe, C").size());
    EXPECT_EQ("20260301", on("Roe, C")[0].date);
}

TEST_F(NotesTest, WhatAnotherProgramWroteMeanwhileStaysAndIsFound) {
    Note("Roe, C = mine");
    EXPECT_EQ((Texts{"mine"}), textsOn("Roe, C"));
    put(file, contentOf(file) + "20260314\tMVR_20260314\tRoe, C\ttheirs\r\n");
    Note("Roe, C = mine again");
    EXPECT_EQ((Texts{"mine", "theirs", "mine again"}), textsOn("Roe, C"));
}

TEST_F(NotesTest, WithoutANoteThereIsNoFile) {
    EXPECT_TRUE(on("Roe, C").empty());
    EXPECT_FALSE(exists(file));
    Note("Roe, C = one");
    std::filesystem::remove(file);
    EXPECT_TRUE(on("Roe, C").empty());
}

TEST_F(NotesTest, AFileThatCanNotBeWrittenIsTold) {
    std::filesystem::create_directory(file);
    Note("Roe, C = lost");
    EXPECT_EQ((std::vector<std::string>{"error: File can't be written: Notes.txt"}), shown);
}

TEST_F(NotesTest, TheLastOddsOfTheCardsEntryCount) {
    keepOdds(3, " 5", "5/2 ");
    keepOdds(3, "5", "3.5");
    keepOdds(3, "6", "9/1");
    keepOdds(3, "6", "");
    notes.takeUp();
    EXPECT_EQ("3.5", notes.odds(3, "5 "));
    EXPECT_EQ("", notes.odds(3, "6"));
    EXPECT_EQ("", notes.odds(4, "5"));
    card.cardFileName = "NFLD_20260315.pmd";
    EXPECT_EQ("", notes.odds(3, "5"));
}

TEST_F(NotesTest, ALargeFileKeepsEveryLine) {
    const Text line = "20260301\tNFLD_20260301\tRoe, C\t" + Text(64, 'x') + "\r\n"; // 96 bytes
    constexpr std::size_t lines = 110'000;                                          // above 10 MB
    Text content;
    for (std::size_t at = 0; at < lines; ++at) content += line;
    put(file, content);
    Note("Roe, C = the last");
    EXPECT_EQ(lines + 1, on("Roe, C").size());
    EXPECT_TRUE(contentOf(file).starts_with(content));
    EXPECT_EQ("the last", on("Roe, C").back().text);
}

} // namespace
} // namespace quillon

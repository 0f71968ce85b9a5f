#include "results/card_notes.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "screen/race_views.h"
#include "support/card_test.h"

namespace quillon {
namespace {

class CardNotesTest : public CardTest {
protected:
    CardNotesTest() {
        card.cardFileName = "MVR_20260314.pmd";
        card.raceCount = 3;
        enter(1, 1, "Cranberry Bog", "Roe, C", "Amber, B");
        enter(3, 2, "Plain Biscuit  ", "Roe, C", "Amber, B");
    }

    static void enter(int race, int row, const char* horse, const char* driver, const char* trainer) {
        raceViewOf(race)(row, RaceColumn::horseName).text = horse;
        raceViewOf(race)(row, RaceColumn::driver).text = driver;
        card.entry[{race, row}].trainerName = trainer;
    }

    static void putNotes(const Text& content) {
        put("Notes.txt", content);
        notes.takeUp();
    }
};

TEST_F(CardNotesTest, AnEntrysNotesAreTheHorsesThenTheDriversThenTheTrainers) {
    putNotes("20260301\tA_20260301\tAMBER, B\tof the trainer\r\n"
             "20260302\tA_20260302\troe, c\tof the driver\r\n"
             "20260303\tA_20260303\tplain biscuit\tof the horse\r\n");
    std::vector<Text> texts;
    for (const NoteLine& note : notesOnEntry(3, 2)) texts.push_back(note.text);
    EXPECT_EQ((std::vector<Text>{"of the horse", "of the driver", "of the trainer"}), texts);
    EXPECT_TRUE(notesOnEntry(3, 1).empty()); // no horse there
    EXPECT_EQ(2u, notesOnEntry(1, 1).size());
}

TEST_F(CardNotesTest, WithoutNotesNothingIsPrinted) {
    notes.takeUp();
    PrintCardNotes();
    putNotes("20260301\tA_20260301\tNobody\tof another card\r\n");
    PrintCardNotes();
    EXPECT_TRUE(shown.empty());
}

TEST_F(CardNotesTest, NotesArePrintedRaceByRace) {
    putNotes("20260314\tMVR_20260314\tRace 3\twindy\r\n"
             "20260301\tA_20260301\tRoe, C\tback from a rest\r\n");
    PrintCardNotes();
    EXPECT_EQ(
        (std::vector<std::string>{"print new page", "print emphasised: Notes", "print emphasised: RACE 1",
                                  "print: Roe, C, 20260301 A_20260301: back from a rest",
                                  "print emphasised: RACE 3", "print: Race 3, 20260314 MVR_20260314: windy",
                                  "print: Roe, C, 20260301 A_20260301: back from a rest"}),
        shown);
}

// "Roe, C, 20260301 A_20260301: " has 29 characters, so 47 more stand in the first row of 76.
TEST_F(CardNotesTest, ALongNoteIsBrokenAtBlanks) {
    const Text ten = "123456789 ";
    putNotes("20260301\tA_20260301\tRoe, C\t" + ten + ten + ten + ten + ten + "end\r\n");
    PrintCardNotes();
    ASSERT_GE(shown.size(), 5u);
    EXPECT_EQ("print: Roe, C, 20260301 A_20260301: 123456789 123456789 123456789 123456789", shown[3]);
    EXPECT_EQ("print:     123456789 end", shown[4]);
}

} // namespace
} // namespace quillon

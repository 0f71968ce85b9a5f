#include "app/refusals.h"

#include "support/card_test.h"

namespace quillon {
namespace {

class RefusalsTest : public CardTest {
protected:
    static void openCard() {
        screen.mode = CardMode::loaded;
        card.cardFileName = "M1_20260314.pmd";
    }
};

TEST_F(RefusalsTest, WithoutACardThereIsNothingToSumUpSaveOrRecord) {
    for (const CommandId id : {CommandId::SelectionResults, CommandId::Save, CommandId::NotePad,
                               CommandId::AutoRecord, CommandId::EBET, CommandId::Command7})
        EXPECT_FALSE(reasonAgainst(id).empty()) << static_cast<int>(id);
    EXPECT_EQ("", reasonAgainst(CommandId::Start));
    EXPECT_EQ("", reasonAgainst(CommandId::RecallRaceCard));
    openCard();
    for (const CommandId id : {CommandId::SelectionResults, CommandId::Save, CommandId::NotePad})
        EXPECT_EQ("", reasonAgainst(id)) << static_cast<int>(id);
}

TEST_F(RefusalsTest, AResultsPassWantsAResultsText) {
    openCard();
    EXPECT_NE("", reasonAgainst(CommandId::AutoRecord));
    EXPECT_EQ(reasonAgainst(CommandId::AutoRecord), reasonAgainst(CommandId::EBET));
    put("A Quillon PRO/Results/m1_20260314.PMR", "");
    EXPECT_EQ("", reasonAgainst(CommandId::AutoRecord));
    EXPECT_EQ("", reasonAgainst(CommandId::EBET));
}

TEST_F(RefusalsTest, ANumberedLineWantsAnOpenEntry) {
    openCard();
    EXPECT_NE("", reasonAgainst(CommandId::Command7));
    screen.pastPerformanceOpen = true;
    EXPECT_EQ("", reasonAgainst(CommandId::Command7));
}

TEST_F(RefusalsTest, ANewCardWantsItsProgram) {
    EXPECT_NE("", reasonAgainst(CommandId::NewRC));
    put("filemanager.exe", "");
    EXPECT_EQ("", reasonAgainst(CommandId::NewRC));
}

TEST_F(RefusalsTest, AfterARecallAndACloseThereIsNothingToStart) {
    screen.startOffer = StartOffer::viewRaces;
    EXPECT_NE("", reasonAgainst(CommandId::Start));
    screen.mode = CardMode::recalled;
    EXPECT_EQ("", reasonAgainst(CommandId::Start));
}

} // namespace
} // namespace quillon

#include "results/card_json.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "screen/race_views.h"
#include "screen/screen.h"
#include "support/card_test.h"

namespace quillon {
namespace {

class CardJsonTest : public CardTest {
protected:
    CardJsonTest() {
        screen.mode = CardMode::recalled;
        card.cardFileName = "MVR_20260314.pmd";
        card.cardDate = "20260314";
        card.raceCount = 1;
    }

    static bool tells(const std::string& part) { return cardAsJson().find(part) != std::string::npos; }
};

TEST_F(CardJsonTest, WithoutACardThereIsNoDocument) {
    screen.mode = CardMode::none;
    EXPECT_EQ("", cardAsJson());
}

TEST_F(CardJsonTest, AnEmptyRaceIsTheSkeletonOfTheDocument) {
    EXPECT_EQ(R"({"card":{"name":"MVR_20260314","track":"MVR","date":"20260314"},"races":[{"race":1,)"
              R"("conditions":{},"selections":[],"margin":null,"results":{"finish":["","","",""],)"
              R"("payoffs":{},"pickPayoffs":{}},"entries":[]}]})",
              cardAsJson());
}

TEST_F(CardJsonTest, ConditionsAreTextsWithoutTheBlanksAtTheirEnds) {
    card.raceInfo[{1}] = {.label = "1A", .purse = "  4500", .wagering = "Exacta Double (Races 1-2)"};
    EXPECT_TRUE(
        tells(R"-("label":"1A","conditions":{"purse":"4500","wagering":"Exacta Double (Races 1-2)"})-"));
}

// 71.5 less 65.8 is 5.7.
TEST_F(CardJsonTest, SelectionsHaveTheirRatingsAndTheMargin) {
    card.raceOutcome[{1, OutcomeCell::s1}] = "  5";
    card.raceOutcome[{1, OutcomeCell::s2}] = "  3";
    card.selection[{1, 1}] = {.selectionName = "Oughta Be Famous   ", .selectionRating = "65.8"};
    card.selection[{1, 2}] = {.selectionName = "Admiral Crumb", .selectionRating = "71.5"};
    EXPECT_TRUE(tells(R"("selections":[{"place":"S1","number":"5","horse":"Oughta Be Famous","rating":65.8},)"
                      R"({"place":"S2","number":"3","horse":"Admiral Crumb","rating":71.5}],"margin":5.7,)"
                      R"("betMark":"$$$$$")"))
        << cardAsJson();
}

TEST_F(CardJsonTest, ResultsAreFinishPayoffsAndPicks) {
    card.raceOutcome[{1, OutcomeCell::r1}] = "  3";
    card.raceOutcome[{1, OutcomeCell::r4}] = "7";
    card.payoffRecord[{1, PayoffCell::win}] = " 8.40";
    card.payoffRecord[{1, PayoffCell::superfecta}] = "112.00";
    card.pickPayoff[{1, 3}] = "55.20";
    EXPECT_TRUE(tells(R"("results":{"finish":["3","","","7"],"payoffs":{"win":"8.40","superfecta":"112.00"},)"
                      R"("pickPayoffs":{"3":"55.20"}})"))
        << cardAsJson();
}

TEST_F(CardJsonTest, AnEntryHasItsChosenLineByTheNamesOfTheFields) {
    RaceEntry& entry = card.entry[{1, 2}];
    entry.horseName = "Cranberry \"Bog\"     ";
    entry.programNumber = "  2";
    entry.chosenDriver = "Roe, C";
    entry.trainerName = "Amber, B";
    entry.morningOdds = "15/1";
    entry.rating = " 89.8";
    entry.chosen.TRACK = "NFLD";
    entry.chosen.CALL_2Q_PK = "\xBA\xBA";
    EXPECT_TRUE(tells(R"("entries":[{"entry":2,"number":"2","horse":"Cranberry \"Bog\"","driver":"Roe, C",)"
                      R"("trainer":"Amber, B","morningLine":"15/1","rating":89.8,"scratched":false,)"
                      R"("removed":false,"line":{"TRACK":"NFLD","CALL_2Q_PK":)"
                      "\""
                      "\xC2\xBA\xC2\xBA"
                      R"("}}])"))
        << cardAsJson();
}

TEST_F(CardJsonTest, ARatingThatIsNoNumberIsNull) {
    card.entry[{1, 1}].horseName = "First Starter";
    EXPECT_TRUE(tells(R"("horse":"First Starter","rating":null)"));
}

TEST_F(CardJsonTest, AScratchedEntryIsTold) {
    RaceEntry& entry = card.entry[{1, 1}];
    entry.horseName = "Dusty Road";
    entry.programNumber = "  4";
    entry.rating = "99.9";
    raceViewOf(1)(1, RaceColumn::horseName).text = "Dusty Road";
    card.payoffRecord[{1, PayoffCell::refunds}] = "2 4";
    EXPECT_TRUE(tells(R"("rating":99.9,"scratched":true,"removed":false)")) << cardAsJson();
}

TEST_F(CardJsonTest, PastLinesAreThoseOfTheEntry) {
    card.entry[{1, 2}].horseName = "Cranberry Bog";
    Grid& lines = dataViewOf(1);
    lines(1, DataColumn::post).text = "1"; // another entry's
    lines(1, DataColumn::date).text = "20260301";
    lines(2, DataColumn::post).text = "2";
    lines(2, DataColumn::date).text = "20260307";
    lines(2, DataColumn::finish).text = " 8";
    lines(2, DataColumn::odds).text = "4.15";
    lines(2, DataColumn::rating).text = " 89.8";
    EXPECT_TRUE(tells(R"("pastLines":[{"DATE":"20260307","CALL_FN_PO":"8","odds":"4.15","rating":89.8}]})"))
        << cardAsJson();
}

} // namespace
} // namespace quillon

#include "results/heats.h"

#include "core/failure.h"
#include "results/board.h"
#include "results/race_display.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// A card of 12 races. Race 3 is on show and has entries at posts 4 and 7.
class HeatTest : public CardTest {
protected:
    HeatTest() {
        card.raceCount = 12;
        card.cardFileName = "M1_20260314.pmd";
        screen.header.race = "3";
        enter(4, "Fast Nellie         ", "58.6");
        enter(7, "Slow Bill", "60.2");
    }

    static void enter(int post, const char* name, const char* rating) {
        RaceEntry& entry = card.entry(3, post);
        entry.horseName = name;
        entry.driverName = "Miller, A";
        entry.driverUdr = " .312";
        entry.rating = rating;
        screen.raceView[3](post, 3).text = std::to_string(post);
    }

    // The row's heat choice button with these answers.
    bool choose(int row, std::initializer_list<const char*> given) {
        answers.assign(given.begin(), given.end());
        return attempt([&] { HeatChoice(row); });
    }

    static void enterInHeat(int race, int post, const char* name, const char* rating) {
        card.entry(race, post).horseName = name;
        card.heatPost(race, post) = static_cast<Integer>(post);
        card.heatRating(race, post) = rating;
    }

    static std::array<Text, 4> selections() {
        return {screen.boxes[0].text, screen.boxes[1].text, screen.boxes[2].text, screen.boxes[3].text};
    }
};

using Selections = std::array<Text, 4>;

TEST_F(HeatTest, TheMarkShowsAndHidesTheTwelveChoiceButtons) {
    for (Button& button : screen.heatButtons) button = {.visible = false, .enabled = false};
    HeatWinner();
    EXPECT_TRUE(screen.item(CommandId::HeatWinner).checked);
    for (int row = 1; row <= 12; ++row) EXPECT_TRUE(screen.heatButtons.at(row).enabled) << row;
    for (int row = 1; row <= 12; ++row) EXPECT_TRUE(screen.heatButtons.at(row).visible) << row;
    EXPECT_FALSE(screen.heatButtons[0].visible);
    HeatWinner();
    EXPECT_FALSE(screen.item(CommandId::HeatWinner).checked);
    for (int row = 1; row <= 12; ++row) EXPECT_FALSE(screen.heatButtons.at(row).visible) << row;
}

// ---- entering a heat result

TEST_F(HeatTest, AHorseGoesOnToItsPostInTheFinal) {
    EXPECT_TRUE(choose(4, {"14", "1", "2"}));
    EXPECT_EQ(
        (std::vector<std::string>{
            "input [Heat Results]: Enter Heat Race Number -> 14",
            "input [Fast Nellie          Finish]: Enter Fast Nellie           finish positon  1-2-3-4  -> 1",
            "input [Fast Nellie          Finish]: Enter Fast Nellie           Post Position: -> 2"}),
        shown);
    EXPECT_EQ(2, card.heatPost(14, 2));
    EXPECT_EQ("58", card.heatRating(14, 2)); // 58.6 - 0.6
    EXPECT_EQ("Fast Nellie         ", card.entry(14, 2).horseName.text());
    EXPECT_EQ("Miller, A", card.entry(14, 2).driverName);
    EXPECT_EQ(" .312", card.entry(14, 2).driverUdr);
    EXPECT_EQ("58.6", card.entry(3, 4).rating); // its own race keeps what it has
    EXPECT_TRUE(screen.raceButtons[14].visible);
    EXPECT_EQ("14", screen.raceButtons[14].caption);
}

struct RatingRow {
    const char* what;
    int row;
    const char* finish;
    const char* post;
    const char* rating;
};
constexpr std::array ratingRows{
    RatingRow{"a win is worth 0.6", 4, "1", "2", "58"}, // 58.6 - 0.6
    RatingRow{"second 0.4", 4, "2", "2", "58.2"},       // 58.6 - 0.4
    RatingRow{"third 0.2", 4, "3", "2", "58.4"},        // 58.6 - 0.2
    RatingRow{"fourth 0.1", 4, "4", "2", "58.5"},       // 58.6 - 0.1
    RatingRow{"fifth nothing", 4, "5", "2", "58.6"},
    RatingRow{"no answer nothing", 4, "", "2", "58.6"},
    RatingRow{"no number nothing", 4, "won", "2", "58.6"},
    RatingRow{"post 5 is inside", 4, "1", "5", "58"},
    RatingRow{"post 6 earns half a point for each post of its own race", 4, "1", "6", "56"}, // 58 - 0.5 x 4
    RatingRow{"so at post 10 too", 4, "1", "10", "56"},                                      // not 0.5 x 10
    RatingRow{"from post 7", 7, "2", "8", "56.3"}, // 60.2 - 0.4 - 3.5
};

TEST_F(HeatTest, TheRatingIsImprovedByTheFinishAndForAnOutsidePost) {
    for (const RatingRow& row : ratingRows) {
        EXPECT_TRUE(choose(row.row, {"14", row.finish, row.post})) << row.what;
        EXPECT_EQ(row.rating, card.heatRating(14, std::stoi(row.post))) << row.what;
    }
}

TEST_F(HeatTest, ARatingThatIsNoNumberCountsAsNought) {
    card.entry(3, 4).rating = "     ";
    EXPECT_TRUE(choose(4, {"14", "1", "2"}));
    EXPECT_EQ("-0.6", card.heatRating(14, 2));
}

TEST_F(HeatTest, EachEntryAppendsAnEmptyLineAndItsOwnToTheLogOfTheHeat) {
    EXPECT_TRUE(choose(4, {"14", "1", "2"}));
    card.entry(14, 10).chosenDriver = "Young, B"; // stood in the slot before
    EXPECT_TRUE(choose(7, {"14", "2", "10"}));
    // post as a number in a list, name in 30, the slot's driver in
    // 15, UDR in 4 (five stay five), rating in 10
    const std::string nellie = " 2 " + std::string(10, ' ') + "Fast Nellie         " + std::string(15, ' ') +
                               " .312" + "        58\r\n";
    const std::string bill =
        " 10 " + std::string(21, ' ') + "Slow Bill" + "       Young, B" + " .312" + "      56.3\r\n";
    EXPECT_EQ("\r\n" + nellie + "\r\n" + bill, contentOf("A Quillon PRO/RACE(14).txt"));
}

TEST_F(HeatTest, ARerunOfAnEntryAppendsAnotherBlock) {
    EXPECT_TRUE(choose(4, {"14", "1", "2"}));
    const std::string once = contentOf("A Quillon PRO/RACE(14).txt");
    EXPECT_TRUE(choose(4, {"14", "1", "2"}));
    EXPECT_EQ(once + once, contentOf("A Quillon PRO/RACE(14).txt"));
}

TEST_F(HeatTest, ARaceWithoutAButtonIsToldAndNothingChanges) {
    for (const char* number : {"24", "0", "", "heat", "-13", "100000"}) {
        shown.clear();
        EXPECT_TRUE(choose(4, {number, "1", "2"})) << number;
        ASSERT_EQ(2U, shown.size()) << number;
        EXPECT_EQ("message: Race Number Exceeds Capacity", shown[1]) << number;
    }
    for (int race = 13; race <= 23; ++race) EXPECT_EQ("", card.heatRating(race, 2)) << race;
    EXPECT_FALSE(exists("A Quillon PRO/RACE(24).txt"));
}

TEST_F(HeatTest, TheLastButtonIs23) {
    EXPECT_TRUE(choose(4, {"23", "1", "2"}));
    EXPECT_EQ("58", card.heatRating(23, 2));
}

TEST_F(HeatTest, ARaceOfTheCardItselfIsNoFreeSlot) {
    card.entry(12, 2).horseName = "Old Tom";
    card.raceInfo(12).label = "12";
    EXPECT_FALSE(choose(4, {"12", "1", "2"}));
    EXPECT_EQ("Old Tom", card.entry(12, 2).horseName.text());
    EXPECT_EQ(0, card.heatPost(12, 2));
    EXPECT_EQ(1U, shown.size());
}

TEST_F(HeatTest, ACancelStoresNothing) {
    for (const std::size_t given : {0U, 1U, 2U}) {
        shown.clear();
        answers.assign({"14", "1"});
        answers.resize(given);
        HeatChoice(4);
        EXPECT_EQ(given + 1, shown.size()); // the box that was cancelled is the last
        EXPECT_EQ("", card.heatRating(14, 2)) << given;
    }
    EXPECT_FALSE(exists("A Quillon PRO/RACE(14).txt"));
}

TEST_F(HeatTest, APostThatTheSlotHasNotStoresNothing) {
    for (const char* post : {"", "0", "-1", "rail", "21", "99999"})
        EXPECT_FALSE(choose(4, {"14", "1", post})) << post;
    for (int post = 0; post <= 20; ++post) EXPECT_EQ("", card.entry(14, post).horseName.text()) << post;
    EXPECT_FALSE(exists("A Quillon PRO/RACE(14).txt"));
}

TEST_F(HeatTest, ARowWithoutAnEntryAsksNothing) {
    for (const int row : {-1, 0, 1, 13}) choose(row, {"14", "1", "2"});
    EXPECT_TRUE(shown.empty());
    screen.header.race.clear();
    choose(4, {"14", "1", "2"});
    EXPECT_TRUE(shown.empty());
}

TEST_F(HeatTest, TheEntryIsThePostInColumnThreeOfTheRow) {
    screen.raceView[3](1, 3).text = " 7";
    EXPECT_TRUE(choose(1, {"14", "5", "2"}));
    EXPECT_EQ("Slow Bill", card.entry(14, 2).horseName.text());
}

// ---- the log in the viewer

TEST_F(HeatTest, TheLogOfAHeatIsShownByItsNumber) {
    answers = {"14th"};
    ViewHeat();
    EXPECT_EQ((std::vector<std::string>{"input [Heat Races]: Enter Heat Race Number -> 14th",
                                        "view: C:\\A Quillon PRO\\RACE(14).txt"}),
              shown);
    EXPECT_EQ("NOTEPAD C:\\A Quillon PRO\\RACE(14).txt\r\n", contentOf("Archives.bat"));
}

TEST_F(HeatTest, TheLogIsShownThoughTheBatchFileCanNotBeWritten) {
    std::filesystem::create_directories("Archives.bat/in the way");
    answers = {"14"};
    ViewHeat();
    EXPECT_EQ("view: C:\\A Quillon PRO\\RACE(14).txt", shown.back());
}

TEST_F(HeatTest, ACancelShowsNoLog) {
    ViewHeat();
    EXPECT_EQ(1U, shown.size());
    EXPECT_FALSE(exists("Archives.bat"));
}

// ---- showing a heat

TEST_F(HeatTest, ItsButtonShowsTheSlotsEntries) {
    enterInHeat(14, 2, "Fast Nellie", "58");
    screen.raceView[14](5, 0).text = "of another card";
    RaceButton(14);
    const Grid& view = screen.raceView[14];
    EXPECT_EQ("Fast Nellie", view.text(2, 0));
    EXPECT_EQ("2", view.text(2, 2));
    EXPECT_EQ("2", view.text(2, 3));
    EXPECT_EQ("58", view.text(2, 32));
    EXPECT_EQ("", view.text(5, 0));
    EXPECT_EQ("", view.text(5, 2));
    EXPECT_EQ("5", view.text(5, 3)); // no post entered: the row's number
    EXPECT_EQ("", view.text(5, 32));
    EXPECT_EQ("12", view.text(12, 3));
    EXPECT_TRUE(screen.raceViewVisible[14]);
    EXPECT_EQ("14", screen.header.race);
    EXPECT_EQ("RACE:  14", screen.tote[0]);
}

TEST_F(HeatTest, ItsFourLowestRatingsAreTheSelections) {
    enterInHeat(14, 1, "A", "59.2");
    enterInHeat(14, 2, "B", "57.4");
    enterInHeat(14, 5, "C", "61");
    enterInHeat(14, 6, "D", "58");
    enterInHeat(14, 8, "E", "60.1");
    RaceButton(14);
    EXPECT_EQ((Selections{"2", "6", "1", "8"}), selections());
    EXPECT_EQ(2, card.rankEntry(1));
    EXPECT_EQ(8, card.rankEntry(4));
}

TEST_F(HeatTest, OfEqualRatingsTheLaterPostIsFirst) {
    enterInHeat(14, 1, "A", "58");
    enterInHeat(14, 2, "B", "58");
    enterInHeat(14, 3, "C", "60");
    enterInHeat(14, 4, "D", "62");
    RaceButton(14);
    EXPECT_EQ((Selections{"2", "1", "3", "4"}), selections());
}

TEST_F(HeatTest, FewerHorsesThanPlacesLeaveBoxesEmpty) {
    for (int place = 1; place <= 5; ++place) card.rankEntry(place) = 3; // of the race ranked last
    enterInHeat(14, 2, "B", "57.4");
    enterInHeat(14, 3, "C", "58");
    screen.boxes[3].text = "9";
    RaceButton(14);
    EXPECT_EQ((Selections{"2", "3", "", ""}), selections());
    EXPECT_EQ(3, card.rankEntry(4)); // a place that nobody takes stays as it was
}

TEST_F(HeatTest, SelectionsOfTheSlotGoBeforeTheRanking) {
    enterInHeat(14, 2, "B", "57.4");
    enterInHeat(14, 3, "C", "58");
    card.raceOutcome(14, 3) = "9";
    RaceButton(14);
    EXPECT_EQ((Selections{"", "", "9", ""}), selections());
}

TEST_F(HeatTest, ItStaysAHeatWhenItsButtonIsCountedAmongTheRaces) {
    EXPECT_TRUE(choose(4, {"13", "1", "2"}));
    card.raceCount = 13; // as the selection sheet counts the buttons that show
    EXPECT_TRUE(choose(7, {"13", "2", "3"}));
    RaceButton(13);
    EXPECT_EQ("Slow Bill", screen.raceView[13].text(3, 0));
    EXPECT_EQ((Selections{"2", "3", "", ""}), selections()); // 58.6 - 0.6 and 60.2 - 0.4
}

TEST_F(HeatTest, LeavingAHeatByAnArrowStoresItsSelectionsUnderIt) {
    enterInHeat(14, 2, "B", "57.4");
    card.raceOutcome(12, 1) = "5";
    RaceButton(14);
    Previous();
    EXPECT_EQ("13", screen.header.race);
    EXPECT_EQ("2", card.raceOutcome(14, 1));
    EXPECT_EQ("5", card.raceOutcome(12, 1));
}

TEST_F(HeatTest, NextStopsAtAHeatAsAtTheLastRace) {
    RaceButton(14);
    Next();
    EXPECT_EQ("14", screen.header.race);
}

TEST_F(HeatTest, AHeatAboveRaceTwentyHasItsViewFilledButRaceTwentyIsShown) {
    enterInHeat(22, 2, "B", "57.4");
    RaceButton(22);
    EXPECT_EQ("B", screen.raceView[22].text(2, 0));
    EXPECT_EQ("20", screen.header.race);
    EXPECT_TRUE(screen.raceViewVisible[20]);
    EXPECT_FALSE(screen.raceViewVisible[22]);
    EXPECT_EQ((Selections{"", "", "", ""}), selections()); // those of heat 20
}

TEST_F(HeatTest, TheTrackUnderWhichTheCardIsSavedStaysOnTheLabel) {
    screen.header.track.caption = "M1";
    RaceButton(14);
    EXPECT_EQ("M1", screen.header.track.caption);
    EXPECT_EQ("", screen.header.trackInfo);
}

} // namespace
} // namespace quillon

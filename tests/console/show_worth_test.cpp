#include "console/show.h"

#include "analysis/saved_races.h"
#include "analysis/worth_texts.h"
#include "card/columns.h"
#include "screen/screen.h"
#include "support/card_test.h"
#include "support/season.h"

#include <cmath>
#include <sstream>

namespace quillon {
namespace {

class ShowWorth : public CardTest {
protected:
    ShowWorth() { screen.mode = CardMode::loaded; }

    static std::string shownPart(TextView part) {
        std::ostringstream out;
        Transcript transcript{out};
        show(part, {}, transcript);
        return out.str();
    }

    static void enter(int race, int at, const std::string& number, const char* rating, const char* odds) {
        RaceEntry& entry = card.entry[{race, at}];
        entry.horseName = "Plain Biscuit";
        entry.programNumber = rightAligned(number, 3);
        entry.rating = rating;
        entry.morningOdds = odds;
        screen.raceView[static_cast<std::size_t>(race)](at, RaceColumn::horseName).text = entry.horseName;
    }
};

TEST_F(ShowWorth, FewerThanAHundredRacesTellNothing) {
    enter(1, 1, "1", "58.0", " 5/2");
    EXPECT_EQ("too few races: 0\n", shownPart("fair 1"));
    putSeason(1, 0.4, 9, 11);
    EXPECT_EQ("too few races: 99\n", shownPart("fair 1"));
}

// The lines after the fit follow from its scale s as it is: the entries at 58.0 and 59.5 have 1 and exp(-1.5 s)
// of their sum. What was scratched is not there; who has no rating has no chance.
TEST_F(ShowWorth, AHundredRacesGiveChancesAndFairOdds) {
    putSeason(1, 0.4, 10, 10);
    enter(1, 1, "1", "58.0", " 5/2");
    enter(1, 2, "2", "57.0", " 3/1");
    enter(1, 3, "3", "59.5", " 8/1");
    enter(1, 4, "4", "", "12/1");
    screen.lineTaken[{1, 2}] = takenOut;
    SavedFit saved;
    const RatingScale scale = saved.fit().scale.value_or(RatingScale{});
    ASSERT_NEAR(0.4, scale.perPoint, 4 * scale.error);
    const double second = std::exp(-1.5 * scale.perPoint);
    const double chance = 1 / (1 + second);
    EXPECT_EQ("races 100\n"
              "scale " +
                  scaleText(scale.perPoint) + " +- " + scaleText(scale.error) + "\n" + "1\t" +
                  percentText(chance) + "\t" + oddsText(second) + "\t5/2\n" + "3\t" +
                  percentText(1 - chance) + "\t" + oddsText(1 / second) + "\t8/1\n" + "4\t-\t-\t12/1\n",
              shownPart("fair 1"));
    EXPECT_EQ("races 100\nscale " + scaleText(scale.perPoint) + " +- " + scaleText(scale.error) + "\n",
              shownPart("fair 9"));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(ShowWorth, ATicketIsItsCombinationsAndItsCost) {
    EXPECT_EQ("4\t2.00\n", shownPart("ticket trifecta 1/2,3/2,3,4 0.50"));
    EXPECT_EQ("6\t12.00\n", shownPart("ticket exacta box 1,2,3 2"));
    EXPECT_EQ("16\t3.20\n", shownPart("ticket pick 4 1,2/1,2/1,2/1,2 0.20"));
    EXPECT_EQ("0\t0.00\n", shownPart("ticket exacta 1/1A 2"));
}

// Race 2 is on show, where 3 is scratched: 1-2-4 is left. Of a pick, the second leg is race 3.
TEST_F(ShowWorth, ATicketKnowsTheRaceOnShow) {
    screen.header.race = "2";
    for (int at = 1; at <= 4; ++at) enter(2, at, std::to_string(at), "58.0", " 5/2");
    for (int at = 1; at <= 2; ++at) enter(3, at, std::to_string(at), "58.0", " 5/2");
    screen.lineTaken[{2, 3}] = takenOut;
    EXPECT_EQ("1\t0.50\nscratched\t2\t3\nscratched\t3\t3\n", shownPart("ticket trifecta 1/2,3/2,3,4 0.50"));
    EXPECT_EQ("6\t6.00\n", shownPart("ticket double all/all 1")); // 1, 2 and 4 with 1 and 2
}

TEST_F(ShowWorth, MalformedWordsGetAUsageLine) {
    for (const char* part : {"fair", "fair ", "fair x", "fair 1 2"})
        EXPECT_EQ("usage: show fair R\n", shownPart(part)) << part;
    for (const char* part :
         {"ticket", "ticket ", "ticket exacta", "ticket exacta 1/2", "ticket exacta 1/2 x",
          "ticket exacta 1/2 2 ", "ticket exacta  1/2 2", "ticket 1/2 2", "ticket pick 1/2 2",
          "ticket exacta 1,2/ 2", "ticket exacta all/1 2", "ticket exacta 1/2 0"})
        EXPECT_EQ("usage: show ticket TYPE LEGS STAKE\n", shownPart(part)) << part;
}

} // namespace
} // namespace quillon

#include "analysis/betting_profiles.h"

#include "core/failure.h"
#include "profile_test.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <random>

namespace quillon {
namespace {

class BettingProfilesTest : public ProfileTest {
protected:
    static void profile(const Text& filter) {
        screen.profileFilter = filter;
        Profile2();
    }

    static std::vector<Text> column(int column, int firstRow, int lastRow) {
        std::vector<Text> texts;
        for (int row = firstRow; row <= lastRow; ++row) texts.push_back(cell(row, column));
        return texts;
    }
};

TEST_F(BettingProfilesTest, HeadsAndLabelsStand) {
    archive({{}});
    ALL();
    const std::vector<Text> heads{"",         "Races",    "S1",     "S2",       "S3",     "S4",
                                  "Win",      "Place",    "Show",   "E1/2",     "E1-2",   "E1/2-3",
                                  "E1-2-3",   "E1-2-3-4", "T1/2-3", "T1/2-3-4", "T1-2-3", "S1/2-3-4",
                                  "S2-1/3-4", "S1-2-3-4", ""};
    ASSERT_EQ(21, screen.profile.columns());
    for (int column = 0; column < 21; ++column)
        EXPECT_EQ(heads[static_cast<std::size_t>(column)], cell(0, column));
    EXPECT_EQ((std::vector<Text>{"", "Win Amount", "Adjusted Win", "Total Bet", "Net Profit", "ROI", "",
                                 "Winning Cards", "1 Race Cards", "", "   M1_20260314"}),
              column(0, 1, 11));
    EXPECT_EQ(12, screen.profile.rows());
}

TEST_F(BettingProfilesTest, TheViewTakesThePlaceOfTheRacePanels) {
    screen.summaryVisible = true;
    screen.item(CommandId::MainScreen).visible = screen.item(CommandId::Print2).visible = false;
    archive({{}});
    ALL();
    EXPECT_TRUE(screen.profileVisible);
    EXPECT_FALSE(screen.summaryVisible);
    EXPECT_FALSE(screen.racePanelsVisible);
    EXPECT_TRUE(screen.item(CommandId::MainScreen).visible);
    EXPECT_TRUE(screen.item(CommandId::Print2).visible);
}

struct BetRow {
    const char* what;
    int column;
    std::size_t sum;   ///< place in the archive's order
    const char* level; ///< a sum that returns the 120 bet on ten races
    const char* more;  ///< two cents more in it
    const char* levelCell;
    const char* moreCell;
};

// Ten races bet 120 on each bet type. Level: 120 over the factor.
TEST_F(BettingProfilesTest, AFactorMakesASumTheReturnOfTwelveDollarsARace) {
    const BetRow rows[] = {
        {"Win: 20.00 x 6", 6, 0, "20.00", "20.02", "   120.00", "   120.12"},
        {"Place: 20.00 x 6", 7, 1, "20.00", "20.02", "   120.00", "   120.12"},
        {"Show: 20.00 x 6", 8, 2, "20.00", "20.02", "   120.00", "   120.12"},
        {"E1/2: 20.00 x 6", 9, 3, "20.00", "20.02", "   120.00", "   120.12"},
        {"E1-2: 40.00 x 3", 10, 4, "40.00", "40.02", "   120.00", "   120.06"},
        {"E1/2-3: 40.00 x 3", 11, 5, "40.00", "40.02", "   120.00", "   120.06"},
        {"E1-2-3: 120.00 x 1", 12, 6, "120.00", "120.02", "   120.00", "   120.02"},
        {"E1-2-3-4: 240.00 x 0.5", 13, 7, "240.00", "240.02", "   120.00", "   120.01"},
        {"T1/2-3: 40.00 x 3", 14, 8, "40.00", "40.02", "   120.00", "   120.06"},
        {"T1/2-3-4: 120.00 x 1", 15, 9, "120.00", "120.02", "   120.00", "   120.02"},
        {"T1-2-3: 120.00 x 1", 16, 10, "120.00", "120.02", "   120.00", "   120.02"},
    };
    for (const BetRow& row : rows) {
        ArchiveCard level, more;
        level.sums.at(row.sum) = row.level;
        more.sums.at(row.sum) = row.more;
        archive({level, more});
        ALL();
        EXPECT_EQ(row.moreCell, cell(11, row.column)) << row.what; // the file's last card is the first
        EXPECT_TRUE(bold(11, row.column)) << row.what;
        EXPECT_EQ(row.levelCell, cell(12, row.column)) << row.what;
        EXPECT_FALSE(bold(12, row.column)) << row.what << ": level with the bet is no win";
        for (int column = 6; column <= 16; ++column) {
            EXPECT_EQ(column == row.column ? "1" : "", cell(8, column)) << row.what;
            if (column == row.column) continue;
            EXPECT_EQ("      .00", cell(11, column)) << row.what;
        }
    }
}

TEST_F(BettingProfilesTest, ACardShowsItsKeyRacesWinsAndSuperfectas) {
    ArchiveCard card;
    card.key = "MVRDX_20260314";
    card.races = "12";
    card.wins = {"5", "3", "2", "1"};
    card.s1WithAll = "150.40";
    card.allFour = "575.96";
    card.s2WithAll = "200.00";
    card.superfectaRaces = "11";
    archive({card});
    ALL();
    EXPECT_EQ("MVRDX_20260314", cell(11, 0));
    EXPECT_EQ(" 12", cell(11, 1));
    EXPECT_EQ("    5", cell(11, 2));
    EXPECT_EQ("    1", cell(11, 5));
    EXPECT_EQ("150.40", cell(11, 17)); // the plain $2 sums, in the format's own width
    EXPECT_EQ("200.00", cell(11, 18));
    EXPECT_EQ("575.96", cell(11, 19));
    EXPECT_EQ(" 11", cell(11, 20));
    for (int column = 17; column <= 20; ++column) EXPECT_FALSE(bold(11, column));
}

// Twelve races bet 144; a quarter of 576.00 is 144.
TEST_F(BettingProfilesTest, ASumOfAllFourThatWonTheBetsStaysAsTheArchiveHasIt) {
    ArchiveCard card;
    card.races = "12";
    card.allFour = "576.00";
    card.s1WithAll = "9999.00";
    card.s2WithAll = "9999.00";
    archive({card});
    ALL();
    EXPECT_EQ("    576.00", cell(11, 19));
    EXPECT_EQ("9999.00", cell(11, 17));
    EXPECT_EQ("9999.00", cell(11, 18));
}

// Two cards of 10 and 11 races: 21 races, 252 bet on each bet type.
TEST_F(BettingProfilesTest, TotalsAreAddedUpOverTheCards) {
    ArchiveCard first, second;
    first.wins = {"4", "2", "1", "0"};
    second.wins = {"3", "1", "1", "0"};
    second.races = " 11";
    first.sums[0] = "30.00"; // Win
    second.sums[0] = "20.50";
    first.sums[7] = "1000.00"; // E1-2-3-4
    second.sums[7] = "40.01";
    archive({first, second});
    ALL();
    EXPECT_EQ("  21", cell(9, 1));
    EXPECT_EQ("2 Race Cards", cell(9, 0));
    EXPECT_EQ("    7", cell(9, 2));
    EXPECT_EQ("    3", cell(9, 3));
    EXPECT_EQ("    2", cell(9, 4));
    EXPECT_EQ("    0", cell(9, 5));
    // 30.00 + 20.50 = 50.50; x 6 = 303.00; less 252 = 51.00; 51 / 252 = 20.238 per cent
    EXPECT_EQ((std::vector<Text>{"     50.50", "    303.00", "252", "     51.00", " 20.2%"}),
              column(6, 2, 6));
    // 1000.00 + 40.01 = 1040.01; x 0.5 = 520.005, less 252 = 268.005; both are
    // shown by their binary values: 520.005 is 520.0049999999999954525...,
    // 268.005 is 268.0049999999999954525...; 268 / 252 = 106.35 per cent
    EXPECT_EQ((std::vector<Text>{"   1040.01", "    520.00", "252", "    268.00", "106.3%"}),
              column(13, 2, 6));
    // nothing won: -252 / 252
    EXPECT_EQ((std::vector<Text>{"       .00", "       .00", "252", "   -252.00", "-100.0%"}),
              column(7, 2, 6));
    // 30.00 x 6 = 180 beats the 120 of ten races, 20.50 x 6 = 123 not the 132 of eleven; 1000 x 0.5 = 500
    EXPECT_EQ("1", cell(8, 6));
    EXPECT_EQ("", cell(8, 7));
    EXPECT_EQ("1", cell(8, 13));
}

// Wins of 21 races: 7 are 33.33, 3 are 14.28, 2 are 9.523 per cent; four characters of each.
TEST_F(BettingProfilesTest, WinPercentagesAreCutNotRounded) {
    ArchiveCard card;
    card.races = " 21";
    card.wins = {"7", "3", "2", "0"};
    archive({card});
    ALL();
    EXPECT_EQ("33.3%", cell(10, 2));
    EXPECT_EQ("14.2%", cell(10, 3));
    EXPECT_EQ("9.52%", cell(10, 4));
    EXPECT_EQ("0%", cell(10, 5));
    EXPECT_EQ("57.02%", cell(10, 6)); // 33.3 + 14.2 + 9.52 + 0
    EXPECT_EQ("", cell(10, 7));
}

TEST_F(BettingProfilesTest, AllRacesWonAreAHundredPerCent) {
    ArchiveCard card;
    card.wins = {"10", "0", "0", "0"};
    archive({card});
    ALL();
    EXPECT_EQ("100%", cell(10, 2));
    EXPECT_EQ("100%", cell(10, 6));
}

// The older card (2 races with a superfecta) stands first in the file and is read last; its bets count, its
// returns don't. 5 races in all: 60 bet.
TEST_F(BettingProfilesTest, TheSuperfectasNetProfitLeavesOutTheOldestCard) {
    ArchiveCard older, newer;
    older.superfectaRaces = "2";
    older.s1WithAll = "100.00";
    older.allFour = "40.00";
    newer.superfectaRaces = "3";
    newer.s1WithAll = "250.50";
    newer.allFour = "81.00";
    newer.s2WithAll = "33.00";
    archive({older, newer});
    ALL();
    // sums 350.50; the newer alone: 250.50 - 60 = 190.50; 190.50 x 100 / 60 = 317.5
    EXPECT_EQ((std::vector<Text>{"    350.50", "    350.50", "   60.00", "  190.50", "317.5%"}),
              column(17, 2, 6));
    // 33.00 x 0.5 = 16.50; 16.50 - 60 = -43.50; -72.5 per cent
    EXPECT_EQ((std::vector<Text>{"     33.00", "     16.50", "   60.00", "  -43.50", "-72.5%"}),
              column(18, 2, 6));
    // 121.00 x 0.25 = 30.25; the newer alone: 81 x 0.25 = 20.25, less 60 = -39.75; -66.25 is cut to -66.2
    EXPECT_EQ((std::vector<Text>{"    121.00", "     30.25", "   60.00", "  -39.75", "-66.2%"}),
              column(19, 2, 6));
    for (int column = 17; column <= 19; ++column) EXPECT_EQ("", cell(8, column));
}

TEST_F(BettingProfilesTest, ASingleCardLosesAllItsSuperfectaBets) {
    ArchiveCard card;
    card.superfectaRaces = "4";
    card.s1WithAll = "500.00";
    archive({card});
    ALL();
    EXPECT_EQ((std::vector<Text>{"    500.00", "    500.00", "   48.00", "  -48.00", "-100%"}),
              column(17, 2, 6));
}

TEST_F(BettingProfilesTest, WithoutASuperfectaThereIsNoReturnOnBets) {
    archive({{}});
    ALL();
    EXPECT_EQ((std::vector<Text>{"       .00", "       .00", "     .00", "     .00", ""}), column(17, 2, 6));
}

// Of three characters in front of the last two only the last two count.
TEST_F(BettingProfilesTest, TheLastTwoCharactersAreTheSuperfectaRaces) {
    ArchiveCard card;
    card.superfectaRaces = "112";
    archive({card});
    ALL();
    EXPECT_EQ("112", cell(11, 20));
    EXPECT_EQ("  144.00", cell(4, 17)); // 12 x 12
}

// The return on bets is that of the card before the races' count came to nothing: a line's last two
// characters may say -2. Then 2 races (24 bet, nothing returned yet) were the last that could be divided by.
TEST_F(BettingProfilesTest, ACountThatComesToNothingKeepsTheReturnOnBets) {
    ArchiveCard newer, older;
    newer.superfectaRaces = "2";
    newer.s1WithAll = "12.00";
    older.superfectaRaces = "-2";
    archive({older, newer});
    ALL();
    EXPECT_EQ("     .00", cell(4, 17));
    EXPECT_EQ("   12.00", cell(5, 17)); // 12.00 of the newer, less 0 bet
    EXPECT_EQ("-100%", cell(6, 17));
}

TEST_F(BettingProfilesTest, TheWorkingCopyHasTheFiltersLinesNewestFirst) {
    ArchiveCard one, two, three;
    one.key = "   M1_20260101";
    two.key = "   YR_20260102";
    three.key = "   M1_20260103";
    archive({one, two, three});
    put("HRA.txt", "of the run before");
    ALL();
    EXPECT_EQ(archiveOf({three, two, one}), contentOf("HRA.txt"));
    profile("M1");
    EXPECT_EQ(archiveOf({three, one}), contentOf("HRA.txt"));
    EXPECT_EQ("   M1_20260103", cell(11, 0));
    EXPECT_EQ("   M1_20260101", cell(12, 0));
    EXPECT_EQ("2 Race Cards", cell(9, 0));
    EXPECT_EQ(13, screen.profile.rows());
    EXPECT_EQ(archiveOf({one, two, three}), contentOf("HRA.ini"));
}

TEST_F(BettingProfilesTest, LinesEndInEitherWayAndAreCopiedInOne) {
    put("HRA.ini", lineOf({}) + "\n" + lineOf({}) + "\r\n" + lineOf({})); // the last one torn off at its end
    ALL();
    EXPECT_EQ(archiveOf({{}, {}, {}}), contentOf("HRA.txt"));
    EXPECT_EQ("  30", cell(9, 1));
}

TEST_F(BettingProfilesTest, ATrackOfTheListIsMatchedInUpperCase) {
    ArchiveCard upper, lower;
    upper.key = "  MVR_20260101";
    lower.key = "  mvr_20260102";
    archive({upper, lower});
    SelectTrack(" mvr ");
    EXPECT_EQ("1 Race Cards", cell(9, 0));
    EXPECT_EQ("  MVR_20260101", cell(11, 0));
}

// The first five characters are the track, so that a code in front of longer ones is not theirs.
TEST_F(BettingProfilesTest, ATrackIsMatchedWhole) {
    ArchiveCard longer;
    longer.key = "MVRDX_20260101";
    archive({longer});
    profile("MVR");
    EXPECT_EQ("0 Race Cards", cell(9, 0));
}

struct SizeRow {
    void (*filter)();
    const char* track;
};

TEST_F(BettingProfilesTest, ASizeCountsTheTracksThatHaveIt) {
    put("TrackEditor.ini", trackRow("AAA", "1/2") + trackRow("BBB", "5/8") + trackRow("CCC", "3/4") +
                               trackRow("DDD", "7/8") + trackRow("EEE", "1.M") + trackRow("FFF", "1.Q") +
                               "\r\n" + trackRow("GGG", "1/2")); // after an empty line nothing is read
    std::vector<ArchiveCard> cards;
    for (const char* track : {"AAA", "BBB", "CCC", "DDD", "EEE", "FFF", "GGG", "HHH"}) {
        cards.emplace_back();
        cards.back().key = "  " + Text{track} + "_20260101";
    }
    archive(cards);
    for (const SizeRow& row : {SizeRow{HALF, "AAA"}, SizeRow{FIVE, "BBB"}, SizeRow{Seven, "DDD"},
                               SizeRow{MILE, "EEE"}, SizeRow{QUARTER, "FFF"}}) {
        row.filter();
        EXPECT_EQ("1 Race Cards", cell(9, 0)) << row.track;
        EXPECT_EQ("  " + Text{row.track} + "_20260101", cell(11, 0));
    }
    ALL();
    EXPECT_EQ("8 Race Cards", cell(9, 0));
}

TEST_F(BettingProfilesTest, OtherFiltersTakeNothing) {
    put("TrackEditor.ini", trackRow("CCC", "3/4") + trackRow("AAA", "1/2"));
    ArchiveCard card;
    card.key = "  CCC_20260101";
    archive({card});
    for (const char* filter : {"3/4", "1/2 mile", "---------------------", "7", "1.Q"}) {
        profile(filter);
        EXPECT_EQ("0 Race Cards", cell(9, 0)) << filter;
        EXPECT_EQ("", contentOf("HRA.txt")) << filter;
        EXPECT_EQ(11, screen.profile.rows());
    }
}

// There is nothing to divide by, and of nothing the sum is 0.
TEST_F(BettingProfilesTest, AFilterWithoutCardsGivesAnEmptyTable) {
    archive({{}});
    profile("YR");
    for (int row = 1; row <= 10; ++row)
        for (int column = 1; column <= 20; ++column)
            EXPECT_EQ(row == 10 && column == 6 ? "0%" : "", cell(row, column)) << row << ' ' << column;
    EXPECT_TRUE(screen.profileVisible);
}

TEST_F(BettingProfilesTest, WithoutTheTracksTableASizeTakesNothing) {
    archive({{}});
    HALF();
    EXPECT_EQ("0 Race Cards", cell(9, 0));
    EXPECT_TRUE(journalTells("TrackEditor.ini"));
}

TEST_F(BettingProfilesTest, AnEmptyFilterEndsAndEachFilterIsTakenOnce) {
    archive({{}});
    Profile2();
    EXPECT_FALSE(exists("HRA.txt"));
    EXPECT_FALSE(screen.profileVisible);
    ALL();
    EXPECT_EQ("", screen.profileFilter);
}

TEST_F(BettingProfilesTest, TheGridIsClearedAtEachRun) {
    ArchiveCard card;
    card.sums[0] = "100.00"; // wins its bets
    card.superfectaRaces = "3";
    archive({card, card, card});
    ALL();
    EXPECT_EQ("3", cell(8, 6));
    archive({{}});
    ALL();
    EXPECT_EQ("", cell(8, 6));
    EXPECT_EQ("", cell(6, 17));
    EXPECT_EQ(12, screen.profile.rows());
}

TEST_F(BettingProfilesTest, WithoutAnArchiveTheViewStaysAsItWas) {
    archive({{}});
    ALL();
    std::filesystem::remove("HRA.ini");
    screen.profileVisible = false;
    EXPECT_FALSE(attempt(HALF));
    EXPECT_TRUE(journalTells("HRA.ini"));
    EXPECT_EQ("1 Race Cards", cell(9, 0));
    EXPECT_FALSE(screen.profileVisible);
    EXPECT_EQ(archiveOf({{}}), contentOf("HRA.txt"));
    EXPECT_EQ("", screen.profileFilter);
}

// A number's text in the profile's money form, by the C library: "-252.00", ".50".
Text money(double amount, std::size_t width) {
    char digits[64];
    std::snprintf(digits, sizeof digits, "%.2f", std::fabs(amount));
    Text text = digits;
    if (text.starts_with("0.")) text.erase(0, 1);
    if (amount < 0) text.insert(0, "-");
    return field(text, width);
}

double placed(const Text& line, std::size_t place, std::size_t width) {
    return std::atof(line.substr(place - 1, width).c_str());
}

// Cards whose sums are multiples of eight cents, so that no factor leaves half a cent.
ArchiveCard inventedCard(std::mt19937& random, const Text& track, int number) {
    const auto upTo = [&](unsigned most) { return static_cast<int>(random() % (most + 1)); };
    const auto sum = [&] { return upTo(2) == 0 ? Text{".00"} : money(upTo(5000) * 0.08, 0); };
    ArchiveCard card;
    card.key = field(track, 5) + "_2026" + (number < 9 ? "010" : "01") + std::to_string(number + 1);
    card.races = std::to_string(8 + upTo(6));
    for (Text& wins : card.wins) wins = std::to_string(upTo(4));
    for (Text& each : card.sums) each = sum();
    card.s1WithAll = sum();
    card.allFour = sum();
    card.s2WithAll = sum();
    card.superfectaRaces = std::to_string(upTo(6));
    return card;
}

struct FilterRow {
    const char* what;
    void (*run)();
    std::vector<Text> tracks;
};

TEST_F(BettingProfilesTest, EveryFilterAddsUpItsCards) {
    put("TrackEditor.ini", trackRow("M1", "1.M") + trackRow("YR", "1/2") + trackRow("MVR", "5/8") +
                               trackRow("WDB", "7/8") + trackRow("CNLDN", "1.Q") + trackRow("FRE", "1/2"));
    const std::vector<Text> tracks{"M1", "YR", "MVR", "WDB", "CNLDN", "FRE"};
    std::mt19937 random{7};
    std::vector<Text> lines;
    std::vector<ArchiveCard> cards;
    for (int card = 0; card < 30; ++card) {
        cards.push_back(inventedCard(random, tracks[random() % tracks.size()], card));
        lines.push_back(lineOf(cards.back()));
    }
    archive(cards);

    const FilterRow rows[] = {
        {"all", ALL, tracks},
        {"half-mile tracks", HALF, {"YR", "FRE"}},
        {"five-eighths", FIVE, {"MVR"}},
        {"seven-eighths", Seven, {"WDB"}},
        {"mile", MILE, {"M1"}},
        {"mile and a quarter", QUARTER, {"CNLDN"}},
        {"a track", [] { SelectTrack("fre"); }, {"FRE"}},
    };
    const double factors[] = {6, 6, 6, 6, 3, 3, 1, 0.5, 3, 1, 1};
    for (const FilterRow& row : rows) {
        std::vector<Text> chosen;
        for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
            Text track = line->substr(0, 5);
            track.erase(0, track.find_first_not_of(' '));
            if (std::find(row.tracks.begin(), row.tracks.end(), track) != row.tracks.end())
                chosen.push_back(*line);
        }
        ASSERT_GT(chosen.size(), 1u) << row.what;
        row.run();
        EXPECT_EQ(std::to_string(chosen.size()) + " Race Cards", cell(9, 0)) << row.what;

        double races = 0;
        double wins[4] = {};
        double superfectaRaces = 0;
        for (const Text& line : chosen) {
            races += placed(line, 15, 3);
            for (std::size_t place = 0; place < 4; ++place) wins[place] += placed(line, 18 + 5 * place, 5);
            superfectaRaces += placed(line, 168, 2);
        }
        EXPECT_EQ(field(std::to_string(static_cast<int>(races)), 4), cell(9, 1));
        for (int place = 0; place < 4; ++place)
            EXPECT_EQ(field(std::to_string(static_cast<int>(wins[place])), 5), cell(9, 2 + place));

        for (std::size_t bet = 0; bet < 11; ++bet) {
            const int column = 6 + static_cast<int>(bet);
            double sum = 0;
            int winning = 0;
            for (const Text& line : chosen) {
                const double paid = placed(line, 38 + 9 * bet, 9);
                sum += paid;
                if (std::lround(paid * factors[bet] * 100) > std::lround(placed(line, 15, 3) * 1200))
                    ++winning;
            }
            const double won = sum * factors[bet];
            EXPECT_EQ(money(sum, 10), cell(2, column)) << row.what;
            EXPECT_EQ(money(won, 10), cell(3, column)) << row.what;
            EXPECT_EQ(std::to_string(static_cast<int>(races * 12)), cell(4, column)) << row.what;
            EXPECT_EQ(money(won - races * 12, 10), cell(5, column)) << row.what;
            EXPECT_NEAR((won - races * 12) / (races * 12) * 100, std::atof(cell(6, column).c_str()), 0.0501);
            EXPECT_EQ(winning > 0 ? std::to_string(winning) : "", cell(8, column)) << row.what;
        }
        const struct {
            int column;
            std::size_t place;
            double factor;
        } superfectas[] = {{17, 137, 1}, {19, 147, 0.25}, {18, 157, 0.5}};
        for (const auto& bet : superfectas) {
            double sum = 0;
            for (const Text& line : chosen) sum += placed(line, bet.place, 10);
            const double last = placed(chosen.back(), bet.place, 10);
            const double net = (sum - last) * bet.factor - superfectaRaces * 12;
            EXPECT_EQ(money(sum, 10), cell(2, bet.column)) << row.what;
            EXPECT_EQ(money(sum * bet.factor, 10), cell(3, bet.column)) << row.what;
            EXPECT_EQ(money(superfectaRaces * 12, 8), cell(4, bet.column)) << row.what;
            EXPECT_EQ(money(net, 8), cell(5, bet.column)) << row.what;
            const Text roi = cell(6, bet.column);
            EXPECT_NEAR(net * 100 / (superfectaRaces * 12), std::atof(roi.c_str()), 1.0) << row.what;
            EXPECT_LE(roi.size(), 6u);
        }
        for (std::size_t card = 0; card < chosen.size(); ++card)
            EXPECT_EQ(chosen[card].substr(0, 14), cell(11 + static_cast<int>(card), 0));
    }
}

// HRA.ini: an empty line, the older card, an empty line, the newer card. Backwards: newer, empty, older,
// empty; each empty line is written over the row before it.
TEST_F(BettingProfilesTest, AnEmptyLineIsWrittenOverTheRowBefore) {
    ArchiveCard older, newer;
    older.sums[0] = "30.00"; // 180.00 wins against 120
    newer.sums[0] = "10.00";
    put("HRA.ini", "\r\n" + lineOf(older) + "\r\n\r\n" + lineOf(newer) + "\r\n");
    ALL();
    EXPECT_EQ(lineOf(newer) + "\r\n\r\n" + lineOf(older) + "\r\n\r\n", contentOf("HRA.txt"));
    EXPECT_EQ("2 Race Cards", cell(9, 0));
    EXPECT_EQ(13, screen.profile.rows());
    for (const int row : {11, 12}) {
        for (const int column : {0, 1, 2, 5, 17, 18, 19, 20}) EXPECT_EQ("", cell(row, column));
        EXPECT_EQ("      .00", cell(row, 6));
    }
    EXPECT_EQ("     40.00", cell(2, 6)); // its card counts all the same
    EXPECT_EQ("1", cell(8, 6));
    EXPECT_TRUE(bold(12, 6)); // and what won stays marked
    EXPECT_FALSE(bold(11, 6));
    EXPECT_EQ("", cell(10, 7));
}

// An empty line in front of all cards falls on the row above them, that of the percentages.
TEST_F(BettingProfilesTest, AnEmptyLineAtTheEndFallsOnThePercentages) {
    ArchiveCard card;
    card.wins = {"5", "0", "0", "0"};
    put("HRA.ini", lineOf(card) + "\r\n\r\n");
    ALL();
    EXPECT_EQ("50%", cell(10, 2));
    EXPECT_EQ("50%", cell(10, 6));
    EXPECT_EQ("      .00", cell(10, 7));
    EXPECT_EQ("   M1_20260314", cell(11, 0));
}

TEST_F(BettingProfilesTest, NothingButEmptyLinesIsNoCard) {
    put("HRA.ini", "\r\n\r\n");
    ALL();
    EXPECT_EQ("0 Race Cards", cell(9, 0));
    EXPECT_EQ("   0", cell(9, 1));
    EXPECT_EQ("0", cell(4, 6));
    EXPECT_EQ("", cell(6, 6)); // nothing to divide by
    EXPECT_EQ("", cell(10, 2));
    EXPECT_EQ(11, screen.profile.rows());
}

TEST_F(BettingProfilesTest, AnEmptyArchiveGivesAnEmptyTable) {
    put("HRA.ini", "");
    ALL();
    EXPECT_EQ("0 Race Cards", cell(9, 0));
    EXPECT_EQ("", contentOf("HRA.txt"));
}

// What can't be read counts as 0 in its own row.
TEST_F(BettingProfilesTest, ADamagedLineReadsWronglyInItsOwnRowOnly) {
    ArchiveCard good;
    good.sums[0] = "30.00";
    Text letters = lineOf(good);
    letters.replace(14, 3, " x0");
    letters.replace(37, 9, "thirty   ");
    put("HRA.ini",
        lineOf(good) + "\r\n" + letters + "\r\n" + "M1\tis no card\r\n" + lineOf(good).substr(0, 40));
    ALL();
    EXPECT_EQ("4 Race Cards", cell(9, 0));
    EXPECT_EQ("   M1_20260314", cell(11, 0)); // the torn line
    EXPECT_EQ("", cell(11, 17));
    EXPECT_EQ("M1\tis no card", cell(12, 0));
    EXPECT_EQ("ard", cell(12, 20));
    EXPECT_EQ(" x0", cell(13, 1));
    EXPECT_EQ("      .00", cell(13, 6));
    EXPECT_EQ("   180.00", cell(14, 6));
    EXPECT_EQ("     30.00", cell(2, 6));
    EXPECT_EQ("  20", cell(9, 1)); // ten races of the good line, ten of the torn one
}

TEST_F(BettingProfilesTest, FiguresBeyondTheirCellsAreShownWhole) {
    ArchiveCard card;
    card.races = "999";
    card.sums.fill("999999999");
    card.s1WithAll = card.allFour = card.s2WithAll = "9999999999";
    card.wins.fill("99999");
    archive({card, card});
    ALL();
    EXPECT_EQ("5999999994.00", cell(11, 6)); // 999,999,999 x 6
    EXPECT_EQ("1999999998.00", cell(2, 6));  // twice 999,999,999
    EXPECT_EQ(" 199998", cell(9, 2));
    EXPECT_EQ("9999999999", cell(11, 19)); // as the archive has it
    EXPECT_EQ("9999999999.00", cell(11, 17));
}

TEST_F(BettingProfilesTest, RowsAreMadeFromTheWorkingCopyWhenTheyAreLookedAt) {
    std::vector<ArchiveCard> cards(2000);
    for (std::size_t card = 0; card < cards.size(); ++card) {
        cards[card].races = std::to_string(card % 100);
        cards[card].sums[0] = card % 2 == 0 ? ".00" : "300.00"; // 1800.00 wins against any card's bets
    }
    archive(cards);
    ALL();
    ASSERT_EQ(2011, screen.profile.rows());
    const auto check = [&](int row) {
        const std::size_t card = 2010 - static_cast<std::size_t>(row); // the newest in row 11
        EXPECT_EQ(field(std::to_string(card % 100), 3), cell(row, 1)) << row;
        EXPECT_EQ(card % 2 == 1, bold(row, 6)) << row;
    };
    for (const int row : {11, 12, 2010, 11, 1000, 999, 2009}) check(row);
    for (int row = 2010; row >= 11; --row) check(row);

    put("HRA.txt",
        lineOf(cards[0]).substr(0, 100)); // another program cuts the copy short: rows lose their text
    EXPECT_EQ("      .00", cell(1500, 6));
    std::filesystem::remove("HRA.txt");
    EXPECT_EQ("", cell(500, 6));
    EXPECT_TRUE(journalTells("HRA.txt"));
}

TEST_F(BettingProfilesTest, ACancelledProfileLeavesTheFilesAsTheyWere) {
    Text archive;
    for (int card = 0; card < 250000; ++card) archive += "   M1\r\n";
    put("HRA.ini", archive);
    put("HRA.txt", "of the run before");
    ALL();
    EXPECT_EQ("250000 Race Cards", cell(9, 0));

    put("HRA.txt", "of the run before");
    screen.profileVisible = false;
    cancelAt(2);
    ALL();
    ASSERT_EQ(2u, reports.size());
    EXPECT_NEAR(0.4, reports[0], 1e-9);
    EXPECT_NEAR(0.8, reports[1], 1e-9);
    EXPECT_EQ("of the run before", contentOf("HRA.txt"));
    EXPECT_FALSE(exists("HRA.txt.quillon-new"));
    EXPECT_EQ("", cell(9, 0));
    EXPECT_EQ(11, screen.profile.rows());
    EXPECT_FALSE(screen.profileVisible);
    EXPECT_EQ("", screen.profileFilter);
}

TEST_F(BettingProfilesTest, ACopyThatCanNotBeWrittenEndsTheProfile) {
    archive({{}});
    ALL();
    std::filesystem::remove("HRA.txt");
    std::filesystem::create_directories("HRA.txt/in the way");
    archive({{}, {}});
    EXPECT_FALSE(attempt(ALL));
    EXPECT_EQ("1 Race Cards", cell(9, 0));
    EXPECT_EQ(archiveOf({{}, {}}), contentOf("HRA.ini"));
    EXPECT_FALSE(exists("HRA.txt.quillon-new"));
}

TEST_F(BettingProfilesTest, TheListShownIsThatOfTheLastScan) {
    ArchiveCard m1, yr, longCode;
    m1.key = "   M1_20260101";
    yr.key = "   yr_20260102";
    longCode.key = "CNLDN_20260103";
    archive({m1, yr, m1, longCode, yr});
    Select();
    EXPECT_TRUE(screen.trackList.visible);
    EXPECT_EQ((std::vector<Text>{"---------------------", "EXIT"}), screen.trackList.lines);
    EXPECT_EQ(21u, screen.trackList.lines[0].size());
    EXPECT_EQ("M1\r\nyr\r\nCNLDN\r\n", contentOf("TargetTracks.txt"));
    Select();
    EXPECT_EQ((std::vector<Text>{"M1", "yr", "CNLDN", "---------------------", "EXIT"}),
              screen.trackList.lines);
}

TEST_F(BettingProfilesTest, OnlyExitClosesTheListOfTracks) {
    archive({{}});
    Select();
    SelectTrack("M1");
    EXPECT_TRUE(screen.trackList.visible);
    EXPECT_EQ("1 Race Cards", cell(9, 0));
    std::filesystem::remove("HRA.txt");
    SelectTrack("EXIT");
    EXPECT_FALSE(screen.trackList.visible);
    EXPECT_FALSE(exists("HRA.txt"));
    EXPECT_EQ("", screen.profileFilter);
}

// A hundred codes are kept in mind; the next ones are written for each of their cards.
TEST_F(BettingProfilesTest, AHundredTracksAreKeptApart) {
    Text archive;
    Text expected;
    for (int round = 0; round < 2; ++round)
        for (int track = 0; track < 102; ++track) {
            const Text code = "T" + std::to_string(track);
            archive += field(code, 5) + "_20260101\r\n";
            if (round == 0 || track >= 100) expected += code + "\r\n";
        }
    put("HRA.ini", archive);
    Select();
    EXPECT_EQ(expected, contentOf("TargetTracks.txt"));
}

TEST_F(BettingProfilesTest, WithoutAnArchiveTheListOfTracksStays) {
    put("TargetTracks.txt", "M1\nYR");
    EXPECT_FALSE(attempt(Select));
    EXPECT_EQ((std::vector<Text>{"M1", "YR", "---------------------", "EXIT"}), screen.trackList.lines);
    EXPECT_EQ("M1\nYR", contentOf("TargetTracks.txt"));
}

TEST_F(BettingProfilesTest, ACancelledScanLeavesTheListOfTracks) {
    Text archive;
    for (int card = 0; card < 100000; ++card) archive += "   M1\r\n";
    put("HRA.ini", archive);
    put("TargetTracks.txt", "YR\r\n");
    cancelAt(1);
    Select();
    EXPECT_EQ("YR\r\n", contentOf("TargetTracks.txt"));
    EXPECT_FALSE(screen.trackList.visible);
    EXPECT_TRUE(screen.trackList.lines.empty());
}

TEST_F(BettingProfilesTest, NoContentOfItsFilesStopsAProfile) {
    std::mt19937 random{20260314};
    const auto noise = [&](std::size_t most) {
        Text bytes(random() % most, '\0');
        constexpr char likely[] = " \r\n\t0123456789.-M1/8\x80\xFF";
        for (char& byte : bytes)
            byte = random() % 8 == 0 ? static_cast<char>(random() % 256)
                                     : likely[random() % (sizeof likely - 1)];
        return bytes;
    };
    for (int round = 0; round < 60; ++round) {
        const Text archive = noise(4000) + (round % 2 == 0 ? lineOf({}) : "");
        put("HRA.ini", archive);
        put("TrackEditor.ini", noise(2000));
        put("TargetTracks.txt", noise(500));
        for (void (*filter)() : {ALL, HALF, FIVE, Seven, MILE, QUARTER, Select}) filter();
        SelectTrack(noise(10));
        ALL();
        for (int row = 0; row < screen.profile.rows(); ++row)
            for (int column = 0; column < screen.profile.columns(); ++column) cell(row, column);
        ASSERT_EQ(archive, contentOf("HRA.ini"));
    }
}

} // namespace
} // namespace quillon

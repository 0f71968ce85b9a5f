#include "core/failure.h"
#include "core/text.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(Texts, TrimmingTakesBlanksAlone) {
    EXPECT_EQ("a b", trimmed("  a b  "));
    EXPECT_EQ("\ta", trimmed(" \ta "));
    EXPECT_EQ("", trimmed("    "));
    EXPECT_EQ("  a", trimmedRight("  a "));
    EXPECT_EQ("a ", trimmedLeft("  a "));
}

TEST(Texts, PiecesStopAtTheEnd) {
    EXPECT_EQ("RACE", leftOf("RACE 1", 4));
    EXPECT_EQ("RACE 1", leftOf("RACE 1", 40));
    EXPECT_EQ("1", rightOf("RACE 1", 1));
    EXPECT_EQ("CE", midOf("RACE 1", 3, 2));
    EXPECT_EQ("1", midOf("RACE 1", 6, 9));
    EXPECT_EQ("", midOf("RACE 1", 7, 2));
    EXPECT_EQ("CE 1", midOf("RACE 1", 3));
}

TEST_F(CardTest, PiecesOfNegativeLengthFail) {
    EXPECT_FALSE(attempt([] { leftOf("abc", -1); }));
    EXPECT_FALSE(attempt([] { rightOf("abc", -1); }));
    EXPECT_FALSE(attempt([] { midOf("abc", 0, 1); }));
    EXPECT_FALSE(attempt([] { midOf("abc", 1, -1); }));
    EXPECT_FALSE(attempt([] { blanks(-1); }));
}

TEST_F(CardTest, FillingFailsOnALongerText) {
    EXPECT_EQ("Bold Move ", filledTo("Bold Move", 10));
    EXPECT_EQ("Bold Move!", filledTo("Bold Move!", 10));
    EXPECT_FALSE(attempt([] { filledTo("Bold Mover!", 10); }));
}

TEST(Texts, PlacesCountFromOne) {
    EXPECT_EQ(1, placeOf("A", "ABA"));
    EXPECT_EQ(2, placeOf("BA", "ABA"));
    EXPECT_EQ(0, placeOf("C", "ABA"));
}

TEST(Texts, UpperCaseKnowsTheAccentedLettersOfTheCodePage) {
    EXPECT_EQ("WBSBM", upperCase("WbsbM"));
    EXPECT_EQ("\xC9\xDE", upperCase("\xE9\xFE"));
    EXPECT_EQ("\xF7\xFF\xDF\xBA", upperCase("\xF7\xFF\xDF\xBA")); // division sign, y diaeresis, sharp s, ring
}

TEST(Texts, ComparisonsThatIgnoreCase) {
    EXPECT_TRUE(sameIgnoringCase("RACESHR.DBF", "raceshr.dbf"));
    EXPECT_FALSE(sameIgnoringCase("RACESHR.DBF", "raceshr.db"));
    EXPECT_FALSE(sameIgnoringCase("@", "`"));
}

} // namespace quillon

#include "core/failure.h"
#include "core/table.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quillon {

TEST_F(CardTest, AFailingStatementDoesNothingAndTheNextRuns) {
    Text cell = "before";
    attempt([&] { cell = Text{leftOf("after", -1)}; });
    EXPECT_EQ("before", cell);
    attempt([&] { cell = "after"; });
    EXPECT_EQ("after", cell);
}

TEST_F(CardTest, AFailingConditionTakesItsBranch) {
    EXPECT_TRUE(holdsOrFails([] { return strictNumber("") > 5; }));
    EXPECT_FALSE(holdsOrFails([] { return strictNumber("4") > 5; }));
}

TEST_F(CardTest, AFailingStepEndsThere) {
    int reached = 0;
    const auto step = [&] {
        reached = 1;
        strictNumber(" - ");
        reached = 2;
    };
    EXPECT_FALSE(attempt(step));
    EXPECT_EQ(1, reached);
}

TEST_F(CardTest, ProgrammingErrorsStayLoud) {
    EXPECT_THROW(attempt([] { throw std::out_of_range("a bug"); }), std::out_of_range);
    EXPECT_THROW(holdsOrFails([]() -> bool { throw std::logic_error("a bug"); }), std::logic_error);
}

TEST_F(CardTest, TheJournalNamesTheInnermostStepAndThePlace) {
    const Step outer{"Start"};
    cursor.race = 3;
    cursor.entry = 5;
    attempt([] {
        const Step inner{"WPS"};
        strictNumber("***");
    });
    attempt([] { fail("no more"); });
    ASSERT_EQ(2u, journal.kept().size());
    EXPECT_EQ("WPS", journal.kept()[0].step);
    EXPECT_EQ("\"***\" is no number (race 3, entry 5)", journal.kept()[0].what);
    EXPECT_EQ("Start", journal.kept()[1].step);
}

TEST_F(CardTest, TheJournalKeepsTheLastThousandAndCountsAll) {
    for (int n = 1; n <= 1001; ++n) reportFault("fault " + std::to_string(n));
    EXPECT_EQ(1001u, journal.count());
    ASSERT_EQ(1000u, journal.kept().size());
    EXPECT_EQ("fault 2", journal.kept().front().what);
    EXPECT_EQ("fault 1001", journal.kept().back().what);
}

TEST_F(CardTest, ExpectedFailuresTakeNoPlaceInTheJournal) {
    passOver();
    EXPECT_EQ(0u, journal.count());
    EXPECT_EQ(1u, journal.expected());
}

TEST_F(CardTest, TablesFailOutsideTheirBoundsAndClipNothing) {
    Table<Text, 3, 4> table;
    table(2, 3) = "corner";
    EXPECT_EQ("corner", (table[{2, 3}]));
    EXPECT_FALSE(attempt([&] { table(3, 0) = "lost"; }));
    EXPECT_FALSE(attempt([&] { table(0, 4) = "lost"; }));
    EXPECT_FALSE(attempt([&] { table(-1, 0) = "lost"; }));
    EXPECT_TRUE(journalTells("index (3, 0) is out of bounds"));
    table.clear();
    EXPECT_EQ("", table(2, 3));
}

} // namespace quillon

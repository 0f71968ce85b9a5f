#include "app/links.h"

#include "core/failure.h"
#include "support/card_test.h"

namespace quillon {
namespace {

using Lines = std::vector<std::string>;

} // namespace

class LinksTest : public CardTest {};

TEST_F(LinksTest, EachItemOpensItsPage) {
    struct Row {
        void (*link)();
        const char* address;
    };
    constexpr Row rows[] = {
        {USTA, "https://racing.ustrotting.com/"},
        {RTN, "https://www.rtn.tv/"},
        {Weather, "https://www.weather.gov/"},
        {TRC, "https://www.trackmaster.com/tracks-breed-state-results.jsp?breed=h&sortby=tracks.trackname"},
        {QLR, "https://www.tarnbeck.example/Revisions.html"},
    };
    for (const Row& row : rows) {
        shown.clear();
        row.link();
        EXPECT_EQ(Lines{std::string("browse: ") + row.address}, shown);
    }
}

TEST_F(LinksTest, ResetOpensTheAddressInTheLastLine) {
    struct Row {
        const char* claim;
        const char* content;
    };
    constexpr Row rows[] = {
        {"one line", "https://vendor.example/cards"},
        {"the last of three", "first\r\nsecond\r\nhttps://vendor.example/cards\r\n"},
        {"without its end", "first\r\nhttps://vendor.example/cards"},
        {"LF alone, blanks round it", "first\n  https://vendor.example/cards \n"},
    };
    for (const Row& row : rows) {
        shown.clear();
        put("Webpage.ini", row.content);
        Reset();
        EXPECT_EQ(Lines{"browse: https://vendor.example/cards"}, shown) << row.claim;
    }
}

TEST_F(LinksTest, ResetOpensNothingWithoutAnAddress) {
    attempt(Reset);
    EXPECT_TRUE(shown.empty());
    for (const char* content : {"", "https://vendor.example/cards\r\n\r\n", "first\r\n   \r\n"}) {
        put("Webpage.ini", content);
        attempt(Reset);
        EXPECT_TRUE(shown.empty()) << '"' << content << '"';
    }
}

} // namespace quillon

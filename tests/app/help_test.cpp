#include "app/help.h"

#include "support/card_test.h"

namespace quillon {

class HelpTest : public CardTest {};

TEST_F(HelpTest, NamesProductPublisherAndVersion) {
    About();
    Version();
    EXPECT_EQ((std::vector<std::string>{"message: Quillon Professional Version\nTarnbeck Software",
                                        "message: Quillon Professional v3.1"}),
              shown);
}

} // namespace quillon

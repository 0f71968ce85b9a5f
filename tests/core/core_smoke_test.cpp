#include "core/formats.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(NumberFormats, ThePointAlwaysStands) {
    EXPECT_EQ("5.", formatted("##.#", 5));
    EXPECT_EQ(".5", formatted("##.0", 0.5));
    EXPECT_EQ(".00", formatted("####.#0", 0));
    EXPECT_EQ("05", formatted("0#", 5));
}

} // namespace quillon

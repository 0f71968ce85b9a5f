#include "core/code_page.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(CodePage, EveryByteComesBack) {
    for (int code = 0; code < 256; ++code) {
        const Text byte(1, static_cast<char>(code));
        EXPECT_EQ(byte, fromUtf8(toUtf8(byte))) << code;
    }
}

TEST(CodePage, BytesBecomeTheirCharacters) {
    EXPECT_EQ("\xC2\xBA", toUtf8("\xBA"));     // masculine ordinal, the park mark
    EXPECT_EQ("\xE2\x82\xAC", toUtf8("\x80")); // euro sign
    EXPECT_EQ("\xC2\x81", toUtf8("\x81"));     // undefined: the code point of the same number
    EXPECT_EQ("\xC3\xA9", toUtf8("\xE9"));
}

TEST(CodePage, WhatItDoesNotHaveBecomesAQuestionMark) {
    EXPECT_EQ("?", fromUtf8("\xE4\xB8\xAD"));     // a Chinese character
    EXPECT_EQ("?", fromUtf8("\xF0\x9F\x90\xB4")); // a horse
    EXPECT_EQ("a??b", fromUtf8("a\xFF\xFE"
                               "b"));           // bytes that are no UTF-8
    EXPECT_EQ("??", fromUtf8("\xC0\xAF"));      // a longer form than needed
    EXPECT_EQ("???", fromUtf8("\xED\xA0\x80")); // half of a pair
    EXPECT_EQ("?", fromUtf8("\xC3"));           // cut in the middle
}

} // namespace quillon

#include "desktop/shown_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(ShownText, BytesOfTheCodePageBecomeTheirCharacters) {
    EXPECT_EQ(QString::fromUtf8("Ren\u00e9e \u20ac 5"), shown("Ren\xE9"
                                                              "e \x80 5"));
}

TEST(ShownText, LineBreaksAndOtherControlsAreTypedAsBlanks) {
    EXPECT_EQ("a b c d e", typed(QString::fromUtf8("a\nb\rc\td\u2028e")));
}

TEST(ShownText, ACharacterOutsideTheCodePageIsTypedAsAQuestionMark) {
    EXPECT_EQ("? 7", typed(QString::fromUtf8("\u0416 7")));
}

TEST(ShownText, TextIsBlackOnLightColoursAndWhiteOnDarkOnes) {
    EXPECT_EQ(QColor{Qt::black}, legibleOn(shown(recentYellow)));
    EXPECT_EQ(QColor{Qt::black}, legibleOn(shown(olderCyan)));
    EXPECT_EQ(QColor{Qt::white}, legibleOn(QColor{0, 0, 128}));
}

TEST(ShownText, ATipShowsMarkupAsItStands) {
    EXPECT_EQ("5 < 6\nand more", asTip("5 < 6\nand more"));
    EXPECT_EQ("<qt>&lt;b&gt;wide&lt;/b&gt;<br>twice</qt>", asTip("<b>wide</b>\ntwice"));
}

} // namespace
} // namespace quillon

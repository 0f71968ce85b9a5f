#include "core/json_writer.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon {
namespace {

std::string textOf(TextView value) {
    JsonWriter json;
    json.text(value);
    return json.take();
}

TEST(JsonWriter, PutsCommasBetweenValuesAndNowhereElse) {
    JsonWriter json;
    json.beginObject();
    json.member("track", "MVR");
    json.key("races");
    json.beginArray();
    json.number(1);
    json.beginObject();
    json.endObject();
    json.beginArray();
    json.endArray();
    json.boolean(true);
    json.endArray();
    json.member("margin", std::optional<double>{});
    json.endObject();
    EXPECT_EQ(R"({"track":"MVR","races":[1,{},[],true],"margin":null})", json.take());
    EXPECT_EQ("", json.take());
}

TEST(JsonWriter, EscapesWhatJsonDoesNotTakeAsItStands) {
    EXPECT_EQ(R"("Prewitt's \"Whim\" \\ 1/2")", textOf(R"(Prewitt's "Whim" \ 1/2)"));
    EXPECT_EQ(R"("a\u0009b\u000d\u000ac\u0000\u001f")", textOf({"a\tb\r\nc\0\x1F", 8}));
    EXPECT_EQ("\"\x7F\"", textOf("\x7F")); // no control character to JSON
}

TEST(JsonWriter, WritesUtf8) {
    EXPECT_EQ("\"\xC2\xBA \xE2\x82\xAC \xC2\x81\"",
              textOf("\xBA \x80 \x81")); // ordinal sign, euro, undefined
}

TEST(JsonWriter, NumbersHaveNoExponentAndNothingInfinite) {
    JsonWriter json;
    json.beginArray();
    for (const double number : {99.9, -0.5, 12000.0, 0.0}) json.number(number);
    json.number(std::numeric_limits<double>::infinity());
    json.endArray();
    EXPECT_EQ("[99.9,-0.5,12000,0,null]", json.take());
}

} // namespace
} // namespace quillon

#include "tools/output/JsonWriter.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

TEST(JsonWriter, WritesItemsIndentedAndInOrder) {
    std::string text;
    JsonWriter writer([&](std::string_view piece) { text += piece; });
    writer.beginObject();
    writer.member("b", 1);
    writer.beginArray("a");
    writer.beginObject();
    writer.member("x", "line\nfeed");
    writer.beginArray("list");
    writer.element(1);
    writer.element(2);
    writer.endArray();
    writer.endObject();
    writer.beginObject();
    writer.endObject();
    writer.endArray();
    writer.beginArray("none");
    writer.endArray();
    writer.beginObject("o");
    writer.member("quote \"", nullptr);
    writer.endObject();
    writer.endObject();
    writer.endDocument();
    EXPECT_EQ(text, "{\n"
                    "  \"b\": 1,\n"
                    "  \"a\": [\n"
                    "    {\n"
                    "      \"x\": \"line\\nfeed\",\n"
                    "      \"list\": [\n"
                    "        1,\n"
                    "        2\n"
                    "      ]\n"
                    "    },\n"
                    "    {}\n"
                    "  ],\n"
                    "  \"none\": [],\n"
                    "  \"o\": {\n"
                    "    \"quote \\\"\": null\n"
                    "  }\n"
                    "}\n");
}

TEST(JsonWriter, EscapesWhatATerminalMightActOnOrHide) {
    std::string text;
    JsonWriter writer([&](std::string_view piece) { text += piece; });
    const std::string unseen = "\x7F\xC2\x80\xC2\x9F\u200B\u202E\uFEFF\U000E0041\n";
    writer.beginObject();
    writer.member("x", jsonText("a" + unseen + "\u00E9\u200D"));
    writer.endObject();
    writer.endDocument();
    EXPECT_EQ(text, "{\n  \"x\": \"a\\u007f\\u0080\\u009f\\u200b\\u202e\\ufeff\\udb40\\udc41\\n"
                    "\u00E9\u200D\"\n}\n");
    EXPECT_EQ(nlohmann::json::parse(text)["x"], "a" + unseen + "\u00E9\u200D");
}

TEST(JsonText, ReplacesBytesThatAreNotUtf8) {
    EXPECT_EQ(jsonText("a\xFF\xC3\xA9").dump(), "\"a\uFFFDé\"");
}

TEST(JsonNumber, WritesNumbersThatJsonDoesNotKnowAsTexts) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(jsonNumber(std::nan("")).dump(), "\"NaN\"");
    EXPECT_EQ(jsonNumber(infinity).dump(), "\"Infinity\"");
    EXPECT_EQ(jsonNumber(-infinity).dump(), "\"-Infinity\"");
}

RC_GTEST_PROP(JsonNumber, ReadsBackAsTheSameNumber, (std::uint64_t bits)) {
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    RC_PRE(std::isfinite(number));
    const auto read = nlohmann::json::parse(jsonNumber(number).dump()).get<double>();
    RC_ASSERT(std::memcmp(&read, &number, sizeof number) == 0);
}

} // namespace

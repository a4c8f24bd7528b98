#include "tools/output/Style.h"

#include <gtest/gtest.h>

namespace {

TEST(Style, WantsColourOnATerminalOnly) {
    EXPECT_TRUE(wantsColour(true, nullptr, "xterm"));
    EXPECT_TRUE(wantsColour(true, nullptr, nullptr));
    EXPECT_FALSE(wantsColour(false, nullptr, "xterm"));
}

TEST(Style, WantsNoColourWhenNoColorIsSetAndNotEmpty) {
    EXPECT_FALSE(wantsColour(true, "1", "xterm"));
    EXPECT_FALSE(wantsColour(true, "0", "xterm"));
    EXPECT_TRUE(wantsColour(true, "", "xterm"));
}

TEST(Style, WantsNoColourOnADumbTerminal) {
    EXPECT_FALSE(wantsColour(true, nullptr, "dumb"));
    EXPECT_TRUE(wantsColour(true, nullptr, "dumber"));
    EXPECT_TRUE(wantsColour(true, nullptr, ""));
}

TEST(Style, LeavesTextsPlainWithoutColour) {
    const Style style(false);
    EXPECT_EQ(style.kind("a"), "a");
    EXPECT_EQ(style.name("a"), "a");
    EXPECT_EQ(style.label("a"), "a");
    EXPECT_EQ(style.identifier("a"), "a");
    EXPECT_EQ(style.remark("a"), "a");
}

TEST(Style, EndsEveryColourThatItBegins) {
    const Style style(true);
    EXPECT_EQ(style.kind("a"), "\x1b[36ma\x1b[0m");
    EXPECT_EQ(style.name("a"), "\x1b[1ma\x1b[0m");
    EXPECT_EQ(style.label("a"), "\x1b[2ma\x1b[0m");
    EXPECT_EQ(style.identifier("a"), "\x1b[2ma\x1b[0m");
    EXPECT_EQ(style.remark("a"), "\x1b[33ma\x1b[0m");
}

} // namespace

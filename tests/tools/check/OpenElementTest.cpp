#include "tools/check/OpenElement.h"

#include <string>

#include <gtest/gtest.h>

namespace {

std::string openIn(const std::string& text) {
    const auto open = innermostOpenElement(text);
    return open ? open->name + " " + std::to_string(open->offset) : "none";
}

TEST(OpenElement, IsTheInnermostThatHasNotEnded) {
    EXPECT_EQ(openIn("<a><b></b><c>"), "c 10");
    EXPECT_EQ(openIn("<a><b></b><c></c>"), "a 0");
    EXPECT_EQ(openIn("<a><b/>text"), "a 0");
    EXPECT_EQ(openIn("<a></a>"), "none");
    EXPECT_EQ(openIn(""), "none");
    EXPECT_EQ(openIn("</a>"), "none");
}

TEST(OpenElement, IsNotFoundInCommentsValuesAndTheLike) {
    EXPECT_EQ(openIn("<?xml version='1'?><!DOCTYPE a><a><!-- <b> --><![CDATA[<c>]]>"), "a 31");
    EXPECT_EQ(openIn("<a x='>' y=\"/>\">"), "a 0");
    EXPECT_EQ(openIn("<a><!-- <b>"), "a 0");
}

TEST(OpenElement, IsFoundInTextsThatEndWithinATag) {
    EXPECT_EQ(openIn("<a><b x='"), "a 0");
    EXPECT_EQ(openIn("<a><"), "a 0");
    EXPECT_EQ(openIn("<a>\n<b\tx='1'>"), "b 4");
}

} // namespace

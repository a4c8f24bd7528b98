#include "tools/check/OpenElement.h"

#include <string>

#include <gtest/gtest.h>

namespace {

std::string openIn(const std::string& text) {
    const OpenMarkup open = openMarkup(text);
    return open.elements.empty()
               ? "none"
               : open.elements.back().name + " " + std::to_string(open.elements.back().offset);
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

TEST(OpenElement, StandsInsideThoseThatAreOpenToo) {
    const OpenMarkup open = openMarkup("<a><b/><c x='1'><d></d>text");
    ASSERT_EQ(open.elements.size(), 2U);
    EXPECT_EQ(open.elements[0].name, "a");
    EXPECT_EQ(open.elements[1].name, "c");
    EXPECT_EQ(open.unfinished, "");
    EXPECT_EQ(open.end, 27U);
}

TEST(OpenElement, MayBeFollowedByMarkupThatIsNotFinished) {
    const auto unfinished = [](const std::string& text) {
        const OpenMarkup open = openMarkup(text);
        return open.unfinished + " " + std::to_string(open.end);
    };
    EXPECT_EQ(unfinished("<a><b x='>"), "a tag 3");
    EXPECT_EQ(unfinished("<a></"), "a tag 3");
    EXPECT_EQ(unfinished("<a>t<!-- -"), "a comment 4");
    EXPECT_EQ(unfinished("<a><![CDATA[ ]]"), "a text in CDATA 3");
    EXPECT_EQ(unfinished("<?xml version='1.0'?"), "a declaration 0");
    EXPECT_EQ(unfinished("<!DOCTYPE a"), "a declaration 0");
    EXPECT_EQ(unfinished("<a>t"), " 4");
}

TEST(OpenElement, HasARootBehindDeclarationsAndComments) {
    EXPECT_EQ(rootName("\xEF\xBB\xBF<?xml version='1.0'?>\n<!-- <a/> --><!DOCTYPE b><c d='e'>"),
              "c");
    EXPECT_EQ(rootName("<a:b/>"), "a:b");
    EXPECT_EQ(rootName("<a"), "a");
    EXPECT_EQ(rootName("<!-- <a/>"), "");
    EXPECT_EQ(rootName("text"), "");
    EXPECT_EQ(rootName(""), "");
}

} // namespace

#include "tools/text/Encoding.h"

#include <string>

#include <gtest/gtest.h>

namespace {

std::string nameIn(const std::string& bytes) {
    return std::string(declaredEncoding(toUtf8(bytes, encodingOf(bytes))));
}

TEST(Encoding, KnowsWhichOneIsDeclared) {
    EXPECT_EQ(nameIn("<?xml version=\"1.0\" encoding=\"windows-1252\"?><a/>"), "windows-1252");
    EXPECT_EQ(nameIn("\xEF\xBB\xBF<?xml version='1.0' encoding = 'UTF-8' ?><a/>"), "UTF-8");
    EXPECT_EQ(nameIn("<?xml version='1.0'?><a encoding='x'/>"), "");
    EXPECT_EQ(nameIn("<a encoding='x'/>"), "");
    EXPECT_EQ(nameIn("<?xml encoding=x"), "");
    EXPECT_EQ(nameIn(""), "");
    std::string wide;
    for (const char c : std::string("<?xml version='1.0' encoding='UTF-16'?><a/>"))
        wide += {c, '\0'};
    EXPECT_EQ(nameIn(wide), "UTF-16");
}

TEST(Encoding, IsNamedAsPeopleKnowIt) {
    EXPECT_STREQ(encodingName(encodingOf("<a/>")), "UTF-8");
    EXPECT_STREQ(encodingName(encodingOf("<?xml version='1.0' encoding='latin1'?><a/>")),
                 "ISO-8859-1");
    EXPECT_STREQ(encodingName(encodingOf(std::string("\xFF\xFE<\0", 4))), "UTF-16");
    EXPECT_STREQ(encodingName(encodingOf(std::string("\xFF\xFE\0\0<\0\0\0", 8))), "UTF-32");
}

} // namespace

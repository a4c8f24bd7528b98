#include "tools/check/GivenNumber.h"

#include <string>

#include <gtest/gtest.h>

namespace {

/// The number of <r><n>TEXT</n></r>.
GivenNumber numberOf(const std::string& text) {
    pugi::xml_document document;
    document.append_child("r").append_child("n").text().set(text.c_str());
    return {document.child("r"), "n"};
}

TEST(GivenNumber, StandsForAllThatIsRoundedOrCutOffToIt) {
    const auto expectRange = [](const std::string& text, double least, double most) {
        const GivenNumber number = numberOf(text);
        EXPECT_TRUE(number.isGiven()) << text;
        EXPECT_DOUBLE_EQ(number.least(), least) << text;
        EXPECT_DOUBLE_EQ(number.most(), most) << text;
    };
    expectRange("2.5", 2.45, 2.6);
    expectRange("2.50", 2.495, 2.51);
    expectRange("2", 1.5, 3);
    expectRange("2.", 1.5, 3);
    expectRange(".25", 0.245, 0.26);
    expectRange("25e-1", 2.45, 2.6);
    expectRange("2.5E1", 24.5, 26);
    expectRange(" +2 ", 1.5, 3);
    expectRange("0", 0, 1);
    expectRange("-2", -2.5, -1);
}

TEST(GivenNumber, IsNotGivenByWhatIsNoDecimalNumber) {
    for (const char* text :
         {"", "n/a", "12,5", "1 000", "0x10", "inf", "nan", "1e999", ".", "5 kg"})
        EXPECT_FALSE(numberOf(text).isGiven()) << text;
    EXPECT_TRUE(numberOf("").isThere());
    EXPECT_FALSE(GivenNumber(pugi::xml_node(), "n").isThere());
    EXPECT_FALSE(GivenNumber(pugi::xml_node(), "n").isGiven());
}

} // namespace

// How texts become identifiers: seen through the identifier of a grower, and through the name of a
// package where a text cannot stand in a document.

#include "parser/QenXmlParser.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <rapidcheck/gtest.h>

#include "tests/support/Conversions.h"
#include "tests/support/Uuids.h"

namespace {

using test::uuid;
using Identifier = std::optional<boost::uuids::uuid>; // none when the text is rejected

const std::string same = "00112233-4455-6677-8899-aabbccddeeff";

/// The four layouts, with digits that are all different from one another where they can be.
const std::vector<std::string> layouts = {
    "01234567-89ab-cdef-fedc-ba9876543210",
    "0123456789abcdeffedcba9876543210",
    "{01234567-89ab-cdef-fedc-ba9876543210}",
    "{0123456789abcdeffedcba9876543210}",
};

/// Reads a text that holds no NUL character.
Identifier read(const std::string& text) {
    pugi::xml_document document;
    pugi::xml_node grower = document.append_child("Grower");
    grower.append_attribute("GrowerID").set_value(text.c_str());
    try {
        return QenXmlParser().parseGrowerNode(grower).id();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ("invalid uuid string", error.what());
        return std::nullopt;
    }
}

/// The same rules put another way: character by character, as one reads.
Identifier expected(const std::string& text) {
    std::string::const_iterator next = text.begin();
    const auto skip = [&](char c) {
        if (next == text.end() || *next != c)
            return false;
        ++next;
        return true;
    };

    const bool braced = skip('{');
    bool hyphened = false;
    boost::uuids::uuid uuid{};
    for (int digit = 0; digit < 32; ++digit) {
        if (digit == 8)
            hyphened = skip('-');
        if (hyphened && (digit == 12 || digit == 16 || digit == 20) && !skip('-'))
            return std::nullopt;
        if (next == text.end())
            return std::nullopt;
        static const std::string digits = "0123456789abcdef0123456789ABCDEF";
        const std::size_t value = digits.find(*next++);
        // What is no digit sets all four bits of its own place, and in the second place of a byte
        // those of the first as well.
        unsigned char& byte = uuid.begin()[digit / 2];
        if (value == std::string::npos)
            byte = digit % 2 == 0 ? 0xF0 : 0xFF;
        else
            byte = static_cast<unsigned char>(byte | (value % 16) << (digit % 2 == 0 ? 4 : 0));
    }
    if (braced && !skip('}'))
        return std::nullopt;
    return uuid;
}

testing::AssertionResult followsTheRules(const std::string& text) {
    const Identifier wanted = expected(text);
    const Identifier got = read(text);
    if (wanted == got)
        return testing::AssertionSuccess();
    const auto show = [](const Identifier& id) { return id ? to_string(*id) : "rejected"; };
    return testing::AssertionFailure()
           << testing::PrintToString(text) << " is " << show(got) << " instead of " << show(wanted);
}

} // namespace

TEST(Identifier, OfTheCanonicalFormIsRead) {
    EXPECT_EQ(uuid(same), read(same));
}

TEST(Identifier, InBracesIsTheSame) {
    EXPECT_EQ(uuid(same), read("{00112233-4455-6677-8899-aabbccddeeff}"));
}

TEST(Identifier, WithoutHyphensInUpperCaseIsTheSame) {
    EXPECT_EQ(uuid(same), read("00112233445566778899AABBCCDDEEFF"));
}

TEST(Identifier, FollowedByAnythingIsTheSame) {
    for (const char* rest : {" ", "0", "-", "}", "{", " and more", "\n"}) {
        SCOPED_TRACE(rest);
        EXPECT_EQ(uuid(same), read(same + rest));
        EXPECT_EQ(uuid(same), read("{" + same + "}" + rest));
    }
}

TEST(Identifier, WithoutItsSecondHyphenFails) {
    EXPECT_EQ(std::nullopt, read("00112233-44556677-8899-aabbccddeeff"));
}

TEST(Identifier, WithoutItsClosingBraceFails) {
    EXPECT_EQ(std::nullopt, read("{00112233445566778899aabbccddeeff"));
}

TEST(Identifier, WithALetterInPlaceOfItsFirstDigitStartsWithF0) {
    const Identifier id = read("g0112233-4455-6677-8899-aabbccddeeff");
    ASSERT_TRUE(id);
    EXPECT_EQ(uuid("f0112233-4455-6677-8899-aabbccddeeff"), *id);
    EXPECT_EQ(0xF0, *id->begin());
}

TEST(Identifier, ThatIsEmptyFails) {
    EXPECT_EQ(std::nullopt, read(""));
}

TEST(Identifier, TakesAHyphenAfterTheEighthDigitOnlyForAHyphen) {
    // A hyphen elsewhere stands in the place of a digit, and takes it.
    EXPECT_EQ(uuid("00112233-44ff-5566-7788-99aabbccddee"),
              read("0011223344--5566778899aabbccddeeff"));
    EXPECT_EQ(uuid("00ff1122-3344-5566-7788-99aabbccddee"),
              read("00--112233445566778899aabbccddee"));
    // Here the hyphen after the 12th, 16th and 20th digit.
    EXPECT_EQ(uuid("00112233-4455-f667-ff88-99faabbccdde"),
              read("001122334455-6677-8899-aabbccddeeff"));
}

TEST(Identifier, SkipsOnlyOneBrace) {
    EXPECT_EQ(uuid("f0011223-3445-5667-7889-9aabbccddeef"),
              read("{{00112233445566778899aabbccddeef}"));
}

TEST(Identifier, KnowsNoOtherBraces) {
    for (const std::string open : {"(", "[", "<"}) {
        SCOPED_TRACE(open);
        EXPECT_EQ(uuid("f0011223-3445-5667-7889-9aabbccddeef"),
                  read(open + "00112233445566778899aabbccddeeff"));
    }
}

TEST(Identifier, IsNotTrimmed) {
    EXPECT_EQ(uuid("f0011223-3445-5667-7889-9aabbccddeef"),
              read(" 00112233445566778899aabbccddeeff"));
    // The blank pushes the first hyphen into the place of a digit.
    EXPECT_EQ(uuid("f0011223-ff44-55f6-67ff-8899faabbccd"), read(" " + same));
}

TEST(Identifier, FormsThatManyTestsUseAreThoseOfTheRules) {
    for (const auto& [text, value] : test::identifierConversions())
        EXPECT_EQ(expected(text), Identifier(uuid(value))) << text;
    for (const std::string& text : test::brokenIdentifiers())
        EXPECT_EQ(expected(text), std::nullopt) << text;
}

TEST(Identifier, MayHoldAnyCharacterAtAnyPosition) {
    for (const std::string& layout : layouts) {
        for (std::size_t position = 0; position < layout.size(); ++position) {
            for (int character = 1; character < 256; ++character) {
                std::string text = layout;
                text[position] = static_cast<char>(character);
                ASSERT_TRUE(followsTheRules(text));
            }
        }
    }
}

TEST(Identifier, MayHoldAnyTwoCharactersInAByte) {
    for (int high = 1; high < 256; ++high) {
        for (int low = 1; low < 256; ++low) {
            std::string text = layouts[1];
            text[30] = static_cast<char>(high);
            text[31] = static_cast<char>(low);
            ASSERT_TRUE(followsTheRules(text));
        }
    }
}

TEST(Identifier, CutOffAnywhereFails) {
    for (const std::string& layout : layouts) {
        for (std::size_t length = 0; length < layout.size(); ++length) {
            EXPECT_EQ(std::nullopt, read(layout.substr(0, length))) << layout.substr(0, length);
        }
        EXPECT_NE(std::nullopt, read(layout));
    }
}

TEST(Identifier, WithACharacterLeftOutOrPutInAnywhereFollowsTheRules) {
    for (const std::string& layout : layouts) {
        for (std::size_t position = 0; position < layout.size(); ++position) {
            std::string text = layout;
            ASSERT_TRUE(followsTheRules(text.erase(position, 1)));
            for (const char character : {'-', '{', '}', '0', 'f', 'F', 'g', ' '}) {
                text = layout;
                ASSERT_TRUE(followsTheRules(text.insert(position, 1, character)));
            }
        }
    }
}

TEST(Identifier, WithAnyChoiceOfHyphensFollowsTheRules) {
    const std::string digits = "0123456789abcdeffedcba9876543210";
    for (unsigned choice = 0; choice < 32; ++choice) {
        for (const bool braced : {false, true}) {
            std::string text;
            for (std::size_t i = 0; i < digits.size(); ++i) {
                // After the 4th, 8th, 12th, 16th and 20th digit.
                if (i > 0 && i % 4 == 0 && i <= 20 && (choice >> (i / 4 - 1) & 1U) != 0)
                    text += '-';
                text += digits[i];
            }
            ASSERT_TRUE(followsTheRules(braced ? "{" + text + "}" : text));
        }
    }
}

RC_GTEST_PROP(Identifier, OfAnyTextFollowsTheRules, ()) {
    const auto character = rc::gen::weightedOneOf<char>(
        {{20, rc::gen::elementOf(std::string("0123456789abcdefABCDEF"))},
         {3, rc::gen::elementOf(std::string("-{}"))},
         {1, rc::gen::inRange<char>(1, 127)}});
    std::string text = *rc::gen::container<std::string>(character);
    text += layouts[3].substr(text.size() % layouts[3].size());
    RC_ASSERT(expected(text) == read(text));
}

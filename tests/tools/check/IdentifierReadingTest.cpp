#include "tools/check/IdentifierReading.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/Uuids.h"
#include "tools/files/PackageUuid.h"

using Fault = IdentifierReading::Fault;

namespace {

const std::string canonical = "00112233-4455-6677-8899-aabbccddeeff";

std::string faultOf(const std::string& text) {
    return describeFault(readIdentifier(text), text);
}

TEST(IdentifierReading, ReadsEveryFormThatTheLibraryReads) {
    for (const std::string& text :
         {canonical, "{" + canonical + "}", std::string("00112233445566778899AABBCCDDEEFF"),
          std::string("{00112233445566778899aabbccddeeff}")}) {
        const IdentifierReading identifier = readIdentifier(text);
        EXPECT_EQ(identifier.fault, Fault::None) << text;
        EXPECT_EQ(identifier.value, test::uuid(canonical)) << text;
        EXPECT_EQ(identifier.wrongDigits, 0U) << text;
        EXPECT_EQ(identifier.ignored, "") << text;
    }
}

TEST(IdentifierReading, SaysWhichRuleATextBreaks) {
    EXPECT_EQ(faultOf(""), "is empty");
    EXPECT_EQ(faultOf("12"), "\"12\" is too short: it ends after 2 of 32 digits");
    EXPECT_EQ(faultOf("00112233-4455"),
              "\"00112233-4455\" is too short: it ends after 12 of 32 digits");
    EXPECT_EQ(faultOf("00112233-44556677-8899-aabbccddeeff"),
              "\"00112233-44556677-8899-aabbccddeeff\" lacks the hyphen after its 12th digit: with "
              "one after the 8th digit there must be four");
    EXPECT_EQ(faultOf("{" + canonical),
              "\"{" + canonical + "\" lacks the closing brace after its last digit");
    EXPECT_EQ(faultOf("\x1b"), "\"\\x1B\" is too short: it ends after 1 of 32 digits");
}

TEST(IdentifierReading, SaysWhereTheFaultIs) {
    EXPECT_EQ(readIdentifier("00112233-44556677-8899-aabbccddeeff").faultOffset, 13U);
    EXPECT_EQ(readIdentifier("{" + canonical + " }").faultOffset, 37U);
    EXPECT_EQ(readIdentifier("12").faultOffset, 2U);
}

TEST(IdentifierReading, CountsTheCharactersThatAreNoDigits) {
    const IdentifierReading identifier = readIdentifier("0011223g-4455-6677-8899-aabbccddee-x");
    EXPECT_EQ(identifier.fault, Fault::None);
    EXPECT_EQ(identifier.wrongDigits, 3U);
    EXPECT_EQ(identifier.wrongOffset, 7U);
    EXPECT_EQ(identifier.value, test::uuid("001122ff-4455-6677-8899-aabbccddeeff"));
}

TEST(IdentifierReading, TellsTextThatIsIgnoredFromWhiteSpace) {
    EXPECT_EQ(readIdentifier(canonical + " and more").ignored, " and more");
    EXPECT_EQ(readIdentifier("{" + canonical + "}}").ignored, "}");
    EXPECT_EQ(readIdentifier(canonical + " \t\r\n").ignored, "");
}

TEST(IdentifierReading, AgreesWithTheLibraryOnRandomTexts) {
    std::mt19937 random(3); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    const std::string characters = "0123456789abcdefABCDEF-{}gG \xC3";
    for (int i = 0; i < 20000; ++i) {
        std::string text = random() % 2 == 0 ? canonical : "{" + canonical + "}";
        for (auto changes = random() % 4; changes > 0; --changes) {
            const std::size_t place = random() % text.size();
            const char c = characters[random() % characters.size()];
            if (random() % 3 == 0)
                text.erase(place, 1);
            else if (random() % 2 == 0)
                text.insert(place, 1, c);
            else
                text[place] = c;
        }
        const IdentifierReading identifier = readIdentifier(text);
        const std::optional<boost::uuids::uuid> expected = uuidOf(text);
        ASSERT_EQ(identifier.fault == Fault::None, expected.has_value()) << text;
        if (expected) {
            ASSERT_EQ(identifier.value, *expected) << text;
        }
    }
}

} // namespace

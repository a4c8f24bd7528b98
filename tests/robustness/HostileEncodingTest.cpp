// Files in every encoding, whole, cut and marked as another one.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tests/robustness/HostileFile.h"

namespace {

namespace outcome = test::outcome;
using std::string_literals::operator""s;
using test::completePackage;
using test::holdsPackage;
using test::packageWithFarm;
using test::Reading;
using test::unitsOf;

struct Encoding {
    std::string name;
    std::size_t unit; ///< bytes
    bool bigEndian;
    std::string mark;
};

const std::vector<Encoding> encodings = {
    {"UTF-8", 1, false, "\xEF\xBB\xBF"},    {"UTF-16LE", 2, false, "\xFF\xFE"},
    {"UTF-16BE", 2, true, "\xFE\xFF"},      {"UTF-32LE", 4, false, "\xFF\xFE\0\0"s},
    {"UTF-32BE", 4, true, "\0\0\xFE\xFF"s},
};

std::string encoded(const std::u32string& units, const Encoding& encoding) {
    return test::inUnitsOf(encoding.unit, encoding.bigEndian, units);
}

} // namespace

TEST_F(HostileFile, InEveryEncodingWithAndWithoutAMarkIsReadAlike) {
    const std::string whole = completePackage();
    for (const Encoding& encoding : encodings) {
        SCOPED_TRACE(encoding.name);
        for (const std::string& mark : {encoding.mark, ""s})
            expectReadAs(whole, mark + encoded(unitsOf(whole), encoding));
    }
}

TEST_F(HostileFile, InEveryEncodingCutAnywhereIsRefused) {
    const std::string whole = test::package(test::grower(1));
    for (const Encoding& encoding : encodings) {
        for (const std::string& mark : {encoding.mark, ""s}) {
            const std::string bytes = mark + encoded(unitsOf(whole), encoding);
            for (std::size_t length = 0; length < bytes.size(); ++length) {
                SCOPED_TRACE(encoding.name + " cut after " + std::to_string(length));
                expectRefused(std::string_view(bytes).substr(0, length));
                if (HasFailure())
                    return;
            }
            EXPECT_EQ(outcome::read, read(bytes).outcome);
        }
    }
}

TEST_F(HostileFile, OfAMarkOnlyOrOfSeveralMarksIsRefused) {
    for (const Encoding& first : encodings) {
        expectRefused(first.mark);
        for (const Encoding& second : encodings)
            expectRefused(first.mark + second.mark);
    }
}

TEST_F(HostileFile, WithAMarkOfAnotherEncodingEndsInADocumentedWay) {
    for (const Encoding& encoding : encodings) {
        for (const Encoding& other : encodings) {
            SCOPED_TRACE(encoding.name + " marked as " + other.name);
            const std::string content = other.mark + encoded(unitsOf(completePackage()), encoding);
            const Reading reading = read(content);
            EXPECT_EQ(holdsPackage(content) ? outcome::read : outcome::refused, reading.outcome);
            EXPECT_EQ(&encoding == &other, reading.outcome == outcome::read);
        }
    }
}

TEST_F(HostileFile, WithLoneSurrogatesInUtf16IsReadWithoutThem) {
    const std::vector<std::u32string> texts = {
        {'A', 0xD800, 'B'},         // the first half of a pair only
        {'A', 0xDBFF, 'B'},         //
        {'A', 0xDC00, 'B'},         // the second half only
        {'A', 0xDFFF, 'B'},         //
        {'A', 0xDC00, 0xD800, 'B'}, // the wrong way round
        {'A', 0xD800, 0xD800, 'B'}, //
    };
    const std::string beginning = "<RecPackage><Grower GrowerID=\"" + test::uuidText(1) +
                                  "\"><Farm FarmID=\"" + test::uuidText(11) + "\"><FarmName>";
    for (const Encoding& encoding : encodings) {
        if (encoding.unit != 2)
            continue;
        SCOPED_TRACE(encoding.name);
        for (const std::u32string& text : texts) {
            expectFarm("AB", encoding.mark +
                                 encoded(unitsOf(beginning) + text +
                                             unitsOf("</FarmName></Farm></Grower></RecPackage>"),
                                         encoding));
        }
        // A pair, for comparison.
        expectFarm("\xF0\x9F\x9A\x9C",
                   encoding.mark + encoded(unitsOf(beginning) + std::u32string{0xD83D, 0xDE9C} +
                                               unitsOf("</FarmName></Farm></Grower></RecPackage>"),
                                           encoding));
        // A half at the very end of the file, and half of that half.
        const std::string end = encoding.mark + encoded(unitsOf(beginning) + U"x", encoding);
        for (const std::string half : {"\xD8", "\xDC", "\xD8\xD8", "\xDC\xDC"})
            expectRefused(end + half);
        const std::string whole =
            encoding.mark +
            encoded(unitsOf(packageWithFarm("x")) + std::u32string{0xD800}, encoding);
        EXPECT_EQ(outcome::read, read(whole).outcome);
    }
}

TEST_F(HostileFile, WithUnitsBeyondUnicodeInUtf32EndsInADocumentedWay) {
    for (const Encoding& encoding : encodings) {
        if (encoding.unit != 4)
            continue;
        for (const char32_t unit : {0x110000U, 0xD800U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
            SCOPED_TRACE(encoding.name + " " + std::to_string(unit));
            std::u32string content = unitsOf(packageWithFarm("AB"));
            content.insert(content.find(U"AB") + 1, 1, unit);
            Reading reading = read(encoding.mark + encoded(content, encoding));
            ASSERT_EQ(outcome::read, reading.outcome);
            EXPECT_EQ('A', reading.farmName().front());
            EXPECT_EQ('B', reading.farmName().back());
            EXPECT_GE(6U, reading.farmName().size());
        }
    }
}

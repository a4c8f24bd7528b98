// Numbers of a package read the same under every locale, and the host's locale stays as it is.
//
// Machines speak the language of their drivers: where the decimal point is a comma, the XML library
// alone would read a rate of "12.75" as 12.

#include <atomic>
#include <clocale>
#include <cstdlib>
#include <locale>
#include <sstream>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <rapidcheck/gtest.h>

#include "tests/robustness/NumberReaders.h"
#include "tests/support/NumberSpellings.h"

// Each time that a locale is looked for in LOCPATH, the C library loses a copy of that text.
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:argz_add_sep";
}

namespace {

using test::CommaLocale;
using test::expectNumbersAsInTheCLocale;
using test::ProcessLocale;
using test::Reader;
using test::readers;
using test::spellings;
using test::ThreadLocale;

/// What the C library makes of a number under the locale in force.
double inForce(const char* text) {
    return std::strtod(text, nullptr);
}

void expectAllNumbersAsInTheCLocale() {
    for (const Reader& reader : readers()) {
        for (const std::string& text : spellings())
            expectNumbersAsInTheCLocale(reader, text);
    }
}

/// Texts in which much is a number, or begins as one.
rc::Gen<std::string> numericLooking() {
    const auto anything = rc::gen::container<std::string>(rc::gen::elementOf(
        std::string("0123456789012345678901234567890+-..,,eExXpPaAbBfF inNtTyY")));
    const auto digits =
        rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789")));
    const auto number = rc::gen::map(
        rc::gen::tuple(rc::gen::element<std::string>("", "", "-", "+", " ", "0x"), digits,
                       rc::gen::element<std::string>("", ".", ".", ","), digits,
                       rc::gen::element<std::string>("", "", "e", "E-", "e+", "p"),
                       rc::gen::inRange(0, 400),
                       rc::gen::element<std::string>("", "", " ", "x", ",5")),
        [](const std::tuple<std::string, std::string, std::string, std::string, std::string, int,
                            std::string>& parts) {
            const auto& [sign, whole, point, fraction, e, exponent, rest] = parts;
            return sign + whole + point + fraction + e +
                   (e.empty() ? std::string() : std::to_string(exponent)) + rest;
        });
    return rc::gen::oneOf(anything, number, number);
}

} // namespace

class Locale : public testing::Test {
protected:
    const CommaLocale comma;
};

// Without this, all the other tests here would prove nothing.
TEST_F(Locale, OfTheTestHasADecimalCommaThatMisleadsTheXmlLibrary) {
    const test::Xml xml("<Rate>12.75</Rate>");
    EXPECT_EQ(12.75, xml.root().text().as_double());
    {
        const ProcessLocale process(CommaLocale::name);
        EXPECT_STREQ(",", std::localeconv()->decimal_point); // NOLINT(concurrency-mt-unsafe)
        EXPECT_EQ(12.75, inForce("12,75"));
        EXPECT_EQ(12.0, xml.root().text().as_double());
    }
    EXPECT_EQ(12.75, xml.root().text().as_double());
    {
        const ThreadLocale thread(comma.get());
        EXPECT_EQ(12.75, inForce("12,75"));
        EXPECT_EQ(12.0, xml.root().text().as_double());
    }
    EXPECT_EQ(12.75, xml.root().text().as_double());
}

TEST_F(Locale, OfTheProcessDoesNotChangeARate) {
    const ProcessLocale process(CommaLocale::name);
    QenGrower grower = test::growersOf(test::package(test::growerWithNumbers("12.75"))).at(0);
    QenField& field = grower.farms().at(0).fields().at(0);
    EXPECT_EQ(12.75, field.recs().at(0).averageRate());
    EXPECT_EQ(12.75, dynamic_cast<CustomFertilizerRec&>(*field.recs().at(0).recData()).pct_N());
    EXPECT_EQ(12.75, field.geometries().at(0).centroid().latitude);
    EXPECT_EQ(12, field.recs().at(0).totalUomId());
    EXPECT_EQ(12, field.recs().at(0).seasonId());
}

TEST_F(Locale, IsNoneAndEverySpellingReadsAsTheXmlLibraryReadsIt) {
    expectAllNumbersAsInTheCLocale();
}

TEST_F(Locale, OfTheProcessChangesNoSpellingForAnyReader) {
    const ProcessLocale process(CommaLocale::name);
    expectAllNumbersAsInTheCLocale();
}

TEST_F(Locale, OfTheThreadChangesNoSpellingForAnyReader) {
    const ThreadLocale thread(comma.get());
    expectAllNumbersAsInTheCLocale();
}

TEST_F(Locale, OfTheThreadAndTheProcessTogetherChangeNoSpelling) {
    const ProcessLocale process("C");
    const ThreadLocale thread(comma.get());
    std::thread([] {
        const ProcessLocale other(CommaLocale::name);
        expectAllNumbersAsInTheCLocale();
    }).join();
    expectAllNumbersAsInTheCLocale();
}

TEST_F(Locale, OfTheCppStreamsChangesNoSpelling) {
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
    std::ostringstream stream;
    stream << 1234.5;
    EXPECT_EQ("1.234,5", stream.str());
    expectAllNumbersAsInTheCLocale();
    std::locale::global(before);
}

RC_GTEST_FIXTURE_PROP(Locale, OfTheProcessChangesNoRandomText, ()) {
    const std::vector<std::string> texts =
        *rc::gen::container<std::vector<std::string>>(20, numericLooking());
    const ProcessLocale process(CommaLocale::name);
    for (const std::string& text : texts) {
        for (const Reader& reader : readers()) {
            expectNumbersAsInTheCLocale(reader, text);
            RC_ASSERT(!testing::Test::HasFailure());
        }
    }
}

TEST_F(Locale, OfTheProcessIsTheSameAfterReading) {
    const ProcessLocale process(CommaLocale::name);
    // Category by category, so that the host's mixture is not made uniform either.
    std::setlocale(LC_TIME, "C");                               // NOLINT(concurrency-mt-unsafe)
    const std::string before = std::setlocale(LC_ALL, nullptr); // NOLINT(concurrency-mt-unsafe)
    const std::string cppBefore = std::locale().name();
    for (const Reader& reader : readers()) {
        SCOPED_TRACE(reader.name);
        for (const char* text : {"12.75", " 12.75", "12,75", "0x1p4", "nan", "1e400"})
            reader.read(text);
        EXPECT_EQ(before, std::setlocale(LC_ALL, nullptr)); // NOLINT(concurrency-mt-unsafe)
        EXPECT_EQ(cppBefore, std::locale().name());
        EXPECT_EQ(LC_GLOBAL_LOCALE, uselocale(locale_t{}));
        EXPECT_STREQ(",", std::localeconv()->decimal_point); // NOLINT(concurrency-mt-unsafe)
        EXPECT_EQ(12.75, inForce("12,75"));
    }
}

TEST_F(Locale, OfTheThreadIsTheSameAfterReading) {
    const ThreadLocale thread(comma.get());
    for (const Reader& reader : readers()) {
        SCOPED_TRACE(reader.name);
        for (const char* text : {"12.75", " 12.75", "12,75", "0x1p4", "nan", "1e400"})
            reader.read(text);
        EXPECT_EQ(comma.get(), uselocale(locale_t{}));
        EXPECT_EQ(12.75, inForce("12,75"));
    }
}

TEST_F(Locale, IsTheSameAfterAReadingThatFails) {
    const ThreadLocale thread(comma.get());
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(test::package(
        test::grower(1, test::farmWithNumbers(" 12.75") + test::element("Stray", ""))));
    EXPECT_THROW(QenXmlParser().parseFile(path), std::runtime_error);
    EXPECT_EQ(comma.get(), uselocale(locale_t{}));
    EXPECT_EQ(12.75, inForce("12,75"));
}

TEST_F(Locale, OfOtherThreadsIsNeverDisturbedWhileOneReads) {
    const ProcessLocale process(CommaLocale::name);
    std::atomic<bool> done{false};
    std::atomic<long> conversions{0};
    std::atomic<long> disturbed{0};
    const auto convert = [&](locale_t locale, const char* text) {
        const ThreadLocale thread(locale);
        while (!done) {
            if (inForce(text) != 12.75)
                ++disturbed;
            ++conversions;
        }
    };
    const locale_t c = newlocale(LC_ALL_MASK, "C", locale_t{});
    std::thread ofTheProcess(convert, LC_GLOBAL_LOCALE, "12,75");
    std::thread ofItsOwn(convert, comma.get(), "12,75");
    std::thread inC(convert, c, "12.75");
    while (conversions == 0)
        std::this_thread::yield();
    for (int i = 0; i < 50; ++i) {
        for (const char* text : {"12.75", " 12.75"}) {
            for (const Reader& reader : readers())
                expectNumbersAsInTheCLocale(reader, text);
        }
    }
    done = true;
    ofTheProcess.join();
    ofItsOwn.join();
    inC.join();
    freelocale(c);
    EXPECT_EQ(0, disturbed);
}

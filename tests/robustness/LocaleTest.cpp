// Numbers of a package read the same under every locale, and the host's locale stays as it is.
//
// Machines speak the language of their drivers: where the decimal point is a comma, the XML library
// alone would read a rate of "12.75" as 12.

#include <atomic>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <locale>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <locale.h> // uselocale() and newlocale() are POSIX

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <rapidcheck/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/robustness/NumberPackage.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Xml.h"

// Each time that a locale is looked for in LOCPATH, the C library loses a copy of that text.
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:argz_add_sep";
}

namespace {

/// A locale of our own with a decimal comma, made in a folder of its own: no locale has to be
/// installed. Only the program "localedef" is needed.
class CommaLocale {
public:
    static constexpr const char* name = "comma_QENXML";

    CommaLocale() {
        std::string characters = "<code_set_name> ANSI_X3.4-1968\n<comment_char> %\n"
                                 "<escape_char> /\nCHARMAP\n";
        for (unsigned c = 0; c < 128; ++c)
            characters += "<U00" + hex(c) + "> /x" + hex(c) + " character\n";
        characters += "END CHARMAP\n";
        const std::string charmap = folder_.write("charmap", characters);
        const std::string source = folder_.write(
            "source", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\n"
                      "END LC_NUMERIC\n");
        const std::string log = folder_.path("log");
        const std::string command = "localedef --force " + byteOrder() + " --charmap='" + charmap +
                                    "' --inputfile='" + source + "' '" + folder_.path(name) +
                                    "' > '" + log + "' 2>&1";
        // Its exit status says nothing: it complains about all the categories that it fills itself.
        std::system(command.c_str()); // NOLINT(cert-env33-c,concurrency-mt-unsafe)

        setenv("LOCPATH", folder_.path("").c_str(), 1); // NOLINT(concurrency-mt-unsafe)
        locale_ = newlocale(LC_NUMERIC_MASK, name, locale_t{});
        if (locale_ == locale_t{}) {
            std::ifstream reason(log);
            throw std::runtime_error(
                "no locale with a decimal comma: this test needs the program \"localedef\" (Debian "
                "package libc-bin). It said:\n" +
                std::string(std::istreambuf_iterator<char>(reason), {}));
        }
    }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    ~CommaLocale() {
        freelocale(locale_);
        unsetenv("LOCPATH"); // NOLINT(concurrency-mt-unsafe)
    }

    locale_t get() const { return locale_; }

private:
    /// The option for the byte order of this program: under an emulator, localedef has another.
    static std::string byteOrder() {
        return __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__ ? "--big-endian" : "--little-endian";
    }

    static std::string hex(unsigned number) {
        constexpr const char* digits = "0123456789abcdef";
        return {digits[number / 16], digits[number % 16]};
    }

    test::TemporaryFolder folder_;
    locale_t locale_{};
};

/// Sets the locale of the whole process, as a host does at its start.
class ProcessLocale {
public:
    explicit ProcessLocale(const char* name) {
        if (std::setlocale(LC_ALL, name) == nullptr) // NOLINT(concurrency-mt-unsafe)
            throw std::runtime_error("cannot set the locale");
    }
    ProcessLocale(const ProcessLocale&) = delete;
    ProcessLocale& operator=(const ProcessLocale&) = delete;
    ~ProcessLocale() { std::setlocale(LC_ALL, "C"); } // NOLINT(concurrency-mt-unsafe)
};

/// Sets the locale of this thread only.
class ThreadLocale {
public:
    explicit ThreadLocale(locale_t locale) : previous_(uselocale(locale)) {}
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;
    ~ThreadLocale() { uselocale(previous_); }

private:
    locale_t previous_;
};

/// What the C library makes of a number under the locale in force.
double inForce(const char* text) {
    return std::strtod(text, nullptr);
}

using test::Numbers;

/// Every public reader, each called directly with an element whose numbers are all spelt @p text.
struct Reader {
    std::string name;
    std::function<Numbers(const std::string& text)> read;
};

template <class Record>
Numbers numbersOf(Record record) {
    Numbers numbers;
    numbers.add(record);
    return numbers;
}

template <class Data>
Numbers numbersOfData(Data* data) {
    const std::unique_ptr<Data> owner(data);
    return numbersOf<Data&>(*owner);
}

const boost::uuids::uuid anyUuid = test::uuid(7);

const std::vector<Reader>& readers() {
    static const std::vector<Reader> all = {
        {"parseFile",
         [](const std::string& text) {
             const test::TemporaryFolder folder;
             QenXmlParser parser;
             EXPECT_TRUE(parser.parseFile(
                 folder.writePackage(test::package(test::growerWithNumbers(text)))));
             return numbersOf(parser.getGrowers().at(0));
         }},
        {"parseGrowerNode",
         [](const std::string& text) {
             const test::Xml xml(test::growerWithNumbers(text));
             return numbersOf(QenXmlParser().parseGrowerNode(xml.root()));
         }},
        {"parseFarmNode",
         [](const std::string& text) {
             const test::Xml xml(test::farmWithNumbers(text));
             return numbersOf(QenXmlParser().parseFarmNode(anyUuid, xml.root()));
         }},
        {"parseFieldNode",
         [](const std::string& text) {
             const test::Xml xml(test::fieldWithNumbers(text));
             return numbersOf(QenXmlParser().parseFieldNode(anyUuid, anyUuid, xml.root()));
         }},
        {"parseRecNode",
         [](const std::string& text) {
             const test::Xml xml(test::recWithNumbers(31, test::customFertilizer(text), text));
             return numbersOf(QenXmlParser().parseRecNode(anyUuid, anyUuid, xml.root()));
         }},
        {"parseRecDataNode",
         [](const std::string& text) {
             const test::Xml xml(test::element("RecData", test::customFertilizer(text)));
             return numbersOfData(QenXmlParser().parseRecDataNode(anyUuid, xml.root()));
         }},
        {"parseCustomFertilizerRecDataNode",
         [](const std::string& text) {
             const test::Xml xml(test::customFertilizer(text));
             return numbersOfData(
                 QenXmlParser().parseCustomFertilizerRecDataNode(anyUuid, xml.root()));
         }},
        {"parseCommercialFertilizerRecDataNode",
         [](const std::string& text) {
             const test::Xml xml(test::commercialFertilizer(text));
             return numbersOfData(
                 QenXmlParser().parseCommercialFertilizerRecDataNode(anyUuid, xml.root()));
         }},
        {"parsePlantingRecDataNode",
         [](const std::string& text) {
             const test::Xml xml(test::planting(text));
             return numbersOfData(QenXmlParser().parsePlantingRecDataNode(anyUuid, xml.root()));
         }},
        {"parsePesticideRecDataNode",
         [](const std::string& text) {
             const test::Xml xml(test::pesticide(text));
             return numbersOfData(QenXmlParser().parsePesticideRecDataNode(anyUuid, xml.root()));
         }},
    };
    return all;
}

/// What the XML library itself reads in the "C" locale: the reference for everything here.
struct Reference {
    double number;
    int integer;

    explicit Reference(const std::string& text) {
        static const locale_t c = newlocale(LC_ALL_MASK, "C", locale_t{});
        const ThreadLocale inC(c);
        const test::Xml xml(test::element("Number", text));
        number = xml.root().text().as_double();
        integer = xml.root().text().as_int();
    }
};

/// A number down to its last bit; of one that is none, only the sign.
std::string exact(double number) {
    if (std::isnan(number))
        return std::signbit(number) ? "-nan" : "nan";
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    char text[32];
    char* const end = std::to_chars(text, text + sizeof text, bits, 16).ptr;
    return {text, end};
}

void expectNumbersAsInTheCLocale(const Reader& reader, const std::string& text) {
    SCOPED_TRACE(reader.name + " of \"" + text.substr(0, 60) + "\"");
    const Reference reference(text);
    const Numbers numbers = reader.read(text);
    EXPECT_FALSE(numbers.integers.empty());
    for (const auto& [place, value] : numbers.doubles)
        EXPECT_EQ(exact(value), exact(reference.number)) << place;
    for (const auto& [place, value] : numbers.integers)
        EXPECT_EQ(value, reference.integer) << place;
    for (const int season : numbers.seasons)
        EXPECT_EQ(season, reference.integer < 0 ? -1 : reference.integer);
}

const std::vector<std::string>& spellings() {
    static const std::vector<std::string> all = {
        // ordinary ones
        "12.75",
        "-0.5",
        "0",
        "0.0",
        "-0",
        "-0.0",
        "42",
        "007",
        "0.1",
        "123456.789",
        "1e3",
        "1E3",
        "1e+3",
        "1e-3",
        "1.5e10",
        "2147483647",
        "-2147483648",
        "0.30000000000000004",
        // signs and white space
        "+3",
        "+3.5",
        "+-3",
        "-+3",
        "--3",
        "- 3",
        "-",
        "+",
        "",
        "  7",
        "  7.5",
        "\t7.5",
        "\n7.5",
        "\r7.5",
        "\v7.5",
        "\f7.5",
        "7.5  ",
        "7 .5",
        "7. 5",
        " - 7",
        "&#160;7",
        // points and commas
        "12,75",
        "12,75.5",
        "12.75,5",
        "1.234,5",
        "1,234.5",
        "1.234.567",
        "1,234,567",
        ",5",
        ".5",
        "-.5",
        "+.5",
        "5.",
        "-5.",
        ".",
        ",",
        "-.",
        ".e1",
        "5.e1",
        ".5e1",
        "1..5",
        "1,,5",
        "1'234",
        "1 234",
        "1_234",
        "&#x66B;5",
        "1&#x66B;5",
        // what follows a number is ignored
        "12.75abc",
        "12.75 ha",
        "12.75e",
        "12.75e+",
        "12.75e-",
        "12.75ex",
        "12.75e 3",
        "1e3e3",
        "1e3.5",
        "1f",
        "1d",
        "1L",
        "1u",
        "1%",
        // hexadecimal, and what only looks like another base
        "0x10",
        "0X1F",
        "-0x10",
        "+0x10",
        "0x",
        "0xg",
        "0x.8",
        "0x1.8",
        "0x1,8",
        "0x1p4",
        "0x1P-4",
        "0x1p",
        "0x1.8p1",
        "0x1p1024",
        "0x1p-1080",
        "0x1.fffffffffffff8p0",
        "x10",
        "010",
        "0b11",
        "0o17",
        "#10",
        "$10",
        // no numbers
        "inf",
        "-inf",
        "+inf",
        "INF",
        "Infinity",
        "-infinity",
        "infinit",
        "in",
        "nan",
        "-nan",
        "NAN",
        "nan()",
        "nan(12)",
        "nan(",
        "na",
        "abc",
        "e5",
        "E",
        "one",
        "true",
        "NULL",
        // out of range, and at its edges
        "1e308",
        "1.7976931348623157e308",
        "1.7976931348623158e308",
        "1.7976931348623159e308",
        "1e309",
        "1e400",
        "-1e400",
        "1e99999",
        "1e999999999999999999999",
        "1e-400",
        "-1e-400",
        "1e-999999999999999999999",
        "2.2250738585072014e-308",
        "2.2250738585072011e-308",
        "4.9406564584124654e-324",
        "2.4703282292062327e-324",
        "2.4703282292062328e-324",
        "1e-310",
        "0e400",
        "0.0e-400",
        "2147483648",
        "-2147483649",
        "4294967296",
        "99999999999999999999",
        "-99999999999999999999",
        "0xFFFFFFFFFFFFFFFFF",
        // halfway between two numbers
        "9007199254740993",
        "9007199254740993.0000000000000001",
        "1.00000000000000011102230246251565",
        "1.000000000000000111022302462515654042363166809082031250",
        "1.000000000000000111022302462515654042363166809082031251",
        "5e-324",
        "8.5e22",
        "1e23",
        // many digits
        "3.14159265358979323846264338327950288419716939937510582097494459230781640628620899",
        "0." + std::string(400, '0') + "1",
        "1" + std::string(400, '0'),
        std::string(400, '0') + "1.5",
        std::string(400, '9'),
        "0." + std::string(400, '9'),
        "1" + std::string(400, '0') + "e-400",
        "0." + std::string(400, '0') + "1e401",
        "1.5" + std::string(900, '0') + "1",
        "0x" + std::string(400, 'f'),
        "0x0." + std::string(400, '0') + "1",
    };
    return all;
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
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    ASSERT_TRUE(
        parser.parseFile(folder.writePackage(test::package(test::growerWithNumbers("12.75")))));
    QenGrower grower = parser.getGrowers().at(0);
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

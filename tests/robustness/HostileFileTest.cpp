// Files that are damaged, or large without end.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tests/robustness/HostileFile.h"
#include "tests/robustness/Instrumented.h"

namespace {

namespace outcome = test::outcome;
using std::string_literals::operator""s;
using test::completePackage;
using test::holdsPackage;
using test::million;
using test::packageWithFarm;
using test::Reading;
using test::repeated;

} // namespace

TEST_F(HostileFile, CutAnywhereIsRefusedAndReadsOnlyWhenItsRootElementIsWhole) {
    const std::string whole = completePackage();
    const std::string described = test::describe(read(whole).growers);
    const std::size_t end = whole.rfind('>') + 1;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        const Reading reading = read(std::string_view(whole).substr(0, length));
        EXPECT_EQ(length < end ? outcome::refused : outcome::read, reading.outcome);
        EXPECT_EQ(length < end ? "" : described, test::describe(reading.growers));
        if (HasFailure())
            return;
    }
}

TEST_F(HostileFile, WithAnyByteReplacedEndsInADocumentedWay) {
    const std::string whole = completePackage();
    const std::string nasty = "\0<>&\"'/\x80\xFF] \n7{"s;
    // Each place is tried all the same, but with fewer bytes.
    const std::size_t step = test::builtWithSanitizers ? 3 : 1;
    std::size_t each[3] = {};
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (std::size_t n = at % step; n < nasty.size(); n += step) {
            std::string damaged = whole;
            damaged[at] = nasty[n];
            const Reading reading = read(damaged);
            if (!holdsPackage(damaged)) {
                EXPECT_EQ(outcome::refused, reading.outcome);
                EXPECT_EQ(0U, reading.growers.size());
                ++each[0];
            } else if (reading.outcome == outcome::read) {
                EXPECT_EQ(2U, reading.growers.size());
                ++each[1];
            } else {
                EXPECT_EQ(outcome::invalid, reading.outcome);
                EXPECT_GE(1U, reading.growers.size());
                ++each[2];
            }
            ASSERT_FALSE(HasFailure())
                << "byte " << at << " replaced by " << static_cast<int>(nasty[n]);
        }
    }
    // All three ways came up, each more than once in a while.
    EXPECT_LT(whole.size(), each[0] * step);
    EXPECT_LT(whole.size(), each[1] * step);
    EXPECT_LT(whole.size() / 10, each[2] * step);
}

TEST_F(HostileFile, WithoutAFinalNewlineIsReadInFull) {
    const std::string whole = completePackage();
    ASSERT_EQ('\n', whole.back());
    EXPECT_NE("", test::describe(read(whole).growers));
    expectReadAs(whole, whole.substr(0, whole.size() - 1));
}

TEST_F(HostileFile, OfNothingOrOfOneByteIsRefused) {
    expectRefused("");
    for (unsigned byte = 0; byte < 256; ++byte)
        expectRefused(std::string(1, static_cast<char>(byte)));
}

TEST_F(HostileFile, OfZerosOnlyIsRefused) {
    expectRefused(std::string(1000, '\0'));
    expectRefused(std::string(1U << 20U, '\0'));
}

TEST_F(HostileFile, WithAMillionNestedElementsIsReadAroundThem) {
    const std::string nested = repeated("<a>", million) + repeated("</a>", million);
    const auto with = [](const std::string& content) {
        return test::package(
            content +
            test::grower(1, content + test::farm(11, content + test::field(21, content))));
    };
    expectReadAs(with(""), with(nested));
}

TEST_F(HostileFile, WithAMillionNestedElementsInARecIsReadAroundThem) {
    const std::string nested = repeated("<a>", million) + repeated("</a>", million);
    const auto with = [](const std::string& content) {
        return test::packageWithRecs(test::rec(31, content + test::element("RecData", content)));
    };
    expectReadAs(with(""), with(nested));
}

TEST_F(HostileFile, WithAMillionElementsOfTheFormatNestedInThemselvesIsRead) {
    for (const std::string name : {"RecPackage", "Grower", "Farm", "Field", "Recommendations",
                                   "Rec", "RecData", "FarmName", "Planting"}) {
        SCOPED_TRACE(name);
        const std::string nested =
            repeated("<" + name + ">", million / 10) + repeated("</" + name + ">", million / 10);
        // Beneath a name, where nothing is looked for, and as the content of a grower, where Farm
        // alone is.
        expectReadAs(test::package(test::grower(1, "<GrowerName/>")),
                     test::package(test::grower(1, test::element("GrowerName", nested))));
        if (name == "Farm")
            expectOutcome(outcome::invalid, test::package(test::grower(1, nested)));
        else
            expectReadAs(test::package(test::grower(1)), test::package(test::grower(1, nested)));
    }
}

TEST_F(HostileFile, WithAMillionElementsThatNeverCloseIsRefused) {
    expectRefused(repeated("<a>", million));
    expectRefused(repeated("<RecPackage>", million));
    expectRefused(repeated("<a>x", million));
    expectRefused("<RecPackage>" + repeated("</a>", million));
    expectRefused(repeated("<", million));
    expectRefused(repeated("<!--", million));
    expectRefused(repeated("<![CDATA[", million));
    expectRefused(repeated("<?", million));
}

TEST_F(HostileFile, WithAMillionAttributesIsReadByThoseThatCount) {
    std::string others;
    for (std::size_t i = 0; i < million; ++i)
        others += " a" + std::to_string(i) + "=\"\"";
    const std::string id = " GrowerID=\"" + test::uuidText(1) + "\"";
    expectReadAs(test::package(test::grower(1)),
                 test::package("<Grower" + others + id + "></Grower>"));
    // Of several attributes with one name the first counts.
    expectReadAs(
        test::package(test::grower(1)),
        test::package("<Grower" + id + repeated(" GrowerID=\"\"", million) + "></Grower>"));
    expectOutcome(outcome::invalid, test::package("<Grower" + repeated(" GrowerID=\"\"", million) +
                                                  id + "></Grower>"));
}

TEST_F(HostileFile, WithAMillionForeignItemsInAListFailsAtTheFirst) {
    for (const std::string item : {"<a/>", "<Farm/>", "<!-- --><a/>", "x<a/>"}) {
        expectOutcome(outcome::invalid,
                      test::package(test::grower(1, test::farm(11) + repeated(item, million))));
    }
}

TEST_F(HostileFile, WithAMillionChildrenInARecIsReadAroundThem) {
    const auto with = [](const std::string& content) {
        return test::packageWithRecs(test::rec(31, content));
    };
    const std::string name = "<RecName>last</RecName>";
    expectReadAs(with(name), with(repeated("<a/>", million) + name));
    expectReadAs(with(name), with(name + repeated("<RecName/>", million)));
}

TEST_F(HostileFile, OfAHundredMegabytesInOneTextIsRead) {
    const std::size_t size = test::builtWithSanitizers ? 10 * million : 100 * million;
    const std::string text(size, 'x');
    expectFarm(text, packageWithFarm(text));
}

TEST_F(HostileFile, OfAHundredMegabytesInOneTextThatNeverEndsIsRefused) {
    const std::size_t size = test::builtWithSanitizers ? 10 * million : 100 * million;
    expectRefused("<RecPackage><Grower GrowerID=\"" + std::string(size, '0'));
}

TEST_F(HostileFile, OfManyMegabytesOfEntitiesIsRead) {
    expectFarm(std::string(10 * million, '&'), packageWithFarm(repeated("&amp;", 10 * million)));
}

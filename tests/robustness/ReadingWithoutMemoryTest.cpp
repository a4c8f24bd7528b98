// Reading files and elements while memory runs out.

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/robustness/AllocationFailure.h"
#include "tests/robustness/NumberPackage.h"
#include "tests/support/PackageText.h"
#include "tests/support/Texts.h"
#include "tests/support/Xml.h"

namespace {

using test::allKinds;
using test::Attempt;
using test::element;
using test::expectMakes;
using test::longWords;
using test::nameOf;
using test::text;
using test::tryEveryAllocation;
using test::uuid;

std::string recElement(unsigned number, RecType kind) {
    return test::recWithNumbers(number, kind, std::to_string(number));
}

/// Recs of all kinds, one without optional parts, and two that replace others by another kind.
std::string recElements(unsigned first) {
    std::string result;
    for (const RecType kind : allKinds)
        result += recElement(first + static_cast<unsigned>(kind), kind);
    return result + test::rec(first + 5) + recElement(first + 3, RecTypeCustomFertilizer) +
           recElement(first + 1, RecTypePlanting);
}

std::string fieldElement(unsigned number, const std::string& recs) {
    return test::fieldWithRecs(number, recs, std::to_string(number));
}

/// Two fields, the first of which stands there twice.
std::string farmElement(unsigned number, unsigned field) {
    return test::farm(number, element("FarmName", longWords) +
                                  fieldElement(field, recElement(1, RecTypePlanting)) +
                                  test::field(field + 1) + fieldElement(field, recElements(20)));
}

/// Two farms, the first of which stands there twice.
std::string growerElement(unsigned number, unsigned farm) {
    return test::grower(
        number, element("GrowerName", longWords) +
                    test::farm(farm, fieldElement(50, recElement(1, RecTypeCustomFertilizer))) +
                    test::farm(farm + 1) + farmElement(farm, 60));
}

/// Four growers, among them one without any optional part and one with the identifier of another.
std::string packageText() {
    return test::package(
        growerElement(1, 71) + test::grower(2) +
        test::grower(1, element("GrowerName", longWords) + test::farm(81)) +
        test::grower(
            3, test::farm(91, fieldElement(92, recElement(93, RecTypeCommercialFertilizer)))));
}

enum class Reading { Read, NotRead, ShortPath, BrokenIdentifier };

std::ostream& operator<<(std::ostream& out, Reading reading) {
    return out << std::vector<const char*>{"read", "not read", "short path",
                                           "broken identifier"}[static_cast<std::size_t>(reading)];
}

Reading readFile(QenXmlParser& parser, const std::string& path) {
    try {
        return parser.parseFile(path) ? Reading::Read : Reading::NotRead;
    } catch (const std::out_of_range&) {
        return Reading::ShortPath;
    } catch (const std::runtime_error&) {
        return Reading::BrokenIdentifier;
    }
}

std::vector<std::string> growersOf(QenXmlParser& parser) {
    std::vector<std::string> result;
    for (QenGrower& grower : parser.getGrowers())
        result.push_back(text(grower));
    return result;
}

std::vector<std::string> joined(std::vector<std::string> first,
                                const std::vector<std::string>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// The UUID that a parser puts into recs.
boost::uuids::uuid packageOf(QenXmlParser& parser, const test::Xml& rec) {
    return parser.parseRecNode(uuid(1), uuid(2), rec.root()).xmlFileName();
}

/// parseFile() of a parser that has read the file @p earlier before, unless that is empty.
///
/// @param withoutXmlMemory what comes out when the XML library gets no memory for loading
void expectReads(const std::string& operation, std::size_t minimum, const std::string& path,
                 Reading expected, Reading withoutXmlMemory, const std::string& earlier = "") {
    const test::Xml rec(test::rec(1));
    QenXmlParser reference;
    if (!earlier.empty()) {
        ASSERT_EQ(Reading::Read, readFile(reference, earlier));
    }
    const std::vector<std::string> growersBefore = growersOf(reference);
    const boost::uuids::uuid packageBefore = packageOf(reference, rec);
    ASSERT_EQ(expected, readFile(reference, path));
    const boost::uuids::uuid packageAfter = packageOf(reference, rec);
    const std::vector<std::string> growersAfter = growersOf(reference);
    const std::vector<std::string> added(growersAfter.begin() +
                                             static_cast<std::ptrdiff_t>(growersBefore.size()),
                                         growersAfter.end());

    std::vector<bool> survived(added.size() + 1); // by the number of growers
    tryEveryAllocation(operation, minimum, [&](Attempt& attempt) {
        QenXmlParser parser;
        if (!earlier.empty())
            parser.parseFile(earlier);
        Reading reading = expected;
        attempt.run([&] { reading = readFile(parser, path); });

        const std::vector<std::string> growers = growersOf(parser);
        if (attempt.outOfMemory()) {
            ASSERT_LE(growersBefore.size(), growers.size());
            const std::size_t count = growers.size() - growersBefore.size();
            ASSERT_LE(count, added.size());
            const auto end = added.begin() + static_cast<std::ptrdiff_t>(count);
            EXPECT_EQ(joined(growersBefore, {added.begin(), end}), growers);
            survived[count] = true;
            // The first allocation is that of the path, with which nothing has begun.
            EXPECT_EQ(attempt.point() == 1 ? packageBefore : packageAfter, packageOf(parser, rec));
        } else if (attempt.xmlOutOfMemory()) {
            EXPECT_EQ(withoutXmlMemory, reading);
            EXPECT_EQ(growersBefore, growers);
            EXPECT_EQ(packageAfter, packageOf(parser, rec));
        } else {
            EXPECT_EQ(expected, reading);
            EXPECT_EQ(growersAfter, growers);
        }

        EXPECT_EQ(expected, readFile(parser, path));
        EXPECT_EQ(joined(growers, added), growersOf(parser));
    });
    EXPECT_TRUE(survived[0]);
    if (expected == Reading::Read) {
        for (std::size_t count = 1; count < added.size(); ++count)
            EXPECT_TRUE(survived[count]) << count;
    }
}

/// A public reader of one element.
template <class Value, class Reader>
void expectReadsElement(const std::string& reader, std::size_t minimum, const std::string& xml,
                        Reader read) {
    const test::Xml document(xml);
    QenXmlParser parser;
    std::optional<Value> expected;
    expected.emplace(read(parser, document.root()));
    expectMakes<Value>(reader, minimum, text(*expected), [&](std::optional<Value>& value) {
        value.emplace(read(parser, document.root()));
    });
}

} // namespace

TEST_F(AllocationFailure, ThePackageOfTheseTestsHoldsEverything) {
    QenXmlParser parser;
    ASSERT_TRUE(parser.parseFile(folder_.writePackage(packageText())));
    std::vector<QenGrower> growers = parser.getGrowers();
    ASSERT_EQ(4U, growers.size());
    EXPECT_EQ(uuid(1), growers[0].id());
    EXPECT_EQ(uuid(2), growers[1].id());
    EXPECT_EQ("", growers[1].name());
    EXPECT_EQ(uuid(1), growers[2].id());
    ASSERT_EQ(2U, growers[0].farms().size());
    QenFarm& farm = growers[0].farms()[0];
    EXPECT_EQ(uuid(71), farm.id());
    ASSERT_EQ(2U, farm.fields().size());
    QenField& field = farm.fields()[0];
    EXPECT_EQ(uuid(60), field.id());
    std::vector<RecType> kinds;
    for (QenRec& rec : field.recs())
        kinds.push_back(rec.recData() == nullptr ? RecTypeNone : rec.recData()->recType());
    EXPECT_EQ((std::vector<RecType>{RecTypeNone, RecTypePlanting, RecTypeCustomFertilizer,
                                    RecTypeCustomFertilizer, RecTypeNone, RecTypeNone}),
              kinds);
}

TEST_F(AllocationFailure, WholeGrowersSurviveAFailureOfReading) {
    expectReads("parseFile", 200, folder_.writePackage(packageText()), Reading::Read,
                Reading::NotRead);
}

TEST_F(AllocationFailure, EarlierGrowersSurviveAFailureOfReadingAnotherFile) {
    const std::string earlier = folder_.writePackage(
        test::package(
            test::grower(4, test::farm(72, fieldElement(73, recElement(74, RecTypePlanting))))),
        "ffeeddcc-bbaa-9988-7766-554433221100");
    expectReads("parseFile of a second file", 200, folder_.writePackage(packageText()),
                Reading::Read, Reading::NotRead, earlier);
}

TEST_F(AllocationFailure, WholeGrowersSurviveAFailureOfReadingAnotherEncoding) {
    expectReads("parseFile of UTF-16", 200, folder_.writePackage(test::inUtf16(packageText())),
                Reading::Read, Reading::NotRead);
}

TEST_F(AllocationFailure, GrowersBeforeABrokenOneSurviveAFailureOfReading) {
    const std::string growers = growerElement(1, 71) + test::grower(2);
    expectReads("parseFile of a broken package", 100,
                folder_.writePackage(test::package(growers + "<Grower/>")),
                Reading::BrokenIdentifier, Reading::NotRead);
}

TEST_F(AllocationFailure, WhatCannotBeReadStaysSo) {
    const std::string missing = folder_.path("00112233-4455-6677-8899-aabbccddeefe.xml");
    expectReads("parseFile of a missing file", 1, missing, Reading::NotRead, Reading::NotRead);
    expectReads("parseFile of another document", 2, folder_.writePackage("<Other/>"),
                Reading::NotRead, Reading::NotRead);
    expectReads("parseFile of no XML", 2, folder_.writePackage("<RecPackage>"), Reading::NotRead,
                Reading::NotRead);
}

TEST_F(AllocationFailure, ThePathIsJudgedEvenWithoutMemoryForTheDocument) {
    expectReads("parseFile of a name without UUID", 4,
                folder_.write("{" + std::string(35, 'x') + ".xml", packageText()),
                Reading::BrokenIdentifier, Reading::BrokenIdentifier);
    expectReads("parseFile of a short path", 4, folder_.write("short.xml", packageText()),
                Reading::ShortPath, Reading::ShortPath);
}

TEST_F(AllocationFailure, AFailedCopyOfTheGrowersLeavesThem) {
    QenXmlParser parser;
    ASSERT_TRUE(parser.parseFile(folder_.writePackage(packageText())));
    std::vector<QenGrower> growers = parser.getGrowers();
    const std::string expected = text(growers);
    expectMakes<std::vector<QenGrower>>(
        "getGrowers", 80, expected,
        [&](std::optional<std::vector<QenGrower>>& copy) { copy.emplace(parser.getGrowers()); });
    growers = parser.getGrowers();
    EXPECT_EQ(expected, text(growers));
}

// --- Reading elements ---------------------------------------------------------------------------

TEST_F(AllocationFailure, AFailedReaderLosesNothing) {
    expectReadsElement<QenGrower>(
        "parseGrowerNode", 100, growerElement(1, 71),
        [](QenXmlParser& parser, pugi::xml_node node) { return parser.parseGrowerNode(node); });
    expectReadsElement<QenFarm>("parseFarmNode", 50, farmElement(1, 50),
                                [](QenXmlParser& parser, pugi::xml_node node) {
                                    return parser.parseFarmNode(uuid(2), node);
                                });
    expectReadsElement<QenField>("parseFieldNode", 25, fieldElement(1, recElements(10)),
                                 [](QenXmlParser& parser, pugi::xml_node node) {
                                     return parser.parseFieldNode(uuid(2), uuid(3), node);
                                 });
    for (const RecType kind : allKinds) {
        expectReadsElement<QenRec>(std::string("parseRecNode with ") + nameOf(kind), 9,
                                   recElement(1, kind),
                                   [](QenXmlParser& parser, pugi::xml_node node) {
                                       return parser.parseRecNode(uuid(2), uuid(3), node);
                                   });
    }
}

TEST_F(AllocationFailure, AFailedReaderOfProductDataLosesNothing) {
    using Data = std::unique_ptr<QenRecData>;
    for (const RecType kind :
         {RecTypeCommercialFertilizer, RecTypeCustomFertilizer, RecTypePlanting}) {
        expectReadsElement<Data>(std::string("parseRecDataNode of ") + nameOf(kind), 3,
                                 element("RecData", test::productWithNumbers(kind, "1")),
                                 [](QenXmlParser& parser, pugi::xml_node node) {
                                     return Data(parser.parseRecDataNode(uuid(1), node));
                                 });
    }
    expectReadsElement<Data>(
        "parseCommercialFertilizerRecDataNode", 3, test::commercialFertilizer("1"),
        [](QenXmlParser& parser, pugi::xml_node node) {
            return Data(parser.parseCommercialFertilizerRecDataNode(uuid(1), node));
        });
    expectReadsElement<Data>("parseCustomFertilizerRecDataNode", 3, test::customFertilizer("1"),
                             [](QenXmlParser& parser, pugi::xml_node node) {
                                 return Data(
                                     parser.parseCustomFertilizerRecDataNode(uuid(1), node));
                             });
    expectReadsElement<Data>("parsePlantingRecDataNode", 5, test::planting("1"),
                             [](QenXmlParser& parser, pugi::xml_node node) {
                                 return Data(parser.parsePlantingRecDataNode(uuid(1), node));
                             });
    expectReadsElement<Data>("parsePesticideRecDataNode", 3, test::pesticide("1"),
                             [](QenXmlParser& parser, pugi::xml_node node) {
                                 return Data(parser.parsePesticideRecDataNode(uuid(1), node));
                             });
}

// What every operation of the library does when memory runs out, at each allocation that it makes:
// std::bad_alloc comes out, nothing is lost, nothing is released twice, and what the operation
// worked on is as it was or, where it says so, between two whole steps.

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "parser/QenXmlParser.h"
#include "tests/robustness/AllocationPoints.h"
#include "tests/robustness/LongRecords.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Xml.h"

namespace {

using test::Attempt;
using test::longText;
using test::text;
using test::tryEveryAllocation;
using test::uuid;

const RecType allKinds[] = {RecTypeNone, RecTypeCommercialFertilizer, RecTypeCustomFertilizer,
                            RecTypePlanting, RecTypePesticide};

const char* nameOf(RecType kind) {
    switch (kind) {
    case RecTypeCommercialFertilizer:
        return "commercial fertilizer";
    case RecTypeCustomFertilizer:
        return "custom fertilizer";
    case RecTypePlanting:
        return "planting";
    case RecTypePesticide:
        return "pesticide";
    case RecTypeNone:
        break;
    }
    return "no product data";
}

// --- What is expected of kinds of operations -------------------------------------------------

/// An operation that makes a value and changes nothing else.
template <class Value>
void expectMakes(const std::string& operation, std::size_t minimum, const std::string& expected,
                 const std::function<void(std::optional<Value>&)>& make) {
    tryEveryAllocation(operation, minimum, [&](Attempt& attempt) {
        std::optional<Value> value;
        attempt.run([&] { make(value); });
        EXPECT_EQ(!attempt.outOfMemory(), value.has_value());
        if (attempt.outOfMemory())
            make(value);
        EXPECT_EQ(expected, text(*value));
    });
}

/// A getter or look-up that returns a value made of allocated memory.
template <class Record, class Getter>
void expectGets(const std::string& operation, std::size_t minimum, Record& record, Getter getter) {
    using Value = std::decay_t<decltype(std::invoke(getter, record))>;
    const std::string before = text(record);
    Value expected = std::invoke(getter, record);
    expectMakes<Value>(operation, minimum, text(expected), [&](std::optional<Value>& value) {
        value.emplace(std::invoke(getter, record));
    });
    EXPECT_EQ(before, text(record));
}

/// The copy constructor.
template <class Record>
void expectCopies(const std::string& record, std::size_t minimum, Record& original) {
    const std::string before = text(original);
    expectMakes<Record>(record + " copied", minimum, before, [&](std::optional<Record>& copy) {
        copy.emplace(std::as_const(original));
    });
    EXPECT_EQ(before, text(original));
}

/// An operation that changes nothing when memory runs out.
template <class Record>
void expectAllOrNothing(const std::string& operation, std::size_t minimum, const Record& original,
                        const std::function<void(Record&)>& change) {
    Record record(original);
    const std::string before = text(record);
    change(record);
    const std::string after = text(record);
    ASSERT_NE(before, after);
    tryEveryAllocation(operation, minimum, [&](Attempt& attempt) {
        Record target(original);
        attempt.run([&] { change(target); });
        EXPECT_EQ(attempt.outOfMemory() ? before : after, text(target));
        if (attempt.outOfMemory()) {
            change(target);
            EXPECT_EQ(after, text(target));
        }
    });
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> result;
    for (std::string word; in >> word;)
        result.push_back(word);
    return result;
}

// The parts of a record that an assignment may replace one by one.

template <class Record>
std::vector<std::string> parts(Record& record) {
    return words(text(record));
}

std::vector<std::string> parts(QenFarm& farm) {
    QenFarm childless(farm.name(), farm.id(), farm.growerId());
    std::vector<std::string> result = {text(childless)};
    for (QenField& field : farm.fields())
        result.push_back(text(field)); // as a whole: fields are assigned entirely or not at all
    return result;
}

std::vector<std::string> parts(QenGrower& grower) {
    QenGrower childless(grower.name(), grower.id());
    std::vector<std::string> result = {text(childless)};
    for (QenFarm& farm : grower.farms()) {
        for (std::string& part : parts(farm))
            result.push_back(std::move(part));
    }
    return result;
}

/// Each part is the earlier or the later one, in its place unless the number of parts changes.
void expectOldOrNew(const std::vector<std::string>& before, const std::vector<std::string>& after,
                    const std::vector<std::string>& now) {
    if (before.size() == after.size() && before.size() == now.size()) {
        for (std::size_t i = 0; i < now.size(); ++i)
            EXPECT_TRUE(now[i] == before[i] || now[i] == after[i]) << now[i];
        return;
    }
    for (const std::string& part : now) {
        EXPECT_TRUE(std::find(before.begin(), before.end(), part) != before.end() ||
                    std::find(after.begin(), after.end(), part) != after.end())
            << part;
    }
}

/// Copy assignment member by member: a failure leaves some of them assigned.
template <class Record>
void expectAssigns(const std::string& record, std::size_t minimum, const Record& to,
                   const Record& from) {
    Record source(from);
    Record target(to);
    const std::vector<std::string> before = parts(target);
    const std::vector<std::string> after = parts(source);
    tryEveryAllocation(record + " assigned", minimum, [&](Attempt& attempt) {
        Record assigned(to);
        attempt.run([&] { assigned = from; });
        if (attempt.outOfMemory()) {
            expectOldOrNew(before, after, parts(assigned));
            assigned = from;
        }
        EXPECT_EQ(after, parts(assigned));
    });
    EXPECT_EQ(after, parts(source));
}

/// A merge. @p others are versions of what is merged that end ever later, from one without
/// children to the whole; after a failure the record is as if one of them had been merged.
///
/// @param differentFailures in how many of these states the record must have been found
template <class Record>
void expectMergesStepByStep(const std::string& operation, std::size_t minimum,
                            const Record& original, const std::vector<Record>& others,
                            std::ptrdiff_t differentFailures) {
    Record whole(others.back());
    const std::string wholeBefore = text(whole);
    std::vector<std::string> states;
    for (const Record& other : others) {
        Record target(original);
        target.merge(other);
        states.push_back(text(target));
    }
    Record unmerged(original);
    ASSERT_EQ(text(unmerged), states.front());
    ASSERT_EQ(states.size(), std::set<std::string>(states.begin(), states.end()).size());

    std::vector<bool> found(states.size());
    tryEveryAllocation(operation, minimum, [&](Attempt& attempt) {
        Record target(original);
        attempt.run([&] { target.merge(whole); });
        if (attempt.outOfMemory()) {
            const auto state = std::find(states.begin(), states.end(), text(target));
            ASSERT_TRUE(state != states.end()) << text(target);
            found[static_cast<std::size_t>(state - states.begin())] = true;
            target.merge(whole);
        }
        EXPECT_EQ(states.back(), text(target));
    });
    EXPECT_EQ(wholeBefore, text(whole));
    EXPECT_TRUE(found.front());
    EXPECT_GE(std::count(found.begin(), found.end(), true), differentFailures);
}

// --- Packages ---------------------------------------------------------------------------------

std::string longElement(const std::string& name, unsigned number) {
    return test::element(name, longText(name + "-" + std::to_string(number)));
}

std::string numberElements(std::initializer_list<const char*> names) {
    std::string result;
    unsigned number = 0;
    for (const char* name : names)
        result += test::element(name, std::to_string(++number));
    return result;
}

std::string productElement(RecType kind, unsigned number) {
    switch (kind) {
    case RecTypeCommercialFertilizer:
        return test::element("CommercialFertilizer", numberElements({"ProductID", "UOMID"}) +
                                                         longElement("ProductName", number) +
                                                         longElement("UOM", number));
    case RecTypeCustomFertilizer:
        return test::element(
            "CustomFertilizer",
            test::element("ProductID", test::uuidText(100 + number)) +
                longElement("ProductName", number) + longElement("UOM", number) +
                numberElements({"UOMID", "SFertT_ID", "SpGravity", "Pct_N", "Pct_P", "Pct_K",
                                "Pct_Ca", "Pct_Mg", "Pct_S", "Pct_Fe", "Pct_Mn", "Pct_Zn", "Pct_Cu",
                                "Pct_B", "Pct_Mo", "Pct_Cl"}));
    case RecTypePlanting:
        return test::element(
            "Planting", numberElements({"CropID", "CompanyID", "VarietyID", "UOMID"}) +
                            longElement("CropName", number) + longElement("CompanyName", number) +
                            longElement("VarietyName", number) + longElement("UOM", number));
    case RecTypePesticide:
        return test::element("Pesticide", longElement("PesticideMixName", number) +
                                              numberElements({"UOMID"}) +
                                              longElement("UOM", number));
    case RecTypeNone:
        break;
    }
    return "";
}

/// A Rec element with all of its optional parts.
std::string recElement(unsigned number, RecType kind) {
    return "<Rec RecID=\"" + test::uuidText(number) + "\" MgmtZoneID=\"" + test::uuidText(601) +
           "\">" + longElement("RecName", number) +
           test::element("RecGeometry", test::uuidText(602)) + longElement("CreationDate", number) +
           longElement("EditDate", number) + longElement("RecDBFCol", number) +
           test::element("Operation", "OpID", 603, longElement("OpName", number)) +
           "<Season SeasonID=\"4\">" + longElement("SeasonName", number) + "</Season>" +
           test::element("RecData", productElement(kind, number)) +
           test::element("RecStats",
                         numberElements({"MinimumRate", "MaximumRate", "AverageRate", "RateUOMID",
                                         "Total", "TotalUOMID", "Area", "AreaUOMID"}) +
                             longElement("RateUOM", number) + longElement("TotalUOM", number) +
                             longElement("AreaUOM", number)) +
           "</Rec>";
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
    return test::element(
        "Field", "FieldID", number,
        longElement("FieldName", number) +
            test::element("FieldGeometryID", test::uuidText(7000 + number)) +
            longElement("FieldGeometryDate", number) +
            test::element("FieldGeometry", test::uuidText(8000 + number)) +
            test::element("FieldCentroid", numberElements({"Latitude", "Longitude"})) +
            test::element("Recommendations", recs));
}

/// Two fields, the first of which stands there twice.
std::string farmElement(unsigned number, unsigned field) {
    return test::element("Farm", "FarmID", number,
                         longElement("FarmName", number) +
                             fieldElement(field, recElement(1, RecTypePlanting)) +
                             test::field(field + 1) + fieldElement(field, recElements(20)));
}

/// Two farms, the first of which stands there twice.
std::string growerElement(unsigned number, unsigned farm) {
    return test::element(
        "Grower", "GrowerID", number,
        longElement("GrowerName", number) +
            test::farm(farm, fieldElement(50, recElement(1, RecTypeCustomFertilizer))) +
            test::farm(farm + 1) + farmElement(farm, 60));
}

/// Four growers, among them one without any optional part and one with the identifier of another.
std::string packageText() {
    return test::package(
        growerElement(1, 71) + test::grower(2) +
        test::grower(1, longElement("GrowerName", 1) + test::farm(81)) +
        test::grower(
            3, test::farm(91, fieldElement(92, recElement(93, RecTypeCommercialFertilizer)))));
}

/// In UTF-16, which the XML library has to convert first, in further memory.
std::string inUtf16(const std::string& ascii) {
    std::string result = "\xFF\xFE";
    for (const char c : ascii) {
        result += c;
        result += '\0';
    }
    return result;
}

// --- Reading files ----------------------------------------------------------------------------

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

class AllocationFailure : public ::testing::Test {
protected:
    /// The UUID that the parser puts into recs.
    boost::uuids::uuid packageOf(QenXmlParser& parser) const {
        return parser.parseRecNode(uuid(1), uuid(2), rec_.root()).xmlFileName();
    }

    /// parseFile() of a parser that has read the file @p earlier before, unless that is empty.
    ///
    /// @param withoutXmlMemory what comes out when the XML library gets no memory for loading
    void expectReads(const std::string& operation, std::size_t minimum, const std::string& path,
                     Reading expected, Reading withoutXmlMemory, const std::string& earlier = "") {
        QenXmlParser reference;
        if (!earlier.empty()) {
            ASSERT_EQ(Reading::Read, readFile(reference, earlier));
        }
        const std::vector<std::string> growersBefore = growersOf(reference);
        const boost::uuids::uuid packageBefore = packageOf(reference);
        ASSERT_EQ(expected, readFile(reference, path));
        const boost::uuids::uuid packageAfter = packageOf(reference);
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
                EXPECT_EQ(attempt.point() == 1 ? packageBefore : packageAfter, packageOf(parser));
            } else if (attempt.xmlOutOfMemory()) {
                EXPECT_EQ(withoutXmlMemory, reading);
                EXPECT_EQ(growersBefore, growers);
                EXPECT_EQ(packageAfter, packageOf(parser));
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

    test::WatchedXmlMemory watch_; // before everything that holds a document
    test::Xml rec_{test::rec(1)};
    test::TemporaryFolder folder_;
};

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

/// Product data of a certain class.
template <class Data>
Data dataOf(RecType kind, const std::string& version) {
    return static_cast<Data&>(*test::longData(kind, 1, version));
}

QenField manyRecs(const std::string& version, unsigned first) {
    return test::longField(30, version,
                           {first, first + 1, first + 2, first + 3, first + 4, first + 5},
                           {first, first + 1});
}

} // namespace

// --- Reading files ------------------------------------------------------------------------------

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
    expectReads("parseFile of UTF-16", 200, folder_.writePackage(inUtf16(packageText())),
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
                                 test::element("RecData", productElement(kind, 1)),
                                 [](QenXmlParser& parser, pugi::xml_node node) {
                                     return Data(parser.parseRecDataNode(uuid(1), node));
                                 });
    }
    expectReadsElement<Data>(
        "parseCommercialFertilizerRecDataNode", 3, productElement(RecTypeCommercialFertilizer, 1),
        [](QenXmlParser& parser, pugi::xml_node node) {
            return Data(parser.parseCommercialFertilizerRecDataNode(uuid(1), node));
        });
    expectReadsElement<Data>(
        "parseCustomFertilizerRecDataNode", 3, productElement(RecTypeCustomFertilizer, 1),
        [](QenXmlParser& parser, pugi::xml_node node) {
            return Data(parser.parseCustomFertilizerRecDataNode(uuid(1), node));
        });
    expectReadsElement<Data>("parsePlantingRecDataNode", 5, productElement(RecTypePlanting, 1),
                             [](QenXmlParser& parser, pugi::xml_node node) {
                                 return Data(parser.parsePlantingRecDataNode(uuid(1), node));
                             });
    expectReadsElement<Data>("parsePesticideRecDataNode", 3, productElement(RecTypePesticide, 1),
                             [](QenXmlParser& parser, pugi::xml_node node) {
                                 return Data(parser.parsePesticideRecDataNode(uuid(1), node));
                             });
}

// --- Constructors -------------------------------------------------------------------------------

TEST_F(AllocationFailure, AFailedConstructorLosesNothing) {
    const std::string name = longText("name");
    const std::string date = longText("date");
    LLA centroid{1.0, 2.0, 3.0};

    QenGrower grower(name, uuid(1));
    expectMakes<QenGrower>("QenGrower constructed", 1, text(grower),
                           [&](auto& value) { value.emplace(name, uuid(1)); });
    QenFarm farm(name, uuid(1), uuid(2));
    expectMakes<QenFarm>("QenFarm constructed", 1, text(farm),
                         [&](auto& value) { value.emplace(name, uuid(1), uuid(2)); });
    QenField field(name, uuid(1), uuid(2), uuid(3));
    expectMakes<QenField>("QenField constructed", 1, text(field),
                          [&](auto& value) { value.emplace(name, uuid(1), uuid(2), uuid(3)); });
    QenField fieldWithGeometry(name, uuid(1), uuid(2), uuid(3), date, uuid(4), uuid(5), centroid);
    expectMakes<QenField>(
        "QenField constructed with a geometry", 3, text(fieldWithGeometry), [&](auto& value) {
            value.emplace(name, uuid(1), uuid(2), uuid(3), date, uuid(4), uuid(5), centroid);
        });
    QenFieldGeometry geometry(uuid(1), date, uuid(2), centroid);
    expectMakes<QenFieldGeometry>(
        "QenFieldGeometry constructed", 1, text(geometry),
        [&](auto& value) { value.emplace(uuid(1), date, uuid(2), centroid); });
}

TEST_F(AllocationFailure, AFailedConstructorOfProductDataLosesNothing) {
    const std::string name = longText("name");
    const std::string unit = longText("unit");
    const std::vector<PesticideByPercent> percent = {test::longPercentLine(1, "present"),
                                                     test::longPercentLine(2, "present")};
    const std::vector<PesticideByAmount> amount = {test::longAmountLine(1, "present"),
                                                   test::longAmountLine(2, "present")};

    CommercialFertilizerRec commercial(uuid(1), 2, name, 3, unit);
    expectMakes<CommercialFertilizerRec>(
        "CommercialFertilizerRec constructed", 2, text(commercial),
        [&](auto& value) { value.emplace(uuid(1), 2, name, 3, unit); });
    const auto makeCustom = [&](auto& value) {
        value.emplace(uuid(1), uuid(2), name, 3, unit, 4, 5.0, 6.0, 7.0, 8.0, 9.0, 10.0, 11.0, 12.0,
                      13.0, 14.0, 15.0, 16.0, 17.0, 18.0);
    };
    std::optional<CustomFertilizerRec> custom;
    makeCustom(custom);
    expectMakes<CustomFertilizerRec>("CustomFertilizerRec constructed", 2, text(*custom),
                                     makeCustom);
    PlantingRec planting(uuid(1), 2, name, 3, name, 4, name, 5, unit);
    expectMakes<PlantingRec>("PlantingRec constructed", 4, text(planting), [&](auto& value) {
        value.emplace(uuid(1), 2, name, 3, name, 4, name, 5, unit);
    });
    PesticideRec pesticide(uuid(1), percent, amount, name, 2, unit);
    expectMakes<PesticideRec>("PesticideRec constructed", 14, text(pesticide), [&](auto& value) {
        value.emplace(uuid(1), percent, amount, name, 2, unit);
    });
    PestProduct product(1, name, 2, unit, Additive, 3.0);
    expectMakes<PestProduct>("PestProduct constructed", 2, text(product),
                             [&](auto& value) { value.emplace(1, name, 2, unit, Additive, 3.0); });
    expectMakes<PesticideByPercent>(
        "PesticideByPercent constructed", 2, text(product),
        [&](auto& value) { value.emplace(1, name, 2, unit, Additive, 3.0); });
    PesticideByAmount line(1, name, 2, unit, Additive, 3.0, 4, unit);
    expectMakes<PesticideByAmount>(
        "PesticideByAmount constructed", 3, text(line),
        [&](auto& value) { value.emplace(1, name, 2, unit, Additive, 3.0, 4, unit); });
}

// The texts are copied before the constructor begins, so when that fails it has not taken the
// product data over.
TEST_F(AllocationFailure, AFailedConstructorOfARecLeavesTheProductDataToTheCaller) {
    const std::string name = longText("text");
    tryEveryAllocation("QenRec constructed", 8, [&](Attempt& attempt) {
        std::unique_ptr<QenRecData> data = test::longData(RecTypePesticide, 1, "present");
        const std::string expected = text(data);
        std::optional<QenRec> rec;
        attempt.run([&] {
            rec.emplace(uuid(1), uuid(2), name, uuid(3), uuid(4), name, name, name, uuid(5), name,
                        6, uuid(7), data.get(), 1.0, 2.0, 3.0, name, 8, 4.0, 9, name, 5.0, 10, name,
                        false, uuid(8));
        });
        EXPECT_EQ(!attempt.outOfMemory(), rec.has_value());
        EXPECT_EQ(expected, text(data));
        if (rec) {
            EXPECT_EQ(data.get(), rec->recData());
            EXPECT_EQ(name, rec->areaUom());
            data.release(); // NOLINT(bugprone-unused-return-value): it is the rec's
        }
    });
}

// --- Copies and assignments ---------------------------------------------------------------------

TEST_F(AllocationFailure, AFailedCopyLosesNothingAndLeavesTheOriginal) {
    PestProduct product = test::longPercentLine(1, "present");
    PesticideByPercent percent = test::longPercentLine(1, "present");
    PesticideByAmount amount = test::longAmountLine(1, "present");
    auto commercial = dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "present");
    auto custom = dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present");
    auto planting = dataOf<PlantingRec>(RecTypePlanting, "present");
    auto pesticide = dataOf<PesticideRec>(RecTypePesticide, "present");
    QenFieldGeometry geometry = test::longGeometry(1, "present");
    QenField field = manyRecs("present", 10);
    QenFarm farm = test::longFarm(1, "present", {field, test::longField(31, "present", {}, {})});
    QenGrower grower = test::longGrower(1, "present", {farm, test::longFarm(2, "present", {})});

    expectCopies("PestProduct", 2, product);
    expectCopies("PesticideByPercent", 2, percent);
    expectCopies("PesticideByAmount", 3, amount);
    expectCopies("CommercialFertilizerRec", 2, commercial);
    expectCopies("CustomFertilizerRec", 2, custom);
    expectCopies("PlantingRec", 4, planting);
    expectCopies("PesticideRec", 14, pesticide);
    for (const RecType kind : allKinds) {
        QenRec rec = test::longRec(1, kind, "present");
        expectCopies(std::string("QenRec with ") + nameOf(kind), 9, rec);
    }
    expectCopies("QenFieldGeometry", 1, geometry);
    expectCopies("QenField", 70, field);
    expectCopies("QenFarm", 73, farm);
    expectCopies("QenGrower", 76, grower);
}

TEST_F(AllocationFailure, AFailedAssignmentLeavesEachMemberOldOrNew) {
    expectAssigns<PestProduct>("PestProduct", 2, test::longPercentLine(1, "present"),
                               test::longPercentLine(2, "incoming"));
    expectAssigns("PesticideByPercent", 2, test::longPercentLine(1, "present"),
                  test::longPercentLine(2, "incoming"));
    expectAssigns("PesticideByAmount", 3, test::longAmountLine(1, "present"),
                  test::longAmountLine(2, "incoming"));
    expectAssigns("CommercialFertilizerRec", 2,
                  dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "present"),
                  dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "incoming"));
    expectAssigns("CustomFertilizerRec", 2,
                  dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present"),
                  dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "incoming"));
    expectAssigns("PlantingRec", 4, dataOf<PlantingRec>(RecTypePlanting, "present"),
                  dataOf<PlantingRec>(RecTypePlanting, "incoming"));
    expectAssigns("PesticideRec with more lines", 18,
                  dataOf<PesticideRec>(RecTypePesticide, "present"),
                  dataOf<PesticideRec>(RecTypePesticide, "incoming"));
    const PesticideRec longerTexts(
        uuid(2), {test::longPercentLine(3, "incoming"), test::longPercentLine(4, "incoming")},
        {test::longAmountLine(3, "incoming"), test::longAmountLine(4, "incoming")},
        std::string(200, 'm'), 5, std::string(200, 'u'));
    expectAssigns("PesticideRec with as many lines", 12,
                  dataOf<PesticideRec>(RecTypePesticide, "present"), longerTexts);
    expectAssigns("QenFieldGeometry", 1, test::longGeometry(1, "present"),
                  test::longGeometry(2, "incoming"));
}

TEST_F(AllocationFailure, AFailedAssignmentOfAFieldChangesNothing) {
    expectAllOrNothing<QenField>(
        "QenField assigned", 70, manyRecs("present", 10),
        [from = manyRecs("incoming", 13)](QenField& field) { field = from; });
}

TEST_F(AllocationFailure, AFailedAssignmentOfAFarmOrGrowerLeavesEachFieldOldOrNew) {
    const QenFarm small = test::longFarm(
        1, "present",
        {test::longField(31, "present", {10}, {}), test::longField(30, "present", {11, 12}, {20})});
    const QenFarm large = test::longFarm(2, "incoming",
                                         {test::longField(30, "incoming", {12}, {20, 21}),
                                          test::longField(31, "incoming", {13, 14}, {}),
                                          test::longField(32, "incoming", {}, {})});
    expectAssigns("QenFarm to more fields", 40, small, large);
    expectAssigns("QenFarm to fewer fields", 30, large, small);
    expectAssigns("QenGrower to more farms", 80, test::longGrower(1, "present", {small}),
                  test::longGrower(2, "incoming", {large, small}));
    expectAssigns("QenGrower to fewer farms", 80,
                  test::longGrower(2, "present", {small, large, large}),
                  test::longGrower(1, "incoming", {large, small}));
}

TEST_F(AllocationFailure, AFailedAssignmentOfARecKeepsItsProductData) {
    const auto plain = [](QenRec rec) {
        delete rec.recData();
        rec.setRecData(nullptr);
        return text(rec);
    };
    std::size_t textPoints = 0; // those of the texts come before those of the product data
    for (const RecType kind : allKinds) {
        for (const RecType held : {RecTypeNone, RecTypePesticide}) {
            QenRec source = test::longRec(2, kind, "incoming");
            const QenRec original = test::longRec(1, held, "present");
            const std::string expected = text(source);
            const std::string before = plain(original);
            const std::string after = plain(source);
            const std::size_t points = tryEveryAllocation(
                std::string("QenRec with ") + nameOf(kind) + " assigned over " + nameOf(held),
                kind == RecTypeNone ? 9 : 12, [&](Attempt& attempt) {
                    QenRec target(original);
                    const std::unique_ptr<QenRecData> data(target.recData()); // lost by assigning
                    const std::string dataBefore = test::describe(data.get());
                    attempt.run([&] { target = source; });
                    if (attempt.outOfMemory()) {
                        EXPECT_EQ(data.get(), target.recData());
                        EXPECT_EQ(dataBefore, test::describe(data.get()));
                        expectOldOrNew(words(before), words(after), words(plain(target)));
                        if (attempt.point() > textPoints && kind != RecTypeNone) {
                            EXPECT_EQ(after, plain(target));
                        }
                        target = source;
                    }
                    EXPECT_EQ(expected, text(target));
                });
            if (kind == RecTypeNone)
                textPoints = points;
            EXPECT_EQ(expected, text(source));
        }
    }
    EXPECT_EQ(9U, textPoints);
}

// --- Adding -------------------------------------------------------------------------------------

TEST_F(AllocationFailure, AFailedAddChangesNothing) {
    const QenField field = test::longField(30, "present", {11, 12}, {20});
    const QenFarm farm =
        test::longFarm(40, "present", {field, test::longField(31, "present", {}, {17})});
    const QenGrower grower =
        test::longGrower(50, "present", {farm, test::longFarm(41, "present", {field})});
    const QenField otherField = test::longField(30, "incoming", {11, 13, 14}, {18, 19});
    const QenFarm otherFarm = test::longFarm(40, "incoming", {otherField, field});
    expectAllOrNothing<QenGrower>("addFarm in the place of another", 60, grower,
                                  [&](QenGrower& target) { target.addFarm(otherFarm); });
    const QenFarm newFarm = test::longFarm(42, "incoming", {otherField, field});
    expectAllOrNothing<QenGrower>("addFarm at the end", 60, grower,
                                  [&](QenGrower& target) { target.addFarm(newFarm); });
    expectAllOrNothing<QenFarm>("addField in the place of another", 40, farm,
                                [&](QenFarm& target) { target.addField(otherField); });
    const QenField newField = test::longField(32, "incoming", {11, 13, 14}, {18, 19});
    expectAllOrNothing<QenFarm>("addField at the end", 40, farm,
                                [&](QenFarm& target) { target.addField(newField); });
    const QenFieldGeometry geometry = test::longGeometry(10, "incoming");
    expectAllOrNothing<QenField>("addFieldGeometry", 2, field,
                                 [&](QenField& target) { target.addFieldGeometry(geometry); });
    for (const RecType kind : allKinds) {
        const QenRec rec = test::longRec(20, kind, "incoming");
        expectAllOrNothing<QenField>(std::string("addRec at the end with ") + nameOf(kind), 10,
                                     field, [&](QenField& target) { target.addRec(rec); });
    }
    const auto pesticide = dataOf<PesticideRec>(RecTypePesticide, "present");
    const PesticideByPercent percent = test::longPercentLine(9, "incoming");
    expectAllOrNothing<PesticideRec>(
        "addPesticideByPercent", 3, pesticide,
        [&](PesticideRec& target) { target.addPesticideByPercent(percent); });
    const PesticideByAmount amount = test::longAmountLine(9, "incoming");
    expectAllOrNothing<PesticideRec>(
        "addPesticideByAmount", 4, pesticide,
        [&](PesticideRec& target) { target.addPesticideByAmount(amount); });
}

// The product data of a rec that is replaced is the caller's.
TEST_F(AllocationFailure, AFailedAddOfARecInThePlaceOfAnotherChangesNothing) {
    const QenField original = manyRecs("present", 10);
    for (const RecType kind : allKinds) {
        const QenRec rec = test::longRec(14, kind, "incoming");
        tryEveryAllocation(std::string("addRec in the place of another with ") + nameOf(kind), 9,
                           [&](Attempt& attempt) {
                               QenField target(original);
                               QenRec& present = target.recs()[4];
                               const std::string before = text(target);
                               const std::unique_ptr<QenRecData> data(present.recData());
                               attempt.run([&] { target.addRec(rec); });
                               if (attempt.outOfMemory()) {
                                   EXPECT_EQ(data.get(), present.recData());
                                   EXPECT_EQ(before, text(target));
                                   target.addRec(rec);
                               }
                               QenRec expected(rec);
                               EXPECT_EQ(text(expected), text(present));
                           });
    }
}

// --- Looking up, getting and setting ------------------------------------------------------------

TEST_F(AllocationFailure, AFailedLookUpChangesNothing) {
    QenField field = test::longField(1, "present", {10, 11, 12, 13, 14}, {20, 21, 20});
    expectGets("geometryDate", 1, field,
               [](QenField& target) { return target.geometryDate(uuid(20)); });
    expectGets("geometryFileName", 1, field,
               [](QenField& target) { return target.geometryFileName(uuid(21)); });
    expectGets("geometries", 4, field, &QenField::geometries);
    for (unsigned rec = 11; rec <= 14; ++rec) {
        expectGets(std::string("rec with ") + nameOf(static_cast<RecType>(rec % 5)), 12, field,
                   [rec](QenField& target) { return target.rec(uuid(rec)); });
    }
}

TEST_F(AllocationFailure, WhatReturnsNoTextOrListNeedsNoMemory) {
    QenField field = test::longField(1, "present", {10, 11}, {20, 21});
    const auto expectNeedsNoMemory = [](const std::string& operation,
                                        const std::function<void()>& run) {
        EXPECT_EQ(0U,
                  tryEveryAllocation(operation, 0, [&](Attempt& attempt) { attempt.run(run); }));
    };
    expectNeedsNoMemory("geometryFileId", [&] { field.geometryFileId(uuid(20)); });
    expectNeedsNoMemory("centroid", [&] { field.centroid(uuid(20)); });
    expectNeedsNoMemory("rec that is not there", [&] { field.rec(uuid(99)); });
    expectNeedsNoMemory("geometryDate that is not there", [&] { field.geometryDate(uuid(99)); });
    expectNeedsNoMemory("geometryFileName that is not there",
                        [&] { field.geometryFileName(uuid(99)); });
    expectNeedsNoMemory("recs", [&] { field.recs(); });
    expectNeedsNoMemory("QenRecData copied and assigned", [] {
        QenRecData data(uuid(1), RecTypePlanting);
        QenRecData copy(data);
        copy = data;
    });
}

TEST_F(AllocationFailure, AFailedGetterChangesNothing) {
    QenGrower grower = test::longGrower(1, "present", {});
    QenFarm farm = test::longFarm(1, "present", {});
    QenField field = test::longField(1, "present", {}, {});
    QenFieldGeometry geometry = test::longGeometry(1, "present");
    expectGets("QenGrower::name", 1, grower, &QenGrower::name);
    expectGets("QenFarm::name", 1, farm, &QenFarm::name);
    expectGets("QenField::name", 1, field, &QenField::name);
    expectGets("QenFieldGeometry::geometryDate", 1, geometry, &QenFieldGeometry::geometryDate);

    QenRec rec = test::longRec(1, RecTypeNone, "present");
    expectGets("QenRec::name", 1, rec, &QenRec::name);
    expectGets("QenRec::creationDate", 1, rec, &QenRec::creationDate);
    expectGets("QenRec::editDate", 1, rec, &QenRec::editDate);
    expectGets("QenRec::recDbfCol", 1, rec, &QenRec::recDbfCol);
    expectGets("QenRec::operationName", 1, rec, &QenRec::operationName);
    expectGets("QenRec::seasonName", 1, rec, &QenRec::seasonName);
    expectGets("QenRec::rateUom", 1, rec, &QenRec::rateUom);
    expectGets("QenRec::totalUom", 1, rec, &QenRec::totalUom);
    expectGets("QenRec::areaUom", 1, rec, &QenRec::areaUom);

    auto commercial = dataOf<CommercialFertilizerRec>(RecTypeCommercialFertilizer, "present");
    expectGets("CommercialFertilizerRec::productName", 1, commercial,
               &CommercialFertilizerRec::productName);
    expectGets("CommercialFertilizerRec::uom", 1, commercial, &CommercialFertilizerRec::uom);
    auto custom = dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present");
    expectGets("CustomFertilizerRec::productName", 1, custom, &CustomFertilizerRec::productName);
    expectGets("CustomFertilizerRec::uom", 1, custom, &CustomFertilizerRec::uom);
    auto planting = dataOf<PlantingRec>(RecTypePlanting, "present");
    expectGets("PlantingRec::cropName", 1, planting, &PlantingRec::cropName);
    expectGets("PlantingRec::companyName", 1, planting, &PlantingRec::companyName);
    expectGets("PlantingRec::varietyName", 1, planting, &PlantingRec::varietyName);
    expectGets("PlantingRec::uom", 1, planting, &PlantingRec::uom);
    auto pesticide = dataOf<PesticideRec>(RecTypePesticide, "present");
    expectGets("PesticideRec::pesticideMixName", 1, pesticide, &PesticideRec::pesticideMixName);
    expectGets("PesticideRec::uom", 1, pesticide, &PesticideRec::uom);
    expectGets("PesticideRec::pesticidesByPercent", 5, pesticide,
               &PesticideRec::pesticidesByPercent);
    expectGets("PesticideRec::pesticidesByAmount", 7, pesticide, &PesticideRec::pesticidesByAmount);
    PesticideByAmount line = test::longAmountLine(1, "present");
    expectGets("PestProduct::productName", 1, line, &PestProduct::productName);
    expectGets("PestProduct::regCode", 1, line, &PestProduct::regCode);
    expectGets("PesticideByAmount::uom", 1, line, &PesticideByAmount::uom);
}

TEST_F(AllocationFailure, AFailedSetterChangesNothing) {
    const std::string longer(200, 'v'); // than the present texts, whose memory it cannot use
    expectAllOrNothing<QenGrower>("QenGrower::setName", 1, test::longGrower(1, "present", {}),
                                  [&](QenGrower& grower) { grower.setName(longer); });
    expectAllOrNothing<QenFarm>("QenFarm::setName", 1, test::longFarm(1, "present", {}),
                                [&](QenFarm& farm) { farm.setName(longer); });
    expectAllOrNothing<QenField>("QenField::setName", 1, test::longField(1, "present", {}, {}),
                                 [&](QenField& field) { field.setName(longer); });

    using SetterOfRec = void (QenRec::*)(std::string);
    for (const auto& [name, setter] : std::initializer_list<std::pair<const char*, SetterOfRec>>{
             {"QenRec::setName", &QenRec::setName},
             {"QenRec::setCreationDate", &QenRec::setCreationDate},
             {"QenRec::setEditDate", &QenRec::setEditDate},
             {"QenRec::setRecDbfCol", &QenRec::setRecDbfCol},
             {"QenRec::setOperationName", &QenRec::setOperationName},
             {"QenRec::setSeasonName", &QenRec::setSeasonName},
             {"QenRec::setRateUom", &QenRec::setRateUom},
             {"QenRec::setTotalUom", &QenRec::setTotalUom},
             {"QenRec::setAreaUom", &QenRec::setAreaUom}}) {
        expectAllOrNothing<QenRec>(name, 1, test::longRec(1, RecTypePlanting, "present"),
                                   [&, set = setter](QenRec& rec) { (rec.*set)(longer); });
    }
    expectAllOrNothing<CustomFertilizerRec>(
        "CustomFertilizerRec::setProductName", 1,
        dataOf<CustomFertilizerRec>(RecTypeCustomFertilizer, "present"),
        [&](CustomFertilizerRec& data) { data.setProductName(longer); });
    expectAllOrNothing<PesticideRec>("PesticideRec::setPesticideMixName", 1,
                                     dataOf<PesticideRec>(RecTypePesticide, "present"),
                                     [&](PesticideRec& data) { data.setPesticideMixName(longer); });
    expectAllOrNothing<PesticideRec>("PesticideRec::setUom", 1,
                                     dataOf<PesticideRec>(RecTypePesticide, "present"),
                                     [&](PesticideRec& data) { data.setUom(longer); });
}

// --- Merging ------------------------------------------------------------------------------------

namespace {

std::vector<unsigned> firstOf(const std::vector<unsigned>& numbers, std::size_t count) {
    return {numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(count)};
}

/// Versions of a list that end ever later, from the empty one to the whole.
template <class Child>
std::vector<std::vector<Child>> beginnings(const std::vector<Child>& children) {
    std::vector<std::vector<Child>> result(1);
    for (const Child& child : children) {
        result.push_back(result.back());
        result.back().push_back(child);
    }
    return result;
}

std::vector<QenField> incomingFields() {
    return {test::longField(31, "incoming", {13, 14}, {21, 22}), // held
            test::longField(34, "incoming", {16}, {23}),
            test::longField(30, "incoming", {11, 17}, {24}), // held
            test::longField(35, "incoming", {}, {}),
            test::longField(34, "latest", {16, 18}, {})}; // a second one with this identifier
}

std::vector<QenField> presentFields() {
    return {test::longField(30, "present", {10, 11}, {20}),
            test::longField(31, "present", {13, 19}, {21, 21}),
            test::longField(32, "present", {}, {})};
}

} // namespace

TEST_F(AllocationFailure, AFailedMergeOfFieldsStopsBetweenRecsOrGeometries) {
    const std::vector<unsigned> recs = {12, 20, 21, 22, 23, 24, 13};
    const std::vector<unsigned> geometries = {20, 30, 31, 32, 33};
    std::vector<QenField> others;
    for (std::size_t count = 1; count < recs.size(); ++count) // the first rec is there already
        others.push_back(test::longField(30, "incoming", firstOf(recs, count), {}));
    for (std::size_t count = 2; count <= geometries.size(); ++count)
        others.push_back(test::longField(30, "incoming", recs, firstOf(geometries, count)));
    expectMergesStepByStep("QenField::merge", 80,
                           test::longField(30, "present", {10, 12, 13}, {20}), others, 4);
}

TEST_F(AllocationFailure, AFailedMergeOfFarmsStopsBetweenFields) {
    std::vector<QenFarm> others;
    for (const std::vector<QenField>& fields : beginnings(incomingFields()))
        others.push_back(test::longFarm(40, "incoming", fields));
    expectMergesStepByStep("QenFarm::merge", 200, test::longFarm(40, "present", presentFields()),
                           others, 4);
}

TEST_F(AllocationFailure, AFailedMergeOfGrowersStopsBetweenFarms) {
    const QenGrower present = test::longGrower(
        50, "present",
        {test::longFarm(40, "present", {presentFields()[0], presentFields()[2]}),
         test::longFarm(41, "present", {}),
         test::longFarm(42, "present", {test::longField(31, "present", {13}, {21})})});
    const std::vector<QenField> fields = beginnings(incomingFields())[2];
    std::vector<QenGrower> others;
    for (const std::vector<QenFarm>& farms : beginnings<QenFarm>(
             {test::longFarm(42, "incoming", fields), test::longFarm(43, "incoming", {fields[1]}),
              test::longFarm(40, "incoming", {incomingFields()[2]}),
              test::longFarm(43, "latest", {test::longField(34, "latest", {18}, {21})})}))
        others.push_back(test::longGrower(50, "incoming", farms));
    expectMergesStepByStep("QenGrower::merge", 200, present, others, 4);
}

TEST_F(AllocationFailure, AFailedMergeOfAnotherIdentifierChangesNothing) {
    const QenGrower other = test::longGrower(
        51, "incoming", {test::longFarm(40, "incoming", {incomingFields().front()})});
    const QenGrower original = test::longGrower(50, "present", {});
    QenGrower unchanged(original);
    tryEveryAllocation("QenGrower::merge of another grower", 30, [&](Attempt& attempt) {
        QenGrower target(original);
        attempt.run([&] { target.merge(other); });
        EXPECT_EQ(text(unchanged), text(target));
    });
}

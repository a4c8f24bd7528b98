/// @file
/// What holds for every datum of every element of a package, as tests that are run for each kind of
/// element. A test file describes its element with a class like this and instantiates them:
///
///     struct GrowerElement {
///         using Record = QenGrower;
///         static constexpr const char* name = "Grower";
///         static std::vector<test::Datum<Record>> data(); // one row per datum
///         static std::unique_ptr<Record> read(pugi::xml_node element); // null: no record
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(Grower, ElementRules, GrowerElement, test::ElementNumber);

#ifndef QENXML_TESTS_SUPPORT_ELEMENTRULES_H
#define QENXML_TESTS_SUPPORT_ELEMENTRULES_H

#include <algorithm>
#include <cctype>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "tests/support/Conversions.h"
#include "tests/support/ElementSample.h"

namespace test {

/// Numbers the tests of an element, as the framework does by itself: clang complains of its macro
/// without a last argument, and the name of the element stands in that of the test already.
struct ElementNumber {
    template <class Element>
    static std::string GetName(int number) {
        return std::to_string(number);
    }
};

inline std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

} // namespace test

template <class Element>
class ElementRules : public ::testing::Test {
protected:
    using Sample = test::Sample<Element>;
    using Row = typename Sample::Row;

    static std::vector<Row> dataOf(test::Type type) {
        std::vector<Row> rows = Element::data();
        rows.erase(std::remove_if(rows.begin(), rows.end(),
                                  [type](const Row& datum) { return datum.type != type; }),
                   rows.end());
        return rows;
    }

    /// Each datum of a type, given as each of the texts: it is read as the value, and all others
    /// as before.
    template <class Value>
    static void expectConversions(test::Type type,
                                  const std::vector<test::Conversion<Value>>& conversions) {
        for (const Row& datum : dataOf(type)) {
            for (const auto& [text, value] : conversions) {
                SCOPED_TRACE(datum.path + " given as " + text);
                const Sample sample;
                sample.place(datum).replace(text);
                EXPECT_EQ(Sample::expected({{datum.path, test::show(value)}}), sample.read());
            }
        }
    }
};

TYPED_TEST_SUITE_P(ElementRules);

TYPED_TEST_P(ElementRules, EveryDatumIsRead) {
    const test::Sample<TypeParam> sample;
    EXPECT_EQ(sample.expected({}), sample.read());
}

TYPED_TEST_P(ElementRules, AnAbsentDatumTakesItsDefaultAndLeavesTheOthers) {
    for (const auto& datum : TypeParam::data()) {
        SCOPED_TRACE(datum.path);
        const test::Sample<TypeParam> sample;
        sample.place(datum).remove();
        EXPECT_EQ(sample.expected({{datum.path, datum.whenAbsent}}), sample.read());
    }
}

TYPED_TEST_P(ElementRules, AnEmptyDatumTakesItsDefaultAndLeavesTheOthers) {
    for (const auto& datum : TypeParam::data()) {
        SCOPED_TRACE(datum.path);
        const test::Sample<TypeParam> sample;
        sample.place(datum).replace("");
        EXPECT_EQ(sample.expected({{datum.path, datum.whenEmpty}}), sample.read());
    }
}

TYPED_TEST_P(ElementRules, OfARepeatedDatumTheFirstCounts) {
    for (const auto& datum : TypeParam::data()) {
        SCOPED_TRACE(datum.path);
        const test::Sample<TypeParam> sample;
        sample.place(datum).add("second");
        EXPECT_EQ(sample.expected({}), sample.read());
    }
}

TYPED_TEST_P(ElementRules, OfARepeatedDatumTheFirstCountsEvenIfItIsEmpty) {
    for (const auto& datum : TypeParam::data()) {
        SCOPED_TRACE(datum.path);
        const test::Sample<TypeParam> sample;
        sample.place(datum).replace("");
        sample.place(datum).add(datum.sample);
        EXPECT_EQ(sample.expected({{datum.path, datum.whenEmpty}}), sample.read());
    }
}

TYPED_TEST_P(ElementRules, TheOrderOfTheDataDoesNotMatter) {
    const test::Sample<TypeParam> sample;
    auto data = TypeParam::data();
    std::reverse(data.begin(), data.end());
    for (const auto& datum : data)
        sample.place(datum).replace(datum.sample);
    EXPECT_EQ(sample.expected({}), sample.read());
}

TYPED_TEST_P(ElementRules, InAnyOrderTheFirstOfEachCounts) {
    auto twice = TypeParam::data();
    for (const auto& datum : TypeParam::data())
        twice.push_back(datum);
    std::mt19937 random; // The same orders in every run.
    for (int i = 0; i < 200; ++i) {
        std::shuffle(twice.begin(), twice.end(), random);
        const test::Sample<TypeParam> sample;
        for (const auto& datum : TypeParam::data())
            sample.place(datum).remove();
        std::set<std::string> present;
        for (const auto& datum : twice)
            sample.place(datum).add(present.insert(datum.path).second ? datum.sample : "second");
        EXPECT_EQ(sample.expected({}), sample.read());
        if (this->HasFailure())
            FAIL() << "order " << i;
    }
}

TYPED_TEST_P(ElementRules, WhatOnlyResemblesADatumIsIgnored) {
    for (const auto& datum : TypeParam::data()) {
        SCOPED_TRACE(datum.path);
        const test::Sample<TypeParam> sample;
        test::Place place = sample.place(datum);
        place.remove();
        for (const std::string& other : {test::lowerCase(place.name()), "x:" + place.name(),
                                         place.name() + "s", place.name().substr(1)}) {
            place.addAttribute(other, datum.sample);
            place.addChild(other, datum.sample);
        }
        // One level too deep, and an attribute in the place of an element or the other way round.
        const std::string name = (place.isAttribute() ? "@" : "") + place.name();
        test::Place(place.parent(), "Inner/" + name).add(datum.sample);
        if (place.isAttribute())
            place.addChild(place.name(), datum.sample);
        else
            place.addAttribute(place.name(), datum.sample);
        EXPECT_EQ(sample.expected({{datum.path, datum.whenAbsent}}), sample.read());

        place.add(datum.sample);
        EXPECT_EQ(sample.expected({}), sample.read());
    }
}

TYPED_TEST_P(ElementRules, TheNameOfTheElementIsNotLookedAt) {
    const test::Sample<TypeParam> sample;
    sample.root().set_name("Anything");
    EXPECT_EQ(sample.expected({}), sample.read());
}

TYPED_TEST_P(ElementRules, AnEmptyHandleReadsAsAnElementWithoutData) {
    test::Values absent;
    for (const auto& datum : TypeParam::data())
        absent[datum.path] = datum.whenAbsent;
    EXPECT_EQ(test::Sample<TypeParam>::expected(absent),
              test::Sample<TypeParam>::read(pugi::xml_node()));
}

TYPED_TEST_P(ElementRules, TextsAreTakenVerbatim) {
    for (const auto& datum : this->dataOf(test::Type::Text)) {
        for (const auto& [markup, text] : test::textConversions()) {
            SCOPED_TRACE(datum.path + " given as " + markup);
            const test::Sample<TypeParam> sample;
            sample.place(datum).replace("@placeholder@");
            EXPECT_EQ(sample.expected({{datum.path, text}}),
                      sample.readAsText("@placeholder@", markup));
        }
    }
}

TYPED_TEST_P(ElementRules, ALeadingTextNodeWithoutValueCountsOnlyForTheAccessThatTakesIt) {
    for (const auto& datum : TypeParam::data()) {
        if (datum.access == test::Access::Attribute)
            continue;
        SCOPED_TRACE(datum.path);
        const test::Sample<TypeParam> sample;
        sample.place(datum).child().prepend_child(pugi::node_pcdata);
        const bool passedOver = datum.access == test::Access::ChildValue;
        EXPECT_EQ(sample.expected({{datum.path, passedOver ? datum.sample : datum.whenEmpty}}),
                  sample.read());
    }
}

// One test for all types, because hardly an element has data of each.
TYPED_TEST_P(ElementRules, NumbersAndIdentifiersAreConvertedByTheRulesOfTheirType) {
    this->expectConversions(test::Type::Integer, test::integerConversions());
    this->expectConversions(test::Type::Integer, test::negativeIntegerConversions());
    this->expectConversions(test::Type::Season, test::integerConversions());
    this->expectConversions(test::Type::Number, test::numberConversions());
    this->expectConversions(test::Type::Identifier, test::identifierConversions());

    std::vector<test::Conversion<std::string>> broken;
    for (const std::string& text : test::brokenIdentifiers())
        broken.push_back({text, test::raises});
    this->expectConversions(test::Type::Identifier, broken);
}

REGISTER_TYPED_TEST_SUITE_P(ElementRules, EveryDatumIsRead,
                            AnAbsentDatumTakesItsDefaultAndLeavesTheOthers,
                            AnEmptyDatumTakesItsDefaultAndLeavesTheOthers,
                            OfARepeatedDatumTheFirstCounts,
                            OfARepeatedDatumTheFirstCountsEvenIfItIsEmpty,
                            InAnyOrderTheFirstOfEachCounts, TheOrderOfTheDataDoesNotMatter,
                            WhatOnlyResemblesADatumIsIgnored, TheNameOfTheElementIsNotLookedAt,
                            AnEmptyHandleReadsAsAnElementWithoutData, TextsAreTakenVerbatim,
                            ALeadingTextNodeWithoutValueCountsOnlyForTheAccessThatTakesIt,
                            NumbersAndIdentifiersAreConvertedByTheRulesOfTheirType);

#endif

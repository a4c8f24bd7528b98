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
#include <functional>
#include <iomanip>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "tests/support/Conversions.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

namespace test {

/// What a text is converted to.
enum class Type { Text, Integer, Number, Identifier, Season };

/// How the text is taken from the document. ChildValue and FirstText differ where a text node
/// without a value comes first: ChildValue passes over it, FirstText takes it.
enum class Access { Attribute, ChildValue, FirstText };

// Results instead of a value.
inline const std::string raises = "raises invalid uuid string";
inline const std::string noRecord = "gives no record";

inline const std::string nilText = "00000000-0000-0000-0000-000000000000";

/// One datum of an element: a row of a table.
template <class Record>
struct Datum {
    std::string path; ///< "RecName", "@RecID", "RecStats/Total", "Operation/@OpID".
    Access access;
    Type type;
    std::string sample; ///< Different for each datum of the table.
    std::string whenAbsent;
    std::string whenEmpty;
    std::function<std::string(Record&)> value;
};

inline std::string show(const std::string& value) {
    return value;
}

inline std::string show(int value) {
    return std::to_string(value);
}

inline std::string show(double value) {
    std::ostringstream text;
    text << std::setprecision(17) << value;
    return text.str();
}

inline std::string show(const boost::uuids::uuid& value) {
    return to_string(value);
}

/// The value of a getter, as text.
template <class Value, class Record>
std::function<std::string(Record&)> value(Value (Record::*getter)()) {
    return [getter](Record& record) { return show((record.*getter)()); };
}

template <class Value, class Record>
std::function<std::string(Record&)> value(Value (Record::*getter)() const) {
    return [getter](Record& record) { return show((record.*getter)()); };
}

/// Where a datum stands in an element.
class Place {
public:
    Place(pugi::xml_node element, const std::string& path) : parent_(element), name_(path) {
        const std::size_t slash = name_.find('/');
        if (slash != std::string::npos) {
            const std::string container = name_.substr(0, slash);
            name_.erase(0, slash + 1);
            parent_ = element.child(container.c_str());
            if (!parent_)
                parent_ = element.append_child(container.c_str());
        }
        isAttribute_ = name_[0] == '@';
        if (isAttribute_)
            name_.erase(0, 1);
    }

    bool isAttribute() const { return isAttribute_; }
    const std::string& name() const { return name_; }
    pugi::xml_node parent() const { return parent_; }
    pugi::xml_node child() const { return parent_.child(name_.c_str()); }

    void add(const std::string& text) {
        isAttribute_ ? addAttribute(name_, text) : addChild(name_, text);
    }

    void addAttribute(const std::string& name, const std::string& text) {
        parent_.append_attribute(name.c_str()).set_value(text.c_str());
    }

    void addChild(const std::string& name, const std::string& text) {
        pugi::xml_node child = parent_.append_child(name.c_str());
        if (!text.empty())
            child.append_child(pugi::node_pcdata).set_value(text.c_str());
    }

    void remove() {
        isAttribute_ ? parent_.remove_attribute(name_.c_str())
                     : parent_.remove_child(name_.c_str());
    }

    void replace(const std::string& text) {
        remove();
        add(text);
    }

private:
    pugi::xml_node parent_;
    std::string name_;
    bool isAttribute_ = false;
};

/// All values of an element by path, or its result under "result".
using Values = std::map<std::string, std::string>;

/// An element that holds a sample of every datum of its table.
template <class Element>
class Sample {
public:
    using Row = Datum<typename Element::Record>;

    Sample() {
        root_ = document_.append_child(Element::name);
        for (const Row& datum : Element::data())
            place(datum).add(datum.sample);
    }

    pugi::xml_node root() const { return root_; }
    Place place(const Row& datum) const { return Place(root_, datum.path); }
    Place place(const std::string& path) const { return Place(root_, path); }

    Values read() const { return read(root_); }

    /// As it is read from a file, with @p placeholder replaced by @p markup.
    Values readAsText(const std::string& placeholder, const std::string& markup) const {
        std::string text = textOf(document_);
        text.replace(text.find(placeholder), placeholder.size(), markup);
        const Xml xml(text);
        return read(xml.root());
    }

    static Values read(pugi::xml_node element) {
        try {
            const auto record = Element::read(element);
            if (!record)
                return {{"result", noRecord}};
            Values values;
            for (const Row& datum : Element::data())
                values[datum.path] = datum.value(*record);
            return values;
        } catch (const std::runtime_error& error) {
            return {{"result", std::string("raises ") + error.what()}};
        }
    }

    /// The values when the data of @p changes differ from the samples.
    static Values expected(const Values& changes) {
        Values values;
        for (const Row& datum : Element::data())
            values[datum.path] = datum.sample;
        for (const auto& [path, text] : changes) {
            if (text == raises || text == noRecord)
                return {{"result", text}};
            values[path] = text;
        }
        return values;
    }

private:
    pugi::xml_document document_;
    pugi::xml_node root_;
};

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

// What elements with a text or a number hold, in packages read from files: what the XML library
// itself says of them. The tests of the single elements give documents of their own to the readers.

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/PlantingRec.h"
#include "parser/QenXmlParser.h"
#include "tests/support/NumberSpellings.h"
#include "tests/support/PackageReading.h"
#include "tests/support/PackageText.h"
#include "tests/support/Xml.h"

namespace {

using test::element;

/// An element of a rec and what is read of it, as text.
struct Value {
    const char* path;
    std::string (*expected)(pugi::xml_text text);
    std::function<std::string(QenRec&)> read;
};

std::string asText(pugi::xml_text text) {
    return text.as_string();
}

std::string asInteger(pugi::xml_text text) {
    return std::to_string(text.as_int());
}

std::string asNumber(pugi::xml_text text) {
    return std::to_string(text.as_double());
}

PlantingRec& planting(QenRec& rec) {
    return dynamic_cast<PlantingRec&>(*rec.recData());
}

const std::vector<Value> values = {
    {"CreationDate", asText, [](QenRec& rec) { return rec.creationDate(); }},
    {"Operation/OpName", asText, [](QenRec& rec) { return rec.operationName(); }},
    {"Season/SeasonName", asText, [](QenRec& rec) { return rec.seasonName(); }},
    {"RecData/Planting/CropName", asText, [](QenRec& rec) { return planting(rec).cropName(); }},
    {"RecData/Planting/VarietyID", asInteger,
     [](QenRec& rec) { return std::to_string(planting(rec).varietyId()); }},
    {"RecStats/RateUOM", asText, [](QenRec& rec) { return rec.rateUom(); }},
    {"RecStats/RateUOMID", asInteger, [](QenRec& rec) { return std::to_string(rec.rateUomId()); }},
    {"RecStats/AverageRate", asNumber,
     [](QenRec& rec) { return std::to_string(rec.averageRate()); }},
};

/// A rec in which all of the values above have the same content.
std::string recWith(const std::string& content) {
    const std::string planting = "<CropID/>" + element("CropName", content) +
                                 "<CompanyID/><CompanyName/>" + element("VarietyID", content) +
                                 "<VarietyName/><UOMID/><UOM/>";
    return test::rec(31, element("CreationDate", content) +
                             element("Operation", "OpID", 41, element("OpName", content)) +
                             "<Season SeasonID=\"5\">" + element("SeasonName", content) +
                             "</Season>" + element("RecData", element("Planting", planting)) +
                             element("RecStats", element("AverageRate", content) +
                                                     element("RateUOMID", content) +
                                                     element("RateUOM", content)));
}

void expectReadAsTheXmlLibraryReadsIt(const std::string& content) {
    const std::string rec = recWith(content);
    QenRec read =
        test::growersOf(test::packageWithRecs(rec)).at(0).farms().at(0).fields().at(0).recs().at(0);
    const test::Xml xml(rec);
    for (const Value& value : values) {
        const pugi::xml_node node = xml.root().first_element_by_path(value.path);
        ASSERT_FALSE(node.empty()) << value.path;
        EXPECT_EQ(value.expected(node.text()), value.read(read)) << value.path << ": " << content;
    }
}

} // namespace

TEST(ElementReader, OfAFileHoldWhatTheXmlLibraryFindsInThem) {
    for (const char* content :
         {"", " ", "text", " text ", "<b/>text", "text<b/>more", "<b>inner</b>", "<b>inner</b>text",
          "<![CDATA[text]]>", "<![CDATA[]]>", "<![CDATA[]]>text", "text<![CDATA[more]]>",
          "<!-- comment -->text", "te<!-- comment -->xt", "&amp;&lt;&#65;", "&#0;text", "12&#0;34"})
        expectReadAsTheXmlLibraryReadsIt(content);
}

TEST(ElementReader, OfAFileHoldTheNumbersThatTheXmlLibraryFindsInThem) {
    for (const std::string& content : test::spellings())
        expectReadAsTheXmlLibraryReadsIt(content);
    expectReadAsTheXmlLibraryReadsIt("12<b/>34");
}

RC_GTEST_PROP(ElementReader, OfAFileHoldAnyNumberAsTheXmlLibraryReadsIt, ()) {
    const auto digit = rc::gen::elementOf(std::string("0123456789"));
    const auto other = rc::gen::elementOf(std::string("+-.xX \t"));
    const auto character = rc::gen::weightedOneOf<char>({{9, digit}, {1, other}});
    expectReadAsTheXmlLibraryReadsIt(*rc::gen::container<std::string>(character));
    RC_ASSERT_FALSE(testing::Test::HasFailure());
}

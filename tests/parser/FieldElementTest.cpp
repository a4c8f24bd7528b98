#include "parser/QenXmlParser.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Describe.h"
#include "tests/support/ElementRules.h"
#include "tests/support/PackageText.h"
#include "tests/support/Xml.h"

namespace {

using test::Access;
using test::Type;
using test::uuid;
using test::uuidText;
using test::Xml;

QenField readField(pugi::xml_node element) {
    return QenXmlParser().parseFieldNode(uuid(1), uuid(11), element);
}

QenField readField(const std::string& text) {
    const Xml xml(text);
    return readField(xml.root());
}

/// A value of the one geometry that every field element gives.
std::function<std::string(QenField&)> geometry(std::string (*value)(QenFieldGeometry&)) {
    return [value](QenField& field) {
        std::vector<QenFieldGeometry> geometries = field.geometries();
        return geometries.size() == 1 ? value(geometries[0]) : "not exactly one geometry";
    };
}

struct FieldElement {
    using Record = QenField;
    static constexpr const char* name = "Field";

    static std::vector<test::Datum<Record>> data() {
        using test::raises;
        using test::show;
        using test::value;
        using Geometry = QenFieldGeometry;
        // clang-format off
        return {
            {"@FieldID",                Access::Attribute,  Type::Identifier, uuidText(21), raises, raises, value(&QenField::id)},
            {"FieldName",               Access::ChildValue, Type::Text,       "North 40",   "",     "",     value(&QenField::name)},
            {"FieldGeometryID",         Access::ChildValue, Type::Identifier, uuidText(71), raises, raises, geometry([](Geometry& g) { return show(g.geometryId()); })},
            {"FieldGeometryDate",       Access::ChildValue, Type::Text,       "2014-05-06", "",     "",     geometry([](Geometry& g) { return g.geometryDate(); })},
            {"FieldGeometry",           Access::ChildValue, Type::Identifier, uuidText(81), raises, raises, geometry([](Geometry& g) { return show(g.geometry()); })},
            {"FieldCentroid/Latitude",  Access::FirstText,  Type::Number,     "45.5",       "0",    "0",    geometry([](Geometry& g) { return show(g.centroid().latitude); })},
            {"FieldCentroid/Longitude", Access::FirstText,  Type::Number,     "-93.25",     "0",    "0",    geometry([](Geometry& g) { return show(g.centroid().longitude); })},
        };
        // clang-format on
    }

    static std::unique_ptr<QenField> read(pugi::xml_node element) {
        return std::make_unique<QenField>(readField(element));
    }
};

using FieldSample = test::Sample<FieldElement>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Field, ElementRules, FieldElement, test::ElementNumber);

TEST(FieldElement, WithItsThreeIdentifiersOnlyGivesOneGeometryAndNoRecs) {
    EXPECT_EQ(test::describe(QenFieldGeometry(uuid(7021), "", uuid(8021), LLA{0.0, 0.0, 0.0})),
              test::describe(readField(test::field(21)).geometries().at(0)));
    QenField field = readField(test::field(21));
    EXPECT_EQ("", field.name());
    EXPECT_EQ(uuid(21), field.id());
    EXPECT_EQ(1U, field.geometries().size());
    EXPECT_EQ(0U, field.recs().size());
}

TEST(FieldElement, KeepsTheIdentifiersThatItIsGiven) {
    const QenField field = readField(test::field(21));
    EXPECT_EQ(uuid(1), field.growerId());
    EXPECT_EQ(uuid(11), field.farmId());
}

TEST(FieldElement, WithoutACentroidHasItAtZero) {
    const FieldSample sample;
    sample.root().remove_child("FieldCentroid");
    EXPECT_EQ(sample.expected({{"FieldCentroid/Latitude", "0"}, {"FieldCentroid/Longitude", "0"}}),
              sample.read());
}

TEST(FieldElement, WithAnEmptyCentroidHasItAtZero) {
    const FieldSample sample;
    sample.root().child("FieldCentroid").remove_children();
    EXPECT_EQ(sample.expected({{"FieldCentroid/Latitude", "0"}, {"FieldCentroid/Longitude", "0"}}),
              sample.read());
}

TEST(FieldElement, WithALatitudeOnlyHasTheLongitudeAtZero) {
    const QenField field =
        readField(test::field(21, "<FieldCentroid><Latitude>45.5</Latitude></FieldCentroid>"));
    const LLA centroid = field.geometries().at(0).centroid();
    EXPECT_EQ(45.5, centroid.latitude);
    EXPECT_EQ(0.0, centroid.longitude);
    EXPECT_EQ(0.0, centroid.altitude);
}

TEST(FieldElement, NeverReadsAnAltitude) {
    const FieldSample sample;
    sample.place("FieldCentroid/Altitude").add("300");
    EXPECT_EQ(0.0, readField(sample.root()).geometries().at(0).centroid().altitude);
}

TEST(FieldElement, OfSeveralCentroidsTakesTheFirstEvenForWhatItLacks) {
    const FieldSample sample;
    sample.place("FieldCentroid/Longitude").remove();
    pugi::xml_node second = sample.root().append_child("FieldCentroid");
    second.append_child("Latitude").text() = "1";
    second.append_child("Longitude").text() = "2";
    EXPECT_EQ(sample.expected({{"FieldCentroid/Longitude", "0"}}), sample.read());
}

TEST(FieldElement, WithASecondGeometryStillGivesOne) {
    const std::string second = test::element("FieldGeometryID", uuidText(72)) +
                               test::element("FieldGeometry", uuidText(82));
    QenField field = readField(test::field(21, second));
    ASSERT_EQ(1U, field.geometries().size());
    EXPECT_EQ(uuid(7021), field.geometries()[0].geometryId());
    EXPECT_EQ(uuid(8021), field.geometries()[0].geometry());
}

TEST(FieldElement, WithoutRecommendationsGivesNoRecs) {
    EXPECT_EQ(0U, readField(test::field(21)).recs().size());
}

TEST(FieldElement, WithEmptyRecommendationsGivesNoRecs) {
    EXPECT_EQ(0U, readField(test::field(21, "<Recommendations/>")).recs().size());
    EXPECT_EQ(
        0U, readField(test::field(21, "<Recommendations><Note/></Recommendations>")).recs().size());
}

TEST(FieldElement, OfSeveralRecommendationsTakesTheFirst) {
    const std::string both =
        test::recommendations(test::rec(31)) + test::recommendations(test::rec(32));
    QenField field = readField(test::field(21, both));
    ASSERT_EQ(1U, field.recs().size());
    EXPECT_EQ(uuid(31), field.recs()[0].id());

    EXPECT_EQ(0U, readField(test::field(21, "<Recommendations/>" + both)).recs().size());
}

TEST(FieldElement, TakesRecsFromItsRecommendationsOnly) {
    EXPECT_EQ(0U, readField(test::field(21, test::rec(31))).recs().size());
}

TEST(FieldElement, WithAnEmptyRecRaises) {
    EXPECT_THROW(readField(test::field(21, test::recommendations("<Rec/>"))), std::runtime_error);
}

TEST(FieldElement, GivesItsRecsInTheirOrder) {
    QenField field =
        readField(test::field(21, test::recommendations(test::rec(32) + test::rec(31))));
    ASSERT_EQ(2U, field.recs().size());
    EXPECT_EQ(uuid(32), field.recs()[0].id());
    EXPECT_EQ(uuid(31), field.recs()[1].id());
}

TEST(FieldElement, HandsItsIdentifierAndThatOfItsGeometryToEveryRec) {
    QenField field =
        readField(test::field(21, test::recommendations(test::rec(31) + test::rec(32))));
    ASSERT_EQ(2U, field.recs().size());
    for (QenRec& rec : field.recs()) {
        EXPECT_EQ(uuid(21), rec.fieldId());
        EXPECT_EQ(uuid(7021), rec.fieldGeometryId());
    }
}

TEST(FieldElement, LeavesWhatTheRecElementGivesAsItIs) {
    QenField field = readField(test::field(21, test::recommendations(test::rec(31))));
    const Xml xml(test::rec(31));
    QenRec rec = QenXmlParser().parseRecNode(uuid(21), uuid(7021), xml.root());
    ASSERT_EQ(1U, field.recs().size());
    EXPECT_EQ(test::describe(rec), test::describe(field.recs()[0]));
    EXPECT_FALSE(field.recs()[0].isUsed());
}

TEST(FieldElement, ReadsWhatStandsAfterTheFirstRecAsOneMoreRec) {
    EXPECT_THROW(readField(test::field(21, test::recommendations(test::rec(31) + "<Note/>"))),
                 std::runtime_error);
}

TEST(FieldElement, MayHoldItsDataAfterTheRecommendations) {
    // They are no list themselves: only within them everything is a rec.
    QenField field = readField(
        test::field(21, test::recommendations(test::rec(31)) + "<FieldName>North</FieldName>"));
    EXPECT_EQ("North", field.name());
    EXPECT_EQ(1U, field.recs().size());
}

#include "tools/report/ReportMaps.h"

#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/support/Uuids.h"
#include "tests/tools/report/Reports.h"

using test::contains;
using test::fieldOf;
using test::growerOf;
using test::occurrences;

namespace {

std::string sectionOf(std::vector<QenGrower> growers) {
    FarmPlaces places;
    forEachField(growers, {}, [&](const FieldContext& context) { places.add(context); });
    return test::written([&](const TextSink& sink) { ReportMaps(places, sink).write(); });
}

TEST(ReportMaps, AreOneForEachFarmWithItsMiddle) {
    const std::string section =
        sectionOf({growerOf(1, 2,
                            {fieldOf(3, "North", {44.7, -95.0, 0.0}),
                             fieldOf(4, "South", {44.68, -95.02, 0.0})}),
                   growerOf(5, 6, {fieldOf(7, "Talh\u00E3o", {-12.6, -55.8, 0.0})})});
    EXPECT_EQ(occurrences(section, "<svg"), 2U);
    EXPECT_TRUE(contains(section,
                         "<figcaption><strong><bdi>Grower 1</bdi>, <bdi>Farm 2</bdi></strong><br>2 "
                         "fields around 44.6900\u00B0 N, 95.0100\u00B0 W</figcaption>"));
    EXPECT_TRUE(contains(section, "1 field around 12.6000\u00B0 S, 55.8000\u00B0 W"));
    EXPECT_FALSE(contains(section, "drawn"));
}

TEST(ReportMaps, AreSeveralForAFarmWhoseFieldsLieApart) {
    const std::string section = sectionOf({growerOf(
        1, 2,
        {fieldOf(3, "North", {44.7, -95.0, 0.0}), fieldOf(4, "South", {44.68, -95.02, 0.0}),
         fieldOf(5, "Sign lost", {44.68, 95.02, 0.0})})});
    EXPECT_EQ(occurrences(section, "<svg"), 2U);
    EXPECT_TRUE(contains(section, "</strong>, map 1 of 2<br>2 fields around"));
    EXPECT_TRUE(contains(section, "</strong>, map 2 of 2<br>1 field around 44.6800\u00B0 N, "
                                  "95.0200\u00B0 E"));
}

TEST(ReportMaps, AreAtMostThreeForAFarmAndTellWhereItsOtherFieldsLie) {
    std::vector<QenField> fields;
    for (unsigned i = 0; i < 8; ++i)
        fields.push_back(
            fieldOf(10 + i, i == 4 ? "" : "<F" + std::to_string(i) + ">", {10.0 + i, 20.0, 0.0}));
    const std::string section = sectionOf({growerOf(1, 2, fields)});
    EXPECT_EQ(occurrences(section, "<svg"), 3U);
    EXPECT_TRUE(contains(section, "<br>Elsewhere, and not drawn: <bdi>&lt;F3&gt;</bdi> "
                                  "(13.0000\u00B0 N, 20.0000\u00B0 E), a field without a name "
                                  "(14.0000\u00B0 N, 20.0000\u00B0 E), <bdi>&lt;F5&gt;</bdi> "
                                  "(15.0000\u00B0 N, 20.0000\u00B0 E) and 2 more</figcaption>"));
}

TEST(ReportMaps, KeepAFarmOnBothSidesOfTheDateLineTogether) {
    const std::string section = sectionOf({growerOf(
        1, 2, {fieldOf(3, "a", {-17.0, 179.99, 0.0}), fieldOf(4, "b", {-17.0, -179.99, 0.0})})});
    EXPECT_EQ(occurrences(section, "<svg"), 1U);
    EXPECT_TRUE(contains(section, "2 fields around 17.0000\u00B0 S, 180\u00B0<"));
}

TEST(ReportMaps, AreLimitedAndTellHowManyFarmsAreNotDrawn) {
    std::vector<QenGrower> growers;
    for (unsigned i = 0; i < 1'060; ++i)
        growers.push_back(growerOf(1, 100 + i, {fieldOf(3, "", {44.7, -95.0, 0.0})}));
    const std::string section = sectionOf(growers);
    EXPECT_EQ(occurrences(section, "<svg"), 60U);
    EXPECT_TRUE(contains(section, "<p>Not drawn: 1\u202F000 more farms; <code>qenxml export "
                                  "--format geojson</code> writes all fields"));
}

TEST(ReportMaps, StaySmallWhenFarmsHaveThousandsOfFields) {
    std::vector<QenField> fields;
    for (unsigned i = 0; i < 3'000; ++i)
        fields.push_back(fieldOf(i, "Field", {40.0 + i % 71 * 0.004, 9.0 + i / 71 * 0.006, 0.0}));
    QenFarm farm = growerOf(1, 2, fields).farms().at(0);
    std::vector<QenGrower> growers;
    for (unsigned i = 0; i < 10; ++i) {
        growers.emplace_back("", test::uuid(100 + i));
        growers.back().addFarm(farm);
    }
    const std::string section = sectionOf(growers);
    EXPECT_LT(section.size(), 1'200'000U);
    const std::size_t notDrawn = growers.size() - occurrences(section, "<svg");
    EXPECT_TRUE(contains(section, fmt::format("<p>Not drawn: {} more farms; ", notDrawn)));
}

TEST(ReportMaps, SayWhatHasNoPlace) {
    EXPECT_TRUE(contains(sectionOf({}), "<p>No field has a centroid that could be drawn.</p>"));
    EXPECT_TRUE(contains(sectionOf({growerOf(1, 2, {fieldOf(3, "", {0.0, 0.0, 0.0})})}),
                         "missing or out of range: 1 field.</p>"));
}

} // namespace

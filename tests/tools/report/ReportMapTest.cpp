// Fields on the map, and the texts beside them.

#include "tools/report/ReportMap.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/report/Reports.h"
#include "tools/report/MapLettering.h"

using test::contains;
using test::occurrences;

namespace {

std::string isolated(const std::string& name) {
    return std::string("\xE2\x81\xA8").append(name).append("\xE2\x81\xA9");
}

TEST(ReportMap, ShowsASingleFieldInTheMiddleOfAKilometre) {
    const std::string map = reportMap({{"North <40>", {44.7, -95.0, 0.0}}});
    EXPECT_TRUE(contains(map, "aria-label=\"Map: 1 field between 44.695° N and 44.705° N"));
    EXPECT_TRUE(contains(map, "<circle class=\"field\" cx=\"300.0\" "));
    EXPECT_TRUE(contains(map, "North &lt;40&gt;"));
    EXPECT_TRUE(contains(map, ">500 m</text>"));
}

TEST(ReportMap, PutsNorthUpAndEastToTheRight) {
    const std::string map =
        reportMap({{"south-west", {10.0, 20.0, 0.0}}, {"north-east", {11.0, 21.0, 0.0}}});
    const auto southWest = map.find(isolated("south-west"));
    const auto circleOf = [&](std::size_t title) { return map.rfind("<circle", title); };
    const auto x = [&](std::size_t circle) {
        return std::stod(map.substr(map.find("cx=", circle) + 4));
    };
    const auto y = [&](std::size_t circle) {
        return std::stod(map.substr(map.find("cy=", circle) + 4));
    };
    const auto northEast = map.find(isolated("north-east"));
    EXPECT_LT(x(circleOf(southWest)), x(circleOf(northEast)));
    EXPECT_GT(y(circleOf(southWest)), y(circleOf(northEast)));
}

TEST(ReportMap, KeepsFieldsOnBothSidesOfTheDateLineTogether) {
    const std::string map = reportMap({{"a", {-17.0, 179.9, 0.0}}, {"b", {-17.0, -179.9, 0.0}}});
    EXPECT_TRUE(contains(map, "179.900° E and 179.900° W"));
}

TEST(ReportMap, DrawsFieldsThatWouldHideEachOtherAsOnePoint) {
    const std::string map = reportMap(
        {{"a", {44.7, -95.0, 0.0}}, {"b", {44.7, -95.0, 0.0}}, {"c", {44.8, -95.0, 0.0}}});
    EXPECT_EQ(occurrences(map, "<circle"), 2U);
    EXPECT_TRUE(contains(map, "<title>" + isolated("a") + " and 1 more</title>"));
}

TEST(ReportMap, StaysSmallForAnyNumberOfFields) {
    std::vector<MapPoint> points;
    for (int i = 0; i < 100'000; ++i)
        points.push_back({"Field " + std::to_string(i),
                          {-89.0 + i % 1000 * 0.178, -179.0 + i / 1000.0 * 3.58, 0.0}});
    EXPECT_LT(reportMap(points).size(), 600'000U);
}

constexpr double letterSize = 21.0; // as the style says

/// A text of the map as it is written there.
struct Label {
    std::string style;
    double x;
    double y;
    std::string anchor;
    std::string text;
};

std::vector<Label> labelsOf(const std::string& map) {
    static const std::regex form("<text class=\"(\\w+)\" x=\"([-0-9.]+)\" y=\"([-0-9.]+)\""
                                 "(?: text-anchor=\"(\\w+)\")?>([^<]*)</text>");
    std::vector<Label> labels;
    for (std::sregex_iterator i(map.begin(), map.end(), form), end; i != end; ++i)
        labels.push_back({(*i)[1], std::stod((*i)[2]), std::stod((*i)[3]), (*i)[4], (*i)[5]});
    return labels;
}

std::vector<std::string> textsOf(const std::string& map, const std::string& style) {
    std::vector<std::string> texts;
    for (const Label& label : labelsOf(map)) {
        if (label.style == style)
            texts.push_back(label.text);
    }
    return texts;
}

/// Where the letters themselves are, without room around them.
Box boxOf(const Label& label) {
    const double length = textWidth(label.text) * letterSize;
    const double before = label.anchor == "end" ? 1.0 : label.anchor == "middle" ? 0.5 : 0.0;
    const double left = label.x - before * length;
    return {left, label.y - 0.75 * letterSize, left + length, label.y + 0.22 * letterSize};
}

/// Points and the scale.
std::vector<Box> thingsOf(const std::string& map) {
    static const std::regex circle("cx=\"([-0-9.]+)\" cy=\"([-0-9.]+)\" r=\"6\"");
    static const std::regex scale("class=\"scale\" d=\"M([0-9.]+) ([0-9.]+)v6H([0-9.]+)v-6\"");
    std::vector<Box> boxes;
    for (std::sregex_iterator i(map.begin(), map.end(), circle), end; i != end; ++i) {
        const double x = std::stod((*i)[1]);
        const double y = std::stod((*i)[2]);
        boxes.push_back({x - 6.0, y - 6.0, x + 6.0, y + 6.0});
    }
    std::smatch match;
    if (std::regex_search(map, match, scale))
        boxes.push_back({std::stod(match[1]), std::stod(match[2]), std::stod(match[3]),
                         std::stod(match[2]) + 6.0});
    return boxes;
}

bool overlap(const Box& a, const Box& b) {
    constexpr double rounding = 0.1; // the picture has one decimal
    return a.left + rounding < b.right && b.left + rounding < a.right &&
           a.top + rounding < b.bottom && b.top + rounding < a.bottom;
}

double heightOf(const std::string& map) {
    return std::stod(map.substr(map.find("viewBox=\"0 0 600 ") + 17));
}

/// How many texts lie over something else, or partly beyond the map.
std::size_t unreadable(const std::string& map) {
    std::vector<Box> before = thingsOf(map);
    std::size_t count = 0;
    for (const Label& label : labelsOf(map)) {
        const Box box = boxOf(label);
        count += box.left < 0.0 || box.right > 600.0 || box.top < 0.0 || box.bottom > heightOf(map);
        for (const Box& other : before)
            count += overlap(box, other);
        before.push_back(box);
    }
    return count;
}

std::vector<MapPoint> randomPoints(std::mt19937& random, std::size_t number) {
    const double span = std::pow(10.0, std::uniform_real_distribution<>(-3.0, 2.0)(random));
    std::uniform_real_distribution<> latitude(-80.0, 80.0);
    std::uniform_real_distribution<> longitude(-180.0, 180.0);
    std::uniform_real_distribution<> offset(0.0, span);
    const double south = latitude(random);
    const double west = longitude(random);
    std::vector<MapPoint> points;
    for (std::size_t i = 0; i < number; ++i)
        points.push_back({"Schlag " + std::to_string(random() % 100'000),
                          {std::min(90.0, south + offset(random) / 2.0),
                           std::remainder(west + offset(random), 360.0), 0.0}});
    return points;
}

TEST(ReportMap, NeverPutsATextOverAnotherOneOrBeyondTheMap) {
    std::mt19937 random(2026);
    for (std::size_t number = 1; number < 60; ++number) {
        const std::string map = reportMap(randomPoints(random, number));
        EXPECT_EQ(unreadable(map), 0U) << map;
        EXPECT_GE(textsOf(map, "name").size(), 1U) << map;
        EXPECT_GE(textsOf(map, "degrees").size(), 2U) << map;
        EXPECT_EQ(occurrences(map, "class=\"scale\""), 1U);
    }
}

// As far apart as the sample packages.
TEST(ReportMap, NamesFieldsOfThreeCountries) {
    const std::string map = reportMap({{"North Forty", {44.70312, -95.01874, 0.0}},
                                       {"Talh\u00E3o 7", {-12.6183, -55.80764, 0.0}},
                                       {"Langer Schlag", {53.71846, 12.61207, 0.0}}});
    const std::vector<std::string> names = {isolated("North Forty"), isolated("Talh\u00E3o 7"),
                                            isolated("Langer Schlag")};
    EXPECT_EQ(textsOf(map, "name"), names);
    EXPECT_EQ(textsOf(map, "degrees"),
              (std::vector<std::string>{"2\u202F000 km", "100\u00B0 W", "50\u00B0 W", "0\u00B0",
                                        "0\u00B0", "50\u00B0 N"}));
}

TEST(ReportMap, CutsLongNamesBesideAPointAndKeepsThemInItsTitle) {
    const std::string name = "lili lili lili lili lili lili";
    const std::string map = reportMap({{name, {44.7, -95.0, 0.0}}});
    EXPECT_EQ(textsOf(map, "name"),
              std::vector<std::string>{isolated("lili lili lili lili lil\u2026")});
    EXPECT_TRUE(contains(map, "<title>" + isolated(name) + "</title>"));
}

TEST(ReportMap, TakesAShortFormWhereANameDoesNotFit) {
    const std::string map =
        reportMap({{"WWWWWWWWWWWWWWWWWWWWWWWW", {44.7, -95.01, 0.0}}, {"", {44.7, -94.99, 0.0}}});
    EXPECT_EQ(textsOf(map, "name"), std::vector<std::string>{isolated("WWWWWWWWWWW\u2026")});
}

TEST(ReportMap, PutsNamesWhereThereIsRoom) {
    const auto anchors = [](const std::string& map) {
        std::vector<std::string> result;
        for (const Label& label : labelsOf(map)) {
            if (label.style == "name")
                result.push_back(label.anchor);
        }
        return result;
    };
    using Anchors = std::vector<std::string>;
    EXPECT_EQ(anchors(reportMap({{"Field", {44.7023, -95.0, 0.0}}})), Anchors{""});
    // To the right lies the next field, at the right end the edge of the map.
    EXPECT_EQ(anchors(reportMap({{"Field", {44.7023, -95.01, 0.0}},
                                 {"", {44.7023, -95.008, 0.0}},
                                 {"Long name of a field", {44.7023, -94.99, 0.0}}})),
              (Anchors{"end", "end"}));
    const std::string between = reportMap({{"", {44.7023, -95.010, 0.0}},
                                           {"Field", {44.7023, -95.0085, 0.0}},
                                           {"", {44.7023, -95.007, 0.0}},
                                           {"", {44.7023, -94.99, 0.0}}});
    EXPECT_EQ(anchors(between), Anchors{"middle"});
    EXPECT_LT(labelsOf(between).back().y, heightOf(between) / 2.0);
}

TEST(ReportMap, WritesZeroDegreesWithoutADirection) {
    const std::string map = reportMap({{"a", {-0.01, -0.01, 0.0}}, {"b", {0.01, 0.01, 0.0}}});
    const std::vector<std::string> degrees = textsOf(map, "degrees");
    EXPECT_EQ(std::count(degrees.begin(), degrees.end(), "0\u00B0"), 2);
    EXPECT_FALSE(contains(map, "0.00\u00B0") || contains(map, "0.000\u00B0"));
}

TEST(ReportMap, LeavesTheScaleFree) {
    // Beside the field and above it are others, and below it is the end of the scale.
    const std::string map = reportMap({{"Field", {44.7, -95.0004, 0.0}},
                                       {"", {44.7, -95.0, 0.0}},
                                       {"", {44.7, -95.0008, 0.0}},
                                       {"", {44.7003, -95.0004, 0.0}},
                                       {"", {44.71, -95.013, 0.0}}});
    EXPECT_EQ(textsOf(map, "name"), std::vector<std::string>{});
}

TEST(ReportMap, HasLinesThatLeadAroundTheEarth) {
    const std::string map = reportMap({{"", {-80.0, -175.0, 0.0}},
                                       {"", {0.0, -1.0, 0.0}},
                                       {"", {0.0, 1.0, 0.0}},
                                       {"", {80.0, 175.0, 0.0}}});
    EXPECT_EQ(textsOf(map, "degrees"),
              (std::vector<std::string>{"10\u202F000 km", "180\u00B0", "90\u00B0 W", "0\u00B0",
                                        "90\u00B0 E", "180\u00B0", "90\u00B0 S", "0\u00B0",
                                        "90\u00B0 N"}));
}

TEST(ReportMap, TellsHowManyFieldsStandUnderOneName) {
    const std::string map = reportMap({{"a", {1.0, 1.0, 0.0}}, {"b", {1.0, 1.0, 0.0}}});
    EXPECT_EQ(textsOf(map, "name"), std::vector<std::string>{isolated("a") + " +1"});
}

TEST(ReportMap, DrawsFieldsWithoutANameWithoutAText) {
    const std::string map = reportMap({{"", {1.0, 1.0, 0.0}}});
    EXPECT_EQ(textsOf(map, "name"), std::vector<std::string>{});
    EXPECT_TRUE(contains(map, "<title>Field without a name</title>"));
}

TEST(ReportMap, NamesSixtyFieldsAtMost) {
    std::vector<MapPoint> points;
    for (int row = 0; row < 10; ++row)
        for (int column = 0; column < 10; ++column)
            points.push_back({"f", {row * 0.1, column * 0.1, 0.0}});
    EXPECT_EQ(textsOf(reportMap(points), "name").size(), 60U);
}

} // namespace

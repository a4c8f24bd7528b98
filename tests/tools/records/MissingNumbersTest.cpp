#include "tools/records/MissingNumbers.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"

using nlohmann::json;
using test::element;

namespace {

const std::vector<std::string> uuids = {"aaaaaaaa-0000-4000-8000-000000000001",
                                        "aaaaaaaa-0000-4000-8000-000000000002"};

const std::string statistics =
    "<RecStats><MinimumRate>0</MinimumRate><AverageRate>0</AverageRate>"
    "<MaximumRate>0</MaximumRate><RateUOMID>0</RateUOMID><Total>0</Total>"
    "<TotalUOMID>0</TotalUOMID><Area>0</Area><AreaUOMID>0</AreaUOMID></RecStats>";
const std::string season = "<Season SeasonID=\"0\"><SeasonName>s</SeasonName></Season>";
const std::string origin =
    "<FieldCentroid><Latitude>0</Latitude><Longitude>0</Longitude></FieldCentroid>";
const std::vector<std::string> numbersOfRec = {"minimumRate", "averageRate", "maximumRate",
                                               "rateUomId",   "total",       "totalUomId",
                                               "area",        "areaUomId",   "seasonId"};

/// A package of one farm.
std::string packageOf(const std::string& fields) {
    return test::package(test::grower(1, test::farm(2, fields)));
}

std::string fieldOf(const std::string& recs, const std::string& content = "") {
    return test::field(3, content + test::recommendations(recs));
}

/// The cells of one row by their titles. No cell in these tests needs quotes.
json cellsOf(const std::string& titles, const std::string& row) {
    json cells;
    std::size_t title = 0;
    std::size_t cell = 0;
    while (title < titles.size()) {
        const std::size_t titleEnd = std::min(titles.find(',', title), titles.size());
        const std::size_t cellEnd = std::min(row.find(',', cell), row.size());
        cells[titles.substr(title, titleEnd - title)] = row.substr(cell, cellEnd - cell);
        title = titleEnd + 1;
        cell = cellEnd + 1;
    }
    return cells;
}

class Exported : public testing::Test {
protected:
    /// What is written of packages in a format.
    std::string run(const std::vector<std::string>& packages, const std::string& format,
                    bool merge = false) {
        std::vector<std::string> arguments = {"export", "--format", format};
        if (merge)
            arguments.emplace_back("--merge");
        for (std::size_t i = 0; i < packages.size(); ++i)
            arguments.push_back(folder_.writePackage(packages[i], uuids.at(i)));
        return test::runCommand(arguments).output;
    }

    json fieldJson(const std::string& package) {
        return json::parse(
            run({package}, "json"))["packages"][0]["growers"][0]["farms"][0]["fields"][0];
    }

    json mergedField(const std::vector<std::string>& packages) {
        return json::parse(run(packages, "json", true))["growers"][0]["farms"][0]["fields"][0];
    }

    json row(const std::string& package) {
        const std::string text = run({package}, "csv").substr(3); // behind the byte-order mark
        const std::size_t titles = text.find("\r\n");
        return cellsOf(text.substr(0, titles),
                       text.substr(titles + 2, text.find("\r\n", titles + 2) - titles - 2));
    }

    json feature(const std::string& package) {
        return json::parse(run({package}, "geojson"))["features"][0];
    }

    test::TemporaryFolder folder_;
};

TEST_F(Exported, NumbersThatThePackageDoesNotGiveAreEmptyInCsv) {
    const json cells = row(packageOf(fieldOf(test::rec(4))));
    for (const std::string title :
         {"minimum_rate", "average_rate", "maximum_rate", "rate_unit_id", "total", "total_unit_id",
          "area", "area_unit_id", "season_id", "latitude", "longitude"})
        EXPECT_EQ(cells.at(title), "") << title;
}

TEST_F(Exported, ZerosThatThePackageGivesAreZerosInCsv) {
    const json cells = row(packageOf(fieldOf(test::rec(4, season + statistics), origin)));
    for (const std::string title :
         {"minimum_rate", "average_rate", "maximum_rate", "rate_unit_id", "total", "total_unit_id",
          "area", "area_unit_id", "season_id", "latitude", "longitude"})
        EXPECT_EQ(cells.at(title), "0") << title;
}

TEST_F(Exported, NumbersThatThePackageDoesNotGiveAreNullInJson) {
    const json field = fieldJson(packageOf(fieldOf(test::rec(4))));
    for (const std::string& name : numbersOfRec)
        EXPECT_TRUE(field["recs"][0].at(name).is_null()) << name;
    EXPECT_EQ(field["geometries"][0]["centroid"],
              json({{"latitude", nullptr}, {"longitude", nullptr}, {"altitude", nullptr}}));
}

TEST_F(Exported, ZerosThatThePackageGivesAreZerosInJson) {
    const json field = fieldJson(packageOf(fieldOf(test::rec(4, season + statistics), origin)));
    for (const std::string& name : numbersOfRec)
        EXPECT_EQ(field["recs"][0].at(name), 0) << name;
    EXPECT_EQ(field["geometries"][0]["centroid"],
              json({{"latitude", 0.0}, {"longitude", 0.0}, {"altitude", nullptr}}));
}

TEST_F(Exported, GeoJsonHasNoPointWhereACoordinateIsMissing) {
    const json half = feature(packageOf(
        fieldOf(test::rec(4), "<FieldCentroid><Latitude>45.5</Latitude></FieldCentroid>")));
    EXPECT_TRUE(half["geometry"].is_null());
    EXPECT_EQ(half["properties"]["latitude"], 45.5);
    EXPECT_TRUE(half["properties"]["longitude"].is_null());
    EXPECT_TRUE(half["properties"]["total"].is_null());
    const json whole = feature(packageOf(fieldOf(
        "", "<FieldCentroid><Latitude>45.5</Latitude><Longitude>0</Longitude></FieldCentroid>")));
    EXPECT_EQ(whole["geometry"]["coordinates"], json({0.0, 45.5}));
}

TEST_F(Exported, ASeasonMayHaveANameOnlyOrANumberOnlyOrNeither) {
    const auto rec = [&](const std::string& content) {
        return row(packageOf(fieldOf(test::rec(4, content))));
    };
    const json named = rec("<Season><SeasonName>spring</SeasonName></Season>");
    EXPECT_EQ(named.at("season"), "spring");
    EXPECT_EQ(named.at("season_id"), "");
    const json numbered = rec("<Season SeasonID=\"7\"/>");
    EXPECT_EQ(numbered.at("season"), "");
    EXPECT_EQ(numbered.at("season_id"), "7");
    const json without = rec("");
    EXPECT_EQ(without.at("season"), "");
    EXPECT_EQ(without.at("season_id"), "");
    const json negative = rec("<Season SeasonID=\"-3\"><SeasonName>x</SeasonName></Season>");
    EXPECT_EQ(negative.at("season"), "");
    EXPECT_EQ(negative.at("season_id"), "");
}

TEST_F(Exported, ATextThatIsNoNumberGivesNone) {
    const auto rec = [&](const std::string& total) {
        return fieldJson(packageOf(fieldOf(
            test::rec(4, element("RecStats", element("Total", total))))))["recs"][0]["total"];
    };
    EXPECT_TRUE(rec("").is_null());
    EXPECT_TRUE(rec("n/a").is_null());
    EXPECT_EQ(rec("12 kg"), 12.0);
    EXPECT_EQ(rec("0"), 0.0);
    EXPECT_EQ(rec("nan"), "NaN");
}

TEST_F(Exported, NumbersOfProductsFollowTheSameRule) {
    const std::string package = packageOf(fieldOf(
        test::rec(4, "<RecData><CommercialFertilizer><ProductID/><ProductName>p</ProductName>"
                     "<UOMID>0</UOMID><UOM/></CommercialFertilizer></RecData>")));
    const json product = fieldJson(package)["recs"][0]["recData"];
    EXPECT_TRUE(product["productId"].is_null());
    EXPECT_EQ(product["uomId"], 0);
    const json cells = row(package);
    EXPECT_EQ(cells.at("product_id"), "");
    EXPECT_EQ(cells.at("product_unit_id"), "0");
}

TEST_F(Exported, OperationsAndZonesThatAreNotGivenAreNullInJson) {
    const json rec = fieldJson(packageOf(fieldOf(test::rec(4))))["recs"][0];
    EXPECT_TRUE(rec["operationId"].is_null());
    EXPECT_TRUE(rec["mgmtZoneId"].is_null());
}

TEST_F(Exported, TheLastOfRecordsWithOneIdentifierCounts) {
    const std::string given = test::rec(4, statistics);
    const std::string missing = test::rec(4);
    EXPECT_TRUE(fieldJson(packageOf(fieldOf(given + missing)))["recs"][0]["total"].is_null());
    EXPECT_EQ(fieldJson(packageOf(fieldOf(missing + given)))["recs"][0]["total"], 0);
    EXPECT_EQ(fieldJson(packageOf(fieldOf(missing) + fieldOf(given)))["recs"][0]["total"], 0);
}

TEST_F(Exported, TheFirstOfMergedRecordsCounts) {
    const std::string given = packageOf(fieldOf(test::rec(4, statistics), origin));
    const std::string missing = packageOf(fieldOf(test::rec(4)));
    const json first = mergedField({given, missing});
    EXPECT_EQ(first["recs"][0]["total"], 0);
    EXPECT_EQ(first["geometries"][0]["centroid"]["latitude"], 0);
    const json second = mergedField({missing, given});
    EXPECT_TRUE(second["recs"][0]["total"].is_null());
    EXPECT_TRUE(second["geometries"][0]["centroid"]["latitude"].is_null());
}

TEST_F(Exported, RecordsOfAReplacedFarmDoNotCountInMerging) {
    // The first farm is replaced with its field, so the rec of the second package is the only one.
    const std::string replaced =
        test::package(test::grower(1, test::farm(2, fieldOf(test::rec(4))) + test::farm(2)));
    const std::string given = packageOf(fieldOf(test::rec(4, statistics), origin));
    const json field = mergedField({replaced, given});
    EXPECT_EQ(field["recs"][0]["total"], 0);
    EXPECT_EQ(field["geometries"][0]["centroid"]["latitude"], 0);
}

TEST_F(Exported, GrowersOfOneIdentifierInAPackageKeepWhatEachOfThemGives) {
    const std::string package =
        test::package(test::grower(1, test::farm(2, fieldOf(test::rec(4, statistics)))) +
                      test::grower(1, test::farm(2, fieldOf(test::rec(4)))));
    const json growers = json::parse(run({package}, "json"))["packages"][0]["growers"];
    const auto total = [&](std::size_t i) {
        return growers[i]["farms"][0]["fields"][0]["recs"][0]["total"];
    };
    EXPECT_EQ(total(0), 0);
    EXPECT_TRUE(total(1).is_null());
}

TEST_F(Exported, WhatWasReadBeforeAFailureFollowsTheSameRule) {
    const std::string package = test::package(
        test::grower(1, test::farm(2, fieldOf(test::rec(4)))) + "<Grower GrowerID=\"x\"/>");
    EXPECT_TRUE(fieldJson(package)["recs"][0]["total"].is_null());
}

TEST_F(Exported, GeoJsonHasNoPropertyThatTablesOfShapesHaveThemselves) {
    const json properties = feature(packageOf(fieldOf("")))["properties"];
    EXPECT_EQ(properties.value("boundary_file_id", ""), test::uuidText(8003));
    for (const std::string taken : {"geometry", "geom", "fid", "ogc_fid", "id", "shape"})
        EXPECT_FALSE(properties.contains(taken)) << taken;
}

/// A field of which some numbers are given as 0, and others not at all.
const std::string fieldWithGaps =
    test::field(3, element("FieldGeometryID", test::uuidText(5)) +
                       "<FieldCentroid><Longitude>0</Longitude></FieldCentroid>" +
                       test::recommendations(test::rec(
                           4, "<Season/><RecStats><AverageRate>0</AverageRate><MaximumRate>20"
                              "</MaximumRate><RateUOM>kg/ha</RateUOM><TotalUOM>kg</TotalUOM>"
                              "<Area>0</Area></RecStats>")));

class WithGaps : public testing::Test {
protected:
    std::string run(std::vector<std::string> command, const std::string& fields) {
        command.push_back(folder_.writePackage(packageOf(fields)));
        return test::runCommand(command).output;
    }

    static bool contains(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }

    test::TemporaryFolder folder_;
};

TEST_F(WithGaps, ShowLeavesOutEachNumberThatIsNotGiven) {
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"show"}, {"show", "--merge"}}) {
        const std::string text = run(command, fieldWithGaps);
        EXPECT_TRUE(contains(text, "centroid   longitude 0\n")) << text;
        EXPECT_TRUE(contains(text, "rate       avg 0, max 20 kg/ha\n")) << text;
        EXPECT_TRUE(contains(text, "area       0\n")) << text;
        EXPECT_FALSE(contains(text, "total")) << text;
        EXPECT_FALSE(contains(text, "season")) << text;
    }
}

TEST_F(WithGaps, ReportLeavesOutEachNumberThatIsNotGiven) {
    const std::string page = run({"report"}, fieldWithGaps);
    EXPECT_TRUE(contains(page, "<dt>Rates</dt><dd><bdi>average 0, maximum 20 kg/ha</bdi></dd>"));
    EXPECT_FALSE(contains(page, "class=\"bar\"")) << page;
    EXPECT_FALSE(contains(page, "<dt>Total</dt>"));
    EXPECT_TRUE(contains(page, "<dt>Area</dt><dd><bdi>0</bdi></dd>"));
    EXPECT_TRUE(contains(page, "<span class=\"quiet\">not given by 1 rec</span>"));
    EXPECT_FALSE(contains(page, "Centroid: latitude"));
    EXPECT_TRUE(contains(page, "No field has a centroid that could be drawn"));
}

TEST_F(WithGaps, ReportSumsUpWhatIsGiven) {
    const std::string total = "<RecStats><Total>5</Total><TotalUOM>kg</TotalUOM></RecStats>";
    const std::string none = "<RecStats><TotalUOM>kg</TotalUOM></RecStats>";
    const std::string page =
        run({"report"}, fieldOf(test::rec(4, total) + test::rec(5, none) + test::rec(6, total)));
    EXPECT_TRUE(contains(page, ">10 <bdi>kg</bdi><br><span class=\"quiet\">not given by 1 rec"
                               "</span></td>"));
}

TEST_F(WithGaps, ABlendHasNoContentThatIsNotGiven) {
    std::string values;
    for (const std::string name :
         {"N", "P", "K", "Ca", "Mg", "S", "Fe", "Mn", "Zn", "Cu", "B", "Mo", "Cl"})
        values += element("Pct_" + name, name == "K" ? "x" : "0");
    const auto content = [&](const std::string& gravity) {
        return run({"show"},
                   fieldOf(test::rec(4, "<RecData><CustomFertilizer>" +
                                            element("ProductID", test::uuidText(6)) +
                                            "<ProductName>Mix</ProductName><UOMID>1</UOMID>"
                                            "<UOM>l</UOM><SFertT_ID>1</SFertT_ID>" +
                                            element("SpGravity", gravity) + values +
                                            "</CustomFertilizer></RecData>")));
    };
    EXPECT_TRUE(contains(content("1.5"), "           specific gravity 1.5\n"));
    EXPECT_FALSE(contains(content("x"), "specific gravity"));
    values.replace(values.find('x'), 1, "7");
    EXPECT_TRUE(contains(content("x"), "           K 7%\n"));
}

} // namespace

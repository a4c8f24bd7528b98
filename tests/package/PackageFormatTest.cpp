/// @file
/// The examples of docs/package-format.md read as their descriptions say.

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "parser/internal/TagConstants.h"
#include "tests/package/Samples.h"
#include "tests/support/PackageReading.h"
#include "tests/support/SourceFolder.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using test::forEachRec;
using test::outcomeOf;
using test::outline;
using test::textOf;

const std::string invalid = "invalid uuid string";

/// The XML examples of the description of the format that begin with one of the texts given.
std::vector<std::string> formatExamples(const std::vector<std::string>& beginnings) {
    const std::string document = textOf(test::inSources("docs/package-format.md"));
    const std::string opening = "\n```xml\n";
    std::vector<std::string> examples;
    std::size_t begin = document.find(opening);
    while (begin != std::string::npos) {
        begin += opening.size();
        const std::size_t end = document.find("```\n", begin);
        const std::string example = document.substr(begin, end - begin);
        if (std::any_of(beginnings.begin(), beginnings.end(), [&](const std::string& text) {
                return example.compare(0, text.size(), text) == 0;
            }))
            examples.push_back(example);
        begin = document.find(opening, end);
    }
    return examples;
}

/// Reads a package from a text; how that ended is added to the growers' description.
std::string readText(const std::string& text) {
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    const std::string outcome = outcomeOf(parser, folder.writePackage(text));
    return outline(parser.getGrowers()) + outcome;
}

TEST(PackageFormat, EveryNameOfTheFormatIsDescribed) {
    const std::string document = textOf(test::inSources("docs/package-format.md"));
    for (const char* name : qenxml::tag::all)
        EXPECT_NE(document.find("| `" + std::string(name) + "` |"), std::string::npos) << name;
}

TEST(PackageFormat, TheMinimalExampleReads) {
    const std::vector<std::string> examples = formatExamples({"<RecPackage"});
    ASSERT_EQ(examples.size(), 1U);
    EXPECT_EQ(readText(examples[0]), "\n  \n    \n      \ntrue");
    QenGrower grower = test::growersOf(examples[0]).at(0);
    QenField& field = grower.farms().at(0).fields().at(0);
    EXPECT_EQ(field.centroid(field.recs().at(0).fieldGeometryId()).latitude, 0.0);
    EXPECT_EQ(field.geometryDate(field.recs().at(0).fieldGeometryId()), "");
    EXPECT_EQ(field.recs().at(0).seasonId(), -1);
    EXPECT_EQ(field.recs().at(0).rateUomId(), 0);
    EXPECT_EQ(field.recs().at(0).recData(), nullptr);
}

TEST(PackageFormat, TheFullExampleReadsWithNothingLeftOut) {
    const std::vector<std::string> examples = formatExamples({"<?xml"});
    ASSERT_EQ(examples.size(), 1U);
    EXPECT_EQ(readText(examples[0]), "Käthe Brandl\n"
                                     "  Brandlhof\n"
                                     "    Obere Breite\n"
                                     "      Winterweizen\n"
                                     "      KAS, Zone Hang\n"
                                     "      Herbstmischung\n"
                                     "true");
    forEachRec(test::growersOf(examples[0]), [](QenRec& rec) {
        SCOPED_TRACE(rec.name());
        ASSERT_NE(rec.recData(), nullptr);
        EXPECT_EQ(rec.recData()->recId(), rec.id());
        EXPECT_FALSE(rec.operationId().is_nil());
        EXPECT_EQ(rec.seasonId(), 2026);
        EXPECT_NEAR(rec.total(), rec.averageRate() * rec.area(), rec.total() * 1e-9);
    });
    // It shows every name but those that belong to pesticide mixes.
    bool ofPesticides = false;
    for (const char* name : qenxml::tag::all) {
        ofPesticides = ofPesticides || name == qenxml::tag::PesticideProductID;
        if (name == qenxml::tag::RecStats)
            ofPesticides = false;
        if (ofPesticides || name == qenxml::tag::Percent || name == qenxml::tag::Amount)
            continue;
        const bool shown = examples[0].find("<" + std::string(name)) != std::string::npos ||
                           examples[0].find(" " + std::string(name) + "=") != std::string::npos;
        EXPECT_TRUE(shown) << name;
    }
}

TEST(PackageFormat, TheGoodListReadsAndTheBadOneDoesNot) {
    const std::vector<std::string> good = formatExamples({"<!-- Good"});
    const std::vector<std::string> bad = formatExamples({"<!-- Bad"});
    ASSERT_EQ(good.size(), 1U);
    ASSERT_EQ(bad.size(), 1U);
    EXPECT_EQ(readText("<RecPackage>" + good[0] + "</RecPackage>"),
              "Ingrid Holm\n  Holmgård\n  Nyborg\ntrue");
    EXPECT_EQ(readText("<RecPackage>" + bad[0] + "</RecPackage>"), invalid);
}

// Schema.cmake tests that the schema accepts these.
TEST(PackageFormat, WhatTheSchemaDoesNotSeeIsAnErrorOrLost) {
    const std::vector<std::string> minimal = formatExamples({"<RecPackage"});
    const std::vector<std::string> full = formatExamples({"<?xml"});
    ASSERT_EQ(minimal.size(), 1U);
    ASSERT_EQ(full.size(), 1U);
    const auto changed = [](std::string text, const std::string& from, const std::string& to) {
        return text.replace(text.find(from), from.size(), to);
    };
    for (const char* split : {"<!-- -->30bf", "<?split?>30bf", "<![CDATA[30bf]]>"})
        EXPECT_EQ(readText(changed(minimal[0], "30bf", split)), invalid) << split;
    EXPECT_EQ(readText(changed(minimal[0], "a97c", "<![CDATA[]]>a97c")), invalid);

    // The growers before the broken one are kept: here the one that has been read.
    EXPECT_EQ(readText(changed(minimal[0], "</Grower>", "</Grower>&#32;")),
              "\n  \n    \n      \n" + invalid);
    for (const char* item : {"</Farm>", "</Field>", "</Rec>"})
        EXPECT_EQ(readText(changed(minimal[0], item, item + std::string("&#32;"))), invalid)
            << item;

    QenGrower grower = test::growersOf(changed(full[0], "<Planting>", "&#32;<Planting>")).at(0);
    EXPECT_EQ(grower.farms().at(0).fields().at(0).recs().at(0).recData(), nullptr);
    EXPECT_NE(grower.farms().at(0).fields().at(0).recs().at(1).recData(), nullptr);
}

} // namespace

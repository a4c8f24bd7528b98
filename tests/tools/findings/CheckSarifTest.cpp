#include "tools/findings/CheckSarif.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "model/version.h"
#include "tests/support/Uuids.h"
#include "tools/findings/Explanation.h"
#include "tools/output/Console.h"

namespace {

using nlohmann::json;

struct File {
    std::string path;
    std::vector<Finding> findings;
};

/// The run of the log of some files.
json runOf(const std::vector<File>& files) {
    char* text = nullptr;
    std::size_t size = 0;
    std::FILE* const stream = open_memstream(&text, &size);
    Console console(stream, stream, Style(false));
    const auto writer = makeCheckSarif(console, {});
    writer->begin();
    for (const File& file : files) {
        FindingSink& sink = writer->beginFile(file.path);
        for (const Finding& finding : file.findings)
            sink.offer(finding);
        writer->endFile();
    }
    writer->end();
    std::fclose(stream);
    const json log = json::parse(std::string(text, size));
    std::free(text);
    EXPECT_EQ(log["version"], "2.1.0");
    EXPECT_EQ(log["runs"].size(), 1U);
    return log["runs"][0];
}

Finding findingInFarm() {
    Finding finding{FindingCode::FarmId, "Farm has no attribute FarmID", ReadingEnds{1}};
    finding.location = Location{{12, 6}, {2, 5}, {2, 11}, {}};
    finding.path = "/RecPackage/Grower[1]/Farm[2]/@FarmID";
    finding.records = {{"grower", "Ana", test::uuid(1)}, {"farm", "Nord", {}}};
    return finding;
}

const Finding nameFinding{FindingCode::NameWithoutUuid, "the file name holds no package UUID",
                          NothingRead{}};

TEST(CheckSarif, IsARunWithoutResultsWhenNothingIsFound) {
    const json run = runOf({{"a.xml", {}}, {"b.xml", {}}});
    EXPECT_EQ(run["results"], json::array());
    EXPECT_EQ(run["tool"]["driver"],
              json({{"name", "qenxml"}, {"version", QENXML_VERSION}, {"rules", json::array()}}));
    EXPECT_EQ(run["invocations"], json::parse(R"([{"executionSuccessful": true}])"));
    EXPECT_EQ(run["columnKind"], "unicodeCodePoints");
    EXPECT_EQ(run["newlineSequences"], json({"\r\n", "\n", "\r"}));
}

TEST(CheckSarif, SaysOfAFindingAllThatIsKnown) {
    const json result = runOf({{"out/a b.xml", {findingInFarm()}}})["results"][0];
    EXPECT_EQ(result["ruleId"], "farm-id");
    EXPECT_EQ(result["ruleIndex"], 0);
    EXPECT_EQ(result["level"], "error");
    EXPECT_EQ(result["message"]["text"],
              "Farm has no attribute FarmID; so: this grower and the rest of the file are not "
              "read; the grower before it is.");
    const json& location = result["locations"][0];
    EXPECT_EQ(location["physicalLocation"], json::parse(R"({
        "artifactLocation": {"uri": "out/a%20b.xml"},
        "region": {"startLine": 2, "startColumn": 5, "endLine": 2, "endColumn": 11,
                   "byteOffset": 12, "byteLength": 6}})"));
    EXPECT_EQ(location["logicalLocations"], json::parse(R"([
        {"fullyQualifiedName": "/RecPackage/Grower[1]/Farm[2]/@FarmID", "kind": "attribute"},
        {"name": "Ana", "kind": "grower",
         "fullyQualifiedName": "grower 00000000-0000-0000-0000-000000000001"},
        {"name": "Nord", "kind": "farm",
         "fullyQualifiedName": "grower 00000000-0000-0000-0000-000000000001, farm Nord"}])"));
}

TEST(CheckSarif, ExplainsTheRulesThatFindingsBreak) {
    const json run = runOf({{"a.xml", {nameFinding, findingInFarm()}}, {"b.xml", {nameFinding}}});
    const json& rules = run["tool"]["driver"]["rules"];
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_EQ(run["results"][1]["ruleIndex"], 1);
    EXPECT_EQ(run["results"][2]["ruleIndex"], 0);
    const Explanation explanation = explanationOf(FindingCode::FarmId);
    EXPECT_EQ(rules[1],
              json({{"id", "farm-id"},
                    {"name", "FarmId"},
                    {"shortDescription", {{"text", "A farm has no readable identifier."}}},
                    {"fullDescription", {{"text", explanation.cause}}},
                    {"help",
                     {{"text", "Cause: " + explanation.cause + "\nExample: " + explanation.example +
                                   "\nCure: " + explanation.cure}}},
                    {"defaultConfiguration", {{"level", "error"}}}}));
}

TEST(CheckSarif, PutsWhatIsAboutTheFileAtItsBeginning) {
    const json result = runOf({{"a.xml", {nameFinding}}})["results"][0];
    EXPECT_EQ(result["locations"], json::parse(R"([{"physicalLocation": {
        "artifactLocation": {"uri": "a.xml"}, "region": {"startLine": 1, "startColumn": 1}}}])"));
}

TEST(CheckSarif, CountsNoBytesOfAFileInAnotherEncoding) {
    Finding finding = findingInFarm();
    finding.location->isInFile = false;
    const json result = runOf({{"a.xml", {finding}}})["results"][0];
    EXPECT_EQ(result["locations"][0]["physicalLocation"]["region"],
              json::parse(R"({"startLine": 2, "startColumn": 5, "endLine": 2, "endColumn": 11})"));
}

TEST(CheckSarif, NumbersEqualFindingsOfAFile) {
    const json results =
        runOf({{"a.xml", {nameFinding, nameFinding}}, {"b/a.xml", {nameFinding}}})["results"];
    const auto fingerprint = [&](std::size_t index) {
        return results[index]["partialFingerprints"]["qenxmlFinding/v1"].get<std::string>();
    };
    const std::string hash = fingerprint(0).substr(0, 16);
    EXPECT_EQ(fingerprint(0), hash + ":1");
    EXPECT_EQ(fingerprint(1), hash + ":2");
    EXPECT_EQ(fingerprint(2), hash + ":1");
}

TEST(CheckSarif, GivesNoNameToARuleThatWouldBeItsIdentifier) {
    const json run = runOf({{"a.xml", {{FindingCode::Unreadable, "not found", NothingRead{}}}}});
    const json& rule = run["tool"]["driver"]["rules"][0];
    EXPECT_EQ(rule["id"], "unreadable");
    EXPECT_FALSE(rule.contains("name"));
}

TEST(CheckSarif, SaysThatAFileCouldNotBeRead) {
    const json run = runOf({{"a.xml", {{FindingCode::Unreadable, "not found", NothingRead{}}}}});
    EXPECT_EQ(run["invocations"], json::parse(R"([{"executionSuccessful": false}])"));
}

} // namespace

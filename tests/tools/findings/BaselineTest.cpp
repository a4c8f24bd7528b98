#include "tools/findings/Baseline.h"

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace {

class BaselineFile : public testing::Test {
protected:
    /// What is said of a file that is no baseline.
    std::string refusal(const std::string& content) const {
        try {
            const Baseline baseline(folder_.write("a.sarif", content));
        } catch (const std::invalid_argument& error) {
            const std::string text = error.what();
            return text.substr(text.find("a.sarif"));
        }
        return "";
    }

    test::TemporaryFolder folder_;
};

std::string result(const std::string& fingerprint) {
    return R"({"ruleId": "farm-id", "partialFingerprints": {"other": "1", "qenxmlFinding/v1": ")" +
           fingerprint + "\"}}";
}

std::string log(const std::string& results) {
    return R"({"version": "2.1.0", "runs": [{"results": [)" + results +
           R"(], "tool": {"driver": {"name": "qenxml"}}}]})";
}

TEST_F(BaselineFile, KnowsEachFindingAsOftenAsItIsThere) {
    Baseline baseline(folder_.write("a.sarif", log(result("00000000000000ff:1") + "," +
                                                   result("00000000000000ff:2") + "," +
                                                   result("fedcba9876543210:1"))));
    EXPECT_TRUE(baseline.take(0xFF));
    EXPECT_TRUE(baseline.take(0xFF));
    EXPECT_FALSE(baseline.take(0xFF));
    EXPECT_TRUE(baseline.take(0xFEDCBA9876543210));
    EXPECT_FALSE(baseline.take(1));
    EXPECT_TRUE(baseline.isEmpty());
}

TEST_F(BaselineFile, MayHoldNoFindings) {
    EXPECT_EQ(refusal(log("")), "");
    EXPECT_TRUE(Baseline(folder_.write("a.sarif", log(""))).isEmpty());
}

TEST_F(BaselineFile, IsRefusedWhenItIsNoJson) {
    const std::string deep(1000000, '[');
    for (const std::string& content :
         {std::string(), std::string("<RecPackage/>"), std::string("{\"runs\": ["), deep,
          log(result("00000000000000ff:1")) + "x", std::string("\0", 1), std::string("\"\xFF\"")})
        EXPECT_EQ(refusal(content), "a.sarif is no JSON") << content.substr(0, 40);
}

TEST_F(BaselineFile, IsRefusedWhenAnotherProgramWroteIt) {
    const std::string deep = std::string(100000, '[') + std::string(100000, ']');
    for (const std::string& content :
         {std::string("{}"), std::string("[]"), std::string("1"), deep,
          std::string(R"({"files": [], "errors": 0})"), std::string(R"({"runs": {"results": []}})"),
          std::string(R"({"runs": [[{"results": []}]]})"), std::string(R"({"results": []})"),
          log(R"({"ruleId": "a"})"), log(result("ff")), log(result("00000000000000fg:1")),
          log(result("000000000000000ff")), log("{}, " + result("00000000000000ff:1")),
          log(R"({"partialFingerprints": {"qenxmlFinding/v1": 255}})"),
          log(R"({"partialFingerprints": {"a": {"qenxmlFinding/v1": "00000000000000ff:1"}}})")})
        EXPECT_EQ(refusal(content), "a.sarif was not written by qenxml check --format sarif")
            << content.substr(0, 200);
}

TEST_F(BaselineFile, IsRefusedWhenItCannotBeRead) {
    const std::string path = folder_.path("missing.sarif");
    try {
        const Baseline baseline(path);
        FAIL();
    } catch (const std::invalid_argument& error) {
        EXPECT_EQ(error.what(), path + ": not found");
    }
}

TEST_F(BaselineFile, TakesFingerprintsFromTheirPlaceOnly) {
    Baseline baseline(folder_.write(
        "a.sarif", R"({"a": )" + log(result("0000000000000001:1")) +
                       R"(, "runs": [{"tool": {"results": [)" + result("0000000000000002:1") +
                       R"(]}, "results": [{"message": [{"a": 1}], "partialFingerprints": )"
                       R"({"qenxmlFinding/v1": "0000000000000003:1"}}]}]})"));
    EXPECT_FALSE(baseline.take(1));
    EXPECT_FALSE(baseline.take(2));
    EXPECT_TRUE(baseline.take(3));
}

} // namespace

#include "tools/commands/Explain.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/tools/RunCommand.h"
#include "tools/check/FindingCodes.h"

namespace {

using test::runCommand;
using test::RunResult;

TEST(Explain, ExplainsTheCodesThatAreNamedInTheirOrder) {
    const RunResult result = runCommand({"explain", "number-empty", "empty-name"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output.find("number-empty (note): an element for a number is empty\n"), 0U);
    EXPECT_NE(result.output.find("\n\nempty-name (note): a record has no name\n"),
              std::string::npos);
}

TEST(Explain, ExplainsAllCodesOnRequest) {
    const std::string output = "\n" + runCommand({"explain", "--all"}).output;
    for (const FindingKind& kind : findingKinds)
        EXPECT_NE(output.find("\n" + std::string(kind.code) + " ("), std::string::npos)
            << kind.code;
}

TEST(Explain, WritesJsonForOtherPrograms) {
    const RunResult result = runCommand({"explain", "--json", "number-empty", "empty-name"});
    EXPECT_EQ(result.output.find("{\"findings\": [\n  {\"code\":\"number-empty\","), 0U);
    EXPECT_NE(result.output.find("},\n  {\"code\":\"empty-name\","), std::string::npos);
    EXPECT_EQ(result.output.substr(result.output.size() - 4), "}]}\n");
}

TEST(Explain, RefusesWhatItCannotExplain) {
    const auto refusal = [](const std::vector<std::string>& arguments) {
        const RunResult result = runCommand(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        return result.errors;
    };
    EXPECT_EQ(refusal({"explain"}),
              "qenxml: CODE or --all is required; try \"qenxml explain --help\"\n");
    EXPECT_EQ(refusal({"explain", "--all", "empty-name"}),
              "qenxml: --all and CODE exclude each other; try \"qenxml explain --help\"\n");
    EXPECT_NE(refusal({"explain", "empty-nam"})
                  .find("\"empty-nam\" is no code of a finding; is empty-name meant?"),
              std::string::npos);
}

} // namespace

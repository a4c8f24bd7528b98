/// @file
/// The table of findings, their documentation and their samples are complete against each other.

#include "tools/check/FindingCodes.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/BrokenPackages.h"
#include "tests/support/SourceFolder.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"
#include "tools/check/PackageCheck.h"
#include "tools/findings/Explanation.h"

namespace fs = std::filesystem;

namespace {

const fs::path source = test::inSources("");

std::string textOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The entries of docs/findings.md: what follows each "### `".
std::vector<std::string> documentedEntries() {
    const std::string document = textOf(source / "docs/findings.md");
    const std::string opening = "\n### `";
    std::vector<std::string> entries;
    std::size_t begin = document.find(opening);
    while (begin != std::string::npos) {
        begin += opening.size();
        const std::size_t next = document.find(opening, begin);
        entries.push_back(document.substr(begin, next - begin));
        begin = next;
    }
    return entries;
}

std::string word(Severity severity) {
    return severity == Severity::Error     ? "Error"
           : severity == Severity::Warning ? "Warning"
                                           : "Note";
}

bool isTogether(const std::string& code) {
    return isAboutSeveral(codeNamed(code).value());
}

TEST(FindingCodes, AreLowerCaseWordsAndUnique) {
    std::set<std::string> codes;
    for (const FindingKind& kind : findingKinds) {
        EXPECT_TRUE(codes.insert(kind.code).second) << kind.code;
        EXPECT_EQ(std::string(kind.code).find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"),
                  std::string::npos)
            << kind.code;
    }
}

TEST(FindingCodes, StandInTheDocumentationInTheirOrderWithTheSeverityAndTheTitle) {
    const std::vector<std::string> entries = documentedEntries();
    ASSERT_EQ(entries.size(), findingKinds.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const FindingKind& kind = findingKinds[i];
        const std::string start = std::string(kind.code) + "`\n\n" + word(kind.severity) + ": " +
                                  kind.title + ".\n\n- **Cause.** ";
        EXPECT_EQ(entries[i].substr(0, start.size()), start);
    }
}

TEST(FindingCodes, AreDocumentedWithCauseExampleAndCure) {
    for (const std::string& entry : documentedEntries()) {
        SCOPED_TRACE(entry);
        const std::size_t cause = entry.find("\n- **Cause.** ");
        const std::size_t example = entry.find("\n- **Example.** `");
        const std::size_t cure = entry.find("\n- **Cure.** ");
        ASSERT_NE(cause, std::string::npos);
        ASSERT_NE(example, std::string::npos);
        ASSERT_NE(cure, std::string::npos);
        EXPECT_LT(cause, example);
        EXPECT_LT(example, cure);
        const std::string code = entry.substr(0, entry.find('`'));
        const std::string folder = isTogether(code) ? "together/" : "broken/";
        const bool linked =
            entry.find("(../examples/packages/" + folder + code + "/)") != std::string::npos;
        EXPECT_EQ(linked, code != "unreadable"); // a file that is not there cannot be a sample
    }
}

std::set<std::string> foldersIn(const fs::path& folder) {
    std::set<std::string> folders;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        if (entry.is_directory())
            folders.insert(entry.path().filename().string());
    return folders;
}

TEST(FindingCodes, HaveASampleEach) {
    std::set<std::string> ofOne;
    std::set<std::string> ofSeveral;
    for (const FindingKind& kind : findingKinds)
        (isTogether(kind.code) ? ofSeveral : ofOne).insert(kind.code);
    ofOne.erase("unreadable");
    EXPECT_EQ(foldersIn(source / "examples/packages/broken"), ofOne);
    EXPECT_EQ(foldersIn(source / "examples/packages/together"), ofSeveral);
}

TEST(FindingCodes, OfSeveralPackagesStandInTheReadmeOfTheirSamples) {
    const std::string readme = textOf(source / "examples/packages/together/README.md");
    for (const FindingKind& kind : findingKinds) {
        if (isTogether(kind.code)) {
            EXPECT_NE(readme.find("\n| `" + std::string(kind.code) + "` |"), std::string::npos);
        }
    }
}

TEST(FindingCodes, HaveAGoldenFileForEverySample) {
    for (const FindingKind& kind : findingKinds) {
        const std::string name =
            (isTogether(kind.code) ? "together-" : "check-") + std::string(kind.code) + ".txt";
        const std::string golden = textOf(source / "tests/tools/golden" / name);
        EXPECT_NE(golden.find("[" + std::string(kind.code) + "]\n"), std::string::npos)
            << kind.code;
    }
}

class FindingSample : public testing::TestWithParam<test::BrokenPackage> {
protected:
    static std::set<std::string> codesIn(const std::string& path) {
        std::set<std::string> codes;
        for (const Finding& finding : checkPackage(path))
            codes.insert(kindOf(finding.code).code);
        return codes;
    }
};

TEST_P(FindingSample, ShowsWhatItIsNamedByUntilItIsMended) {
    const test::BrokenPackage& sample = GetParam();
    const fs::path path = test::brokenSample(sample);
    const fs::path relative = fs::path("broken") / sample.folder / path.filename();
    // A short path is one of the findings.
    const bool aboutPath = sample.folder == "path-too-short";
    const test::TemporaryFolder folder;
    const std::string mended = test::mended(sample, textOf(path));
    if (!aboutPath) {
        EXPECT_EQ(codesIn(path.string()).count(sample.folder), 1U);
    } else {
        test::RunOptions options;
        options.folder = (source / "examples/packages").string();
        EXPECT_NE(test::runCommand({"check", relative.string()}, options)
                      .output.find("[" + sample.folder + "]"),
                  std::string::npos);
    }
    EXPECT_EQ(codesIn(folder.writePackage(mended)).count(sample.folder), 0U);
}

INSTANTIATE_TEST_SUITE_P(Samples, FindingSample, testing::ValuesIn(test::brokenPackages()),
                         [](const testing::TestParamInfo<test::BrokenPackage>& sample) {
                             std::string name = sample.param.folder;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace

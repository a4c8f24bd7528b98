// Runs the built command with the arguments of each golden file and compares all that it writes
// with what the file says. With QENXML_UPDATE_GOLDEN in the environment the files are written anew
// instead: look at what has changed.

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/version.h"
#include "tests/support/SourceFolder.h"
#include "tests/tools/GoldenDifference.h"
#include "tests/tools/RunCommand.h"

namespace {

const std::filesystem::path sources = test::inSources("");
const std::string prompt = "$ qenxml";

std::vector<std::string> goldenFiles() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(sources / "tests/tools/golden"))
        names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

/// The text without the version, which changes with each release.
std::string withoutVersion(std::string text) {
    for (const std::string before : {"qenxml ", "\"qenxml\",\"version\":\""}) {
        const auto begin = text.find(before + QENXML_VERSION);
        if (begin != std::string::npos)
            text.replace(begin + before.size(), std::string(QENXML_VERSION).size(), "VERSION");
    }
    return text;
}

/// A golden file: "$ qenxml ARGUMENT... [< FILE]", then what comes of it. The command runs in the
/// folder of the sample packages.
class Golden : public testing::TestWithParam<std::string> {
protected:
    std::filesystem::path path() const {
        return sources / "tests/tools/golden" / (GetParam() + ".txt");
    }
};

std::string runAsWritten(const std::string& line) {
    std::istringstream words(line.substr(prompt.size()));
    std::vector<std::string> arguments;
    test::RunOptions options;
    options.folder = (sources / "examples/packages").string();
    for (std::string word; words >> word;) {
        if (word == "<") {
            words >> word;
            options.input = (sources / "examples/packages" / word).string();
        } else {
            arguments.push_back(word);
        }
    }
    const test::RunResult result = test::runCommand(arguments, options);
    return line + "\nexit code " + std::to_string(result.exitCode) + "\n=== output\n" +
           withoutVersion(result.output) + "=== messages\n" + result.errors;
}

TEST_P(Golden, IsWhatTheCommandWrites) {
    const std::string expected = contentOf(path());
    ASSERT_EQ(expected.substr(0, prompt.size()), prompt);
    const std::string actual = runAsWritten(expected.substr(0, expected.find('\n')));
    if (std::getenv("QENXML_UPDATE_GOLDEN") != nullptr)
        std::ofstream(path(), std::ios::binary) << actual;
    else if (actual != expected)
        FAIL() << test::goldenDifference(path().string(), actual);
}

INSTANTIATE_TEST_SUITE_P(Command, Golden, testing::ValuesIn(goldenFiles()), [](const auto& file) {
    std::string name = file.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
});

} // namespace

#include "tests/tools/GoldenDifference.h"

#include <array>
#include <cstdio>
#include <stdexcept>

#include "tests/support/TemporaryFolder.h"

namespace {

std::string quoted(const std::string& word) {
    std::string quoted = "'";
    for (const char c : word)
        quoted += c == '\'' ? "'\\''" : std::string(1, c);
    return quoted + "'";
}

std::string outputOf(const std::string& command) {
    std::FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error("cannot run " + command);
    std::string output;
    std::array<char, 4096> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe))
        output.append(part.data(), count);
    pclose(pipe);
    return output;
}

} // namespace

namespace test {

std::string goldenDifference(const std::string& file, const std::string& written) {
    const TemporaryFolder folder;
    const std::string difference =
        outputOf("diff -u --text --label expected --label written " + quoted(file) + ' ' +
                 quoted(folder.write("written", written)) + " 2>&1");
    if (difference.empty())
        return "";
    return file + " says something else:\n" + difference +
           "If this is meant, write the golden files anew and look at what has changed:\n"
           "  QENXML_UPDATE_GOLDEN=1 build/dev/tests/tools_tests --gtest_filter='*Golden*'\n";
}

} // namespace test

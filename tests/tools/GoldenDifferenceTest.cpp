#include "tests/tools/GoldenDifference.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace {

/// A text of 900 lines, in which one may be another.
std::string lines(int otherLine = -1) {
    std::string text;
    for (int line = 0; line < 900; ++line)
        text += line == otherLine ? "another\n" : "line " + std::to_string(line) + '\n';
    return text;
}

TEST(GoldenDifference, IsEmptyWhereNothingDiffers) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(test::goldenDifference(folder.write("it's.txt", lines()), lines()), "");
}

TEST(GoldenDifference, ShowsTheLinesThatDifferTheFileAndHowToRenewIt) {
    const test::TemporaryFolder folder;
    const std::string file = folder.write("it's.txt", lines());
    EXPECT_EQ(test::goldenDifference(file, lines(450)),
              file + " says something else:\n"
                     "--- expected\n"
                     "+++ written\n"
                     "@@ -448,7 +448,7 @@\n"
                     " line 447\n line 448\n line 449\n"
                     "-line 450\n"
                     "+another\n"
                     " line 451\n line 452\n line 453\n"
                     "If this is meant, write the golden files anew and look at what has changed:\n"
                     "  QENXML_UPDATE_GOLDEN=1 build/dev/tests/tools_tests "
                     "--gtest_filter='*Golden*'\n");
}

TEST(GoldenDifference, ShowsThatTheLastLineHasNoEnd) {
    const test::TemporaryFolder folder;
    const std::string difference = test::goldenDifference(folder.write("a.txt", "x\n"), "x");
    EXPECT_NE(difference.find("-x\n+x\n\\ No newline"), std::string::npos) << difference;
}

TEST(GoldenDifference, SaysThatTheFileIsMissing) {
    const test::TemporaryFolder folder;
    const std::string difference = test::goldenDifference(folder.path("missing"), "x\n");
    EXPECT_NE(difference.find("No such file"), std::string::npos) << difference;
}

} // namespace

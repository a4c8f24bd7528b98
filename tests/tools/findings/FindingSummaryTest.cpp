#include "tools/findings/FindingSummary.h"

#include <string>

#include <gtest/gtest.h>

namespace {

Finding finding(FindingCode code, std::size_t line) {
    Finding result;
    result.code = kindOf(code).code;
    result.severity = kindOf(code).severity;
    result.position = Position{line, 3};
    result.path = "/RecPackage";
    result.found = "found";
    result.consequence = "consequence";
    result.excerpt = {"  <Farm>", 2};
    return result;
}

void add(FindingSummary& summary, FindingCode code, std::size_t line) {
    summary.count(code);
    if (summary.hasRoom(code))
        summary.keep(finding(code, line));
}

std::string shown(const std::string& severity, const std::string& code, std::size_t line) {
    const std::string number = std::to_string(line);
    return "a.xml:" + number + ":3: " + severity + ": found [" + code + "]\n" +
           std::string(6 - number.size(), ' ') + number +
           " |   <Farm>\n"
           "       |   ^\n"
           "  where: /RecPackage\n"
           "  so:    consequence\n\n";
}

TEST(FindingSummary, GroupsByCodeWithTheGravestLast) {
    FindingSummary summary;
    add(summary, FindingCode::FarmId, 5);
    add(summary, FindingCode::NotANumber, 6);
    add(summary, FindingCode::EmptyName, 7);
    add(summary, FindingCode::NotANumber, 8);
    EXPECT_EQ(summary.text("a.xml", Style()),
              shown("note", "empty-name", 7) + shown("warning", "not-a-number", 6) +
                  shown("warning", "not-a-number", 8) + shown("error", "farm-id", 5));
    EXPECT_EQ(describe(summary.counts()), "1 error, 2 warnings, 1 note");
}

TEST(FindingSummary, ShowsTheFirstTenOfACodeAndCountsTheOthers) {
    FindingSummary summary;
    for (std::size_t line = 1; line <= 1244; ++line)
        add(summary, FindingCode::NotANumber, line);
    std::string expected;
    for (std::size_t line = 1; line <= 10; ++line)
        expected += shown("warning", "not-a-number", line);
    EXPECT_EQ(summary.text("a.xml", Style()),
              expected + "a.xml: warning: and 1,234 more of these [not-a-number]; --json gives all "
                         "of them\n\n");
    EXPECT_EQ(describe(summary.counts()), "1,244 warnings");
}

TEST(FindingSummary, SaysThatThereAreNoProblems) {
    EXPECT_EQ(FindingSummary().text("a.xml", Style()), "");
    EXPECT_EQ(describe(FindingCounts()), "no problems found");
}

TEST(FindingSummary, DressesWhatMattersInColour) {
    FindingSummary summary;
    add(summary, FindingCode::FarmId, 5);
    EXPECT_EQ(summary.text("a.xml", Style(true)),
              "a.xml:5:3: \x1b[1;31merror\x1b[0m: \x1b[1mfound\x1b[0m \x1b[2m[farm-id]\x1b[0m\n"
              "\x1b[2m     5\x1b[0m |   <Farm>\n"
              "       |   \x1b[1;31m^\x1b[0m\n"
              "  where: /RecPackage\n"
              "  so:    consequence\n\n");
}

} // namespace

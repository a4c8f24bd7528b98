#include "tools/findings/FindingSummary.h"

#include <string>

#include <gtest/gtest.h>

namespace {

void add(FindingCollection& findings, FindingCode code, std::size_t line) {
    if (findings.wants(code))
        findings.add({code, "found", NothingRead{},
                      Location{{}, {line, 3}, {line, 5}, {"  <Farm>", 2}}, "/RecPackage"});
    else
        findings.addCode(code);
}

std::string shown(const std::string& severity, const std::string& code, std::size_t line,
                  const std::string& consequence = "nothing of the file is read") {
    const std::string number = std::to_string(line);
    return "a.xml:" + number + ":3: " + severity + ": found [" + code + "]\n" +
           std::string(6 - number.size(), ' ') + number +
           " |   <Farm>\n"
           "       |   ^\n"
           "  where: /RecPackage\n"
           "  so:    " +
           consequence + "\n\n";
}

TEST(FindingSummary, GroupsByCodeWithTheGravestLast) {
    FindingCollection findings;
    add(findings, FindingCode::FarmId, 5);
    add(findings, FindingCode::NotANumber, 6);
    add(findings, FindingCode::EmptyName, 7);
    add(findings, FindingCode::NotANumber, 8);
    EXPECT_EQ(summaryText(findings, "a.xml", Style()),
              shown("note", "empty-name", 7, "hosts can show no name") +
                  shown("warning", "not-a-number", 6) + shown("warning", "not-a-number", 8) +
                  shown("error", "farm-id", 5));
}

TEST(FindingSummary, ShowsTheFirstTenOfACodeAndCountsTheOthers) {
    FindingCollection findings(10);
    for (std::size_t line = 1; line <= 1244; ++line)
        add(findings, FindingCode::NotANumber, line);
    std::string expected;
    for (std::size_t line = 1; line <= 10; ++line)
        expected += shown("warning", "not-a-number", line);
    EXPECT_EQ(summaryText(findings, "a.xml", Style()),
              expected + "  and 1,234 more of these in the file [not-a-number]; --json gives all "
                         "of them\n\n");
}

TEST(FindingSummary, SaysNothingOfACodeOfWhichNoFindingIsKept) {
    FindingCollection findings(0);
    add(findings, FindingCode::NotANumber, 1);
    EXPECT_EQ(summaryText(findings, "a.xml", Style()), "");
}

TEST(FindingSummary, GivesThoseThatAreAboutNoPartOfTheFileAPlaceTheyCanBeOpenedAt) {
    FindingCollection findings;
    findings.add({FindingCode::NameNotUuid, "the name", ReadAs{"x"}});
    EXPECT_EQ(summaryText(findings, "a.xml", Style()),
              "a.xml:1:1: warning: the name [name-not-uuid]\n"
              "  so:    every rec carries the invented package UUID x\n\n");
}

TEST(FindingSummary, IsEmptyWithoutFindings) {
    EXPECT_EQ(summaryText(FindingCollection(), "a.xml", Style()), "");
}

TEST(FindingSummary, StylesWhatMattersInColour) {
    FindingCollection findings;
    add(findings, FindingCode::FarmId, 5);
    EXPECT_EQ(summaryText(findings, "a.xml", Style(true)),
              "a.xml:5:3: \x1b[1;31merror\x1b[0m: \x1b[1mfound\x1b[0m \x1b[2m[farm-id]\x1b[0m\n"
              "\x1b[2m     5\x1b[0m |   <Farm>\n"
              "       |   \x1b[1;31m^\x1b[0m\n"
              "  where: /RecPackage\n"
              "  so:    nothing of the file is read\n\n");
}

} // namespace

#include "tools/findings/FindingStatistics.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tools/findings/StatisticsText.h"

namespace {

FindingCounts counts(const std::vector<FindingCode>& codes) {
    FindingCounts result;
    for (const FindingCode code : codes)
        result.add(code);
    return result;
}

FindingStatistics someStatistics() {
    FindingStatistics statistics;
    statistics.addFile("good.xml", {});
    statistics.addFile("a.xml", counts({FindingCode::EmptyName, FindingCode::RecId,
                                        FindingCode::FarmId, FindingCode::RecId}));
    statistics.addFile("b.xml", counts({FindingCode::EmptyName, FindingCode::NotANumber}));
    return statistics;
}

TEST(FindingStatistics, CountsFindingsAndFilesByCode) {
    const FindingStatistics statistics = someStatistics();
    EXPECT_EQ(statistics.files(), 3U);
    EXPECT_EQ(statistics.filesWithout(), 1U);
    EXPECT_EQ(statistics.counts().of(FindingCode::RecId), 2U);
    EXPECT_EQ(statistics.filesWith(FindingCode::RecId), 1U);
    EXPECT_EQ(statistics.counts().of(FindingCode::EmptyName), 2U);
    EXPECT_EQ(statistics.filesWith(FindingCode::EmptyName), 2U);
    EXPECT_EQ(statistics.filesWith(FindingCode::NoProduct), 0U);
}

TEST(FindingStatistics, HasTheGravestCodesFirst) {
    EXPECT_EQ(someStatistics().codes(),
              (std::vector<FindingCode>{FindingCode::FarmId, FindingCode::RecId,
                                        FindingCode::NotANumber, FindingCode::EmptyName}));
}

TEST(FindingStatistics, NamesTheFilesThatCannotBeReadWithTheirErrors) {
    const FindingStatistics statistics = someStatistics();
    EXPECT_EQ(statistics.unreadable(), 1U);
    ASSERT_EQ(statistics.named().size(), 1U);
    EXPECT_EQ(statistics.named()[0].file, "a.xml");
    EXPECT_EQ(statistics.named()[0].errors,
              (std::vector<FindingCode>{FindingCode::FarmId, FindingCode::RecId}));
}

TEST(StatisticsText, SaysWhatWasFoundInATable) {
    EXPECT_EQ(codesText(someStatistics(), Style()),
              "findings     files  severity  code\n"
              "       1         1  error     farm-id       a farm has no readable identifier\n"
              "       2         1  error     rec-id        a rec has no readable identifier\n"
              "       1         1  warning   not-a-number  a number is not a number\n"
              "       2         2  note      empty-name    a record has no name\n");
    EXPECT_EQ(codesText(FindingStatistics(), Style()), "");
}

TEST(StatisticsText, KeepsTheColumnsInColour) {
    EXPECT_NE(codesText(someStatistics(), Style(true))
                  .find("  \x1b[1;31merror\x1b[0m     \x1b[1mrec-id\x1b[0m        a rec"),
              std::string::npos);
}

TEST(StatisticsText, SaysWhichFilesCannotBeReadAndWhy) {
    EXPECT_EQ(unreadableText(someStatistics(), Style()), "1 of 3 files cannot be read:\n"
                                                         "  a.xml [farm-id, rec-id]\n");
    EXPECT_EQ(unreadableText(FindingStatistics(), Style()), "");
}

TEST(StatisticsText, NamesAHundredOfThemAndCountsTheOthers) {
    FindingStatistics statistics;
    for (int i = 1; i <= 1300; ++i)
        statistics.addFile(std::to_string(i), counts({FindingCode::RecId}));
    const std::string text = unreadableText(statistics, Style());
    EXPECT_EQ(text.substr(0, text.find("  2 ")), "1,300 of 1,300 files cannot be read:\n"
                                                 "  1 [rec-id]\n");
    EXPECT_EQ(text.substr(text.find("  100 ")),
              "  100 [rec-id]\n  and 1,200 more; --json names all\n");
}

TEST(StatisticsText, SumsUpInOneLine) {
    EXPECT_EQ(sumText(someStatistics()),
              "3 files: 3 errors, 1 warning, 2 notes; 1 cannot be read, 1 without problems\n");
    FindingStatistics good;
    good.addFile("a", {});
    good.addFile("b", {});
    EXPECT_EQ(sumText(good), "2 files: no problems found\n");
    FindingStatistics noted;
    noted.addFile("a", counts({FindingCode::EmptyName}));
    noted.addFile("b", counts({FindingCode::EmptyName}));
    EXPECT_EQ(sumText(noted), "2 files: 2 notes\n");
}

} // namespace

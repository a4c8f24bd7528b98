#include "tools/workbook/Workbook.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

TEST(WorkbookText, ReplacesWhatXmlCannotHold) {
    EXPECT_EQ(workbookText("=1+1, \"\u00E9\"\t\n"), "=1+1, \"\u00E9\"\t\n");
    EXPECT_EQ(workbookText("a\x1B\r\x7F\xC2\x9B\xFF\uFFFEz"),
              "a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDz");
}

TEST(WorkbookText, KeepsWhatSpreadsheetsTakeForACharacter) {
    EXPECT_EQ(workbookText("_x0041_"), "_x005F_x0041_");
    EXPECT_EQ(workbookText("a_x00aF_x0041_"), "a_x005F_x00aF_x005F_x0041_");
    for (const std::string text : {"_x41_", "_x004G_", "_X0041_", "_x0041", "x0041_"})
        EXPECT_EQ(workbookText(text), text);
}

TEST(WorkbookText, IsCutAtWhatACellHolds) {
    EXPECT_EQ(workbookText(std::string(40'000, 'a')), std::string(32'767, 'a'));
    std::string pairs;
    for (int i = 0; i < 20'000; ++i)
        pairs += "\U0001F33E";
    EXPECT_EQ(workbookText(pairs).size(), 4U * 16'383);
}

TEST(WorkbookText, IsCutAtWhatACellHoldsWithWhatWasPutBeforeEscapes) {
    std::string escapes;
    for (int i = 0; i < 4'681; ++i)
        escapes += "_x0041_";
    std::string expected;
    for (int i = 0; i < 2'520; ++i)
        expected += "_x005F_x0041_";
    expected += "_x005F_";
    EXPECT_EQ(workbookText(escapes), expected);
    EXPECT_EQ(expected.size(), 32'767U);
}

TEST(Workbook, SaysWhenItCannotHoldACell) {
    constexpr std::size_t mostColumns = 16'384;
    Workbook workbook;
    const std::size_t table = workbook.addTable("recs", {"rec"});
    std::vector<WorkbookCell> cells(mostColumns);
    for (const OutputValue& value :
         std::vector<OutputValue>{true, 1, 2.5, std::string("North"), std::string("2026-02-11")}) {
        cells.push_back({value, true});
        EXPECT_THROW(workbook.addRow(table, cells), std::runtime_error);
        cells.pop_back();
    }
    EXPECT_NO_THROW(workbook.addRow(table, {{std::string()}, {}}));
}

TEST(Workbook, IsTheSameForTheSameCells) {
    const auto written = [] {
        std::string bytes;
        Workbook workbook(3);
        const std::size_t table = workbook.addTable("recs", {"rec", "rate"});
        for (int i = 0; i < 5; ++i)
            workbook.addRow(table, {{std::string("North")}, {i + 0.5}});
        workbook.finish([&bytes](std::string_view text) { bytes += text; });
        return bytes;
    };
    const std::string bytes = written();
    EXPECT_EQ(bytes.substr(0, 4), "PK\x03\x04");
    for (const std::string sheet : {"sheet1.xml", "sheet2.xml", "sheet3.xml"})
        EXPECT_NE(bytes.find("xl/worksheets/" + sheet), std::string::npos);
    EXPECT_EQ(bytes.find("sheet4.xml"), std::string::npos);
    EXPECT_EQ(written(), bytes);
}

} // namespace

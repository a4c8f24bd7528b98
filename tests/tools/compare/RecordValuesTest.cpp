#include "tools/compare/RecordValues.h"

#include <map>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/compare/RecordNames.h"

namespace {

RecordList recordsOf(const std::string& text) {
    const test::TemporaryFolder folder;
    return RecordList(readPackage(folder.writePackage(text)));
}

std::string statistics(const std::string& content) {
    return test::packageWithRecs(test::rec(31, test::element("RecStats", content)));
}

const RecordView& recOf(const RecordList& records) {
    return records.records().back();
}

std::map<std::string, std::string> textsOf(const RecordView& record) {
    std::map<std::string, std::string> texts;
    for (const RecordValue& value : comparedValues(record))
        EXPECT_TRUE(texts.emplace(value.name, valueText(value)).second) << value.name;
    return texts;
}

TEST(RecordValues, AreWrittenWithTheirUnits) {
    const RecordList records =
        recordsOf(statistics("<AverageRate>32400</AverageRate><RateUOM>seeds/ac</RateUOM>"
                             "<Total>7</Total><TotalUOMID>25</TotalUOMID><Area>2.5</Area>"));
    std::map<std::string, std::string> texts = textsOf(recOf(records));
    EXPECT_EQ(texts["averageRate"], "32400 seeds/ac");
    EXPECT_EQ(texts["minimumRate"], "none");
    EXPECT_EQ(texts["total"], "7 code 25");
    EXPECT_EQ(texts["area"], "2.5");
    EXPECT_EQ(texts["rateUom"], "\"seeds/ac\"");
    EXPECT_EQ(texts["fieldId"], '"' + test::uuidText(21) + '"');
    EXPECT_EQ(texts.count("id"), 0U);
    EXPECT_EQ(texts.count("xmlFileName"), 0U);
}

TEST(RecordValues, OfNutrientsArePercentages) {
    const RecordList records =
        recordsOf(test::packageWithRecs(test::rec(31, test::blend(test::uuidText(5)))));
    std::map<std::string, std::string> texts = textsOf(recOf(records));
    EXPECT_EQ(texts["pct_N"], "1%");
    EXPECT_EQ(texts["spGravity"], "1");
    EXPECT_EQ(texts["kind"], "\"customFertilizer\"");
}

TEST(RecordValues, SayInWhichRecordOneStands) {
    const RecordList records = recordsOf(test::packageWithRecs(test::rec(31)));
    ASSERT_EQ(records.records().size(), 5U);
    EXPECT_EQ(textsOf(records.records()[0]),
              (std::map<std::string, std::string>{{"name", "\"\""}}));
    EXPECT_EQ(textsOf(records.records()[1])["growerId"], '"' + test::uuidText(1) + '"');
    EXPECT_EQ(textsOf(records.records()[2])["farmId"], '"' + test::uuidText(11) + '"');
    EXPECT_EQ(textsOf(records.records()[3])["geometry"], '"' + test::uuidText(8021) + '"');
}

TEST(RecordValues, AreNotPrintedAsTheyComeWhenATerminalCouldActOnThem) {
    EXPECT_EQ(valueText({"name", std::string("a\x1b[1m"), ""}), "\"a\\x1B[1m\"");
    EXPECT_EQ(valueText({"total", 1.5, "kg\n"}), "1.5 kg\\n");
}

TEST(RecordValues, ChangeOneByOne) {
    const RecordList from = recordsOf(statistics("<Total>7</Total><TotalUOM>t</TotalUOM>"));
    const RecordList to = recordsOf(statistics("<Total>0</Total><TotalUOM>kg</TotalUOM>"));
    const std::vector<ValueChange> changes = changesBetween(recOf(from), recOf(to));
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(valueText(changes[0].from), "7 t");
    EXPECT_EQ(valueText(changes[0].to), "0 kg");
    EXPECT_STREQ(changes[1].from.name, "totalUom");
    EXPECT_NE(contentHash(recOf(from)), contentHash(recOf(to)));
    EXPECT_EQ(contentHash(recOf(from)), contentHash(recOf(from)));
}

TEST(RecordNames, LeadFromTheGrowerToTheRecord) {
    const RecordList records =
        recordsOf(test::packageWithRecs(test::rec(31, test::element("RecName", "a\tb"))));
    const std::vector<RecordName> names = namesOf(recOf(records));
    ASSERT_EQ(names.size(), 4U);
    EXPECT_STREQ(names[3].kind, "rec");
    EXPECT_EQ(names[3].name, "a\\tb");
    EXPECT_EQ(names[3].id, test::uuid(31));
    EXPECT_EQ(namesOf(records.records()[3]).back().id, test::uuid(7021));
    EXPECT_STREQ(namesOf(records.records()[3]).back().kind, "boundary");
}

} // namespace

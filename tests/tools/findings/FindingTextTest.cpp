#include "tools/findings/FindingText.h"

#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

std::string text(const Consequence& consequence, FindingCode code = FindingCode::Unreadable) {
    return consequenceText({code, "", consequence});
}

TEST(ConsequenceText, SaysHowFarReadingComes) {
    EXPECT_EQ(text(NothingRead{}), "nothing of the file is read");
    EXPECT_EQ(text(CheckEnds{}), "the check ends here");
    EXPECT_EQ(text(ReadingEnds{0}),
              "this grower and the rest of the file are not read; no grower is");
    EXPECT_EQ(text(ReadingEnds{1}),
              "this grower and the rest of the file are not read; the grower before it is");
    EXPECT_EQ(text(ReadingEnds{2}),
              "this grower and the rest of the file are not read; the 2 growers before it are");
    EXPECT_EQ(text(NotReached{7, 1, true}),
              "this grower is not read because of line 7; it is not enough to mend that alone");
    EXPECT_EQ(text(NotReached{7, 1, false}),
              "reading ends before this, because of line 7; once that is mended, it ends here");
    EXPECT_EQ(text(NotReached{7, 2, false}), "reading ends before this, because of line 7; once "
                                             "the 2 errors before it are mended, it ends here");
}

TEST(ConsequenceText, SaysWhatIsReadInstead) {
    EXPECT_EQ(text(ReadAs{"135"}), "it is read as 135");
    EXPECT_EQ(text(ReadAs{"0", true}), "once the product is complete, it is read as 0");
    EXPECT_EQ(text(ReadAs{"kg"}, FindingCode::TextCutOff), "it is read as \"kg\"");
    EXPECT_EQ(text(ReadAs{"Farm"}, FindingCode::OtherNameInList), "it counts as a Farm");
}

TEST(ConsequenceText, SaysWhatIsLeftOut) {
    EXPECT_EQ(text(Dropped{"x"}), "the element is skipped with everything in it");
    EXPECT_EQ(text(Dropped{"17"}, FindingCode::UnknownAttribute), "its value \"17\" is ignored");
    EXPECT_EQ(text(Dropped{"Planting"}, FindingCode::SecondProduct), "Planting is ignored");
    EXPECT_EQ(text(Kept{}), "it is kept as it is");
    EXPECT_EQ(text(Kept{}, FindingCode::EmptyName), "hosts can show no name");
}

TEST(ConsequenceText, SaysWhatIsLostWithARecord) {
    EXPECT_EQ(text(Replaces{"farm", 5, 0, 0}),
              "the farm at line 5 is replaced by this one and lost");
    EXPECT_EQ(text(Replaces{"farm", 5, 2, 0}),
              "the farm at line 5 is replaced by this one and lost with its 2 fields and 0 recs");
    EXPECT_EQ(
        text(Replaces{"farm", 5, 1, 1000}),
        "the farm at line 5 is replaced by this one and lost with its 1 field and 1,000 recs");
    EXPECT_EQ(text(Replaces{"field", 5, 0, 1}),
              "the field at line 5 is replaced by this one and lost with its 1 rec");
}

TEST(ConsequenceText, SaysWhatARecIsKeptWithout) {
    EXPECT_EQ(text(Without{RecPart::Product}), "the rec is kept without product data");
    EXPECT_EQ(text(Without{RecPart::Product, "", "ProductID is empty"}),
              "the rec is kept without product data; once it is complete, reading fails because "
              "ProductID is empty");
    EXPECT_EQ(text(Without{RecPart::Operation, "Sowing"}),
              "the rec has no operation; its name \"Sowing\" is dropped");
    EXPECT_EQ(text(Without{RecPart::Season}), "the rec has no season");
}

TEST(ConsequenceText, TakesNoTextOfAPackageForAPattern) {
    EXPECT_EQ(text(ReadAs{"{}{1}"}), "it is read as {}{1}");
}

TEST(RecordsText, LeavesOutRecordsWithoutNames) {
    EXPECT_EQ(recordsText({FindingCode::EmptyName,
                           "",
                           Kept{},
                           {},
                           "",
                           {{"grower", "", {}}, {"farm", "North", {}}, {"field", "a", {}}}}),
              "farm \"North\", field \"a\"");
}

TEST(CountsText, NamesTheWorstFirst) {
    FindingCounts counts;
    EXPECT_EQ(countsText(counts), "no problems found");
    counts.add(FindingCode::EmptyName);
    counts.add(FindingCode::FarmId);
    for (int i = 0; i < 1244; ++i)
        counts.add(FindingCode::NotANumber);
    EXPECT_EQ(countsText(counts), "1 error, 1,244 warnings, 1 note");
}

} // namespace

#include "tools/check/PlacedFindings.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tools/check/FindingCollection.h"

namespace {

class Placed : public testing::Test {
protected:
    void find(FindingCode code, std::size_t offset) {
        placed_.add({code, "", Kept{}, source_.location({offset, 1})});
    }

    /// The codes of all that was handed on.
    std::string codes() {
        placed_.finish();
        std::string text;
        for (const Finding& finding : all_.kept())
            text += std::string(kindOf(finding.code).code) + " ";
        return text;
    }

    SourceText source_{"<a>0123456789</a>"};
    FindingCollection all_;
    PlacedFindings placed_{source_, all_};
};

TEST_F(Placed, StandInTheOrderOfTheFile) {
    placed_.put(FindingCode::RefusedByOthers, {6, 0}, "");
    placed_.put(FindingCode::DoctypeIgnored, {4, 0}, "");
    find(FindingCode::UnknownElement, 3);
    find(FindingCode::StrayText, 5);
    find(FindingCode::NoGrower, 7);
    EXPECT_EQ(codes(), "unknown-element doctype-ignored stray-text refused-by-others no-grower ");
}

TEST_F(Placed, ComeAtTheEndWhenNothingComesAfterThem) {
    placed_.put(FindingCode::RefusedByOthers, {6, 0}, "");
    EXPECT_EQ(codes(), "refused-by-others ");
}

TEST_F(Placed, DoNotRepeatWhyOtherProgramsRefuseAFile) {
    placed_.put(FindingCode::InvalidUtf8, {3, 1}, "");
    placed_.put(FindingCode::RefusedByOthers, {3, 0}, "");
    placed_.put(FindingCode::RefusedByOthers, {6, 0}, "");
    find(FindingCode::ControlCharacter, 6);
    EXPECT_EQ(codes(), "invalid-utf8 control-character ");
}

TEST_F(Placed, AreToldBesideOtherThingsOfTheSamePlace) {
    placed_.put(FindingCode::RefusedByOthers, {6, 0}, "");
    find(FindingCode::UnknownAttribute, 6);
    EXPECT_EQ(codes(), "unknown-attribute refused-by-others ");
}

} // namespace

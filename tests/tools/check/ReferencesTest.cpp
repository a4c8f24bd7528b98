#include "tools/check/References.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

struct Row {
    std::string reference;
    ReferenceFate fate;
};

TEST(References, AreOddWhereXmlHasNoSuchReference) {
    const std::vector<Row> rows = {{"&#0;", ReferenceFate::EndsValue},
                                   {"&#x00;", ReferenceFate::EndsValue},
                                   {"&#xD800;", ReferenceFate::GivesNoText},
                                   {"&#57343;", ReferenceFate::GivesNoText},
                                   {"&#x110000;", ReferenceFate::GivesNoText},
                                   {"&#99999999999;", ReferenceFate::GivesNoText},
                                   {"&#7;", ReferenceFate::GivesOther},
                                   {"&#x1f;", ReferenceFate::GivesOther},
                                   {"&#127;", ReferenceFate::GivesOther},
                                   {"&#x9F;", ReferenceFate::GivesOther},
                                   {"&#xFFFF;", ReferenceFate::GivesOther},
                                   {"&#4294967296;", ReferenceFate::EndsValue},
                                   {"&#x100000041;", ReferenceFate::GivesOther},
                                   {"&ha;", ReferenceFate::Stands},
                                   {"&AMP;", ReferenceFate::Stands},
                                   {"&ação;", ReferenceFate::Stands},
                                   {"&#xZ;", ReferenceFate::Stands},
                                   {"&#12a;", ReferenceFate::Stands},
                                   {"&#X26;", ReferenceFate::Stands}};
    for (const Row& row : rows) {
        const std::string value = "ab" + row.reference + "c";
        const std::vector<OddReference> odd = oddReferences(value);
        ASSERT_EQ(odd.size(), 1U) << row.reference;
        EXPECT_EQ(odd[0].offset, 2U);
        EXPECT_EQ(odd[0].text, row.reference);
        EXPECT_EQ(odd[0].fate, row.fate) << row.reference;
    }
}

TEST(References, AreNotOddWhereAReaderFollowsThem) {
    for (const std::string value :
         {"", "a", "&amp;&lt;&gt;&quot;&apos;", "&#9;&#10;&#13;&#32;&#x26;&#233;&#x1F33E;&#xD7FF;"})
        EXPECT_TRUE(oddReferences(value).empty()) << value;
}

TEST(References, DoNotBeginWithEveryAmpersand) {
    for (const std::string value : {"&", "a & b", "B&B", "&;", "&#;", "&a b;", "a&", "&#", "&&"})
        EXPECT_TRUE(oddReferences(value).empty()) << value;
}

TEST(References, ComeInTheirOrderTheFirstOfEachFate) {
    const std::vector<OddReference> odd = oddReferences("&a;&amp;&#0;&&b;&#0;&c;");
    ASSERT_EQ(odd.size(), 2U);
    EXPECT_EQ(odd[0].text, "&a;");
    EXPECT_EQ(odd[0].more, 2U);
    EXPECT_EQ(odd[1].text, "&#0;");
    EXPECT_EQ(odd[1].offset, 8U);
    EXPECT_EQ(odd[1].more, 1U);
}

} // namespace

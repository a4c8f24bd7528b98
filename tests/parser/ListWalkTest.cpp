// How lists are walked: the growers of a package, the farms of a grower, the fields of a farm and
// the recs of a field's recommendations all follow the same rule.

#include "parser/QenXmlParser.h"

#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageReading.h"
#include "tests/support/PackageText.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

namespace {

using Numbers = std::vector<unsigned>;

unsigned number(const boost::uuids::uuid& id) {
    return id.begin()[15];
}

template <class Records>
Numbers numbers(Records& records) {
    Numbers result;
    for (auto& record : records)
        result.push_back(number(record.id()));
    return result;
}

/// One of the four kinds of lists.
struct List {
    const char* name;
    const char* item;
    const char* identifier;
    std::string (*element)(unsigned number, const std::string& content);
    std::string (*package)(const std::string& list); ///< Everything around the list.
    Numbers (*read)(std::vector<QenGrower>& growers);
};

void PrintTo(const List& list, std::ostream* out) {
    *out << list.name;
}

const List lists[] = {
    {"Growers", "Grower", "GrowerID", test::grower, test::package,
     [](std::vector<QenGrower>& growers) { return numbers(growers); }},
    {"Farms", "Farm", "FarmID", test::farm,
     [](const std::string& list) { return test::package(test::grower(1, list)); },
     [](std::vector<QenGrower>& growers) { return numbers(growers.at(0).farms()); }},
    {"Fields", "Field", "FieldID", test::field,
     [](const std::string& list) { return test::package(test::grower(1, test::farm(2, list))); },
     [](std::vector<QenGrower>& growers) { return numbers(growers.at(0).farms().at(0).fields()); }},
    {"Recs", "Rec", "RecID", test::rec,
     [](const std::string& list) {
         return test::package(
             test::grower(1, test::farm(2, test::field(3, test::recommendations(list)))));
     },
     [](std::vector<QenGrower>& growers) {
         return numbers(growers.at(0).farms().at(0).fields().at(0).recs());
     }},
};

class ListWalk : public ::testing::TestWithParam<List> {
protected:
    static std::string item(unsigned number) { return GetParam().element(number, ""); }

    /// The identifiers of the items that are read from a package with this list.
    static Numbers read(const std::string& list) {
        std::vector<QenGrower> growers = test::growersOf(GetParam().package(list));
        return GetParam().read(growers);
    }

    static void expectRaised(const std::string& list) {
        try {
            read(list);
            ADD_FAILURE() << "nothing raised for " << list;
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ("invalid uuid string", error.what());
        }
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, ListWalk, ::testing::ValuesIn(lists),
                         [](const auto& list) { return list.param.name; });

TEST_P(ListWalk, ReadsAllItemsInTheirOrder) {
    EXPECT_EQ((Numbers{33, 31, 32}), read(item(33) + item(31) + item(32)));
}

// Room for the items of a long list is estimated from its text.
TEST_P(ListWalk, ReadsAllItemsOfALongListOfUnequalItems) {
    std::string list;
    for (unsigned i = 0; i < 3'000; ++i)
        list += GetParam().element(i, std::string(i % 1'500 == 0 ? 100'000 : 0, ' '));
    Numbers expected(3'000);
    for (unsigned i = 0; i < 3'000; ++i)
        expected[i] = number(test::uuid(i));
    EXPECT_EQ(expected, read(list));
}

TEST_P(ListWalk, OfNothingReadsNothing) {
    EXPECT_EQ(Numbers{}, read(""));
    EXPECT_EQ(Numbers{}, read("<!-- nothing -->"));
}

TEST_P(ListWalk, WithoutItemsReadsNothingWhateverElseIsThere) {
    EXPECT_EQ(Numbers{}, read("text<Foreign/><![CDATA[text]]>"));
}

TEST_P(ListWalk, SkipsWhatStandsBeforeTheFirstItem) {
    for (const std::string before :
         {"text", "<![CDATA[text]]>", "<Foreign/>", "<Foreign RecID=\"broken\"/>text<Foreign/>"}) {
        SCOPED_TRACE(before);
        EXPECT_EQ((Numbers{31, 32}), read(before + item(31) + item(32)));
    }
}

TEST_P(ListWalk, SkipsItemsOfAnotherSpellingBeforeTheFirstItem) {
    const std::string name = GetParam().item;
    for (const std::string& other : {"x:" + name, name + "s", std::string("rec")}) {
        SCOPED_TRACE(other);
        EXPECT_EQ((Numbers{31}),
                  read(test::element(other, GetParam().identifier, 30, "") + item(31)));
    }
}

TEST_P(ListWalk, ReadsWhateverFollowsAnItemAsOneMoreItem) {
    for (const std::string after :
         {"text", "<![CDATA[text]]>", "<![CDATA[]]>", "<Foreign/>", "<Foreign Name=\"1\"/>"}) {
        SCOPED_TRACE(after);
        expectRaised(item(31) + after);
        expectRaised(item(31) + after + item(32));
        expectRaised(item(31) + item(32) + after);
    }
}

TEST_P(ListWalk, ReadsAForeignElementThatHoldsWhatAnItemHoldsAsAnItem) {
    std::string foreign = item(32);
    const std::string name = GetParam().item;
    foreign.replace(1, name.size(), "Foreign");
    foreign.replace(foreign.rfind(name), name.size(), "Foreign");
    EXPECT_EQ((Numbers{31, 32, 33}), read(item(31) + foreign + item(33)));
    EXPECT_EQ((Numbers{31, 33}), read(foreign + item(31) + item(33)));
}

TEST_P(ListWalk, IgnoresWhatIsNoNodeOfALoadedPackage) {
    for (const std::string ignored : {"\n  \t", "<!-- comment -->", "<?instruction?>"}) {
        SCOPED_TRACE(ignored);
        EXPECT_EQ((Numbers{31, 32}), read(ignored + item(31) + ignored + item(32) + ignored));
    }
}

TEST_P(ListWalk, DoesNotLookIntoForeignElements) {
    EXPECT_EQ((Numbers{31}), read(test::element("Foreign", item(30)) + item(31)));
}

// A host's own document may hold nodes that are not kept when a package is loaded.
TEST(ListWalkOfAHostsDocument, ReadsEvenACommentAsOneMoreItem) {
    const test::Xml xml(test::grower(1, test::farm(11)));
    pugi::xml_node grower = xml.root();
    grower.prepend_child(pugi::node_comment).set_value("before");
    EXPECT_EQ(1U, QenXmlParser().parseGrowerNode(grower).farms().size());
    grower.append_child(pugi::node_comment).set_value("after");
    EXPECT_THROW(QenXmlParser().parseGrowerNode(grower), std::runtime_error);
}

// Such a document does not know where in a text its elements stood, or they have changed places.

TEST(ListWalkOfAHostsDocument, ReadsALongListThatTheHostMade) {
    pugi::xml_document document;
    pugi::xml_node grower = document.append_child("Grower");
    grower.append_attribute("GrowerID").set_value(test::uuidText(1).c_str());
    for (unsigned i = 0; i < 3'000; ++i)
        grower.append_child("Farm").append_attribute("FarmID").set_value(test::uuidText(i).c_str());

    QenGrower read = QenXmlParser().parseGrowerNode(grower);

    ASSERT_EQ(3'000U, read.farms().size());
    for (unsigned i = 0; i < 3'000; ++i)
        EXPECT_EQ(test::uuid(i), read.farms()[i].id());
}

TEST(ListWalkOfAHostsDocument, ReadsALongListWhoseLastItemsWereMovedToItsFront) {
    std::string farms;
    for (unsigned i = 0; i < 3'000; ++i)
        farms += test::farm(i);
    const test::Xml xml(test::grower(1, farms));
    pugi::xml_node grower = xml.root();
    for (unsigned i = 0; i < 1'500; ++i)
        grower.prepend_move(grower.last_child());

    QenGrower read = QenXmlParser().parseGrowerNode(grower);

    ASSERT_EQ(3'000U, read.farms().size());
    for (unsigned i = 0; i < 1'500; ++i) {
        EXPECT_EQ(test::uuid(1'500 + i), read.farms()[i].id());
        EXPECT_EQ(test::uuid(i), read.farms()[1'500 + i].id());
    }
}

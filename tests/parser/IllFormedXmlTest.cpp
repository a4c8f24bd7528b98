// What breaks the rules of XML and is read all the same, and what is not: docs/package-format.md
// says so to those who write packages.

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// A grower with a name and a tree that ends with a rate.
std::string grower(const std::string& name, const std::string& attributes = "") {
    const std::string rate = "<RecStats><AverageRate>12.75</AverageRate></RecStats>";
    return "<Grower GrowerID=\"" + test::uuidText(1) + "\"" + attributes + ">" +
           test::element("GrowerName", name) +
           test::farm(11, test::field(21, test::recommendations(test::rec(31, rate)))) +
           "</Grower>";
}

std::string package(const std::string& name, const std::string& attributes = "") {
    return test::package(grower(name, attributes));
}

struct Case {
    const char* name;
    std::string content;
    std::string growerName = "Holm";
};

void PrintTo(const Case& each, std::ostream* out) {
    *out << each.content;
}

std::string nameOf(const testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

struct Reading {
    bool read;
    std::vector<QenGrower> growers;
};

Reading read(const std::string& content) {
    const test::TemporaryFolder folder;
    QenXmlParser parser;
    const bool read = parser.parseFile(folder.writePackage(content));
    return {read, parser.getGrowers()};
}

const std::vector<Case> readCases = {
    {"AnAmpersandAlone", package("Holm & Sons"), "Holm & Sons"},
    {"AnAmpersandAtTheEnd", package("Holm &"), "Holm &"},
    {"AReferenceWithoutSemicolon", package("Holm &amp Sons"), "Holm &amp Sons"},
    {"AReferenceWithoutDigits", package("Holm&#;"), "Holm&#;"},
    {"AnEntityThatIsNotDeclared", package("Holm &ada;"), "Holm &ada;"},
    {"AReferenceToNul", package("Holm&#0; and more"), "Holm"},
    {"AReferenceToNulInAnAttribute", package("Holm", " note=\"&#0;\"")},
    {"AReferenceToAControlCharacter", package("Holm&#1;"), "Holm\x01"},
    {"AReferenceToHalfACharacter", package("Holm&#xD800;"), "Holm\xED\xA0\x80"},
    {"AControlCharacter", package("Holm\x01"), "Holm\x01"},
    {"InvalidUtf8", package("Holm\xFF"), "Holm\xFF"},
    {"TheEndOfACdataSectionInAText", package("Holm]]> Sons"), "Holm]]> Sons"},
    {"AnAngleBracketInAnAttribute", package("Holm", " note=\"a < b\"")},
    {"AnAmpersandInAnAttribute", package("Holm", " note=\"a & b\"")},
    {"ARepeatedAttribute", package("Holm", " GrowerID=\"" + test::uuidText(2) + "\"")},
    {"TwoPackages", package("Holm") + package("Lind")},
    {"AnotherRootBeforeThePackage", "<Other/>" + package("Holm")},
    {"TextBeforeTheRoot", "text" + package("Holm")},
    {"TextAfterTheRoot", package("Holm") + "text"},
    {"ACdataSectionAfterTheRoot", package("Holm") + "<![CDATA[text]]>"},
    {"TwoHyphensInAComment", test::package("<!-- a -- b -->" + grower("Holm"))},
    {"AnExtraHyphenAtTheEndOfAComment", test::package("<!-- a --->" + grower("Holm"))},
    {"ALateDeclaration", "\n<?xml version=\"1.0\"?>" + package("Holm")},
    {"ALateDeclarationOfAnEncodingThatIsIgnored",
     "\n<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + package("Holm\xFF"), "Holm\xFF"},
    {"ADeclarationInTheRoot", test::package("<?xml version=\"1.0\"?>" + grower("Holm"))},
    {"TwoDeclarations", "<?xml version=\"1.0\"?><?xml version=\"1.0\"?>" + package("Holm")},
    {"TwoDocumentTypes", "<!DOCTYPE RecPackage><!DOCTYPE Other>" + package("Holm")},
    {"ADocumentTypeAfterTheRoot", package("Holm") + "<!DOCTYPE RecPackage>"},
};

const std::vector<Case> refusedCases = {
    {"AnElementThatIsNotClosed", "<RecPackage>" + grower("Holm")},
    {"AnElementThatIsClosedByAnotherName", test::package("<a></b>" + grower("Holm"))},
    {"AnElementThatIsClosedTwice", package("Holm") + "</RecPackage>"},
    {"AnAngleBracketInAText", package("Holm < Sons")},
    {"AnAngleBracketAtTheEnd", package("Holm") + "<"},
    {"AnAttributeWithoutQuotes", package("Holm", " note=a")},
    {"AnAttributeWithoutValue", package("Holm", " note")},
    {"ANameThatBeginsWithADigit", test::package("<1/>" + grower("Holm"))},
    {"ANulByteInTheRoot", package(std::string("Holm\0Sons", 9))},
    {"ACommentThatDoesNotEnd", package("Holm") + "<!-- comment"},
    {"ADocumentTypeInTheRoot", test::package("<!DOCTYPE RecPackage>" + grower("Holm"))},
};

} // namespace

class IllFormedXml : public testing::TestWithParam<Case> {};

TEST_P(IllFormedXml, IsRead) {
    Reading expected = read(package("Holm"));
    ASSERT_EQ(1U, expected.growers.size());
    expected.growers.front().setName(GetParam().growerName);
    const Reading reading = read(GetParam().content);
    EXPECT_TRUE(reading.read);
    EXPECT_EQ(test::describe(expected.growers), test::describe(reading.growers));
}

INSTANTIATE_TEST_SUITE_P(With, IllFormedXml, testing::ValuesIn(readCases), nameOf);

class XmlThatCannotBeFollowed : public testing::TestWithParam<Case> {};

TEST_P(XmlThatCannotBeFollowed, IsRefused) {
    const Reading reading = read(GetParam().content);
    EXPECT_FALSE(reading.read);
    EXPECT_EQ("", test::describe(reading.growers));
}

INSTANTIATE_TEST_SUITE_P(With, XmlThatCannotBeFollowed, testing::ValuesIn(refusedCases), nameOf);

TEST(DeclaredEncoding, IsLatin1ByTwoOfItsNamesInUpperOrLowerCase) {
    for (const std::string encoding : {"ISO-8859-1", "iso-8859-1", "latin1", "LATIN1"}) {
        SCOPED_TRACE(encoding);
        Reading reading =
            read("<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + package("Holm \xE5"));
        ASSERT_EQ(1U, reading.growers.size());
        EXPECT_EQ("Holm \xC3\xA5", reading.growers.front().name());
    }
}

TEST(DeclaredEncoding, OfAnotherNameIsTakenForUtf8) {
    for (const std::string encoding :
         {"ISO_8859-1", "latin-1", "l1", "ISO-8859-15", "windows-1252", "UTF-16"}) {
        SCOPED_TRACE(encoding);
        Reading reading =
            read("<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + package("Holm \xE5"));
        ASSERT_EQ(1U, reading.growers.size());
        EXPECT_EQ("Holm \xE5", reading.growers.front().name());
    }
}

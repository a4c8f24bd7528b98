// Errors cross the border of the shared library and are caught by their types.

#include "parser/QenXmlParser.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <boost/exception/exception.hpp>
#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Xml.h"

namespace {

template <class Call>
void expectInvalidIdentifier(Call call) {
    try {
        call();
        ADD_FAILURE() << "nothing raised";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ("invalid uuid string", error.what());
    }
    EXPECT_THROW(call(), boost::exception);
    EXPECT_THROW(call(), std::exception);
}

} // namespace

TEST(RaisedErrors, ABrokenIdentifierInAPackageIsCaughtAsEachOfItsTypes) {
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(test::package("<Grower/>"));
    expectInvalidIdentifier([&] { QenXmlParser().parseFile(path); });
}

TEST(RaisedErrors, ABrokenPackageNameIsCaughtAsEachOfItsTypes) {
    expectInvalidIdentifier(
        [] { QenXmlParser().parseFile("/dev/null/ffffffff-ffffffff-ffff-ffffffffffff-.xml"); });
}

TEST(RaisedErrors, ABrokenElementIsCaughtAsEachOfItsTypes) {
    QenXmlParser parser;
    const boost::uuids::uuid id = test::uuid(1);
    const pugi::xml_node none;
    expectInvalidIdentifier([&] { parser.parseGrowerNode(none); });
    expectInvalidIdentifier([&] { parser.parseFarmNode(id, none); });
    expectInvalidIdentifier([&] { parser.parseFieldNode(id, id, none); });
    expectInvalidIdentifier([&] { parser.parseRecNode(id, id, none); });
}

TEST(RaisedErrors, APathThatIsTooShortIsOutOfRangeAndNoBrokenIdentifier) {
    for (const std::string path : {"", "a.xml", "0112233-4455-6677-8899-aabbccddeeff.xml"}) {
        SCOPED_TRACE(path);
        EXPECT_THROW(QenXmlParser().parseFile(path), std::out_of_range);
        try {
            QenXmlParser().parseFile(path);
        } catch (const std::runtime_error&) {
            ADD_FAILURE() << "a runtime error";
        } catch (const std::logic_error&) {
            // The base of std::out_of_range.
        }
    }
}

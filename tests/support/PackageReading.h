/// @file
/// What is read of a package.

#ifndef QENXML_TESTS_SUPPORT_PACKAGEREADING_H
#define QENXML_TESTS_SUPPORT_PACKAGEREADING_H

#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/support/TemporaryFolder.h"

namespace test {

/// The growers of a file with this content, which must be read to its end.
inline std::vector<QenGrower> growersOf(std::string_view content) {
    const TemporaryFolder folder;
    QenXmlParser parser;
    EXPECT_TRUE(parser.parseFile(folder.writePackage(content)));
    return parser.getGrowers();
}

} // namespace test

#endif

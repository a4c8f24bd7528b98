/// @file
/// docs/recpackage.xsd and the table of names know the same names. Schema.cmake tests what the
/// schema accepts.

#include <set>
#include <string>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "parser/internal/TagConstants.h"
#include "tests/support/SourceFolder.h"

namespace {

/// The names of all elements and attributes that a schema declares.
std::set<std::string> declaredNames(pugi::xml_node schema) {
    std::set<std::string> names;
    for (const pugi::xpath_node& declaration :
         schema.select_nodes("//xs:element[@name] | //xs:attribute[@name]"))
        names.insert(declaration.node().attribute("name").as_string());
    return names;
}

TEST(Schema, DeclaresTheNamesOfTheFormatAndNoOthers) {
    pugi::xml_document schema;
    ASSERT_TRUE(schema.load_file(test::inSources("docs/recpackage.xsd").c_str()));
    EXPECT_EQ(declaredNames(schema),
              std::set<std::string>(qenxml::tag::all.begin(), qenxml::tag::all.end()));
}

} // namespace

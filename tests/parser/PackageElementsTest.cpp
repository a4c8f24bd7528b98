// The table of the format says the same as the schema and the tables in docs/package-format.md.

#include "parser/internal/PackageElements.h"

#include <fstream>
#include <functional>
#include <map>
#include <numeric>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "tests/support/SourceFolder.h"

namespace format = qenxml::format;

namespace {

/// What an element holds, in lines: "Farm @FarmID mandatory identifier", "Farm Field list".
using Lines = std::set<std::string>;

std::string nameOf(qenxml::TagName name) {
    static const qenxml::TagNames names;
    return names.*name;
}

std::string typeOf(const format::Datum& datum) {
    switch (datum.kind) {
    case format::Kind::Text:
    case format::Kind::Name:
        return "text";
    case format::Kind::Identifier:
        return datum.need == format::Need::Mandatory ? "mandatory identifier" : "identifier";
    case format::Kind::Integer:
        return "integer";
    case format::Kind::Number:
        return "number";
    }
    return "";
}

void addTable(Lines& lines, const format::Element& element) {
    const std::string parent = nameOf(element.name) + " ";
    for (const format::Datum& datum : element.attributes)
        lines.insert(parent + "@" + nameOf(datum.name) + " " + typeOf(datum));
    for (const format::Datum& datum : element.values)
        lines.insert(parent + nameOf(datum.name) + " " + typeOf(datum));
    for (const format::Element* part : element.parts) {
        lines.insert(parent + nameOf(part->name) + (part->isProduct ? " product" : " container"));
        addTable(lines, *part);
    }
    if (element.item != nullptr) {
        lines.insert(parent + nameOf(element.item->name) + " list");
        addTable(lines, *element.item);
    }
}

void expectTable(const Lines& lines) {
    Lines table;
    addTable(table, format::elementOf<format::recPackage>);
    const auto text = [](const Lines& all) {
        return std::accumulate(all.begin(), all.end(), std::string(),
                               [](const std::string& before, const std::string& line) {
                                   return before + line + "\n";
                               });
    };
    EXPECT_EQ(text(lines), text(table));
}

/// The content of a declared element: its own complex type, or the one that it names.
pugi::xml_node contentOf(pugi::xml_node element) {
    const pugi::xml_node own = element.child("xs:complexType");
    return own ? own
               : element.root()
                     .child("xs:schema")
                     .find_child_by_attribute("xs:complexType", "name",
                                              element.attribute("type").value());
}

std::string typeOf(pugi::xml_node declaration) {
    static const std::map<std::string, std::string> types = {
        {"xs:string", "text"},       {"columnName", "text"}, {"xs:int", "integer"},
        {"seasonNumber", "integer"}, {"latitude", "number"}, {"longitude", "number"}};
    const std::string type = declaration.attribute("type").value();
    const auto found = types.find(type);
    const bool optional =
        std::string(declaration.attribute("minOccurs").value()) == "0" ||
        (std::string(declaration.name()) == "xs:attribute" && !declaration.attribute("use"));
    return (type == "identifier" && !optional ? "mandatory " : "") +
           (found == types.end() ? type : found->second);
}

void addSchema(Lines& lines, pugi::xml_node element) {
    const std::string parent = std::string(element.attribute("name").value()) + " ";
    for (const pugi::xpath_node& found : contentOf(element).select_nodes("xs:attribute"))
        lines.insert(parent + "@" + found.node().attribute("name").value() + " " +
                     typeOf(found.node()));
    for (const pugi::xpath_node& found : contentOf(element).select_nodes("*/xs:element")) {
        const pugi::xml_node child = found.node();
        const std::string name = child.attribute("name").value();
        if (name == "Pesticide") // not read
            continue;
        const bool isList = child.attribute("maxOccurs");
        const bool isProduct = parent == "RecData ";
        lines.insert(parent + name + " " +
                     (isList             ? "list"
                      : isProduct        ? "product"
                      : contentOf(child) ? "container"
                                         : typeOf(child)));
        if (contentOf(child))
            addSchema(lines, child);
    }
}

std::vector<std::string> matches(const std::string& text, const char* pattern) {
    const std::regex regex(pattern);
    return {std::sregex_token_iterator(text.begin(), text.end(), regex, 1), {}};
}

void addDocument(Lines& lines, const std::string& row) {
    static const std::regex columns(R"(\| `(\w+)` \| (.*?) *\| *(.*?) *\| *(.*?) *\|.*)");
    static const std::regex product(R"(\| `(\w+)` \| element in `RecData` \| [^|]+ \|)");
    std::smatch column;
    if (std::regex_match(row, column, product)) {
        lines.insert("RecData " + column.str(1) + " product");
        return;
    }
    if (!std::regex_match(row, column, columns))
        return;
    const std::string where = column.str(2);
    std::vector<std::string> parents = matches(where, "`(\\w+)`");
    if (where == "element in each product") {
        for (const std::string& line : lines) // The products come first.
            for (const std::string& name : matches(line, "RecData (\\w+) product"))
                parents.push_back(name);
    }
    const std::string at = where.rfind("attribute", 0) == 0 ? "@" : "";
    const std::vector<std::string> types =
        matches(column.str(4), "(identifier|text|integer|number|container|list)");
    for (std::size_t i = 0; i < parents.size() && !types.empty(); ++i) {
        const std::string& type = types[i % types.size()];
        const bool mandatory = type == "identifier" && !column.str(3).empty();
        lines.insert(parents[i] + " " + at + column.str(1) + (mandatory ? " mandatory " : " ") +
                     type);
    }
}

} // namespace

TEST(PackageElements, AreThoseOfTheSchema) {
    pugi::xml_document schema;
    ASSERT_TRUE(schema.load_file(test::inSources("docs/recpackage.xsd").c_str()));
    Lines lines;
    addSchema(lines, schema.child("xs:schema").child("xs:element"));
    expectTable(lines);
}

TEST(PackageElements, AreThoseOfTheDocumentedTables) {
    std::ifstream document(test::inSources("docs/package-format.md"));
    Lines lines;
    for (std::string row; std::getline(document, row);)
        addDocument(lines, row);
    expectTable(lines);
}

// Readers find children fastest in the order of the table, and people are told of them in it.
TEST(PackageElements, StandInTheOrderOfTheSchema) {
    pugi::xml_document schema;
    ASSERT_TRUE(schema.load_file(test::inSources("docs/recpackage.xsd").c_str()));
    using Names = std::vector<std::string>;
    const std::function<void(const format::Element&, pugi::xml_node)> check =
        [&](const format::Element& element, pugi::xml_node declaration) {
            SCOPED_TRACE(nameOf(element.name));
            Names names;
            for (const format::Datum& datum : element.attributes)
                names.push_back(nameOf(datum.name));
            for (const format::Datum& datum : element.values)
                names.push_back(nameOf(datum.name));
            std::vector<const format::Element*> inner(element.parts.begin(), element.parts.end());
            if (element.item != nullptr)
                inner.push_back(element.item);
            for (const format::Element* part : inner)
                names.push_back(nameOf(part->name));

            Names declared;
            const pugi::xml_node content = contentOf(declaration);
            for (const pugi::xml_node attribute : content.children("xs:attribute"))
                declared.emplace_back(attribute.attribute("name").value());
            for (const pugi::xml_node group : content.children())
                for (const pugi::xml_node child : group.children("xs:element"))
                    declared.emplace_back(child.attribute("name").value());
            // Products are alternatives to each other.
            if (inner.empty() || !inner.front()->isProduct) {
                EXPECT_EQ(declared, names);
            }
            for (const format::Element* part : inner)
                check(*part, content.find_node([&](pugi::xml_node node) {
                    return std::string(node.name()) == "xs:element" &&
                           node.attribute("name").value() == nameOf(part->name);
                }));
        };
    check(format::elementOf<format::recPackage>, schema.child("xs:schema").child("xs:element"));
}

// People call a record by its first value, and know it by its first attribute.
TEST(PackageElements, ThatAreRecordsBeginWithTheirIdentifierAndName) {
    const std::map<format::Record, std::string> records = {{format::Record::Grower, "Grower"},
                                                           {format::Record::Farm, "Farm"},
                                                           {format::Record::Field, "Field"},
                                                           {format::Record::Rec, "Rec"}};
    std::size_t found = 0;
    const std::function<void(const format::Element&)> check = [&](const format::Element& element) {
        SCOPED_TRACE(nameOf(element.name));
        const auto record = records.find(element.record);
        found += record != records.end() ? 1 : 0;
        if (record != records.end()) {
            EXPECT_EQ(record->second, nameOf(element.name));
            EXPECT_EQ(record->second + "ID", nameOf(element.attributes.begin()->name));
            EXPECT_EQ(record->second + "Name", nameOf(element.values.begin()->name));
        }
        for (const format::Datum& datum : element.values)
            EXPECT_EQ(record != records.end() && &datum == element.values.begin(),
                      datum.kind == format::Kind::Name);
        for (const format::Element* part : element.parts)
            check(*part);
        if (element.item != nullptr)
            check(*element.item);
    };
    check(format::elementOf<format::recPackage>);
    check(format::elementOf<format::pesticide>);
    EXPECT_EQ(records.size(), found);
}

TEST(PackageElements, HaveAPesticideMixThatIsReadOnRequestOnly) {
    const format::Element& pesticide = format::elementOf<format::pesticide>;
    Lines lines;
    addTable(lines, pesticide);
    EXPECT_EQ(
        (Lines{"Pesticide PesticideMixName text", "Pesticide UOMID integer", "Pesticide UOM text"}),
        lines);
    EXPECT_TRUE(pesticide.isProduct);
    for (const format::Element* product : format::elementOf<format::recData>.parts)
        EXPECT_NE(&pesticide, product);
}

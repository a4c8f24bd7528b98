#include "parser/QenXmlParser.h"

#include <cstddef>
#include <string_view>

#include "parser/Identifier.h"
#include "parser/ListWalk.h"
#include "parser/TagNames.h"

namespace {

constexpr std::size_t identifierLength = 36;
constexpr std::size_t extensionLength = 4;

/// The part of a path where the UUID of a package stands.
/// @throws std::out_of_range when the path is too short
std::string_view packageIdentifier(std::string_view path) {
    // For a short path the position wraps around to one far beyond the end, which substr() rejects.
    return path.substr(path.size() - identifierLength - extensionLength, identifierLength);
}

} // namespace

void qenxml::QENXML_DOCUMENTS() {}

QenXmlParser::QenXmlParser() = default;

QenXmlParser::~QenXmlParser() = default;

bool QenXmlParser::parseFile(std::string path) {
    const pugi::xml_parse_result loaded =
        document_.load_file(path.c_str(), pugi::parse_default, pugi::encoding_auto);
    // The name comes before the result of loading: callers rely on a failure of the name being
    // raised for any file, and on the package identifier being taken over for a broken one.
    xmlFileName_ = qenxml::uuidFromText(packageIdentifier(path));
    if (!loaded)
        return false;

    const pugi::xml_node package = document_.child(qenxml::tag::RecPackage);
    if (package.empty())
        return false;

    qenxml::walkList(package.child(qenxml::tag::Grower),
                     [this](pugi::xml_node node) { growers_.push_back(parseGrowerNode(node)); });
    return true;
}

std::vector<QenGrower> QenXmlParser::getGrowers() {
    return growers_;
}

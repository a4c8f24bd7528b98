#include "tools/UnreadableIdentifier.h"

#include <stdexcept>
#include <vector>

#include <fmt/format.h>

#include "parser/QenXmlParser.h"
#include "parser/TagNames.h"
#include "tools/Escape.h"
#include "tools/PackageUuid.h"

namespace tag = qenxml::tag;

namespace {

enum class Place { Attribute, Child };
enum class Presence { Required, MayBeEmpty };

/// An identifier that belongs to an element.
struct Identifier {
    const char* name;
    Place place;
    /// The element inside which it stands, as names from the outside in; without that element the
    /// identifier is not missed.
    std::vector<const char*> holder = {};
    Presence presence = Presence::Required;
};

/// One level of lists in a package.
struct Level {
    const char* itemName;
    const char* container; ///< Element that holds the list, null for the item one level above.
    void (*read)(pugi::xml_node item);
    std::vector<Identifier> identifiers; ///< In the order in which the library reads them.
};

const std::vector<Level>& levels() {
    static const std::vector<Level> all = {
        {tag::Grower,
         nullptr,
         [](pugi::xml_node item) { QenXmlParser().parseGrowerNode(item); },
         {{tag::GrowerID, Place::Attribute}}},
        {tag::Farm,
         nullptr,
         [](pugi::xml_node item) { QenXmlParser().parseFarmNode({}, item); },
         {{tag::FarmID, Place::Attribute}}},
        {tag::Field,
         nullptr,
         [](pugi::xml_node item) { QenXmlParser().parseFieldNode({}, {}, item); },
         {{tag::FieldID, Place::Attribute},
          {tag::FieldGeometryID, Place::Child},
          {tag::FieldGeometry, Place::Child}}},
        {tag::Rec,
         tag::Recommendations,
         [](pugi::xml_node item) { QenXmlParser().parseRecNode({}, {}, item); },
         {{tag::RecID, Place::Attribute},
          {tag::MgmtZoneID, Place::Attribute, {}, Presence::MayBeEmpty},
          {tag::RecGeometry, Place::Child},
          {tag::OpID, Place::Attribute, {tag::Operation}},
          // Last, because in a blend that is incomplete it is not read at all.
          {tag::ProductID, Place::Child, {tag::RecData, tag::CustomFertilizer}}}},
    };
    return all;
}

bool readable(const Level& level, pugi::xml_node item) {
    try {
        level.read(item);
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// The first item of a list that the library cannot read. As for the library, every node that
/// follows the first item of the right name is an item too.
pugi::xml_node firstUnreadable(const Level& level, pugi::xml_node parent) {
    pugi::xml_node item = parent.child(level.itemName);
    while (item && readable(level, item))
        item = item.next_sibling();
    return item;
}

/// The last step of a path to a node of a list, for example "Farm[2]".
std::string step(pugi::xml_node node) {
    int number = 1;
    for (pugi::xml_node other = node.previous_sibling(); other; other = other.previous_sibling()) {
        if (other.type() == node.type() && std::string_view(other.name()) == node.name())
            ++number;
    }
    const bool element = node.type() == pugi::node_element;
    return fmt::format("{}[{}]", element ? escapeExcerpt(node.name()) : "text()", number);
}

std::optional<UnreadableIdentifier> check(const Identifier& identifier, pugi::xml_node item,
                                          std::string path) {
    pugi::xml_node holder = item;
    for (const char* name : identifier.holder) {
        holder = holder.child(name);
        path += fmt::format("/{}", name);
    }
    if (!holder)
        return std::nullopt;

    const bool isAttribute = identifier.place == Place::Attribute;
    const pugi::xml_node child = holder.child(identifier.name);
    const pugi::xml_attribute attribute = holder.attribute(identifier.name);
    const std::string text = isAttribute ? attribute.as_string() : child.child_value();
    if (text.empty() && identifier.presence == Presence::MayBeEmpty)
        return std::nullopt;
    if (uuidOf(text))
        return std::nullopt;

    const bool present = isAttribute ? !attribute.empty() : !child.empty();
    const pugi::xml_node node = isAttribute || !present ? holder : child;
    if (!present)
        return UnreadableIdentifier{node, fmt::format("{} has no {}", path, identifier.name)};
    if (text.empty())
        return UnreadableIdentifier{node, fmt::format("{} has an empty {}", path, identifier.name)};
    return UnreadableIdentifier{
        node, fmt::format("{} has the {} \"{}\"", path, identifier.name, escapeExcerpt(text))};
}

} // namespace

std::optional<UnreadableIdentifier> findUnreadableIdentifier(pugi::xml_node package) {
    std::optional<UnreadableIdentifier> found;
    std::string path = fmt::format("/{}", tag::RecPackage);
    pugi::xml_node parent = package;
    for (const Level& level : levels()) {
        if (level.container != nullptr) {
            parent = parent.child(level.container);
            path += fmt::format("/{}", level.container);
        }
        const pugi::xml_node item = firstUnreadable(level, parent);
        if (!item)
            break;
        path += "/" + step(item);
        found = {item, path};
        for (const Identifier& identifier : level.identifiers) {
            if (auto unreadable = check(identifier, item, path)) {
                if (std::string_view(item.name()) != level.itemName)
                    unreadable->description += fmt::format(
                        " (what follows the first {0} is read as a {0} too)", level.itemName);
                return unreadable;
            }
        }
        parent = item;
    }
    return found;
}

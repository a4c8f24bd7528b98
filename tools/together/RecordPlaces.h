#ifndef QENXML_TOOLS_TOGETHER_RECORDPLACES_H
#define QENXML_TOOLS_TOGETHER_RECORDPLACES_H

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <boost/functional/hash.hpp>
#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "tools/compare/RecordList.h"
#include "tools/text/SourceText.h"

/// Where the records of a package stand in its file. The file is walked through once, so that what
/// is found of many records takes no longer for each.
class RecordPlaces {
public:
    explicit RecordPlaces(const std::string& file);

    /// The start tag of a record, or the identifier of a boundary. None where the file has no such
    /// record, or several, of which each may be meant.
    std::optional<Location> of(const RecordView& record) const;

private:
    /// What a record is, and the identifiers of those around it and its own.
    using Key = std::pair<Owner, std::vector<boost::uuids::uuid>>;

    static Key keyOf(const RecordView& record);

    /// @return the key of what was added
    Key add(const Key& outer, Owner owner, pugi::xml_node node, const char* id);
    void addField(const Key& farm, pugi::xml_node field);

    SourceText source_;
    pugi::xml_document document_;
    std::unordered_map<Key, pugi::xml_node, boost::hash<Key>> nodes_; ///< Null for several.
};

#endif

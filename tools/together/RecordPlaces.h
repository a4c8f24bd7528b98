#ifndef QENXML_TOOLS_TOGETHER_RECORDPLACES_H
#define QENXML_TOOLS_TOGETHER_RECORDPLACES_H

#include <optional>
#include <string>

#include <pugixml.hpp>

#include "tools/compare/RecordList.h"
#include "tools/text/SourceText.h"

/// Where the records of a package stand in its file.
class RecordPlaces {
public:
    explicit RecordPlaces(const std::string& file);

    /// The start tag of a record, or the identifier of a boundary. None where the file has no such
    /// record, or several, of which each may be meant.
    std::optional<Location> of(const RecordView& record) const;

private:
    SourceText source_;
    pugi::xml_document document_;
};

#endif

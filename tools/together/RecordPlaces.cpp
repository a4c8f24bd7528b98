#include "tools/together/RecordPlaces.h"

#include <new>
#include <vector>

#include "parser/internal/TagConstants.h"
#include "tools/check/IdentifierReading.h"
#include "tools/files/FileContent.h"

namespace tag = qenxml::tag;

namespace {

using Elements = std::vector<pugi::xml_node>;

/// The records of a kind and an identifier in any of the elements.
Elements recordsIn(const Elements& elements, const char* name, const char* idName,
                   const boost::uuids::uuid& id) {
    Elements found;
    for (const pugi::xml_node element : elements) {
        for (const pugi::xml_node child : element.children(name)) {
            if (readIdentifier(child.attribute(idName).value()).value == id)
                found.push_back(child);
        }
    }
    return found;
}

/// The identifiers of a boundary in fields.
Elements boundariesIn(const Elements& fields, const boost::uuids::uuid& id) {
    Elements found;
    for (const pugi::xml_node field : fields) {
        const pugi::xml_node element = field.child(tag::FieldGeometryID);
        if (readIdentifier(element.child_value()).value == id)
            found.push_back(element);
    }
    return found;
}

Elements listsIn(const Elements& fields) {
    Elements lists;
    for (const pugi::xml_node field : fields)
        lists.push_back(field.child(tag::Recommendations));
    return lists;
}

} // namespace

RecordPlaces::RecordPlaces(const std::string& file) : source_(readFileContent(file).bytes) {
    if (source_.load(document_).status == pugi::status_out_of_memory)
        throw std::bad_alloc();
}

std::optional<Location> RecordPlaces::of(const RecordView& record) const {
    const OutputContext& around = record.context;
    Elements found = recordsIn({document_.child(tag::RecPackage)}, tag::Grower, tag::GrowerID,
                               around.grower->id());
    if (around.farm != nullptr)
        found = recordsIn(found, tag::Farm, tag::FarmID, around.farm->id());
    if (around.field != nullptr)
        found = recordsIn(found, tag::Field, tag::FieldID, around.field->id());
    if (record.owner == Owner::Geometry)
        found = boundariesIn(found, record.id());
    else if (record.owner == Owner::Rec)
        found = recordsIn(listsIn(found), tag::Rec, tag::RecID, record.id());
    if (found.size() != 1)
        return std::nullopt;
    return source_.location(source_.extent(found.front()));
}

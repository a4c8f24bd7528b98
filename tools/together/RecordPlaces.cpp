#include "tools/together/RecordPlaces.h"

#include <new>

#include "parser/internal/TagConstants.h"
#include "tools/check/IdentifierReading.h"
#include "tools/files/FileContent.h"

namespace tag = qenxml::tag;

RecordPlaces::RecordPlaces(const std::string& file) : source_(readFileContent(file).bytes) {
    if (source_.load(document_).status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    for (const pugi::xml_node grower : document_.child(tag::RecPackage).children(tag::Grower)) {
        const Key growerKey =
            add({}, Owner::Grower, grower, grower.attribute(tag::GrowerID).value());
        for (const pugi::xml_node farm : grower.children(tag::Farm)) {
            const Key farmKey =
                add(growerKey, Owner::Farm, farm, farm.attribute(tag::FarmID).value());
            for (const pugi::xml_node field : farm.children(tag::Field))
                addField(farmKey, field);
        }
    }
}

void RecordPlaces::addField(const Key& farm, pugi::xml_node field) {
    const Key key = add(farm, Owner::Field, field, field.attribute(tag::FieldID).value());
    if (const pugi::xml_node boundary = field.child(tag::FieldGeometryID))
        add(key, Owner::Geometry, boundary, boundary.child_value());
    for (const pugi::xml_node rec : field.child(tag::Recommendations).children(tag::Rec))
        add(key, Owner::Rec, rec, rec.attribute(tag::RecID).value());
}

RecordPlaces::Key RecordPlaces::add(const Key& outer, Owner owner, pugi::xml_node node,
                                    const char* id) {
    Key key(owner, outer.second);
    key.second.push_back(readIdentifier(id).value);
    const auto [known, isNew] = nodes_.try_emplace(key, node);
    if (!isNew)
        known->second = {};
    return key;
}

RecordPlaces::Key RecordPlaces::keyOf(const RecordView& record) {
    const OutputContext& around = record.context;
    Key key(record.owner, {around.grower->id()});
    if (around.farm != nullptr)
        key.second.push_back(around.farm->id());
    if (around.field != nullptr)
        key.second.push_back(around.field->id());
    if (record.owner == Owner::Geometry || record.owner == Owner::Rec)
        key.second.push_back(record.id());
    return key;
}

std::optional<Location> RecordPlaces::of(const RecordView& record) const {
    const auto found = nodes_.find(keyOf(record));
    if (found == nodes_.end() || found->second.empty())
        return std::nullopt;
    return source_.location(source_.extent(found->second));
}

#include "tools/records/MissingNumbers.h"

#include <algorithm>
#include <new>

#include "parser/internal/TagConstants.h"
#include "tools/check/IdentifierReading.h"
#include "tools/check/NumberReading.h"
#include "tools/check/PackageFormat.h"

namespace tag = qenxml::tag;

namespace {

bool isNumber(qenxml::format::Kind kind) {
    return kind == qenxml::format::Kind::Integer || kind == qenxml::format::Kind::Number;
}

bool holdsNumber(qenxml::format::Kind kind, const char* text) {
    const NumberReading number =
        kind == qenxml::format::Kind::Integer ? readInteger(text) : readNumber(text);
    return number.fault != NumberReading::Fault::Empty &&
           number.fault != NumberReading::Fault::NotANumber;
}

boost::uuids::uuid identifier(const char* text) {
    return readIdentifier(text).value;
}

MissingNumbers missingFromRec(pugi::xml_node element) {
    MissingNumbers missing;
    missing.add(format::season(), element.child(tag::Season));
    missing.add(format::recStats(), element.child(tag::RecStats));
    const pugi::xml_node product = element.child(tag::RecData).first_child();
    for (const DatumFormat& datum : format::recData().children) {
        if (std::string_view(datum.name) == product.name())
            missing.add(*datum.element, product);
    }
    return missing;
}

MissingNumbers missingFromCentroid(pugi::xml_node element) {
    MissingNumbers missing;
    missing.add(format::fieldCentroid(), element);
    return missing;
}

} // namespace

bool MissingNumbers::contains(std::string_view name) const {
    return std::find(names_.begin(), names_.end(), name) != names_.end();
}

void MissingNumbers::add(const ElementFormat& format, pugi::xml_node element) {
    for (const DatumFormat& datum : format.attributes) {
        if (isNumber(datum.kind) && !holdsNumber(datum.kind, element.attribute(datum.name).value()))
            names_.push_back(datum.name);
    }
    for (const DatumFormat& datum : format.children) {
        if (isNumber(datum.kind) &&
            !holdsNumber(datum.kind, element.child(datum.name).text().as_string()))
            names_.push_back(datum.name);
    }
}

void MissingNumbers::add(const MissingNumbers& other) {
    names_.insert(names_.end(), other.names_.begin(), other.names_.end());
}

GrowerGaps GrowerGaps::of(pugi::xml_node element) {
    GrowerGaps gaps;
    for (pugi::xml_node farm = element.child(tag::Farm); farm; farm = farm.next_sibling())
        gaps.addFarm(farm);
    return gaps;
}

const MissingNumbers& GrowerGaps::ofRec(QenField& field, const boost::uuids::uuid& recId) const {
    return find(recs_, {field.farmId(), field.id(), recId});
}

const MissingNumbers& GrowerGaps::ofGeometry(QenField& field,
                                             const boost::uuids::uuid& geometryId) const {
    return find(geometries_, {field.farmId(), field.id(), geometryId});
}

void GrowerGaps::merge(GrowerGaps other) {
    recs_.merge(other.recs_);
    geometries_.merge(other.geometries_);
}

const MissingNumbers& GrowerGaps::find(const Gaps& gaps, const Key& key) {
    static const MissingNumbers none; // The file may have changed since it was read.
    const auto found = gaps.find(key);
    return found == gaps.end() ? none : found->second;
}

// A farm or a field that comes again replaces the earlier one with everything below it.

void GrowerGaps::addFarm(pugi::xml_node element) {
    const boost::uuids::uuid id = identifier(element.attribute(tag::FarmID).value());
    remove({id}, 1);
    for (pugi::xml_node field = element.child(tag::Field); field; field = field.next_sibling())
        addField(id, field);
}

void GrowerGaps::addField(const boost::uuids::uuid& farmId, pugi::xml_node element) {
    const boost::uuids::uuid id = identifier(element.attribute(tag::FieldID).value());
    remove({farmId, id}, 2);
    const boost::uuids::uuid geometryId = identifier(element.child_value(tag::FieldGeometryID));
    geometries_[{farmId, id, geometryId}] = missingFromCentroid(element.child(tag::FieldCentroid));
    pugi::xml_node rec = element.child(tag::Recommendations).child(tag::Rec);
    for (; rec; rec = rec.next_sibling())
        recs_[{farmId, id, identifier(rec.attribute(tag::RecID).value())}] = missingFromRec(rec);
}

void GrowerGaps::remove(const Key& first, std::size_t length) {
    for (Gaps* gaps : {&recs_, &geometries_}) {
        auto place = gaps->lower_bound(first);
        while (place != gaps->end() &&
               std::equal(first.begin(), first.begin() + length, place->first.begin()))
            place = gaps->erase(place);
    }
}

std::vector<GrowerGaps> findGaps(const std::string& bytes, std::size_t growers) {
    std::vector<GrowerGaps> gaps;
    pugi::xml_document document;
    if (growers > 0 &&
        document.load_buffer(bytes.data(), bytes.size()).status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    pugi::xml_node grower = document.child(tag::RecPackage).child(tag::Grower);
    for (; grower && gaps.size() < growers; grower = grower.next_sibling())
        gaps.push_back(GrowerGaps::of(grower));
    return gaps;
}

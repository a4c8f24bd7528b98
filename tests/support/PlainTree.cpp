#include "tests/support/PlainTree.h"

#include <ostream>
#include <set>
#include <tuple>

#include "model/PlantingRec.h"
#include "tests/support/Describe.h"

namespace test::plain {

namespace {

auto content(const Rec& rec) {
    return std::tie(rec.id, rec.name, rec.editDate, rec.averageRate, rec.cropId);
}

auto content(const Geometry& geometry) {
    return std::tie(geometry.id, geometry.date, geometry.file, geometry.latitude);
}

auto content(const Field& field) {
    return std::tie(field.id, field.growerId, field.farmId, field.name, field.geometries,
                    field.recs);
}

auto content(const Farm& farm) {
    return std::tie(farm.id, farm.growerId, farm.name, farm.fields);
}

auto content(const Grower& grower) {
    return std::tie(grower.id, grower.name, grower.farms);
}

} // namespace

bool operator==(const Rec& left, const Rec& right) {
    return content(left) == content(right);
}

bool operator==(const Geometry& left, const Geometry& right) {
    return content(left) == content(right);
}

bool operator==(const Field& left, const Field& right) {
    return content(left) == content(right);
}

bool operator==(const Farm& left, const Farm& right) {
    return content(left) == content(right);
}

bool operator==(const Grower& left, const Grower& right) {
    return content(left) == content(right);
}

std::ostream& operator<<(std::ostream& out, const Field& field) {
    return out << describe(toLibrary(field));
}

std::ostream& operator<<(std::ostream& out, const Farm& farm) {
    return out << describe(toLibrary(farm));
}

std::ostream& operator<<(std::ostream& out, const Grower& grower) {
    return out << describe(toLibrary(grower));
}

// Merging. Everything is said in terms of the versions of one record, all with the same identifier,
// from the oldest to the newest: the one that is present, if any, and then the incoming ones. The
// newest absorbs the older ones.

namespace {

/// The elements of @p own, duplicates included, then the first of each new id in @p other.
template <class Element>
std::vector<Element> joined(std::vector<Element> own, const std::vector<Element>& other) {
    std::set<boost::uuids::uuid> ids;
    for (const Element& element : own)
        ids.insert(element.id);
    for (const Element& element : other) {
        if (ids.insert(element.id).second)
            own.push_back(element);
    }
    return own;
}

/// The newest field's name and identifiers, and the recs and geometries of all, the newest first.
Field absorbed(const std::vector<Field>& versions) {
    Field result = versions.back();
    for (auto version = versions.rbegin() + 1; version != versions.rend(); ++version) {
        result.recs = joined(result.recs, version->recs);
        result.geometries = joined(result.geometries, version->geometries);
    }
    return result;
}

template <class Child>
std::vector<Child> mergedChildren(const std::vector<Child>& present,
                                  const std::vector<Child>& incoming);

/// The newest farm, to whose fields those of the older versions come in.
Farm absorbed(const std::vector<Farm>& versions) {
    Farm result = versions.back();
    if (versions.size() > 1) {
        const Farm older = absorbed(std::vector<Farm>(versions.begin(), versions.end() - 1));
        result.fields = mergedChildren(result.fields, older.fields);
    }
    return result;
}

/// The present children in their order, the first of each id together with all incoming versions of
/// it, a further one alone; then the incoming ones with new ids, in the order of their first
/// versions.
template <class Child>
std::vector<Child> mergedChildren(const std::vector<Child>& present,
                                  const std::vector<Child>& incoming) {
    const auto withIncoming = [&](std::vector<Child> versions, const boost::uuids::uuid& id) {
        for (const Child& child : incoming) {
            if (child.id == id)
                versions.push_back(child);
        }
        return absorbed(versions);
    };
    std::vector<Child> result;
    std::set<boost::uuids::uuid> ids;
    for (const Child& child : present)
        result.push_back(ids.insert(child.id).second ? withIncoming({child}, child.id) : child);
    for (const Child& child : incoming) {
        if (ids.insert(child.id).second)
            result.push_back(withIncoming({}, child.id));
    }
    return result;
}

} // namespace

Field merged(const Field& record, const Field& other) {
    return record.id == other.id ? absorbed(std::vector<Field>{other, record}) : record;
}

Farm merged(const Farm& record, const Farm& other) {
    Farm result = record;
    if (record.id == other.id)
        result.fields = mergedChildren(record.fields, other.fields);
    return result;
}

Grower merged(const Grower& record, const Grower& other) {
    Grower result = record;
    if (record.id == other.id)
        result.farms = mergedChildren(record.farms, other.farms);
    return result;
}

namespace {

QenRec toLibrary(const Rec& rec) {
    QenRec result;
    result.setId(rec.id);
    result.setName(rec.name);
    result.setEditDate(rec.editDate);
    result.setAverageRate(rec.averageRate);
    if (rec.cropId)
        result.setRecData(new PlantingRec(rec.id, *rec.cropId, "crop", 0, "", 0, "", 0, ""));
    return result;
}

QenFieldGeometry toLibrary(const Geometry& geometry) {
    return QenFieldGeometry(geometry.id, geometry.date, geometry.file,
                            LLA{geometry.latitude, 0.0, 0.0});
}

Rec fromLibrary(QenRec& rec) {
    Rec result{rec.id(), rec.name(), rec.editDate(), rec.averageRate(), std::nullopt};
    if (rec.recData() != nullptr && rec.recData()->recType() == RecTypePlanting)
        result.cropId = static_cast<PlantingRec*>(rec.recData())->cropId();
    return result;
}

Geometry fromLibrary(QenFieldGeometry& geometry) {
    return {geometry.geometryId(), geometry.geometryDate(), geometry.geometry(),
            geometry.centroid().latitude};
}

} // namespace

QenField toLibrary(const Field& field) {
    QenField result(field.name, field.id, field.growerId, field.farmId);
    for (const Geometry& geometry : field.geometries)
        result.addFieldGeometry(toLibrary(geometry));
    for (const Rec& rec : field.recs)
        result.recs().push_back(toLibrary(rec));
    return result;
}

QenFarm toLibrary(const Farm& farm) {
    QenFarm result(farm.name, farm.id, farm.growerId);
    for (const Field& field : farm.fields)
        result.fields().push_back(toLibrary(field));
    return result;
}

QenGrower toLibrary(const Grower& grower) {
    QenGrower result(grower.name, grower.id);
    for (const Farm& farm : grower.farms)
        result.farms().push_back(toLibrary(farm));
    return result;
}

Field fromLibrary(QenField field) {
    Field result{field.id(), field.growerId(), field.farmId(), field.name(), {}, {}};
    for (QenFieldGeometry& geometry : field.geometries())
        result.geometries.push_back(fromLibrary(geometry));
    for (QenRec& rec : field.recs())
        result.recs.push_back(fromLibrary(rec));
    return result;
}

Farm fromLibrary(QenFarm farm) {
    Farm result{farm.id(), farm.growerId(), farm.name(), {}};
    for (const QenField& field : farm.fields())
        result.fields.push_back(fromLibrary(field));
    return result;
}

Grower fromLibrary(QenGrower grower) {
    Grower result{grower.id(), grower.name(), {}};
    for (const QenFarm& farm : grower.farms())
        result.farms.push_back(fromLibrary(farm));
    return result;
}

} // namespace test::plain

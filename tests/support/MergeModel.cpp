#include "tests/support/MergeModel.h"

#include <set>

namespace plain {

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

} // namespace plain

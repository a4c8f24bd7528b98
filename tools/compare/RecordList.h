#ifndef QENXML_TOOLS_COMPARE_RECORDLIST_H
#define QENXML_TOOLS_COMPARE_RECORDLIST_H

#include <deque>
#include <vector>

#include "tools/export/OutputFields.h"
#include "tools/input/PackageReading.h"

/// A record with those around it.
struct RecordView {
    /// What it is; a centroid belongs to its geometry, a product to its rec.
    Owner owner = Owner::Grower;

    /// Itself and what it stands in.
    OutputContext context;

    boost::uuids::uuid id() const;

    /// That of the record that it stands in; nil for a grower.
    boost::uuids::uuid parentId() const;

    /// Its name; that of a geometry is its date.
    std::string name() const;
};

/// All records of a package, each before those in it; they are numbered in this order.
class RecordList {
public:
    explicit RecordList(PackageReading reading);
    RecordList(const RecordList&) = delete;
    RecordList& operator=(const RecordList&) = delete;
    ~RecordList() = default;

    const PackageReading& reading() const { return reading_; }
    const std::vector<RecordView>& records() const { return records_; }

private:
    PackageReading reading_;
    std::deque<std::vector<QenFieldGeometry>> geometries_; ///< Fields give copies of theirs.
    std::vector<RecordView> records_;
};

#endif

#ifndef QENXML_TOOLS_RECORDS_MERGEDFARM_H
#define QENXML_TOOLS_RECORDS_MERGEDFARM_H

#include <list>
#include <map>

#include <boost/uuid/uuid.hpp>

#include "model/QenFarm.h"

/// Versions of one farm on their way to what merging their growers one by one makes of them.
///
/// The library copies what a farm holds already whenever another version of it is merged, so that a
/// farm in thousands of packages would be copied as often. Here nothing is copied, and each version
/// costs what it holds itself.
class MergedFarm {
public:
    /// @param farm with fields of different identifiers, as packages have
    explicit MergedFarm(QenFarm farm);

    /// Merges the next version, as QenGrower::merge does: its name counts, and its fields come
    /// first; in a field that is there already, what the field has counts.
    void add(QenFarm version);

    /// What they are together. Afterwards nothing is left here.
    QenFarm take();

private:
    using Fields = std::list<QenField>;

    QenFarm farm_; ///< Without its fields.
    Fields fields_;
    std::map<boost::uuids::uuid, Fields::iterator> places_;
};

#endif

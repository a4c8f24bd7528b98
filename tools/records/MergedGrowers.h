#ifndef QENXML_TOOLS_RECORDS_MERGEDGROWERS_H
#define QENXML_TOOLS_RECORDS_MERGEDGROWERS_H

#include <cstddef>
#include <map>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"
#include "tools/records/MergedFarm.h"
#include "tools/records/MissingNumbers.h"

/// The growers of several packages, and what is missing from them; those of equal id become one, in
/// the place of the first. Growers are added first and looked at then.
class MergedGrowers {
public:
    /// @param gaps one for each of the growers
    void add(std::vector<QenGrower> growers, std::vector<GrowerGaps> gaps);

    /// As QenGrower::merge makes them, one by one.
    std::vector<QenGrower>& growers();
    const std::vector<GrowerGaps>& gaps() const { return gaps_; }

private:
    /// The farms of a grower, in their order.
    struct Farms {
        std::vector<MergedFarm> farms;
        std::map<boost::uuids::uuid, std::size_t> indices;
    };

    static void addFarms(Farms& farms, QenGrower& grower);

    std::vector<QenGrower> growers_; ///< Without their farms, until somebody looks at them.
    std::vector<Farms> farms_;
    std::vector<GrowerGaps> gaps_;
    std::map<boost::uuids::uuid, std::size_t> indices_;
};

#endif

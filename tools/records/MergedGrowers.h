#ifndef QENXML_TOOLS_RECORDS_MERGEDGROWERS_H
#define QENXML_TOOLS_RECORDS_MERGEDGROWERS_H

#include <cstddef>
#include <map>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"
#include "tools/records/MissingNumbers.h"

/// The growers of several packages, and what is missing from them; those of equal id become one, in
/// the place of the first.
class MergedGrowers {
public:
    /// @param gaps one for each of the growers
    void add(std::vector<QenGrower> growers, std::vector<GrowerGaps> gaps);

    std::vector<QenGrower>& growers() { return growers_; }
    const std::vector<GrowerGaps>& gaps() const { return gaps_; }

private:
    std::vector<QenGrower> growers_;
    std::vector<GrowerGaps> gaps_;
    std::map<boost::uuids::uuid, std::size_t> indices_;
};

#endif

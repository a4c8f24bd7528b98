#ifndef QENXML_TOOLS_RECORDS_MERGEDGROWERS_H
#define QENXML_TOOLS_RECORDS_MERGEDGROWERS_H

#include <cstddef>
#include <map>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"

/// The growers of several packages; those of equal id become one, in the place of the first.
class MergedGrowers {
public:
    void add(std::vector<QenGrower> growers);

    std::vector<QenGrower>& growers() { return growers_; }

private:
    std::vector<QenGrower> growers_;
    std::map<boost::uuids::uuid, std::size_t> indices_;
};

#endif

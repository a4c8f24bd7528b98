#ifndef QENXML_TOOLS_REPORT_FARMPLACES_H
#define QENXML_TOOLS_REPORT_FARMPLACES_H

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "tools/records/RecordWalk.h"
#include "tools/report/ReportMap.h"

/// Where the fields of farms are. A farm that several packages hold is one, by its identifier and
/// that of its grower. The first farms are kept, all others counted.
class FarmPlaces {
public:
    static constexpr std::size_t mostFarms = 60;

    struct Farm {
        std::string grower;
        std::string name;
        std::vector<MapPoint> points; ///< Not empty. A field that comes again is there once.
    };

    void add(const FieldContext& context);

    const std::vector<Farm>& farms() const { return farms_; }

    /// How many more farms there are with a field that has a place.
    std::size_t moreFarms() const { return indexes_.size() - farms_.size(); }

    /// How many fields have a centroid that is none.
    std::size_t withoutPlace() const { return withoutPlace_; }

private:
    using Key = std::pair<boost::uuids::uuid, boost::uuids::uuid>; // grower and farm

    void add(const FieldContext& context, const LLA& centroid);

    std::vector<Farm> farms_;
    std::map<Key, std::size_t> indexes_; // of all farms
    std::set<std::tuple<std::size_t, boost::uuids::uuid, double, double>> seen_;
    std::size_t withoutPlace_ = 0;
};

#endif

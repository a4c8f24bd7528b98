#include "tests/tools/records/RandomGrowers.h"

#include <algorithm>

#include "tests/support/Uuids.h"

namespace test {

std::vector<QenGrower> RandomGrowers::growers() {
    std::vector<QenGrower> growers;
    for (const plain::Grower& grower : some<plain::Grower>(sizes_.growers))
        growers.push_back(toLibrary(grower));
    return growers;
}

/// Up to so many records in any order.
template <class Record>
std::vector<Record> RandomGrowers::some(unsigned most) {
    std::vector<Record> records;
    for (unsigned id = 1; id <= most; ++id) {
        if (below(3) == 0)
            continue;
        records.emplace_back();
        records.back().id = uuid(id);
        fill(records.back());
    }
    std::shuffle(records.begin(), records.end(), random_);
    return records;
}

std::string RandomGrowers::label() {
    return std::to_string(sizes_.contents == 0 ? ++number_ : below(sizes_.contents));
}

void RandomGrowers::fill(plain::Grower& grower) {
    grower.name = label();
    grower.farms = some<plain::Farm>(sizes_.farms);
}

void RandomGrowers::fill(plain::Farm& farm) {
    farm.name = label();
    farm.growerId = uuid(++number_);
    farm.fields = some<plain::Field>(sizes_.fields);
}

void RandomGrowers::fill(plain::Field& field) {
    field.name = label();
    field.farmId = uuid(++number_);
    field.geometries = some<plain::Geometry>(sizes_.geometries);
    field.recs = some<plain::Rec>(sizes_.recs);
}

void RandomGrowers::fill(plain::Geometry& geometry) {
    geometry.date = label();
}

void RandomGrowers::fill(plain::Rec& rec) {
    rec.name = label();
    plain::Planting planting;
    planting.cropName = label();
    rec.product = planting;
}

} // namespace test

#include "bench/LookUps.h"

#include <cstddef>

#include "bench/Operations.h"

namespace bench {

namespace {

/// Keeps a value from being optimised away.
template <class Value>
void use(const Value& value) {
    asm volatile("" : : "r"(&value) : "memory"); // NOLINT(hicpp-no-assembler)
}

} // namespace

const std::vector<LookUp>& lookUps() {
    static const std::vector<LookUp> all = {
        {"rec", [](const QenField& field, QenRec& rec) { use(field.rec(rec.id())); }},
        {"geometryDate", [](const QenField& field,
                            QenRec& rec) { use(field.geometryDate(rec.fieldGeometryId())); }},
        {"geometryFileName",
         [](const QenField& field, QenRec& rec) {
             use(field.geometryFileName(rec.fieldGeometryId()));
         }},
        {"geometryFileId", [](const QenField& field,
                              QenRec& rec) { use(field.geometryFileId(rec.fieldGeometryId())); }},
        {"centroid",
         [](const QenField& field, QenRec& rec) { use(field.centroid(rec.fieldGeometryId())); }},
    };
    return all;
}

double secondsOfLookUp(const LookUp& lookUp, const std::string& path) {
    std::vector<QenGrower> growers = growersOf(path);
    constexpr std::size_t enough = 200'000;
    std::size_t done = 0;
    const double start = processorSeconds();
    while (done < enough) {
        for (QenGrower& grower : growers)
            for (QenFarm& farm : grower.farms())
                for (QenField& field : farm.fields())
                    for (QenRec& rec : field.recs()) {
                        lookUp.run(field, rec);
                        ++done;
                    }
    }
    return (processorSeconds() - start) / static_cast<double>(done);
}

} // namespace bench

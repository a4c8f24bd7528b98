/// @file
/// Packages for measurements: realistic in content, of any size, and the same for the same shape on
/// every machine.

#ifndef QENXML_BENCH_PACKAGEGENERATOR_H
#define QENXML_BENCH_PACKAGEGENERATOR_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace bench {

/// How a package is laid out. The defaults are those of large farms.
struct PackageShape {
    std::size_t bytes = 0; ///< Growers are added until the package is about so long.
    std::size_t farmsPerGrower = 3;
    std::size_t fieldsPerFarm = 12;
    std::size_t recsPerField = 6;

    /// Number of the first field of each farm. What a record holds, its identifier included,
    /// depends on the seed and on the numbers of the record and of those around it alone, so that
    /// packages share the fields of the same number.
    std::size_t firstField = 0;

    std::uint64_t seed = 1;
};

/// A package of this shape: as long as asked for, give or take a rec and the closing tags.
std::string generatePackage(const PackageShape& shape);

/// A package of the default shape.
inline std::string generatePackage(std::size_t bytes) {
    PackageShape shape;
    shape.bytes = bytes;
    return generatePackage(shape);
}

} // namespace bench

#endif

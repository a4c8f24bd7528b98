/// @file
/// Packages as programs write them, in which everything goes together, and slips to put into them.

#ifndef QENXML_TESTS_TOOLS_CHECK_PLAUSIBLEPACKAGE_H
#define QENXML_TESTS_TOOLS_CHECK_PLAUSIBLEPACKAGE_H

#include <random>
#include <string>
#include <vector>

namespace test {

struct PlausibleRec {
    std::string minimum, average, maximum, total, area; ///< As written.
    std::string rateUnit, totalUnit, areaUnit;
    std::string created, edited, column;
};

struct PlausibleField {
    std::string latitude, longitude; ///< As written.
    std::vector<PlausibleRec> recs;
};

struct PlausibleFarm {
    std::vector<PlausibleField> fields;
};

struct PlausiblePackage {
    std::vector<PlausibleFarm> farms;

    std::string text() const;
};

/// A package without a slip. Its farms lie on both hemispheres, some of them at the equator, the
/// meridian of Greenwich or the date line; their fields within kilometres, or up to 150 km from the
/// middle of the farm. Totals are rate times area, rounded or cut off, in several systems of units.
/// It has a rec, and a farm of two fields or more.
PlausiblePackage plausiblePackage(std::mt19937& random);

enum class PlantedSlip { Total, Rate, Sign, Swap, Unit };

/// Puts one slip into a package.
///
/// @return how many kilometres a field was moved by it, if one was
double plant(PlantedSlip slip, PlausiblePackage& package, std::mt19937& random);

} // namespace test

#endif

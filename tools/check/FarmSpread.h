#ifndef QENXML_TOOLS_CHECK_FARMSPREAD_H
#define QENXML_TOOLS_CHECK_FARMSPREAD_H

#include <array>
#include <cstddef>
#include <optional>

#include <pugixml.hpp>

/// Where the fields of a farm lie, by their centroids.
class FarmSpread {
public:
    /// A mistake that would explain where a centroid is.
    enum class Slip { Latitude, Longitude, BothSigns, Swapped };

    /// A centroid that is far from the others.
    struct Stray {
        std::optional<double> kilometres; ///< From the others; none when it is not on the earth.
        std::optional<Slip> slip;         ///< Without which it would be near them.
        bool ofTwo = false;               ///< It may be the other one of two fields.
    };

    FarmSpread() = default;

    /// Looks at each field once.
    explicit FarmSpread(pugi::xml_node farm);

    /// What is odd about the centroid of a field of this farm. Of two fields, it is that of the
    /// second one.
    std::optional<Stray> strayOf(pugi::xml_node fieldCentroid) const;

private:
    std::size_t count_ = 0; ///< Of fields whose centroids are places; 0 if none of them can stray.
    /// Amidst most of them, or of two the first one: a point on a globe whose radius is 1.
    std::array<double, 3> others_ = {};
    double usual_ = 0;    ///< Within so many kilometres from there lie two thirds of them.
    pugi::xml_node last_; ///< The centroid that is the last one.
};

#endif

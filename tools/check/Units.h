/// @file
/// What unit texts mean, as far as that is sure.

#ifndef QENXML_TOOLS_CHECK_UNITS_H
#define QENXML_TOOLS_CHECK_UNITS_H

#include <optional>
#include <string_view>

/// The two units of a rate: "kg" and "ha" of "kg/ha".
struct RateUnit {
    std::string_view amount;
    std::string_view area;
};

/// Takes the unit of a rate apart; none when it is not "X/Y" or "X per Y".
std::optional<RateUnit> rateUnit(std::string_view text);

/// Whether two texts are the same but for case, white space and a full stop around them.
bool isSameText(std::string_view a, std::string_view b);

/// Whether two texts are the same unit, which may be that of a rate: the same text, in singular or
/// plural, or well-known spellings of one.
bool isSameUnit(std::string_view a, std::string_view b);

/// Whether a text is known to stand for more than one unit, as "gal" and "oz" do.
bool isAmbiguousUnit(std::string_view text);

/// Whether an amount may have the same number in two units: they are of one size, or one of them is
/// not known. Of a weight and a volume that is so where texts stand for several units: "t" and "m3"
/// of slurry, "oz" and "fl oz".
bool maySayTheSame(std::string_view a, std::string_view b);

/// How many of one unit another one is. It is a range where texts stand for several units; between
/// weights and volumes, it is that of water; seeds cannot be converted to either and are 0.
struct UnitRatio {
    double least;
    double most;
    bool sameKind; ///< Whether both are weights, or both volumes, and so on.
};

/// How many @p to one @p from is; none when one of them is not known.
std::optional<UnitRatio> unitRatio(std::string_view from, std::string_view to);

#endif

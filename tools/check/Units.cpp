#include "tools/check/Units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "tools/text/Words.h"

namespace {

enum class Measure { Weight, Volume, Count, Area };

struct Range {
    double least;
    double most;
};

/// A unit with its spellings, each between bars.
struct Unit {
    Measure measure;
    Range size; ///< In kilograms, litres, pieces or square metres.
    std::string_view spellings;
};

constexpr Range exactly(double size) {
    return {size, size};
}

/// Texts for units of several countries have the range of all of them.
constexpr std::array units = {
    Unit{Measure::Weight, exactly(1), "|kg|kgs|kilo|kilos|kilogram|kilograms|kilogramm|"},
    Unit{Measure::Weight, exactly(0.001), "|g|gram|grams|gramm|"},
    Unit{Measure::Weight, exactly(100), "|dt|quintal|quintals|"},
    Unit{Measure::Weight, {907, 1017}, "|t|ton|tons|tonne|tonnes|metric ton|metric tons|"},
    Unit{Measure::Weight, exactly(0.45359237), "|lb|lbs|pound|pounds|"},
    Unit{Measure::Weight, {0.0283, 0.0312}, "|oz|ounce|ounces|"},
    Unit{Measure::Weight, {45.3, 50.9}, "|cwt|"},
    Unit{Measure::Weight, {2, 1300}, "|bag|bags|"},
    Unit{Measure::Volume, exactly(1), "|l|lt|ltr|liter|liters|litre|litres|"},
    Unit{Measure::Volume, exactly(0.001), "|ml|milliliter|milliliters|millilitre|millilitres|"},
    Unit{Measure::Volume, exactly(100), "|hl|hectoliter|hectoliters|hectolitre|hectolitres|"},
    Unit{Measure::Volume, exactly(1000), "|m3|m\u00b3|cbm|cubic metre|cubic metres|"},
    Unit{Measure::Volume, {3.78, 4.55}, "|gal|gals|gallon|gallons|"},
    Unit{Measure::Volume, {0.946, 1.14}, "|qt|qts|quart|quarts|"},
    Unit{Measure::Volume, {0.473, 0.569}, "|pt|pts|pint|pints|"},
    Unit{Measure::Volume, {0.0284, 0.0296}, "|fl oz|floz|fl. oz|fluid ounce|fluid ounces|"},
    Unit{Measure::Volume, {35.2, 36.4}, "|bu|bushel|bushels|"},
    Unit{Measure::Count, exactly(1), "|seed|seeds|sds|kernel|kernels|"},
    Unit{Measure::Count, exactly(1000), "|1000 seeds|k seeds|kseeds|ksds|thousand seeds|"},
    Unit{Measure::Area, exactly(10'000), "|ha|hectare|hectares|hektar|"},
    Unit{Measure::Area, exactly(4046.86), "|ac|acre|acres|"},
    Unit{Measure::Area, exactly(1), "|m2|m\u00b2|sqm|sq m|square metre|square metres|"},
    Unit{Measure::Area, exactly(0.0929), "|ft2|ft\u00b2|sqft|sq ft|square foot|square feet|"},
    Unit{Measure::Area, exactly(92.9), "|1000 ft2|1000 ft\u00b2|1000 sqft|1000 sq ft|"},
};

/// Kilograms in one litre of something that is as heavy as water.
constexpr Range water = {0.9, 1.1};

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string_view bare(std::string_view text) {
    text = trimmed(text);
    return !text.empty() && text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

const Unit* find(std::string_view text) {
    constexpr std::size_t longest = 16;
    text = bare(text);
    if (text.empty() || text.size() > longest || text.find('|') != std::string_view::npos)
        return nullptr;
    std::string spelling = "|";
    std::transform(text.begin(), text.end(), std::back_inserter(spelling), lowerCase);
    spelling += '|';
    const auto* const unit = std::find_if(units.begin(), units.end(), [&](const Unit& known) {
        return known.spellings.find(spelling) != std::string_view::npos;
    });
    return unit == units.end() ? nullptr : unit;
}

/// A word without the s of its plural. Shorter ones may be no words.
std::string_view singular(std::string_view word) {
    constexpr std::size_t shortest = 4;
    const bool many = word.size() >= shortest && lowerCase(word.back()) == 's';
    return many ? word.substr(0, word.size() - 1) : word;
}

/// As isSameUnit(), of units that are not taken apart: a text may have any number of slashes.
bool isSameSingleUnit(std::string_view a, std::string_view b) {
    if (isSameText(a, b) || isSameText(singular(bare(a)), singular(bare(b))))
        return true;
    const Unit* const unit = find(a);
    return unit != nullptr && unit == find(b);
}

/// What a weight, or a volume of water, weighs.
Range weightOf(const Unit& unit) {
    const Range weight = unit.measure == Measure::Volume ? water : exactly(1);
    return {unit.size.least * weight.least, unit.size.most * weight.most};
}

} // namespace

std::optional<RateUnit> rateUnit(std::string_view text) {
    constexpr std::string_view per = " per ";
    const std::size_t slash = text.rfind('/');
    const std::size_t word = slash == std::string_view::npos ? text.find(per) : slash;
    if (word == std::string_view::npos)
        return std::nullopt;
    const std::size_t length = slash == std::string_view::npos ? per.size() : 1;
    const RateUnit unit = {trimmed(text.substr(0, word)), trimmed(text.substr(word + length))};
    return unit.amount.empty() || unit.area.empty() ? std::nullopt : std::optional(unit);
}

bool isSameText(std::string_view a, std::string_view b) {
    a = bare(a);
    b = bare(b);
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerCase(x) == lowerCase(y); });
}

bool isSameUnit(std::string_view a, std::string_view b) {
    if (isSameSingleUnit(a, b))
        return true;
    const std::optional<RateUnit> rate = rateUnit(a);
    const std::optional<RateUnit> other = rateUnit(b);
    return rate && other && isSameSingleUnit(rate->amount, other->amount) &&
           isSameSingleUnit(rate->area, other->area);
}

bool isAmbiguousUnit(std::string_view text) {
    const std::optional<RateUnit> rate = rateUnit(text);
    const Unit* const unit = find(rate ? rate->amount : text);
    return unit != nullptr && unit->size.least < unit->size.most;
}

bool maySayTheSame(std::string_view a, std::string_view b) {
    const Unit* const one = find(a);
    const Unit* const other = find(b);
    if (isSameUnit(a, b) || one == nullptr || other == nullptr)
        return true;
    const auto isClose = [](double x, double y) {
        constexpr double tolerance = 0.04;
        return std::abs(x / y - 1) <= tolerance;
    };
    const auto hasSize = [&](double x) {
        return isClose(x, other->size.least) || isClose(x, other->size.most);
    };
    const auto isAnySize = [](const Unit& unit) { return unit.size.most > 2 * unit.size.least; };
    if (one->measure == other->measure && (isAnySize(*one) || isAnySize(*other)))
        return true;
    return (one->measure == other->measure || isAmbiguousUnit(a) || isAmbiguousUnit(b)) &&
           (hasSize(one->size.least) || hasSize(one->size.most));
}

std::optional<UnitRatio> unitRatio(std::string_view from, std::string_view to) {
    if (isSameUnit(from, to))
        return UnitRatio{1, 1, true};
    const Unit* const a = find(from);
    const Unit* const b = find(to);
    if (a == nullptr || b == nullptr ||
        (a->measure == Measure::Area) != (b->measure == Measure::Area))
        return std::nullopt;
    if (a->measure == b->measure)
        return UnitRatio{a->size.least / b->size.most, a->size.most / b->size.least, true};
    if (a->measure == Measure::Count || b->measure == Measure::Count)
        return UnitRatio{0, 0, false};
    const Range one = weightOf(*a);
    const Range other = weightOf(*b);
    return UnitRatio{one.least / other.most, one.most / other.least, false};
}

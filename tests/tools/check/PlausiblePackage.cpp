#include "tests/tools/check/PlausiblePackage.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include <fmt/format.h>

#include "tests/support/PackageText.h"

namespace test {

namespace {

constexpr double degree = 3.14159265358979323846 / 180;
constexpr double kilometresOfDegree = 111.2;

/// A system of units, and what rates are usual in it.
struct Units {
    std::string amount;
    std::string area;
    double lowest;
    double highest;
};

const std::vector<Units> systems = {
    {"kg", "ha", 20, 450},        {"kg", "ha", 0.05, 8},       {"L", "ha", 0.2, 400},
    {"t", "ha", 0.8, 40},         {"m3", "ha", 5, 40},         {"seeds", "ha", 20'000, 4'000'000},
    {"lb", "ac", 10, 400},        {"gal", "ac", 1, 40},        {"oz", "ac", 0.5, 64},
    {"seeds", "ac", 15'000, 2e6}, {"qt", "ac", 0.25, 6},       {"ksds", "ac", 20, 180},
    {"bags", "ha", 0.5, 4},       {"lb", "1000 sq ft", 0.5, 6}};

/// Units of one kind with their size, so that a total may be in another one than the rate.
struct Converted {
    std::string from;
    std::string to;
    double factor;
};

const std::vector<Converted> conversions = {
    {"kg", "t", 0.001},       {"t", "kg", 1000},        {"lb", "ton", 0.0005},
    {"kg", "lb", 2.2046226},  {"L", "hl", 0.01},        {"qt", "gal", 0.25},
    {"L", "m3", 0.001},       {"lb", "kg", 0.45359237}, {"ksds", "seeds", 1000},
    {"seeds", "ksds", 0.001}, {"oz", "lb", 1 / 16.0}};

/// Other ways to write a unit.
const std::vector<std::pair<std::string, std::string>> spellings = {
    {"lb", "lbs"},   {"ac", "acre"},    {"ha", "Ha"},       {"L", "l"},      {"L", "liters"},
    {"gal", "Gal"},  {"kg", "KG"},      {"seeds", "Seeds"}, {"bags", "Bag"}, {"gal", "gallons"},
    {"ac", "acres"}, {"m3", "m\u00b3"}, {"seeds", "sds"},   {"t", "tonnes"}};

class Maker {
public:
    explicit Maker(std::mt19937& random) : random_(random) {}

    PlausiblePackage package() {
        systems_ = {systems[below(systems.size())], systems[below(systems.size())]};
        isoDates_ = !oneIn(4);
        cutsOff_ = oneIn(5);
        rateDecimals_ = 1 + static_cast<int>(below(3));
        areaDecimals_ = 1 + static_cast<int>(below(3));
        totalDecimals_ = static_cast<int>(below(4));
        PlausiblePackage made;
        const std::size_t farms = 1 + below(4);
        for (std::size_t i = 0; i < farms; ++i)
            made.farms.push_back(farm(i == 0 ? 2 : 1));
        if (made.farms[0].fields[0].recs.empty())
            made.farms[0].fields[0].recs.push_back(rec());
        return made;
    }

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    bool oneIn(std::size_t chance) { return below(chance) == 0; }
    double between(double least, double most) {
        return least + (most - least) * static_cast<double>(random_()) / 4294967295.0;
    }
    /// As many small ones as large ones.
    double scaled(double least, double most) {
        return least * std::pow(most / least, between(0, 1));
    }

    std::string written(double number, int decimals) const {
        const double scale = std::pow(10.0, decimals);
        const double scaled = number * scale;
        const double rounded = cutsOff_ ? std::floor(scaled + 1e-9) : std::round(scaled);
        return fmt::format("{:.{}f}", rounded / scale, decimals);
    }

    PlausibleFarm farm(std::size_t fewest) {
        double latitude = between(-55, 68);
        double longitude = between(-180, 180);
        if (oneIn(12))
            latitude = between(-1, 1);
        if (oneIn(12))
            longitude = between(-1, 1);
        else if (oneIn(12))
            longitude = between(179, 181);
        const double radius = oneIn(2) ? scaled(1, 12) : oneIn(2) ? scaled(10, 50) : 150;
        const bool hasRemoteField = oneIn(10);
        const std::size_t fields = fewest + below(oneIn(8) ? 40 : 9);
        const int decimals = 3 + static_cast<int>(below(4));
        PlausibleFarm made;
        for (std::size_t i = 0; i < fields; ++i) {
            const bool remote = hasRemoteField && i == fields / 2;
            const double distance = remote ? between(60, 150) : radius * std::sqrt(between(0, 1));
            const double direction = between(0, 360) * degree;
            const double north = distance * std::cos(direction) / kilometresOfDegree;
            const double east =
                distance * std::sin(direction) / kilometresOfDegree / std::cos(latitude * degree);
            PlausibleField field;
            field.latitude = fmt::format("{:.{}f}", latitude + north, decimals);
            field.longitude =
                fmt::format("{:.{}f}", std::remainder(longitude + east, 360.0), decimals);
            const std::size_t recs = below(3);
            for (std::size_t rec = 0; rec < recs; ++rec)
                field.recs.push_back(this->rec());
            made.fields.push_back(field);
        }
        return made;
    }

    std::string spelt(const std::string& unit) {
        if (!oneIn(6))
            return unit;
        for (const auto& [usual, other] : spellings) {
            if (usual == unit && oneIn(2))
                return other;
        }
        return unit;
    }

    PlausibleRec rec() {
        const Units& system = systems_[below(systems_.size())];
        const double average = scaled(system.lowest, system.highest);
        const double area = scaled(0.05, 400);
        const int rateDecimals = average > 1000 && oneIn(2) ? 0
                                 : average < 1              ? std::max(2, rateDecimals_)
                                                            : rateDecimals_;
        PlausibleRec made;
        made.average = written(average, rateDecimals);
        const bool uniform = oneIn(5);
        made.minimum = uniform ? made.average : written(average * between(0, 1), rateDecimals);
        made.maximum = uniform ? made.average : written(average * between(1, 3), rateDecimals);
        made.area = written(area, areaDecimals_);
        // Some programs multiply what they show, others what they have.
        double total = oneIn(2) ? average * area
                                : std::atof(made.average.c_str()) * std::atof(made.area.c_str());
        std::string totalUnit = system.amount;
        for (const Converted& conversion : conversions) {
            if (conversion.from == system.amount && oneIn(12)) {
                total *= conversion.factor;
                totalUnit = conversion.to;
                break;
            }
        }
        made.total = written(total, total < 1 ? std::max(2, totalDecimals_) : totalDecimals_);
        const std::string per = oneIn(12) ? " per " : "/";
        made.rateUnit = spelt(system.amount) + per + spelt(system.area);
        made.totalUnit = spelt(totalUnit);
        made.areaUnit = spelt(system.area);
        dates(made);
        const std::vector<std::string> columns = {
            "RATE", "TGT_RATE", "N_KG_HA", "D\u00fcngermeng", "rate1", "Target_Rat"};
        made.column = columns[below(columns.size())];
        return made;
    }

    void dates(PlausibleRec& rec) {
        const unsigned day = 1 + static_cast<unsigned>(below(27));
        const unsigned month = 1 + static_cast<unsigned>(below(12));
        const unsigned year = 2018 + static_cast<unsigned>(below(9));
        const unsigned later = day + (oneIn(2) ? 1 : 0);
        if (isoDates_) {
            const std::string form =
                oneIn(2) ? "{:04}-{:02}-{:02}T{:02}:{:02}:00" : "{:04}-{:02}-{:02}";
            rec.created = fmt::format(fmt::runtime(form), year, month, day, 9, 30);
            rec.edited = fmt::format(fmt::runtime(form), year, month, later, 9, 31);
        } else {
            const std::vector<std::string> forms = {"{2:02}.{1:02}.{0}",
                                                    "{1}/{2}/{0} 10:15:00 AM",
                                                    "{2:02}/{1:02}/{0} 22:15",
                                                    "{0}/{1:02}/{2:02}",
                                                    "{2} Nov {0}",
                                                    "{0}{1:02}{2:02}"};
            const std::string& form = forms[below(forms.size())];
            rec.created = fmt::format(fmt::runtime(form), year, month, day);
            rec.edited = oneIn(2) ? fmt::format(fmt::runtime(form), year, month, later) : "";
        }
    }

    std::mt19937& random_;
    std::vector<Units> systems_;
    bool isoDates_ = true;
    bool cutsOff_ = false; ///< Instead of rounding.
    int rateDecimals_ = 0;
    int areaDecimals_ = 0;
    int totalDecimals_ = 0;
};

/// A code that belongs to a unit, however it is spelt.
unsigned codeOf(std::string unit) {
    for (const auto& [usual, other] : spellings) {
        if (unit == other)
            unit = usual;
    }
    unsigned code = 7;
    for (const char letter : unit)
        code = (code * 31 + static_cast<unsigned char>(letter)) % 30'011;
    return code + 1;
}

unsigned codeOfRate(const std::string& unit) {
    const std::size_t slash = unit.find('/');
    const std::size_t per = slash == std::string::npos ? unit.find(" per ") : slash;
    const std::size_t length = slash == std::string::npos ? 5 : 1;
    return codeOf(unit.substr(0, per)) * 40'000 + codeOf(unit.substr(per + length));
}

std::string textOf(const PlausibleRec& rec) {
    return element("RecName", "N") + element("CreationDate", rec.created) +
           (rec.edited.empty() ? "" : element("EditDate", rec.edited)) +
           element("RecDBFCol", rec.column) + fertilizer() +
           element("RecStats", element("MinimumRate", rec.minimum) +
                                   element("MaximumRate", rec.maximum) +
                                   element("AverageRate", rec.average) +
                                   element("RateUOMID", std::to_string(codeOfRate(rec.rateUnit))) +
                                   element("RateUOM", rec.rateUnit) + element("Total", rec.total) +
                                   element("TotalUOMID", std::to_string(codeOf(rec.totalUnit))) +
                                   element("TotalUOM", rec.totalUnit) + element("Area", rec.area) +
                                   element("AreaUOMID", std::to_string(codeOf(rec.areaUnit))) +
                                   element("AreaUOM", rec.areaUnit));
}

double kilometresBetween(const PlausibleField& a, const PlausibleField& b) {
    const auto number = [](const std::string& text) { return std::atof(text.c_str()) * degree; };
    const double middle = (number(a.latitude) + number(b.latitude)) / 2;
    const double north = (number(a.latitude) - number(b.latitude)) / degree;
    const double east = std::remainder((number(a.longitude) - number(b.longitude)) / degree, 360.0);
    return std::hypot(north, east * std::cos(middle)) * kilometresOfDegree;
}

class Planter {
public:
    Planter(PlausiblePackage& package, std::mt19937& random) : package_(package), random_(random) {}

    /// @return how many kilometres the field was moved
    double moveField(bool swap) {
        PlausibleField& field = aField();
        const PlausibleField before = field;
        if (swap)
            std::swap(field.latitude, field.longitude);
        else
            flip(below(2) == 0 ? field.latitude : field.longitude);
        return kilometresBetween(field, before);
    }

    void changeTotal() {
        PlausibleRec& rec = aRec();
        multiply(rec.total, power());
    }

    void changeRate() {
        PlausibleRec& rec = aRec();
        const double factor = power();
        const std::size_t which = below(5);
        if (which < 4)
            multiply(rec.average, factor);
        if (which == 3)
            multiply(rec.maximum, factor);
        if (which >= 3)
            multiply(rec.minimum, factor);
    }

    void changeUnit() {
        const std::vector<std::string> amounts = {"kg", "t", "lb", "g", "L", "seeds", "oz", "gal"};
        const std::vector<std::string> areas = {"ha", "ac", "m2"};
        PlausibleRec& rec = aRec();
        const std::size_t which = below(6);
        if (which < 3)
            replace(rec.totalUnit, amounts);
        else if (which < 5)
            replace(rec.areaUnit, areas);
        else
            replace(rec.rateUnit, {"kg/ha", "lb/ac", "t/ha", "L/ha", "gal/ac"});
    }

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    double power() { return below(2) == 0 ? 10 : 100; }

    PlausibleField& aField() {
        while (true) {
            std::vector<PlausibleField>& fields =
                package_.farms[below(package_.farms.size())].fields;
            if (fields.size() > 1)
                return fields[below(fields.size())];
        }
    }

    /// One whose total is more than 0.
    PlausibleRec& aRec() {
        std::vector<PlausibleRec*> all;
        for (PlausibleFarm& farm : package_.farms)
            for (PlausibleField& field : farm.fields)
                for (PlausibleRec& rec : field.recs)
                    if (std::atof(rec.total.c_str()) > 0 || all.empty())
                        all.push_back(&rec);
        return *all[below(all.size())];
    }

    static void flip(std::string& number) {
        number = number[0] == '-' ? number.substr(1) : "-" + number;
    }

    static void multiply(std::string& number, double factor) {
        const std::size_t point = number.find('.');
        const std::size_t decimals = point == std::string::npos ? 0 : number.size() - point - 1;
        number = fmt::format("{:.{}f}", std::atof(number.c_str()) * factor, decimals);
    }

    void replace(std::string& unit, const std::vector<std::string>& others) {
        const std::string before = unit;
        while (codeOf(unit) == codeOf(before))
            unit = others[below(others.size())];
    }

    PlausiblePackage& package_;
    std::mt19937& random_;
};

} // namespace

std::string PlausiblePackage::text() const {
    unsigned number = 0;
    std::string farmTexts;
    for (const PlausibleFarm& farm : farms) {
        std::string fieldTexts;
        for (const PlausibleField& field : farm.fields) {
            std::string recs;
            for (const PlausibleRec& rec : field.recs) {
                ++number;
                recs += test::rec(number, textOf(rec));
            }
            ++number;
            fieldTexts += test::field(
                number, element("FieldName", "F") + element("FieldGeometryDate", "2025-10-18") +
                            element("FieldCentroid", element("Latitude", field.latitude) +
                                                         element("Longitude", field.longitude)) +
                            recommendations(recs));
        }
        ++number;
        farmTexts += test::farm(number, element("FarmName", "A") + fieldTexts);
    }
    return package(grower(1, element("GrowerName", "G") + farmTexts));
}

PlausiblePackage plausiblePackage(std::mt19937& random) {
    return Maker(random).package();
}

double plant(PlantedSlip slip, PlausiblePackage& package, std::mt19937& random) {
    Planter planter(package, random);
    switch (slip) {
    case PlantedSlip::Total:
        planter.changeTotal();
        break;
    case PlantedSlip::Rate:
        planter.changeRate();
        break;
    case PlantedSlip::Unit:
        planter.changeUnit();
        break;
    case PlantedSlip::Sign:
    case PlantedSlip::Swap:
        return planter.moveField(slip == PlantedSlip::Swap);
    }
    return 0;
}

} // namespace test

#include "bench/PackageGenerator.h"

#include <array>
#include <cstdio>
#include <utility>

namespace bench {

namespace {

/// SplitMix64. The standard distributions differ between libraries, and a package must not.
std::uint64_t mixed(std::uint64_t z) {
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
}

/// The random numbers of one record. They follow from those of the record around it and from its
/// number, not from what was written before.
class Random {
public:
    explicit Random(std::uint64_t seed) : seed_(mixed(seed)), state_(seed_) {}

    Random child(std::size_t number) const {
        return Random(seed_ + 0x632BE59BD9B4E019U * (number + 1));
    }

    std::uint64_t next() { return mixed(state_ += 0x9E3779B97F4A7C15U); }

    std::size_t below(std::size_t limit) { return next() % limit; }

    template <std::size_t N>
    const char* oneOf(const std::array<const char*, N>& texts) {
        return texts[below(N)];
    }

    std::string identifier() {
        const std::uint64_t a = next();
        const std::uint64_t b = next();
        std::array<char, 37> text{};
        std::snprintf(text.data(), text.size(), "%08x-%04x-%04x-%04x-%012llx",
                      static_cast<unsigned>(a >> 32U), static_cast<unsigned>(a >> 16U & 0xFFFFU),
                      static_cast<unsigned>(a & 0xFFFFU), static_cast<unsigned>(b >> 48U),
                      static_cast<unsigned long long>(b & 0xFFFFFFFFFFFFU));
        return text.data();
    }

    std::string date() {
        std::array<char, 64> text{};
        const std::size_t year = 2020 + below(7);
        const std::size_t month = 1 + below(12);
        const std::size_t day = 1 + below(28);
        const std::size_t hour = below(24);
        std::snprintf(text.data(), text.size(), "%04zu-%02zu-%02zuT%02zu:%02zu:00", year, month,
                      day, hour, below(60));
        return text.data();
    }

    std::string code() { return std::to_string(below(5000)); }

    /// A number below @p limit with so many @p decimals.
    std::string decimal(std::size_t limit, int decimals, std::size_t from = 0) {
        std::array<char, 64> text{};
        const std::size_t whole = from + below(limit);
        std::size_t scale = 1;
        for (int i = 0; i < decimals; ++i)
            scale *= 10;
        std::snprintf(text.data(), text.size(), "%zu.%0*zu", whole, decimals, below(scale));
        return text.data();
    }

private:
    std::uint64_t seed_;
    std::uint64_t state_;
};

constexpr std::array crops = {"Corn", "Soybeans", "Winter wheat", "Canola", "Spring barley"};
constexpr std::array companies = {"Alder Seeds", "Brookfield Genetics", "Northern Plains Seed Co"};
constexpr std::array fertilizers = {"Urea 46-0-0", "DAP 18-46-0", "Potash 0-0-60",
                                    "UAN 32 % solution"};
constexpr std::array operations = {"Planting", "Fertilizing", "Side dressing"};
constexpr std::array nutrients = {"Pct_N", "Pct_P",  "Pct_K",  "Pct_Ca", "Pct_Mg",
                                  "Pct_S", "Pct_Fe", "Pct_Mn", "Pct_Zn", "Pct_Cu",
                                  "Pct_B", "Pct_Mo", "Pct_Cl"};

/// Writes elements, indented by their depth.
class Writer {
public:
    explicit Writer(const PackageShape& shape) : shape_(shape) {}

    std::string package() {
        text_.reserve(shape_.bytes + 4096);
        text_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        open("RecPackage");
        const Random random(shape_.seed);
        for (std::size_t i = 0; i == 0 || !full(); ++i)
            grower(i, random.child(i));
        close("RecPackage");
        return std::move(text_);
    }

private:
    /// Whether one more rec would lead further away from the length asked for, about.
    bool full() const {
        constexpr std::size_t halfARec = 800;
        return text_.size() + halfARec >= shape_.bytes;
    }

    void grower(std::size_t number, Random random) {
        open("Grower", "GrowerID", random.identifier());
        element("GrowerName", "Grower " + std::to_string(number + 1));
        for (std::size_t i = 0; i < shape_.farmsPerGrower && !full(); ++i)
            farm(i, random.child(i));
        close("Grower");
    }

    void farm(std::size_t number, Random random) {
        open("Farm", "FarmID", random.identifier());
        element("FarmName", "Home farm " + std::to_string(number + 1));
        const std::size_t end = shape_.firstField + shape_.fieldsPerFarm;
        for (std::size_t i = shape_.firstField; i < end && !full(); ++i)
            field(i, random.child(i));
        close("Farm");
    }

    void field(std::size_t number, Random random) {
        open("Field", "FieldID", random.identifier());
        element("FieldName", "North quarter " + std::to_string(number + 1));
        element("FieldGeometryID", random.identifier());
        element("FieldGeometryDate", random.date());
        element("FieldGeometry", random.identifier());
        open("FieldCentroid");
        element("Latitude", random.decimal(9, 6, 40));
        element("Longitude", "-" + random.decimal(9, 6, 90));
        close("FieldCentroid");
        open("Recommendations");
        for (std::size_t i = 0; i < shape_.recsPerField && !full(); ++i)
            rec(i, random.child(i));
        close("Recommendations");
        close("Field");
    }

    void rec(std::size_t number, Random random) {
        const std::string id = random.identifier();
        const std::string zone = random.below(3) == 0 ? random.identifier() : std::string();
        open("Rec", "RecID", id + "\" MgmtZoneID=\"" + zone);
        element("RecName", "Zone " + std::to_string(number + 1) + " variable rate");
        element("RecGeometry", random.identifier());
        element("CreationDate", random.date());
        element("EditDate", random.date());
        element("RecDBFCol", "RATE_" + std::to_string(number + 1));
        open("Operation", "OpID", random.identifier());
        element("OpName", random.oneOf(operations));
        close("Operation");
        const std::string year = std::to_string(2020 + random.below(8));
        open("Season", "SeasonID", year);
        element("SeasonName", "Season " + year);
        close("Season");
        open("RecData");
        product(random);
        close("RecData");
        statistics(random);
        close("Rec");
    }

    void product(Random& random) {
        switch (random.below(3)) {
        case 0:
            planting(random);
            break;
        case 1:
            commercialFertilizer(random);
            break;
        default:
            customFertilizer(random);
            break;
        }
    }

    void planting(Random& random) {
        open("Planting");
        element("CropID", random.code());
        element("CropName", random.oneOf(crops));
        element("CompanyID", random.code());
        element("CompanyName", random.oneOf(companies));
        element("VarietyID", random.code());
        element("VarietyName", "Variety " + random.code());
        unit(random, "seeds per acre");
        close("Planting");
    }

    void commercialFertilizer(Random& random) {
        open("CommercialFertilizer");
        element("ProductID", random.code());
        element("ProductName", random.oneOf(fertilizers));
        unit(random, "lb per acre");
        close("CommercialFertilizer");
    }

    void customFertilizer(Random& random) {
        open("CustomFertilizer");
        element("ProductID", random.identifier());
        element("ProductName", "Spring blend " + random.code());
        unit(random, "gal per acre");
        element("SFertT_ID", random.code());
        element("SpGravity", random.decimal(1, 2, 1));
        for (const char* nutrient : nutrients)
            element(nutrient, random.below(3) == 0 ? random.decimal(20, 1) : "0");
        close("CustomFertilizer");
    }

    void unit(Random& random, const char* text) {
        element("UOMID", random.code());
        element("UOM", text);
    }

    void statistics(Random& random) {
        open("RecStats");
        element("MinimumRate", random.decimal(90, 2));
        element("MaximumRate", random.decimal(90, 2, 200));
        element("AverageRate", random.decimal(90, 4, 100));
        element("RateUOMID", random.code());
        element("RateUOM", "lb/ac");
        element("Total", random.decimal(100'000, 3));
        element("TotalUOMID", random.code());
        element("TotalUOM", "lb");
        element("Area", random.decimal(160, 4));
        element("AreaUOMID", random.code());
        element("AreaUOM", "ac");
        close("RecStats");
    }

    void open(const char* name) {
        indent();
        text_.append("<").append(name).append(">\n");
        ++depth_;
    }

    void open(const char* name, const char* attribute, const std::string& value) {
        indent();
        text_.append("<").append(name).append(" ").append(attribute);
        text_.append("=\"").append(value).append("\">\n");
        ++depth_;
    }

    void element(const char* name, const std::string& text) {
        indent();
        text_.append("<").append(name).append(">").append(text);
        text_.append("</").append(name).append(">\n");
    }

    void close(const char* name) {
        --depth_;
        indent();
        text_.append("</").append(name).append(">\n");
    }

    void indent() { text_.append(2 * depth_, ' '); }

    PackageShape shape_;
    std::size_t depth_ = 0;
    std::string text_;
};

} // namespace

std::string generatePackage(const PackageShape& shape) {
    return Writer(shape).package();
}

} // namespace bench

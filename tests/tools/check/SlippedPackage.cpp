#include "tests/tools/check/SlippedPackage.h"
#include "tests/support/SourceFolder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <vector>

#include "tests/support/RandomPackage.h"
#include "tests/tools/check/SlipChooser.h"

namespace test {

namespace {

/// Writes the elements of a package.
class Writer {
public:
    explicit Writer(std::mt19937& random) : random_(random), choose_(random) {}

    std::string package() {
        const std::string before = choose_.prolog();
        return choose_.bytes(
            before +
            element("RecPackage", choose_.attributes(), items(1, [&] { return grower(); })) +
            choose_.epilog());
    }

private:
    using Parts = std::vector<std::string>;

    std::string element(const char* name, const std::string& attributes,
                        const std::string& content) {
        const std::string written = choose_.name(name);
        if (content.empty() && choose_.oneIn(2))
            return "<" + written + attributes + (choose_.isUnusual() ? " />" : "/>");
        return "<" + written + attributes + (choose_.isUnusual() ? "\n>" : ">") + content + "</" +
               (choose_.slips() ? choose_.name(name) : written) +
               (choose_.isUnusual() ? "\t>" : ">");
    }

    std::string attribute(const char* name, const std::string& value) {
        if (choose_.slips())
            return "";
        const std::string quote = choose_.quote();
        std::string text = (choose_.isUnusual() ? "\n" : " ") + choose_.name(name) +
                           (choose_.isUnusual() ? " = " : "=");
        text += quote + value + quote;
        return choose_.slips() ? text + text : text;
    }

    std::string value(const char* name, const std::string& text) {
        return element(name, choose_.attributes(), text);
    }

    /// Parts in an order, in which some may be missing, repeated or behind others.
    std::string joined(Parts parts, bool anyOrder) {
        if (anyOrder && choose_.isUnusual())
            std::shuffle(parts.begin(), parts.end(), random_);
        if (choose_.slips() && parts.size() > 1)
            std::swap(parts.front(), parts.back());
        if (choose_.slips())
            parts.push_back(parts[choose_.below(parts.size())]);
        if (choose_.slips())
            parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(choose_.below(parts.size())));
        std::string text = choose_.between();
        for (const std::string& part : parts)
            text += part + choose_.between();
        return text;
    }

    template <class Item>
    std::string items(std::size_t least, Item item) {
        Parts parts;
        for (std::size_t count = least + choose_.below(2); count > 0; --count)
            parts.push_back(item());
        return parts.empty() ? "" : joined(parts, true);
    }

    std::string named(const char* name, const char* idName, const char* nameName,
                      const std::string& list) {
        const std::string id = attribute(idName, choose_.identifier()) + choose_.attributes();
        return element(name, id, joined({value(nameName, choose_.text()), list}, false));
    }

    std::string grower() {
        return named("Grower", "GrowerID", "GrowerName", items(1, [&] { return farm(); }));
    }

    std::string farm() {
        return named("Farm", "FarmID", "FarmName", items(1, [&] { return field(); }));
    }

    std::string field() {
        Parts parts = {value("FieldName", choose_.text()),
                       value("FieldGeometryID", choose_.identifier()),
                       value("FieldGeometry", choose_.identifier())};
        if (choose_.oneIn(2))
            parts.push_back(value("FieldGeometryDate", choose_.text()));
        if (!choose_.oneIn(4))
            parts.push_back(element(
                "FieldCentroid", "",
                joined({value("Latitude", choose_.number()), value("Longitude", choose_.number())},
                       true)));
        parts.push_back(
            element("Recommendations", choose_.attributes(), items(0, [&] { return rec(); })));
        return element("Field", attribute("FieldID", choose_.identifier()), joined(parts, true));
    }

    std::string rec() {
        std::string attributes = attribute("RecID", choose_.identifier()) + choose_.attributes();
        if (choose_.oneIn(3))
            attributes += attribute("MgmtZoneID", choose_.oneIn(3) ? "" : choose_.identifier());
        Parts parts = {value("RecName", choose_.text()), value("RecGeometry", choose_.identifier()),
                       element("RecData", "", joined({product()}, false)), statistics()};
        for (const char* const name : {"CreationDate", "EditDate", "RecDBFCol"}) {
            if (choose_.oneIn(2))
                parts.push_back(value(name, choose_.text()));
        }
        if (choose_.oneIn(2))
            parts.push_back(element("Operation", attribute("OpID", choose_.identifier()),
                                    joined({value("OpName", choose_.text())}, true)));
        if (choose_.oneIn(2))
            parts.push_back(element("Season", attribute("SeasonID", choose_.integer()),
                                    joined({value("SeasonName", choose_.text())}, true)));
        return element("Rec", attributes, joined(parts, true));
    }

    std::string statistics() {
        Parts parts;
        for (const char* const name :
             {"MinimumRate", "MaximumRate", "AverageRate", "Total", "Area"})
            if (!choose_.oneIn(20))
                parts.push_back(value(name, choose_.number()));
        for (const char* const name : {"RateUOMID", "TotalUOMID", "AreaUOMID"})
            parts.push_back(value(name, choose_.integer()));
        for (const char* const name : {"RateUOM", "TotalUOM", "AreaUOM"})
            parts.push_back(value(name, choose_.text()));
        return element("RecStats", "", joined(parts, true));
    }

    std::string product() {
        Parts parts = {value("UOMID", choose_.integer()), value("UOM", choose_.text())};
        const std::size_t kind = choose_.below(3);
        if (kind == 0) {
            for (const char* const name : {"CropID", "CompanyID", "VarietyID"})
                parts.push_back(value(name, choose_.integer()));
            for (const char* const name : {"CropName", "CompanyName", "VarietyName"})
                parts.push_back(value(name, choose_.text()));
            return element("Planting", "", joined(parts, true));
        }
        parts.push_back(value("ProductName", choose_.text()));
        if (kind == 1) {
            parts.push_back(value("ProductID", choose_.integer()));
            return element("CommercialFertilizer", "", joined(parts, true));
        }
        parts.push_back(value("ProductID", choose_.identifier()));
        parts.push_back(value("SFertT_ID", choose_.integer()));
        for (const char* const name :
             {"SpGravity", "Pct_N", "Pct_P", "Pct_K", "Pct_Ca", "Pct_Mg", "Pct_S", "Pct_Fe",
              "Pct_Mn", "Pct_Zn", "Pct_Cu", "Pct_B", "Pct_Mo", "Pct_Cl"})
            parts.push_back(value(name, choose_.number()));
        return element("CustomFertilizer", "", joined(parts, true));
    }

    std::mt19937& random_;
    SlipChooser choose_;
};

/// The sample packages, as they are.
const std::vector<std::string>& samples() {
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> names = {"32833106-536e-45df-80b2-d002cc92d33d",
                                          "3ce1268c-9c80-42e3-bfec-3fee8ed2305d",
                                          "f08db22f-d293-456a-b170-fab23d90fbac"};
        for (std::string& text : names) {
            std::ifstream file(test::inSources("examples/packages/") + text + ".xml",
                               std::ios::binary);
            text.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        }
        return names;
    }();
    return texts;
}

} // namespace

std::string slippedPackage(std::mt19937& random) {
    const std::size_t kind = random() % 16;
    if (kind == 0)
        return randomPackage(random);
    if (kind == 1)
        return mutated(samples()[random() % samples().size()], random);
    std::string bytes = Writer(random).package();
    return kind == 2 ? mutated(std::move(bytes), random) : bytes;
}

} // namespace test

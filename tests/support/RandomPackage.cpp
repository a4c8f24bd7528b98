#include "tests/support/RandomPackage.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "parser/internal/TagConstants.h"
#include "tests/support/Uuids.h"

namespace tag = qenxml::tag;

namespace test {

namespace {

class Writer {
public:
    explicit Writer(std::mt19937& random) : random_(random) {
        // In half of the packages nothing is damaged that makes reading fail.
        damage_ = oneIn(2) ? 0 : 30;
    }

    std::string package() {
        return (oneIn(2) ? "<?xml version='1.0' encoding='UTF-8'?>\n" : "") +
               element("RecPackage", "", list(3, &Writer::grower)) + (oneIn(40) ? "<more/>" : "");
    }

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    bool oneIn(std::size_t chance) { return below(chance) == 0; }
    bool damages() { return damage_ > 0 && oneIn(damage_); }

    template <class Value>
    const Value& oneOf(const std::vector<Value>& values) {
        return values[below(values.size())];
    }

    std::string identifier() {
        std::string text = to_string(uuid(static_cast<unsigned>(below(6))));
        if (damages())
            return oneOf<std::string>({"", "12", text.substr(1), text.substr(0, 35), "{" + text,
                                       "{" + text.substr(0, 20), text.substr(0, 13)});
        if (oneIn(20))
            return oneOf<std::string>({"{" + text + "}", text + " and more", "g" + text.substr(1),
                                       " " + text, text + "\n", text.substr(0, 35) + "\u00e9",
                                       "00112233445566778899AABBCCDDEEFF"});
        return text;
    }

    std::string name() {
        return oneOf<std::string>({"", "Nord", "S\u00fcd &amp; West", "a<!-- -->b"});
    }

    std::string number() {
        return oneOf<std::string>({"",      "0",           "1",           "12.5",  "-3",
                                   "12,5",  "abc",         "1e999",       "nan",   "-inf",
                                   "0x10",  "99999999999", " 7 ",         "1 000", "1e-999",
                                   "<b/>3", "2147483648",  "-2147483648", "+5",    "."});
    }

    std::string element(const std::string& name, const std::string& attributes,
                        const std::string& content) {
        if (content.empty() && oneIn(2))
            return "<" + name + attributes + "/>";
        return "<" + name + attributes + ">" + content + "</" + name + ">";
    }

    std::string attribute(const std::string& name, const std::string& value) {
        if (damages())
            return oneIn(2) ? "" : " " + name.substr(1) + "='" + value + "'";
        std::string text = " " + name + "='" + value + "'";
        if (oneIn(60))
            text += oneOf<std::string>({text, " other='1'", " xmlns='x'"});
        return text;
    }

    /// An element that may be missing, repeated or misspelt.
    std::string child(const std::string& name, const std::string& content, bool required = false) {
        if (required ? damages() : oneIn(12))
            return oneOf<std::string>({"", element(name.substr(1), "", content), "<x/>"});
        std::string text = element(name, "", content);
        if (oneIn(60))
            text += oneOf<std::string>({text, "stray", "<Remark/>", "<Rec/>"});
        return text;
    }

    std::string list(std::size_t most, std::string (Writer::*item)()) {
        std::string text;
        if (oneIn(20))
            text += oneOf<std::string>({"before", "<Other/>", "<grower/>"});
        for (std::size_t count = below(most + 1); count > 0; --count) {
            text += (this->*item)();
            if (damages())
                text += oneOf<std::string>({"after", "<After/>", "<![CDATA[ ]]>"});
        }
        return text;
    }

    std::string grower() {
        return element("Grower", attribute("GrowerID", identifier()),
                       child("GrowerName", name()) + list(3, &Writer::farm));
    }

    std::string farm() {
        const std::string tag = oneIn(100) ? "Hof" : "Farm";
        return element(tag, attribute("FarmID", identifier()),
                       child("FarmName", name()) + list(3, &Writer::field));
    }

    std::string field() {
        std::vector<std::string> parts = {
            child("FieldName", name()),
            child("FieldGeometryID", identifier(), true),
            child("FieldGeometryDate", "2026-01-01"),
            child("FieldGeometry", identifier(), true),
            child("FieldCentroid", child("Latitude", number()) + child("Longitude", number())),
            child("Recommendations", list(3, &Writer::rec))};
        return element("Field", attribute("FieldID", identifier()), shuffled(std::move(parts)));
    }

    std::string rec() {
        const std::string zone =
            oneIn(3) ? attribute("MgmtZoneID", oneIn(2) ? "" : identifier()) : "";
        std::vector<std::string> parts = {
            child("RecName", name()),
            child("RecGeometry", identifier(), true),
            child("CreationDate", "2026"),
            child("EditDate", ""),
            child("RecDBFCol", "RATE"),
            oneIn(2)
                ? element("Operation", attribute("OpID", identifier()), child("OpName", name()))
                : "",
            oneIn(2)
                ? element("Season", attribute("SeasonID", oneOf<std::string>({"1", "-2", "x", ""})),
                          child("SeasonName", name()))
                : "",
            child("RecData", recData()),
            child("RecStats", statistics())};
        return element("Rec", zone + attribute("RecID", identifier()), shuffled(std::move(parts)));
    }

    std::string recData() {
        const std::string before = oneIn(20) ? "text" : "";
        const std::string after = oneIn(20) ? "<Planting/>" : "";
        const std::vector<std::string> planting = {"CropID",      "CropName",  "CompanyID",
                                                   "CompanyName", "VarietyID", "VarietyName"};
        const std::vector<std::string> blend = {
            "SFertT_ID", "SpGravity", "Pct_N",  "Pct_P",  "Pct_K", "Pct_Ca", "Pct_Mg", "Pct_S",
            "Pct_Fe",    "Pct_Mn",    "Pct_Zn", "Pct_Cu", "Pct_B", "Pct_Mo", "Pct_Cl"};
        const std::string name = oneOf<std::string>(
            {"Planting", "CommercialFertilizer", "CustomFertilizer", "Pesticide", "planting"});
        std::vector<std::string> names = {"ProductName", "UOMID", "UOM"};
        if (name == "Planting" || oneIn(30))
            names.insert(names.end(), planting.begin(), planting.end());
        if (name == "CustomFertilizer" || oneIn(30))
            names.insert(names.end(), blend.begin(), blend.end());
        const bool complete = !oneIn(3);
        std::vector<std::string> parts;
        parts.reserve(names.size() + 1);
        for (const std::string& part : names)
            parts.push_back(complete ? element(part, "", number()) : child(part, number()));
        // While a blend is incomplete, its identifier does not matter.
        parts.push_back(element("ProductID", "", !complete && oneIn(4) ? "4711" : identifier()));
        return before + element(name, "", shuffled(std::move(parts))) + after;
    }

    std::string statistics() {
        std::string text;
        for (const std::string part :
             {"MinimumRate", "MaximumRate", "AverageRate", "RateUOMID", "RateUOM", "Total",
              "TotalUOMID", "TotalUOM", "Area", "AreaUOMID", "AreaUOM"})
            text += child(part, number());
        return text;
    }

    std::string shuffled(std::vector<std::string> parts) {
        if (oneIn(4))
            std::shuffle(parts.begin(), parts.end(), random_);
        std::string text;
        for (const std::string& part : parts)
            text += part + (oneIn(3) ? "\n" : "");
        return text;
    }

    std::mt19937& random_;
    std::size_t damage_ = 0;
};

} // namespace

std::string randomPackage(std::mt19937& random) {
    return Writer(random).package();
}

std::string mutated(std::string text, std::mt19937& random) {
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (std::size_t count = 1 + below(3); count > 0; --count) {
        const std::size_t place = below(text.size() + 1);
        const std::size_t length = std::min(text.size() - place, below(40));
        const std::string piece = text.substr(place, length);
        switch (below(6)) {
        case 0:
            text.erase(place, length);
            break;
        case 1:
            text.insert(below(text.size() + 1), piece);
            break;
        case 2:
            text.insert(place, 1, static_cast<char>(below(256)));
            break;
        case 3:
            text.insert(place, tag::all[below(tag::all.size())]);
            break;
        case 4: { // a whole line, or element, where there are such
            const std::size_t end = text.find('>', place);
            if (end != std::string::npos)
                text.erase(place, end - place);
            break;
        }
        default:
            if (place < text.size())
                text[place] = static_cast<char>(below(128));
            break;
        }
    }
    return text;
}

} // namespace test

#include "tests/support/RandomPackage.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "parser/internal/PackageElements.h"
#include "parser/internal/TagConstants.h"
#include "tests/support/Uuids.h"

namespace tag = qenxml::tag;
using qenxml::format::Datum;
using qenxml::format::Element;
using qenxml::format::Kind;
using qenxml::format::Need;

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
               element("RecPackage", "",
                       contentOf(qenxml::format::elementOf<qenxml::format::recPackage>)) +
               (oneIn(40) ? "<more/>" : "");
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

    static std::string nameOf(qenxml::TagName name) {
        static const qenxml::TagNames names;
        return names.*name;
    }

    std::string valueOf(const Datum& datum) {
        switch (datum.kind) {
        case Kind::Identifier:
            return datum.need == Need::Optional && oneIn(2) ? "" : identifier();
        case Kind::Integer:
        case Kind::Number:
            return number();
        default:
            return name();
        }
    }

    std::string attributesOf(const Element& format) {
        std::string text;
        for (const Datum& datum : format.attributes)
            if (datum.kind != Kind::Identifier || datum.need == Need::Mandatory || oneIn(3))
                text += attribute(nameOf(datum.name), valueOf(datum));
        return text;
    }

    std::string contentOf(const Element& format) {
        std::vector<std::string> parts;
        for (const Datum& datum : format.values)
            parts.push_back(
                child(nameOf(datum.name), valueOf(datum), datum.need == Need::Mandatory));
        for (const Element* part : format.parts)
            parts.push_back(partOf(*part));
        std::string text = shuffled(std::move(parts));
        if (format.item == nullptr)
            return text;
        if (oneIn(20))
            text += oneOf<std::string>({"before", "<Other/>", "<grower/>"});
        for (std::size_t count = below(4); count > 0; --count) {
            const std::string name = oneIn(100) ? "Other" : nameOf(format.item->name);
            text += element(name, attributesOf(*format.item), contentOf(*format.item));
            if (damages())
                text += oneOf<std::string>({"after", "<After/>", "<![CDATA[ ]]>"});
        }
        return text;
    }

    std::string partOf(const Element& format) {
        const std::string name = nameOf(format.name);
        if (format.attributes.size() > 0)
            return oneIn(2) ? element(name, attributesOf(format), contentOf(format)) : "";
        const bool ofProducts = format.parts.size() > 0 && (*format.parts.begin())->isProduct;
        return child(name, ofProducts ? oneOfProducts(format) : contentOf(format));
    }

    std::string oneOfProducts(const Element& recData) {
        const std::string before = oneIn(20) ? "text" : "";
        const std::string after = oneIn(20) ? "<Planting/>" : "";
        const Element& format = *recData.parts.begin()[below(recData.parts.size())];
        const std::string name =
            oneIn(4) ? oneOf<std::string>({"Pesticide", "planting"}) : nameOf(format.name);
        const bool complete = !oneIn(3);
        std::vector<std::string> parts;
        for (const Datum& datum : format.values) {
            // While a blend is incomplete, its identifier does not matter.
            const bool wrong = datum.kind == Kind::Identifier && !complete && oneIn(4);
            const std::string value = wrong ? "4711" : valueOf(datum);
            parts.push_back(complete ? element(nameOf(datum.name), "", value)
                                     : child(nameOf(datum.name), value));
        }
        return before + element(name, "", shuffled(std::move(parts))) + after;
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

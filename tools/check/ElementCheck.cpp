#include "tools/check/ElementCheck.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include <fmt/format.h>

#include "tools/check/NameCounts.h"
#include "tools/check/TextCheck.h"
#include "tools/text/Escape.h"
#include "tools/text/NameSuggestion.h"
#include "tools/text/Words.h"

namespace {

using Details = CheckReport::Details;

/// Whether an attribute means something to XML itself, so that nobody expects it to be read.
bool belongsToXml(std::string_view attribute) {
    const auto startsWith = [&](std::string_view beginning) {
        return attribute.substr(0, beginning.size()) == beginning;
    };
    return attribute == "xmlns" || startsWith("xmlns:") || startsWith("xml:") || startsWith("xsi:");
}

/// The names of data that are not there.
///
/// @param isThere tells that of a name
template <class IsThere>
std::vector<const char*> absentNames(const std::vector<DatumFormat>& formats, IsThere isThere) {
    std::vector<const char*> names;
    for (const DatumFormat& format : formats) {
        if (!isThere(format.name))
            names.push_back(format.name);
    }
    return names;
}

/// @param next where it is looked for first: most packages have their names in the same order
const DatumFormat* find(const std::vector<DatumFormat>& formats, const char* name,
                        std::size_t next = 0) {
    for (std::size_t i = next; i < formats.size(); ++i) {
        if (std::strcmp(formats[i].name, name) == 0)
            return &formats[i];
    }
    for (std::size_t i = 0; i < next; ++i) {
        if (std::strcmp(formats[i].name, name) == 0)
            return &formats[i];
    }
    return nullptr;
}

/// Whether a value has nothing that its characters could be odd by: no control characters, of one
/// byte or of two, and no references.
bool isPlain(std::string_view written) {
    // All are counted, which processors do for many at a time.
    return std::count_if(written.begin(), written.end(), [](char c) {
               const auto byte = static_cast<unsigned char>(c);
               return byte < ' ' || byte == '&' || byte == 0x7F || byte == 0xC2;
           }) == 0;
}

/// Numbers the children of an element among those of the same name.
class Numbering {
public:
    explicit Numbering(const ElementFormat& format)
        : format_(format), data_(format.children.size()) {}

    /// @param datum what the node is, null when it is no child that is there once
    std::size_t next(pugi::xml_node node, const DatumFormat* datum) {
        if (datum != nullptr)
            return ++data_[static_cast<std::size_t>(datum - format_.children.data())];
        const bool item =
            format_.item != nullptr && std::string_view(format_.item->name) == node.name();
        return item ? ++items_ : others_.next(node.name());
    }

private:
    const ElementFormat& format_;
    std::vector<std::size_t> data_;
    std::size_t items_ = 0;
    NameCounts others_;
};

/// The names that a misspelt child may stand for: those of the items of the list, and those that
/// are not there already. They are looked for once, as there may be many such children.
class AbsentNames {
public:
    AbsentNames(const ElementFormat& format, pugi::xml_node node) : format_(format), node_(node) {}

    const std::vector<const char*>& names() {
        if (!names_) {
            names_ = absentNames(format_.children,
                                 [&](const char* name) { return !node_.child(name).empty(); });
            if (format_.item != nullptr)
                names_->push_back(format_.item->name);
        }
        return *names_;
    }

private:
    const ElementFormat& format_;
    pugi::xml_node node_;
    std::optional<std::vector<const char*>> names_;
};

} // namespace

bool isText(pugi::xml_node node) {
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

void ElementCheck::missingIdentifiers(const ElementFormat& format, pugi::xml_node node) {
    for (const DatumFormat& datum : format.attributes) {
        if (!datum.fault || datum.mayBeEmpty || node.attribute(datum.name))
            continue;
        report_.add(*datum.fault, node, "", [&] {
            std::string found =
                fmt::format("{} has no attribute {}", escapeExcerpt(node.name()), datum.name);
            if (node.child(datum.name))
                found += "; an element of that name is not read";
            for (const pugi::xml_attribute other : node.attributes()) {
                if (find(format.attributes, other.name()) == nullptr &&
                    !nearestName(other.name(), {datum.name}).empty())
                    found += fmt::format("; {} is not read", quoted(other.name()));
            }
            return Details{found};
        });
    }
    for (const DatumFormat& datum : format.children) {
        if (!datum.fault || node.child(datum.name))
            continue;
        report_.add(*datum.fault, node, "", [&] {
            const bool asAttribute = !node.attribute(datum.name).empty();
            return Details{
                fmt::format("{} has no element {}{}", escapeExcerpt(node.name()), datum.name,
                            asAttribute ? "; an attribute of that name is not read" : "")};
        });
    }
}

void ElementCheck::children(const ElementFormat& format, pugi::xml_node node,
                            const std::function<void(const DatumFormat&, pugi::xml_node)>& onChild,
                            const std::function<void(pugi::xml_node, std::size_t)>& onItem) {
    const pugi::xml_node firstItem =
        format.item == nullptr ? pugi::xml_node() : node.child(format.item->name);
    Numbering numbering(format);
    AbsentNames absent(format, node);
    bool inList = false;
    std::size_t next = 0;
    for (const pugi::xml_node child : node.children()) {
        inList = inList || child == firstItem;
        const DatumFormat* const datum = find(format.children, child.name(), next);
        if (datum != nullptr)
            next = static_cast<std::size_t>(datum - format.children.data()) + 1;
        const std::size_t number = numbering.next(child, datum);
        if (inList)
            onItem(child, number);
        else if (child.type() != pugi::node_element)
            strayText(format, child);
        else if (datum == nullptr)
            unknownElement(format, child, number, absent.names(), !firstItem.empty());
        else if (number > 1)
            repeatedElement(child, number);
        else
            onChild(*datum, child);
    }
}

void ElementCheck::attributes(const std::vector<DatumFormat>& known, pugi::xml_node node,
                              const std::function<void(pugi::xml_attribute)>& onKnown) {
    if (!node.first_attribute())
        return;
    std::optional<std::vector<const char*>> absent;
    std::vector<bool> seen(known.size());
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const DatumFormat* const datum = find(known, attribute.name());
        if (datum == nullptr) {
            if (!absent)
                absent = absentNames(
                    known, [&](const char* name) { return !node.attribute(name).empty(); });
            unknownAttribute(node, attribute, nearestName(attribute.name(), *absent));
            continue;
        }
        const auto index = static_cast<std::size_t>(datum - known.data());
        if (seen[index]) {
            repeatedAttribute(node, attribute);
            continue;
        }
        seen[index] = true;
        if (onKnown)
            onKnown(attribute);
        read(*datum, attribute.value(), report_.source().extent(node, attribute),
             std::string("@") += attribute.name(), true);
    }
}

/// Checks a value and its characters.
///
/// @param markup whether references in it are followed
void ElementCheck::read(const DatumFormat& datum, const char* value, Extent extent,
                        std::string_view step, bool markup) {
    const std::string_view written = report_.source().text().substr(extent.offset, extent.length);
    if (isPlain(written)) {
        values_.check(datum, value, extent, step);
        return;
    }
    report_.inOrder([&] {
        if (markup)
            checkReferences(report_, extent, value, step);
        checkCharacters(report_, extent, step);
        values_.check(datum, value, extent, step);
    });
}

void ElementCheck::repeatedAttribute(pugi::xml_node node, pugi::xml_attribute attribute) {
    report_.add(FindingCode::RepeatedAttribute, nameExtent(node, attribute),
                fmt::format("@{}", attribute.name()), [&] {
                    return Details{fmt::format("{} is repeated", attribute.name()),
                                   Dropped{escapeExcerpt(attribute.value())}};
                });
}

void ElementCheck::unknownAttribute(pugi::xml_node node, pugi::xml_attribute attribute,
                                    std::string_view nearest) {
    const std::string_view name = attribute.name();
    if (belongsToXml(name))
        return;
    const FindingCode code =
        nearest.empty() ? FindingCode::UnknownAttribute : FindingCode::MisspeltAttribute;
    report_.add(code, nameExtent(node, attribute), fmt::format("@{}", name), [&] {
        const std::string places = nearest.empty() ? locationsOf(name) : "";
        std::string found =
            fmt::format("{} is no attribute of {}", quoted(name), escapeExcerpt(node.name()));
        if (!nearest.empty())
            found += fmt::format("; is {} meant?", nearest);
        if (!places.empty())
            found += fmt::format("; it is read {}", places);
        return Details{found, Dropped{escapeExcerpt(attribute.value())}};
    });
}

void ElementCheck::unknownElement(const ElementFormat& format, pugi::xml_node node,
                                  std::size_t number, const std::vector<const char*>& absent,
                                  bool beforeList) {
    const std::string_view name = node.name();
    const std::string places = locationsOf(name);
    const std::string_view nearest = !places.empty() ? "" : nearestName(name, absent);
    const bool isItem =
        format.item != nullptr &&
        (nearest == format.item->name || node.attribute(format.item->attributes.front().name));
    const FindingCode code = isItem && beforeList ? FindingCode::BeforeList
                             : !nearest.empty()   ? FindingCode::MisspeltElement
                             : !places.empty()    ? FindingCode::MisplacedElement
                                                  : FindingCode::UnknownElement;
    report_.add(code, node, pathStep(node.name(), number), [&] {
        std::string found = fmt::format("{} is not read in {}", quoted(name), format.name);
        if (!nearest.empty())
            found += fmt::format("; is {} meant?", nearest);
        if (!places.empty())
            found += fmt::format(", but {}", places);
        return Details{found, Dropped{escapeExcerpt(name)}};
    });
}

void ElementCheck::repeatedElement(pugi::xml_node node, std::size_t number) {
    report_.add(FindingCode::RepeatedElement, node, pathStep(node.name(), number), [&] {
        return Details{fmt::format("{} is repeated", node.name()), Dropped{node.name()}};
    });
}

void ElementCheck::strayText(const ElementFormat& format, pugi::xml_node text) {
    report_.add(FindingCode::StrayText, text, "text()", [&] {
        return Details{fmt::format("the text {} stands in {}, which holds elements only",
                                   quotedText(text.value()), format.name),
                       Dropped{escapeExcerpt(trimmed(text.value()))}};
    });
}

void ElementCheck::value(const DatumFormat& datum, pugi::xml_node node) {
    const CheckReport::Inside inside(report_, node.name());
    const pugi::xml_node held = node.text().data(); // the first text
    const SourceText& source = report_.source();
    const auto readHeld = [&] {
        // In a CDATA section, "&" is a letter.
        read(datum, held.value(), source.wholeText(held), "", held.type() == pugi::node_pcdata);
    };
    // In the order of the file: what is said of a text that is not there, is said of the element.
    if (!held)
        values_.check(datum, "", source.extent(node), "");
    attributes({}, node);
    if (held && held == node.first_child())
        readHeld();
    cutOffText(node);
    if (held && held != node.first_child())
        readHeld();
}

void ElementCheck::cutOffText(pugi::xml_node node) {
    const pugi::xml_node first = node.first_child();
    const pugi::xml_node rest = isText(first) ? first.next_sibling() : first;
    if (!rest)
        return;
    report_.add(FindingCode::TextCutOff, rest, "", [&] {
        const std::string what =
            isText(rest) ? fmt::format("its text goes on with {}", quotedText(rest.value()))
                         : fmt::format("it holds the element {}", quoted(rest.name()));
        return Details{fmt::format("{} is more than one piece of text: {}", node.name(), what),
                       ReadAs{escapeExcerpt(node.text().as_string())}};
    });
}

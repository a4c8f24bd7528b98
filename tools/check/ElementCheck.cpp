#include "tools/check/ElementCheck.h"

#include <algorithm>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/Escape.h"
#include "tools/Utf8.h"
#include "tools/check/IdentifierReading.h"
#include "tools/check/NameSuggestion.h"

namespace {

using Texts = CheckReport::Texts;

/// Whether an attribute means something to XML itself, so that nobody expects it to be read.
bool belongsToXml(std::string_view attribute) {
    const auto startsWith = [&](std::string_view beginning) {
        return attribute.substr(0, beginning.size()) == beginning;
    };
    return attribute == "xmlns" || startsWith("xmlns:") || startsWith("xml:") || startsWith("xsi:");
}

std::vector<const char*> namesOf(const std::vector<DatumFormat>& formats) {
    std::vector<const char*> names;
    names.reserve(formats.size() + 1);
    for (const DatumFormat& format : formats)
        names.push_back(format.name);
    return names;
}

/// The offset of a place in a value, if the value stands in the source as it is read.
std::size_t placeIn(const SourceText& source, std::size_t offset, std::string_view value,
                    std::size_t place) {
    const std::string_view before = value.substr(0, place);
    return source.text().substr(offset, before.size()) == before ? offset + place : offset;
}

std::string quoted(std::string_view text) {
    return fmt::format("\"{}\"", escapeExcerpt(text));
}

} // namespace

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view whiteSpace = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(whiteSpace), text.size());
    return text.substr(begin, text.find_last_not_of(whiteSpace) + 1 - begin);
}

bool isText(pugi::xml_node node) {
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

std::string ElementCheck::step(const char* name, std::size_t number) {
    return number > 1 ? fmt::format("{}[{}]", name, number) : name;
}

const DatumFormat* ElementCheck::find(const std::vector<DatumFormat>& formats, const char* name) {
    for (const DatumFormat& format : formats) {
        if (std::string_view(format.name) == name)
            return &format;
    }
    return nullptr;
}

void ElementCheck::missingIdentifiers(const ElementFormat& format, pugi::xml_node node) {
    for (const DatumFormat& datum : format.attributes) {
        if (!datum.fault || datum.mayBeEmpty || node.attribute(datum.name))
            continue;
        report_.add(*datum.fault, report_.source().offset(node), "", [&] {
            std::string found =
                fmt::format("{} has no attribute {}", escapeExcerpt(node.name()), datum.name);
            if (node.child(datum.name))
                found += "; an element of that name is not read";
            for (const pugi::xml_attribute other : node.attributes()) {
                if (find(format.attributes, other.name()) == nullptr &&
                    !nearestName(other.name(), {datum.name}).empty())
                    found += fmt::format("; {} is not read", quoted(other.name()));
            }
            return Texts{found, ""};
        });
    }
    for (const DatumFormat& datum : format.children) {
        if (!datum.fault || node.child(datum.name))
            continue;
        report_.add(*datum.fault, report_.source().offset(node), "", [&] {
            const bool asAttribute = !node.attribute(datum.name).empty();
            return Texts{fmt::format("{} has no element {}{}", escapeExcerpt(node.name()),
                                     datum.name,
                                     asAttribute ? "; an attribute of that name is not read" : ""),
                         ""};
        });
    }
}

void ElementCheck::attributes(const std::vector<DatumFormat>& known, pugi::xml_node node) {
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const DatumFormat* const datum = find(known, attribute.name());
        if (datum == nullptr) {
            unknownAttribute(known, node, attribute);
            continue;
        }
        const std::string step = fmt::format("@{}", attribute.name());
        if (attribute != node.attribute(attribute.name())) {
            report_.add(FindingCode::RepeatedAttribute, nameOffset(node, attribute), step, [&] {
                return Texts{
                    fmt::format("{} is repeated", attribute.name()),
                    fmt::format("{} is ignored; the first one counts", quoted(attribute.value()))};
            });
        } else if (datum->kind == ValueKind::Identifier) {
            identifier(*datum, attribute.value(), valueOffset(node, attribute), step);
        } else {
            number(*datum, attribute.value(), valueOffset(node, attribute), step);
        }
    }
}

void ElementCheck::unknownAttribute(const std::vector<DatumFormat>& known, pugi::xml_node node,
                                    pugi::xml_attribute attribute) {
    const std::string_view name = attribute.name();
    if (belongsToXml(name))
        return;
    const std::string_view nearest = nearestName(name, namesOf(known));
    const FindingCode code =
        nearest.empty() ? FindingCode::UnknownAttribute : FindingCode::MisspeltAttribute;
    report_.add(code, nameOffset(node, attribute), fmt::format("@{}", name), [&] {
        const std::string places = nearest.empty() ? placesOf(name) : "";
        std::string found =
            fmt::format("{} is no attribute of {}", quoted(name), escapeExcerpt(node.name()));
        if (!nearest.empty())
            found += fmt::format("; is {} meant?", nearest);
        if (!places.empty())
            found += fmt::format("; it is read {}", places);
        return Texts{found, fmt::format("its value {} is ignored", quoted(attribute.value()))};
    });
}

void ElementCheck::unknownElement(const ElementFormat& format, pugi::xml_node node,
                                  std::size_t number, bool beforeList) {
    const std::string_view name = node.name();
    std::string places = placesOf(name);
    std::vector<const char*> names = namesOf(format.children);
    bool isItem = false;
    if (format.item != nullptr) {
        names.push_back(format.item->name);
        isItem = !node.attribute(format.item->attributes.front().name).empty();
    }
    const std::string_view nearest = !places.empty() ? "" : nearestName(name, names);
    isItem = isItem || (format.item != nullptr && nearest == format.item->name);
    const FindingCode code = isItem && beforeList ? FindingCode::BeforeList
                             : !nearest.empty()   ? FindingCode::MisspeltElement
                             : !places.empty()    ? FindingCode::MisplacedElement
                                                  : FindingCode::UnknownElement;
    report_.add(code, report_.source().offset(node), step(node.name(), number), [&] {
        std::string found = fmt::format("{} is not read in {}", quoted(name), format.name);
        if (!nearest.empty())
            found += fmt::format("; is {} meant?", nearest);
        if (!places.empty())
            found += fmt::format(", but {}", places);
        return Texts{found, "the element is skipped with everything in it"};
    });
}

void ElementCheck::repeatedElement(pugi::xml_node node, std::size_t number) {
    report_.add(FindingCode::RepeatedElement, report_.source().offset(node),
                step(node.name(), number), [&] {
                    return Texts{fmt::format("{} is repeated", node.name()),
                                 "the element is ignored with everything in it; the first one "
                                 "counts"};
                });
}

void ElementCheck::strayText(const ElementFormat& format, pugi::xml_node text) {
    report_.add(FindingCode::StrayText, report_.source().offset(text), "text()", [&] {
        return Texts{fmt::format("the text {} stands in {}, which holds elements only",
                                 quoted(trimmed(text.value())), format.name),
                     "the text is ignored"};
    });
}

void ElementCheck::value(const DatumFormat& datum, pugi::xml_node node) {
    const CheckReport::Inside inside(report_, node.name());
    attributes({}, node);
    text(node);
    // From the first text on, where there is one.
    std::size_t offset = report_.source().offset(node);
    for (const pugi::xml_node child : node.children()) {
        if (isText(child)) {
            offset = static_cast<std::size_t>(child.offset_debug());
            break;
        }
    }
    const char* const value = node.text().as_string();
    if (datum.kind == ValueKind::Identifier)
        identifier(datum, value, offset, "");
    else if (datum.kind == ValueKind::Integer || datum.kind == ValueKind::Number)
        number(datum, value, offset, "");
}

void ElementCheck::text(pugi::xml_node node) {
    const pugi::xml_node first = node.first_child();
    const pugi::xml_node rest = isText(first) ? first.next_sibling() : first;
    if (!rest)
        return;
    report_.add(FindingCode::TextCutOff, report_.source().offset(rest), "", [&] {
        const std::string what =
            isText(rest) ? fmt::format("its text goes on with {}", quoted(trimmed(rest.value())))
                         : fmt::format("it holds the element {}", quoted(rest.name()));
        return Texts{fmt::format("{} is more than one piece of text: {}", node.name(), what),
                     fmt::format("it is read as {}", quoted(node.text().as_string()))};
    });
}

void ElementCheck::identifier(const DatumFormat& datum, std::string_view text, std::size_t offset,
                              std::string_view step) {
    const IdentifierReading identifier = readIdentifier(text);
    const auto at = [&](std::size_t place) {
        return placeIn(report_.source(), offset, text, place);
    };
    if (identifier.fault != IdentifierReading::Fault::None) {
        if (datum.fault && !(datum.mayBeEmpty && text.empty()))
            report_.add(*datum.fault, at(identifier.faultPlace), step, [&] {
                return Texts{fmt::format("{} {}", datum.name, describeFault(identifier, text)), ""};
            });
        return;
    }
    const auto readAs = [&] {
        return fmt::format("it is read as {}", to_string(identifier.value));
    };
    if (identifier.wrongDigits > 0)
        report_.add(FindingCode::IdentifierDigit, at(identifier.wrongPlace), step, [&] {
            const std::string others =
                identifier.wrongDigits > 1
                    ? fmt::format(", nor are {} more", identifier.wrongDigits - 1)
                    : "";
            const std::string_view wrong = text.substr(identifier.wrongPlace);
            return Texts{fmt::format("{} {}: {} is no hexadecimal digit{}", datum.name,
                                     quoted(text),
                                     quoted(wrong.substr(0, firstCharacter(wrong).length)), others),
                         readAs()};
        });
    if (!identifier.ignored.empty())
        report_.add(FindingCode::IdentifierTrailing, at(text.size() - identifier.ignored.size()),
                    step, [&] {
                        return Texts{fmt::format("{} goes on with {} after its last digit",
                                                 datum.name, quoted(identifier.ignored)),
                                     "that is ignored; " + readAs()};
                    });
    const bool nilHasMeaning = datum.mayBeEmpty || datum.fault == FindingCode::OperationId;
    if (identifier.value.is_nil() && !nilHasMeaning)
        report_.add(FindingCode::NilIdentifier, offset, step, [&] {
            return Texts{fmt::format("{} is nil, which stands for \"none\"", datum.name),
                         "hosts cannot tell it from an identifier that is not there"};
        });
}

void ElementCheck::number(const DatumFormat& datum, const char* text, std::size_t offset,
                          std::string_view step) {
    using Oddity = NumberReading::Oddity;
    const NumberReading number =
        datum.kind == ValueKind::Integer ? readInteger(text) : readNumber(text);
    const auto add = [&](FindingCode code, const char* what) {
        report_.add(code, placeIn(report_.source(), offset, text, number.place), step, [&] {
            const std::string value = *text == '\0' ? "" : " " + quoted(text);
            return Texts{fmt::format("{}{} {}", datum.name, value, what),
                         fmt::format("{}it is read as {}", condition_, number.read)};
        });
    };
    switch (number.oddity) {
    case Oddity::None:
        return;
    case Oddity::Empty:
        return add(FindingCode::NumberEmpty, "is empty");
    case Oddity::NotANumber:
        return add(FindingCode::NotANumber, "is not a number");
    case Oddity::CutOff:
        return add(FindingCode::NumberCutOff,
                   text[number.place] == ','   ? "has a comma, where the number ends"
                   : text[number.place] == '.' ? "is not a whole number"
                                               : "goes on after the number");
    case Oddity::OutOfRange:
        return add(FindingCode::NumberOutOfRange, "is out of range");
    case Oddity::NotFinite:
        return add(FindingCode::NumberNotFinite, "is not a finite number");
    case Oddity::Hexadecimal:
        return add(FindingCode::NumberHexadecimal, "is a hexadecimal number");
    }
}

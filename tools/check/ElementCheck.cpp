#include "tools/check/ElementCheck.h"

#include <algorithm>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/check/IdentifierReading.h"
#include "tools/check/ValuePlace.h"
#include "tools/text/Escape.h"
#include "tools/text/NameSuggestion.h"
#include "tools/text/Utf8.h"

namespace {

using Texts = CheckReport::Texts;

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

/// A text without the white space around it.
std::string_view trimmed(std::string_view text) {
    constexpr std::string_view whiteSpace = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(whiteSpace), text.size());
    return text.substr(begin, text.find_last_not_of(whiteSpace) + 1 - begin);
}

std::string quoted(std::string_view text) {
    return fmt::format("\"{}\"", escapeExcerpt(text));
}

} // namespace

std::string quotedText(std::string_view text) {
    const std::string_view inner = trimmed(text);
    return quoted(inner.empty() ? text : inner);
}

bool isText(pugi::xml_node node) {
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
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

const std::vector<const char*>& ElementCheck::AbsentNames::names() {
    if (!names_) {
        names_ = absentNames(format_.children,
                             [&](const char* name) { return !node_.child(name).empty(); });
        if (format_.item != nullptr)
            names_->push_back(format_.item->name);
    }
    return *names_;
}

void ElementCheck::attributes(const std::vector<DatumFormat>& known, pugi::xml_node node,
                              const std::function<void(pugi::xml_attribute)>& onKnown) {
    const std::vector<const char*> absent =
        absentNames(known, [&](const char* name) { return !node.attribute(name).empty(); });
    std::vector<bool> seen(known.size());
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const DatumFormat* const datum = find(known, attribute.name());
        if (datum == nullptr) {
            unknownAttribute(node, attribute, nearestName(attribute.name(), absent));
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
        reading(*datum, attribute.value(), valueOffset(node, attribute),
                fmt::format("@{}", attribute.name()));
    }
}

void ElementCheck::repeatedAttribute(pugi::xml_node node, pugi::xml_attribute attribute) {
    report_.add(FindingCode::RepeatedAttribute, nameOffset(node, attribute),
                fmt::format("@{}", attribute.name()), [&] {
                    return Texts{fmt::format("{} is repeated", attribute.name()),
                                 fmt::format("{} is ignored; the first one counts",
                                             quoted(attribute.value()))};
                });
}

void ElementCheck::unknownAttribute(pugi::xml_node node, pugi::xml_attribute attribute,
                                    std::string_view nearest) {
    const std::string_view name = attribute.name();
    if (belongsToXml(name))
        return;
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
                                  std::size_t number, const std::vector<const char*>& absent,
                                  bool beforeList) {
    const std::string_view name = node.name();
    const std::string places = placesOf(name);
    const std::string_view nearest = !places.empty() ? "" : nearestName(name, absent);
    const bool isItem =
        format.item != nullptr &&
        (nearest == format.item->name || node.attribute(format.item->attributes.front().name));
    const FindingCode code = isItem && beforeList ? FindingCode::BeforeList
                             : !nearest.empty()   ? FindingCode::MisspeltElement
                             : !places.empty()    ? FindingCode::MisplacedElement
                                                  : FindingCode::UnknownElement;
    report_.add(code, report_.source().offset(node), pathStep(node.name(), number), [&] {
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
                pathStep(node.name(), number), [&] {
                    return Texts{fmt::format("{} is repeated", node.name()),
                                 "the element is ignored with everything in it; the first one "
                                 "counts"};
                });
}

void ElementCheck::strayText(const ElementFormat& format, pugi::xml_node text) {
    report_.add(FindingCode::StrayText, report_.source().offset(text), "text()", [&] {
        return Texts{fmt::format("the text {} stands in {}, which holds elements only",
                                 quotedText(text.value()), format.name),
                     "the text is ignored"};
    });
}

void ElementCheck::value(const DatumFormat& datum, pugi::xml_node node) {
    const CheckReport::Inside inside(report_, node.name());
    const pugi::xml_node held = node.text().data(); // the first text
    const auto readHeld = [&] {
        const std::size_t offset =
            held ? static_cast<std::size_t>(held.offset_debug()) : report_.source().offset(node);
        reading(datum, held.value(), offset, "");
    };
    // In the order of their places: what is said of a text that is not there, is said of the
    // element.
    if (!held)
        readHeld();
    attributes({}, node);
    if (held && held == node.first_child())
        readHeld();
    cutOffText(node);
    if (held && held != node.first_child())
        readHeld();
}

void ElementCheck::reading(const DatumFormat& datum, const char* text, std::size_t offset,
                           std::string_view step) {
    if (datum.kind == qenxml::format::Kind::Identifier)
        identifier(datum, text, offset, step);
    else if (datum.kind == qenxml::format::Kind::Integer ||
             datum.kind == qenxml::format::Kind::Number)
        number(datum, text, offset, step);
}

void ElementCheck::cutOffText(pugi::xml_node node) {
    const pugi::xml_node first = node.first_child();
    const pugi::xml_node rest = isText(first) ? first.next_sibling() : first;
    if (!rest)
        return;
    report_.add(FindingCode::TextCutOff, report_.source().offset(rest), "", [&] {
        const std::string what =
            isText(rest) ? fmt::format("its text goes on with {}", quotedText(rest.value()))
                         : fmt::format("it holds the element {}", quoted(rest.name()));
        return Texts{fmt::format("{} is more than one piece of text: {}", node.name(), what),
                     fmt::format("it is read as {}", quoted(node.text().as_string()))};
    });
}

void ElementCheck::identifier(const DatumFormat& datum, std::string_view text, std::size_t offset,
                              std::string_view step) {
    const IdentifierReading identifier = readIdentifier(text);
    const auto at = [&](std::size_t place) {
        return placeOfValue(report_.source().text(), offset, place);
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
    const bool nilHasMeaning = datum.mayBeEmpty || datum.fault == FindingCode::OperationId;
    if (identifier.value.is_nil() && !nilHasMeaning)
        report_.add(FindingCode::NilIdentifier, offset, step, [&] {
            return Texts{fmt::format("{} is nil, which stands for \"none\"", datum.name),
                         "hosts cannot tell it from an identifier that is not there"};
        });
    if (identifier.wrongDigits > 0)
        report_.add(FindingCode::IdentifierDigit, at(identifier.wrongPlace), step, [&] {
            const std::string others =
                identifier.wrongDigits > 1
                    ? fmt::format(", nor {} {} more", identifier.wrongDigits == 2 ? "is" : "are",
                                  identifier.wrongDigits - 1)
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
}

void ElementCheck::number(const DatumFormat& datum, const char* text, std::size_t offset,
                          std::string_view step) {
    using Oddity = NumberReading::Oddity;
    const NumberReading number =
        datum.kind == qenxml::format::Kind::Integer ? readInteger(text) : readNumber(text);
    const auto add = [&](FindingCode code, const char* what) {
        const std::size_t place = placeOfValue(report_.source().text(), offset, number.place);
        report_.add(code, place, step, [&] {
            const std::string value = *text == '\0' ? "" : " " + quotedText(text);
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

#include "tools/check/ValueCheck.h"

#include <algorithm>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/check/IdentifierReading.h"
#include "tools/check/NumberReading.h"
#include "tools/check/ValueOffset.h"
#include "tools/text/Utf8.h"
#include "tools/text/Words.h"

using Details = CheckReport::Details;

void ValueCheck::check(const DatumFormat& datum, const char* text, Extent extent,
                       std::string_view step) {
    if (datum.kind == qenxml::format::Kind::Identifier)
        identifier(datum, text, extent, step);
    else if (datum.kind == qenxml::format::Kind::Integer ||
             datum.kind == qenxml::format::Kind::Number)
        number(datum, text, extent, step);
}

/// Where some bytes of a value stand.
///
/// @param extent where the value stands, or its element when there is none
Extent ValueCheck::partOf(Extent extent, std::string_view value, std::size_t index,
                          std::size_t length) const {
    if (value.empty())
        return extent;
    const std::string_view source = report_.source().text();
    const std::size_t begin = sourceOffset(source, extent.offset, index);
    return {begin, sourceOffset(source, extent.offset, index + length) - begin};
}

/// As above, up to the white space at the end of the value.
Extent ValueCheck::restOf(Extent extent, std::string_view value, std::size_t index) const {
    const std::size_t end = value.find_last_not_of(" \t\r\n") + 1;
    return partOf(extent, value, index, std::max(end, index) - index);
}

void ValueCheck::identifier(const DatumFormat& datum, std::string_view text, Extent extent,
                            std::string_view step) {
    const IdentifierReading identifier = readIdentifier(text);
    if (identifier.fault != IdentifierReading::Fault::None) {
        if (datum.fault && !(datum.mayBeEmpty && text.empty()))
            report_.add(*datum.fault, restOf(extent, text, identifier.faultOffset), step, [&] {
                return Details{fmt::format("{} {}", datum.name, describeFault(identifier, text))};
            });
        return;
    }
    const auto readAs = [&] { return ReadAs{to_string(identifier.value)}; };
    const bool nilHasMeaning = datum.mayBeEmpty || datum.fault == FindingCode::OperationId;
    if (identifier.value.is_nil() && !nilHasMeaning)
        report_.add(FindingCode::NilIdentifier, restOf(extent, text, 0), step, [&] {
            return Details{fmt::format("{} is nil, which stands for \"none\"", datum.name), Kept{}};
        });
    if (identifier.wrongDigits > 0) {
        const std::string_view wrong = text.substr(identifier.wrongOffset);
        const std::size_t length = firstCharacter(wrong).length;
        report_.add(FindingCode::IdentifierDigit,
                    partOf(extent, text, identifier.wrongOffset, length), step, [&] {
                        const std::string others =
                            identifier.wrongDigits > 1
                                ? fmt::format(", nor {} {} more",
                                              identifier.wrongDigits == 2 ? "is" : "are",
                                              identifier.wrongDigits - 1)
                                : "";
                        return Details{fmt::format("{} {}: {} is no hexadecimal digit{}",
                                                   datum.name, quoted(text),
                                                   quoted(wrong.substr(0, length)), others),
                                       readAs()};
                    });
    }
    if (!identifier.ignored.empty())
        report_.add(FindingCode::IdentifierTrailing,
                    restOf(extent, text, text.size() - identifier.ignored.size()), step, [&] {
                        return Details{fmt::format("{} goes on with {} after its last digit",
                                                   datum.name, quoted(identifier.ignored)),
                                       readAs()};
                    });
}

void ValueCheck::number(const DatumFormat& datum, const char* text, Extent extent,
                        std::string_view step) {
    using Fault = NumberReading::Fault;
    const bool whole = datum.kind == qenxml::format::Kind::Integer;
    if (isPlainNumber(text, whole))
        return;
    const NumberReading number = whole ? readInteger(text) : readNumber(text);
    const auto add = [&](FindingCode code, const char* what) {
        report_.add(code, restOf(extent, text, number.offset), step, [&] {
            const std::string value = *text == '\0' ? "" : " " + quotedText(text);
            return Details{fmt::format("{}{} {}", datum.name, value, what),
                           ReadAs{number.read(), incomplete_}};
        });
    };
    switch (number.fault) {
    case Fault::None:
        return;
    case Fault::Empty:
        return add(FindingCode::NumberEmpty, "is empty");
    case Fault::NotANumber:
        return add(FindingCode::NotANumber, "is not a number");
    case Fault::CutOff:
        return add(FindingCode::NumberCutOff,
                   text[number.offset] == ','   ? "has a comma, where the number ends"
                   : text[number.offset] == '.' ? "is not a whole number"
                                                : "goes on after the number");
    case Fault::OutOfRange:
        return add(FindingCode::NumberOutOfRange, "is out of range");
    case Fault::NotFinite:
        return add(FindingCode::NumberNotFinite, "is not a finite number");
    case Fault::Hexadecimal:
        return add(FindingCode::NumberHexadecimal, "is a hexadecimal number");
    }
}

#include "tools/check/FirstAid.h"

#include <algorithm>

#include <fmt/format.h>
#include <pugixml.hpp>

#include "tools/check/OpenElement.h"
#include "tools/check/OtherFormat.h"
#include "tools/text/Encoding.h"
#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"
#include "tools/text/Words.h"

namespace {

constexpr const char* copyAgain = "copy it again from where it came, or have it written once more";
constexpr const char* writeUtf8 = "have it written in UTF-8";

std::optional<FirstAid> emptiness(std::string_view text) {
    if (text.empty())
        return FirstAid{"the file is empty", copyAgain};
    if (afterMarkAndBlanks(text).empty())
        return FirstAid{"the file holds nothing but blanks", copyAgain};
    return std::nullopt;
}

/// Whether every second byte at the beginning is a zero, as in a text in UTF-16.
bool isUtf16(std::string_view text) {
    const std::string_view first = text.substr(0, 16);
    const std::size_t zero = first.find('\0');
    if (zero > 1 || first.size() < 4)
        return false;
    for (std::size_t i = 0; i < first.size(); ++i) {
        if ((first[i] == '\0') != (i % 2 == zero))
            return false;
    }
    return true;
}

/// Whether a text begins with a "<" of one byte, although two of its bytes were taken for one
/// character.
bool isOfSingleBytes(std::string_view text) {
    if (text.substr(0, byteOrderMark.size()) != byteOrderMark || text == byteOrderMark)
        return false;
    const char32_t pair = firstCharacter(text.substr(byteOrderMark.size())).codePoint;
    constexpr char32_t sign = '<';
    return pair > 0xFFU && pair <= 0xFFFFU && (pair >> 8U == sign || (pair & 0xFFU) == sign);
}

/// A text of which two bytes each were taken for one character, taken apart again.
std::string inSingleBytes(std::string_view text, bool bigEndian) {
    std::string bytes;
    for (text.remove_prefix(byteOrderMark.size()); !text.empty();) {
        const Utf8Character pair = firstCharacter(text);
        const auto high = static_cast<char>(pair.codePoint >> 8U & 0xFFU);
        const auto low = static_cast<char>(pair.codePoint & 0xFFU);
        bytes += {bigEndian ? high : low, bigEndian ? low : high};
        text.remove_prefix(pair.length);
    }
    return bytes;
}

/// What a declaration says that is not where it is looked for.
std::string describeDeclaration(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    const std::string_view name =
        declaredEncoding(std::string_view(text).substr(std::min(text.find('<'), text.size())));
    return name.empty() ? "" : fmt::format(", and declares {}", quoted(name));
}

/// Says that a file is in another encoding than its first bytes say, which are all that counts.
std::optional<FirstAid> wrongMark(std::string_view text) {
    constexpr std::size_t longestDeclaration = 400;
    const std::string_view first = text.substr(0, longestDeclaration);
    if (isUtf16(text))
        return FirstAid{"the file is in UTF-16, but it does not begin with the byte-order mark "
                        "that says so" +
                            describeDeclaration(std::string(first)),
                        writeUtf8};
    if (isOfSingleBytes(text))
        return FirstAid{"the file begins with the byte-order mark of UTF-16, but the text behind "
                        "it is in another encoding" +
                            describeDeclaration(inSingleBytes(first, false)) +
                            describeDeclaration(inSingleBytes(first, true)),
                        writeUtf8};
    return std::nullopt;
}

std::optional<FirstAid> zerosIn(std::string_view text, std::size_t fileSize) {
    const std::size_t first = text.find('\0');
    if (first == std::string_view::npos)
        return std::nullopt;
    const std::size_t end = std::min(text.find_first_not_of('\0', first), text.size());
    std::string zeros = "nothing but zeros";
    if (text.size() != fileSize)
        zeros = "zeros, of which no package has any"; // offsets are not those of the file
    else if (end < text.size())
        zeros += fmt::format(" from byte {} to byte {}", first + 1, end);
    else if (first > 0)
        zeros += fmt::format(" from byte {} on", first + 1);
    return FirstAid{fmt::format("the file holds {}: it was damaged in copying", zeros), copyAgain};
}

std::optional<FirstAid> noXml(std::string_view text) {
    if (afterMarkAndBlanks(text).front() == '<')
        return std::nullopt;
    return FirstAid{"the file is no XML: it does not begin with \"<\"", haveXmlWritten};
}

/// Whether all that is wrong with a text is that it ends where it does.
bool isCutOff(std::string_view text, const OpenMarkup& open) {
    std::string mended(text.substr(0, open.end));
    for (auto element = open.elements.rbegin(); element != open.elements.rend(); ++element)
        mended += "</" + element->name + ">";
    pugi::xml_document document;
    const pugi::xml_parse_status status =
        document.load_buffer(mended.data(), mended.size(), pugi::parse_default, pugi::encoding_utf8)
            .status;
    const bool isOpen = !open.elements.empty() || !open.unfinished.empty();
    return status == pugi::status_ok
               ? isOpen
               : status == pugi::status_no_document_element && open.elements.empty();
}

std::string describeEnd(const OpenMarkup& open) {
    const std::string within =
        open.unfinished.empty() ? "" : " in the middle of " + open.unfinished;
    return within + (open.elements.empty() ? " before the end of its root element"
                                           : " inside " + escapeExcerpt(open.elements.back().name));
}

std::optional<FirstAid> cutOff(std::string_view text, std::size_t fileSize) {
    const OpenMarkup open = openMarkup(text);
    if (!isCutOff(text, open))
        return std::nullopt;
    return FirstAid{
        fmt::format("the file is cut off: it ends after {} bytes,{}", fileSize, describeEnd(open)),
        copyAgain};
}

} // namespace

std::optional<FirstAid> firstAid(std::string_view text, std::size_t fileSize) {
    for (const auto& kind : {emptiness, otherFormat, wrongMark}) {
        if (auto found = kind(text))
            return found;
    }
    if (auto zeros = zerosIn(text, fileSize))
        return zeros;
    if (auto other = noXml(text))
        return other;
    return cutOff(text, fileSize);
}

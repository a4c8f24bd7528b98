#include "tools/check/EncodingCheck.h"

#include <locale>

#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>

#include "tools/text/Encoding.h"
#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"
#include "tools/text/Words.h"

namespace {

/// Where the first byte is that belongs to no character.
std::optional<std::size_t> firstInvalidByte(std::string_view text) {
    std::size_t offset = asciiLength(text);
    while (offset < text.size()) {
        const Utf8Character character = firstCharacter(text.substr(offset));
        if (!character.valid)
            return offset;
        offset += character.length;
        offset += asciiLength(text.substr(offset));
    }
    return std::nullopt;
}

} // namespace

std::string mistakenLetter(const std::string& bytes, pugi::xml_encoding encoding) {
    const std::size_t begin = encoding == pugi::encoding_latin1 ? asciiLength(bytes) : bytes.size();
    if (begin == bytes.size() || firstInvalidByte(bytes))
        return "";
    return bytes.substr(begin, firstCharacter(std::string_view(bytes).substr(begin)).length);
}

EncodingCheck::EncodingCheck(const SourceText& source)
    : source_(source),
      declared_(declaredEncoding(source.text())),
      invalidByte_(firstInvalidByte(source.text())) {}

bool EncodingCheck::declares(const char* name) const {
    return boost::algorithm::iequals(declared_, name, std::locale::classic());
}

/// Why a text is read as UTF-8.
std::string EncodingCheck::describeReading() const {
    if (declared_.empty())
        return "in which the file is read because it declares no encoding";
    if (declares("UTF-8"))
        return "in which the file is read as its declaration says";
    return fmt::format("in which the file is read although its declaration says {}",
                       quoted(declared_));
}

/// Whether a text with an invalid byte has no letter that is valid, but for those of ASCII.
bool EncodingCheck::isOfSingleBytes() const {
    std::string_view rest = source_.text();
    if (asciiLength(rest) != *invalidByte_)
        return false;
    while (!rest.empty()) {
        const Utf8Character character = firstCharacter(rest);
        if (character.length > 1)
            return false;
        rest.remove_prefix(1);
        rest.remove_prefix(asciiLength(rest));
    }
    return true;
}

void EncodingCheck::invalidUtf8(PlacedFindings& all) const {
    if (!invalidByte_)
        return;
    const bool names = declared_.empty() || declares("UTF-8");
    all.put(FindingCode::InvalidUtf8, {*invalidByte_, 1},
            fmt::format("the byte {} is not UTF-8, {}{}",
                        escape(source_.text().substr(*invalidByte_, 1)), describeReading(),
                        names && isOfSingleBytes()
                            ? "; it seems to be in an encoding such as windows-1252"
                            : ""));
}

void EncodingCheck::mistaken(const std::string& mistakenLetter, const SecondReading& second,
                             PlacedFindings& all) const {
    if (declared_.empty())
        return;
    const auto offset = static_cast<std::size_t>(declared_.data() - source_.text().data());
    const Extent extent{offset, declared_.size()};
    if (!mistakenLetter.empty())
        all.put(FindingCode::EncodingMistaken, extent,
                fmt::format("the declaration says {}, but the file is in UTF-8: {} is read as {}",
                            quoted(declared_), quoted(mistakenLetter),
                            quoted(toUtf8(mistakenLetter, source_.encoding()))));
    // The finding about bytes that are not UTF-8 names the declaration, too.
    const bool isFollowed = source_.encoding() != pugi::encoding_utf8 || declares("UTF-8") ||
                            declares("US-ASCII") || invalidByte_ ||
                            asciiLength(source_.text()) == source_.text().size();
    if (isFollowed || (second.refusal && second.refusal->offset == offset))
        return;
    all.put(FindingCode::EncodingIgnored, extent,
            fmt::format("the declaration says {}, but the file is in UTF-8, and read as that",
                        quoted(declared_)));
}

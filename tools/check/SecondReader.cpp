#include "tools/check/SecondReader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <locale>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

#include <boost/algorithm/string/predicate.hpp>
#include <expat.h>
#include <fmt/format.h>

#include "tools/text/Encoding.h"
#include "tools/text/Words.h"

namespace {

/// A block of memory with its size before it, of which the size is kept for when it has to grow.
constexpr std::size_t header = alignof(std::max_align_t);

void* allocate(std::size_t size) {
    auto* const block = static_cast<char*>(::operator new(header + size, std::nothrow));
    if (block == nullptr)
        return nullptr;
    std::memcpy(block, &size, sizeof size);
    return block + header;
}

void release(void* memory) {
    if (memory != nullptr)
        ::operator delete(static_cast<char*>(memory) - header);
}

void* reallocate(void* memory, std::size_t size) {
    void* const block = allocate(size);
    if (block == nullptr || memory == nullptr)
        return block;
    std::size_t present = 0;
    std::memcpy(&present, static_cast<char*>(memory) - header, sizeof present);
    std::memcpy(block, memory, std::min(size, present));
    release(memory);
    return block;
}

/// Encodings in which the bytes of ASCII mean what they mean in ASCII, by how their names begin.
constexpr std::array<std::string_view, 15> asciiBased = {
    "windows-", "cp125", "iso-8859-", "iso_8859-", "latin", "koi8-",  "macintosh", "x-mac-",
    "tis-620",  "gb",    "big5",      "euc-",      "ascii", "shift_", "ibm8"};

/// Makes every other byte a letter: which it is does not matter for what is well-formed.
int describeEncoding(void* /*data*/, const XML_Char* name, XML_Encoding* encoding) {
    const bool known =
        std::any_of(asciiBased.begin(), asciiBased.end(), [&](std::string_view beginning) {
            return boost::algorithm::istarts_with(name, beginning, std::locale::classic());
        });
    if (!known)
        return XML_STATUS_ERROR;
    constexpr int firstLetter = 0x100;
    int byte = 0;
    for (int& character : encoding->map) {
        character = byte < 0x80 ? byte : firstLetter + byte;
        ++byte;
    }
    return XML_STATUS_OK;
}

/// What is wrong, in the words of those who know nothing of parsers. The first {} in it stands for
/// the encoding that is declared, the second for the one in which the file is read.
struct Reason {
    XML_Error error;
    const char* text;
};

constexpr const char* otherReason = "what stands here is not as XML asks for";

constexpr std::array reasons = {
    Reason{XML_ERROR_NO_ELEMENTS, "there is no element"},
    Reason{XML_ERROR_UNCLOSED_TOKEN, "what begins here does not end"},
    Reason{XML_ERROR_PARTIAL_CHAR, "the file ends within a character"},
    Reason{XML_ERROR_TAG_MISMATCH, "another element ends here than has begun"},
    Reason{XML_ERROR_DUPLICATE_ATTRIBUTE, "an attribute is repeated"},
    Reason{XML_ERROR_JUNK_AFTER_DOC_ELEMENT, "something follows the root element"},
    Reason{XML_ERROR_UNDEFINED_ENTITY, "a reference has a name that is defined nowhere"},
    Reason{XML_ERROR_BAD_CHAR_REF, "a reference stands for no character that XML allows"},
    Reason{XML_ERROR_MISPLACED_XML_PI,
           "the declaration \"<?xml\" is not at the very beginning of the file"},
    Reason{XML_ERROR_UNKNOWN_ENCODING,
           "the declaration says {}, which many programs do not know; the file is read as {}, and "
           "what follows is not checked"},
    Reason{XML_ERROR_INCORRECT_ENCODING, "the declaration says {}, but the file is in {}"},
    Reason{XML_ERROR_UNCLOSED_CDATA_SECTION, "a CDATA section does not end"},
    Reason{XML_ERROR_XML_DECL, "the declaration \"<?xml ...?>\" is not as XML asks for"},
};

/// Where the reference begins in the middle of which a text ends; its end when there is none.
std::size_t startOfReference(std::string_view text) {
    constexpr std::size_t longest = 100;
    const std::size_t first = text.size() - std::min(text.size(), longest);
    const std::size_t mark = text.substr(first).find_last_of("&<>\"' \t\r\n");
    const bool found = mark != std::string_view::npos && text[first + mark] == '&';
    return found ? first + mark : text.size();
}

/// Of an error that says only that a character is wrong.
///
/// @param before the text before it
Refusal refusalOf(char character, std::string_view before) {
    constexpr std::string_view endOfSection = "]]";
    if (const std::size_t begin = startOfReference(before); begin < before.size())
        return {begin, "\"&\" begins no reference; it has to be written as \"&amp;\""};
    if (character == '<')
        return {before.size(), "\"<\" begins no markup here; it has to be written as \"&lt;\""};
    if (character == '\0')
        return {before.size(), "there is a zero byte, which XML does not allow"};
    const std::size_t section = before.size() - std::min(before.size(), endOfSection.size());
    if (character == '>' && before.substr(section) == endOfSection)
        return {section, "\"]]>\" may not stand in a text; it has to be written as \"]]&gt;\""};
    return {before.size(), otherReason};
}

/// @param before    the text before the place of an error
/// @param after     that behind it
/// @param encodings the one that is declared, and the one in which the file is read
Refusal refusalOf(XML_Error error, std::string_view before, std::string_view after,
                  const std::pair<std::string, std::string>& encodings) {
    const auto* const reason = std::find_if(
        reasons.begin(), reasons.end(), [&](const Reason& other) { return other.error == error; });
    if (reason != reasons.end())
        return {before.size(),
                fmt::format(fmt::runtime(reason->text), encodings.first, encodings.second)};
    if (error == XML_ERROR_INVALID_TOKEN && !after.empty())
        return refusalOf(after.front(), before);
    return {before.size(), otherReason};
}

/// Reads a file with expat.
class Reading {
public:
    explicit Reading(const std::string& bytes) : bytes_(bytes) {
        const XML_Memory_Handling_Suite memory = {allocate, reallocate, release};
        parser_.reset(XML_ParserCreate_MM(nullptr, &memory, nullptr));
        if (!parser_)
            throw std::bad_alloc();
        XML_SetUserData(parser_.get(), this);
        XML_SetUnknownEncodingHandler(parser_.get(), describeEncoding, nullptr);
        XML_SetStartDoctypeDeclHandler(parser_.get(), beginDoctype);
    }

    /// @return why the file is refused, if it is
    std::optional<XML_Error> read() {
        // The parser keeps what a call gives it: less memory is needed for small parts. What does
        // not end in a part is looked at again with the next one, which is larger then, so that it
        // is looked at a few times and not a thousand.
        constexpr std::size_t first = std::size_t{1} << 16U;
        constexpr std::size_t most = std::size_t{1} << 30U; // an int counts them
        XML_Status status = XML_STATUS_OK;
        std::size_t part = first;
        std::size_t begin = 0;
        do {
            const std::size_t size = std::min(part, bytes_.size() - begin);
            const bool last = begin + size == bytes_.size();
            status = XML_Parse(parser_.get(), bytes_.data() + begin, static_cast<int>(size),
                               last ? XML_TRUE : XML_FALSE);
            begin += size;
            part = begin - std::min(place(), begin) > part / 2 ? std::min(2 * part, most) : first;
        } while (status == XML_STATUS_OK && begin < bytes_.size());
        const XML_Error error = XML_GetErrorCode(parser_.get());
        if (error == XML_ERROR_NO_MEMORY)
            throw std::bad_alloc();
        if (status == XML_STATUS_OK || error == XML_ERROR_ABORTED)
            return std::nullopt;
        return error;
    }

    /// Where the reading is, in bytes.
    std::size_t place() const {
        const XML_Index index = XML_GetCurrentByteIndex(parser_.get());
        return std::min(static_cast<std::size_t>(std::max<XML_Index>(index, 0)), bytes_.size());
    }

    /// Where a DOCTYPE is that declares something, in bytes.
    std::optional<std::size_t> doctype() const { return doctype_; }

private:
    struct Release {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    static void beginDoctype(void* data, const XML_Char* /*name*/, const XML_Char* systemId,
                             const XML_Char* /*publicId*/, int hasInternalSubset) {
        auto& reading = *static_cast<Reading*>(data);
        if (systemId == nullptr && hasInternalSubset == 0)
            return;
        reading.doctype_ = reading.place();
        if (hasInternalSubset != 0)
            XML_StopParser(reading.parser_.get(), XML_FALSE);
    }

    const std::string& bytes_;
    std::unique_ptr<XML_ParserStruct, Release> parser_;
    std::optional<std::size_t> doctype_;
};

} // namespace

SecondReading readAgain(const std::string& bytes, pugi::xml_encoding encoding) {
    if (encoding == pugi::encoding_utf32_le || encoding == pugi::encoding_utf32_be)
        return {Refusal{0,
                        "the file is in UTF-32, which many programs do not know; what follows is "
                        "not checked"},
                std::nullopt};
    const auto textBefore = [&](std::size_t offset) {
        return toUtf8(bytes.substr(0, offset), encoding);
    };
    Reading reading(bytes);
    SecondReading result;
    if (const auto error = reading.read()) {
        constexpr std::size_t longestCharacter = 4;
        constexpr std::size_t longestDeclaration = 400;
        const std::size_t place = reading.place();
        const std::string declared = quoted(declaredEncoding(textBefore(longestDeclaration)));
        result.refusal = refusalOf(*error, textBefore(place),
                                   toUtf8(bytes.substr(place, longestCharacter), encoding),
                                   {declared, encodingName(encoding)});
    }
    if (reading.doctype())
        result.doctype = textBefore(*reading.doctype()).size();
    return result;
}

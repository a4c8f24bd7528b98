#include "tools/check/FirstAid.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <locale>
#include <utility>

#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>
#include <pugixml.hpp>

#include "tools/check/OpenElement.h"
#include "tools/text/Escape.h"

namespace {

using namespace std::string_view_literals;

constexpr const char* copyAgain = "copy it again from where it came, or have it written once more";
constexpr const char* unpack = "unpack it, and take the packages that are in it";
constexpr const char* exportAgain =
    "packages are XML files: have one written by the program that holds the data";

/// How files of another format begin.
struct Beginning {
    std::string_view bytes;
    const char* format;
    const char* cure;
};

constexpr std::array<Beginning, 17> beginnings = {
    Beginning{"\x4C\x6F\xA7\x94"sv, "XML in EBCDIC, an encoding that is not read",
              "have it written in UTF-8"},
    Beginning{"PK\3\4"sv, "a ZIP archive, or a document in one", unpack},
    Beginning{"\x1f\x8b"sv, "compressed by gzip", unpack},
    Beginning{"7z\xbc\xaf\x27\x1c"sv, "a 7-Zip archive", unpack},
    Beginning{"Rar!\x1a\x07"sv, "a RAR archive", unpack},
    Beginning{"BZh"sv, "compressed by bzip2", unpack},
    Beginning{"\xfd"
              "7zXZ\0"sv,
              "compressed by xz", unpack},
    Beginning{"%PDF-"sv, "a PDF document", exportAgain},
    Beginning{"\0\0\x27\x0a"sv, "a shapefile, which holds geometries", exportAgain},
    Beginning{"\0\5\x16\7"sv, "a side file of macOS, which holds no data",
              "take the file of the same name without \"._\""},
    Beginning{"\x89PNG"sv, "a picture (PNG)", exportAgain},
    Beginning{"\xff\xd8\xff"sv, "a picture (JPEG)", exportAgain},
    Beginning{"GIF8"sv, "a picture (GIF)", exportAgain},
    Beginning{"\xd0\xcf\x11\xe0"sv, "a document of an older office program", exportAgain},
    Beginning{"SQLite format 3"sv, "a database (SQLite or GeoPackage)", exportAgain},
    Beginning{"{\\rtf"sv, "a document (RTF)", exportAgain},
    Beginning{"MZ"sv, "a program for Windows", "do not start it; delete it if nobody knows it"}};

constexpr std::string_view blanks = " \t\r\n";

/// The text behind a byte-order mark and blanks.
std::string_view afterBlanks(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.substr(0, mark.size()) == mark)
        text.remove_prefix(mark.size());
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

bool begins(std::string_view text, std::string_view beginning) {
    return boost::algorithm::istarts_with(text, beginning, std::locale::classic());
}

std::optional<FirstAid> emptiness(std::string_view text) {
    if (text.empty())
        return FirstAid{"the file is empty", copyAgain};
    if (afterBlanks(text).empty())
        return FirstAid{"the file holds nothing but blanks", copyAgain};
    return std::nullopt;
}

std::optional<FirstAid> knownFormat(std::string_view text) {
    const auto* const known =
        std::find_if(beginnings.begin(), beginnings.end(), [&](const Beginning& other) {
            return text.substr(0, other.bytes.size()) == other.bytes;
        });
    if (known != beginnings.end())
        return FirstAid{fmt::format("the file is {}", known->format), known->cure};
    return std::nullopt;
}

std::optional<FirstAid> noXml(std::string_view text) {
    const std::string_view content = afterBlanks(text);
    if (begins(content, "<!doctype html") || begins(content, "<html"))
        return FirstAid{"the file is a page of the web, perhaps one that asks to sign in",
                        "download the package again"};
    if (content.front() == '{' || content.front() == '[')
        return FirstAid{"the file is JSON", exportAgain};
    if (content.front() != '<')
        return FirstAid{"the file is no XML: it does not begin with \"<\"", exportAgain};
    return std::nullopt;
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
    for (const auto& kind : {emptiness, zerosIn, knownFormat, noXml}) {
        if (auto found = kind(text))
            return found;
    }
    return cutOff(text, fileSize);
}

std::optional<FirstAid> zerosIn(std::string_view text) {
    const std::size_t first = text.find('\0');
    if (first == std::string_view::npos || knownFormat(text.substr(0, first + 8)))
        return std::nullopt;
    const std::size_t end = std::min(text.find_first_not_of('\0', first), text.size());
    std::string where = first == 0 ? "" : fmt::format(" from byte {} on", first + 1);
    if (end < text.size())
        where = fmt::format(" from byte {} to byte {}", first + 1, end);
    return FirstAid{
        fmt::format("the file holds nothing but zeros{}: it was damaged in copying", where),
        copyAgain};
}

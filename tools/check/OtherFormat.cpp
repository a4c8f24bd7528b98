#include "tools/check/OtherFormat.h"

#include <algorithm>
#include <array>
#include <locale>

#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>

#include "tools/check/OpenElement.h"

namespace {

using namespace std::string_view_literals;

constexpr const char* unpack = "unpack it, and take the packages that are in it";
constexpr const char* download = "download the package again";
constexpr const char* havePackageWritten =
    "have a package written by the program that holds the data";

/// A format by how its files begin, or by the name of their root.
struct Format {
    std::string_view sign;
    const char* what;
    const char* cure;
};

constexpr std::array beginnings = {
    Format{"\x4C\x6F\xA7\x94"sv, "XML in EBCDIC, an encoding that is not read",
           "have it written in UTF-8"},
    Format{"PK\3\4"sv, "a ZIP archive, or a document in one", unpack},
    Format{"\x1f\x8b"sv, "compressed by gzip", unpack},
    Format{"7z\xbc\xaf\x27\x1c"sv, "a 7-Zip archive", unpack},
    Format{"Rar!\x1a\x07"sv, "a RAR archive", unpack},
    Format{"BZh"sv, "compressed by bzip2", unpack},
    Format{"\xfd"
           "7zXZ\0"sv,
           "compressed by xz", unpack},
    Format{"%PDF-"sv, "a PDF document", haveXmlWritten},
    Format{"\0\0\x27\x0a"sv, "a shapefile, which holds geometries", haveXmlWritten},
    Format{"GEOGCS["sv, "the coordinate system of a shapefile", haveXmlWritten},
    Format{"PROJCS["sv, "the coordinate system of a shapefile", haveXmlWritten},
    Format{"\0\5\x16\7"sv, "a side file of macOS, which holds no data",
           "take the file of the same name without \"._\""},
    Format{"\x89PNG"sv, "a picture (PNG)", haveXmlWritten},
    Format{"\xff\xd8\xff"sv, "a picture (JPEG)", haveXmlWritten},
    Format{"GIF8"sv, "a picture (GIF)", haveXmlWritten},
    Format{"II*\0"sv, "a picture (TIFF)", haveXmlWritten},
    Format{"MM\0*"sv, "a picture (TIFF)", haveXmlWritten},
    Format{"\xd0\xcf\x11\xe0"sv, "a document of an older office program", haveXmlWritten},
    Format{"SQLite format 3"sv, "a database (SQLite or GeoPackage)", haveXmlWritten},
    Format{"{\\rtf"sv, "a document (RTF)", haveXmlWritten},
    Format{"MZ"sv, "a program for Windows", "do not start it; delete it if nobody knows it"}};

constexpr std::array roots = {
    Format{"html", "a page of the web, perhaps one that asks to sign in", download},
    Format{"kml", "a map (KML)", havePackageWritten},
    Format{"gpx", "tracks or points of a satellite receiver (GPX)", havePackageWritten},
    Format{"svg", "a drawing (SVG)", havePackageWritten},
    Format{"FeatureCollection", "geometries (GML)", havePackageWritten},
    Format{"ISO11783_TaskData", "a task file of a terminal (ISO 11783-10)", havePackageWritten},
    Format{"ISO11783LinkList", "a list of links of a terminal (ISO 11783-10)", havePackageWritten},
    Format{"Envelope", "a message between programs (SOAP)", havePackageWritten},
    Format{"schema", "an XML schema, which describes files", havePackageWritten},
    Format{"stylesheet", "a style sheet (XSLT)", havePackageWritten},
    Format{"plist", "a property list of macOS", havePackageWritten},
    Format{"Workbook", "a spreadsheet", havePackageWritten}};

/// Dated in its first bytes: a table as it belongs to a shapefile.
bool isDbf(std::string_view text) {
    return text.size() >= 32 && text[0] == '\3' && text[2] >= 1 && text[2] <= 12 && text[3] >= 1 &&
           text[3] <= 31;
}

bool begins(std::string_view text, std::string_view beginning) {
    return boost::algorithm::istarts_with(text, beginning, std::locale::classic());
}

FirstAid aidOf(const Format& format) {
    return {fmt::format("the file is {}", format.what), format.cure};
}

std::optional<FirstAid> byRoot(std::string_view text) {
    if (begins(text, "<!doctype html"))
        return aidOf(roots.front());
    std::string_view root = rootName(text);
    root.remove_prefix(root.find(':') + 1); // of a namespace
    const auto* const known = std::find_if(roots.begin(), roots.end(), [&](const Format& format) {
        return boost::algorithm::iequals(root, format.sign, std::locale::classic());
    });
    return known == roots.end() ? std::nullopt : std::optional(aidOf(*known));
}

} // namespace

std::optional<FirstAid> otherFormat(std::string_view text) {
    const auto* const known =
        std::find_if(beginnings.begin(), beginnings.end(), [&](const Format& format) {
            return text.substr(0, format.sign.size()) == format.sign;
        });
    if (known != beginnings.end())
        return aidOf(*known);
    if (isDbf(text))
        return FirstAid{"the file is a table (DBF), such as belongs to a shapefile",
                        haveXmlWritten};
    text = afterMarkAndBlanks(text);
    if (!text.empty() && text.front() == '<')
        return byRoot(text);
    if (!text.empty() && (text.front() == '{' || text.front() == '['))
        return FirstAid{"the file is JSON", haveXmlWritten};
    return std::nullopt;
}

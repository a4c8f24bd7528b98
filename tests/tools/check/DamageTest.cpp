/// @file
/// Good packages, damaged as sticks, copies and people do it: the check says what the file is.

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/RandomPackage.h"
#include "tests/support/SourceFolder.h"
#include "tools/check/FindingCollection.h"
#include "tools/check/PackageCheck.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

/// The content of a file, and words that name what it is; none for a package that can be read.
struct Damaged {
    std::string bytes;
    std::string kind;
};

std::string inUtf16(const std::string& ascii, bool mark) {
    std::string bytes = mark ? "\xFF\xFE" : "";
    for (const char c : ascii) {
        bytes += c;
        bytes += '\0';
    }
    return bytes;
}

/// The sample packages, as they are and in UTF-16.
std::vector<std::string> samples() {
    std::vector<std::string> texts;
    for (const auto& entry : fs::directory_iterator(test::inSources("examples/packages"))) {
        if (entry.path().extension() != ".xml")
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        texts.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    texts.push_back(inUtf16("<?xml version='1.0' encoding='UTF-16'?>\n<RecPackage>\n<Grower "
                            "GrowerID='950d3d06-82d2-4b41-a9fb-2f7370190bac'>\n<GrowerName>Ana"
                            "</GrowerName>\n</Grower>\n</RecPackage>\n",
                            true));
    return texts;
}

/// How files of other kinds begin, and what they are.
const std::vector<Damaged>& otherKinds() {
    static const std::vector<Damaged> kinds = {
        {"PK\3\4\x14\0\x08\0"s, "ZIP archive"},
        {"\x1f\x8b\x08\0\0\0"s, "gzip"},
        {"7z\xbc\xaf\x27\x1c\0\4"s, "7-Zip"},
        {"%PDF-1.7\n%\xE2\xE3\n1 0 obj << /Type /Catalog >>\n", "PDF document"},
        {"\0\0\x27\x0a\0\0\0\0"s, "shapefile"},
        {"\3\x7e\5\x11\1\0\0\0"s, "DBF"},
        {"PROJCS[\"ETRS89 / UTM zone 33N\",", "coordinate system"},
        {"\0\5\x16\7\0\2\0\0Mac OS X        "s, "side file of macOS"},
        {"\x89PNG\r\n\x1a\n\0\0\0\rIHDR"s, "PNG"},
        {"\xff\xd8\xff\xe0\0\x10JFIF"s, "JPEG"},
        {"SQLite format 3\0"s, "SQLite"},
        {"<!DOCTYPE html>\n<html><head><title>Sign in</title><br></head>", "page of the web"},
        {"<html><body><p>404</body></html>", "page of the web"},
        {"{\"type\": \"FeatureCollection\", \"features\": [", "JSON"},
        {"<?xml version=\"1.0\"?>\n<kml><Document><Placemark>", "map (KML)"},
        {"<gpx version='1.1'><wpt lat='1' lon='2'/></gpx>\n", "(GPX)"},
        {"<svg xmlns='http://www.w3.org/2000/svg'/>\n", "(SVG)"},
        {"<ISO11783_TaskData VersionMajor='4'><TSK A='TSK1'/></ISO11783_TaskData>\n",
         "ISO 11783-10"},
        {"<Invoice/>\n", "the root element is \"Invoice\""},
        {"Grower;Farm;Field\nAna;Nord;1\n", "no XML"}};
    return kinds;
}

bool isBinary(const std::string& text) {
    return text.front() != '<' && text.find('\0') != std::string::npos;
}

/// A file of another kind under the name of a package, some of them with any bytes behind the first
/// ones.
Damaged swapped(std::mt19937& random) {
    Damaged file = otherKinds()[random() % otherKinds().size()];
    for (std::size_t i = isBinary(file.bytes) ? 32 + random() % 512 : 0; i > 0; --i)
        file.bytes += static_cast<char>(random() % 256);
    return file;
}

/// In UTF-16 that is not to be known as such, or that is not what the mark says.
Damaged wronglyMarked(std::mt19937& random) {
    const std::string package = "<RecPackage>" + std::string(random() % 100, ' ') + "</RecPackage>";
    if (random() % 2 == 0)
        return {inUtf16("\n" + package, false), "byte-order mark that says so"};
    return {"\xFF\xFE" + package, "byte-order mark of UTF-16"};
}

Damaged damaged(const std::string& text, std::mt19937& random) {
    const std::size_t at = random() % text.size();
    const std::size_t length = std::min<std::size_t>(1 + random() % 4096, text.size() - at);
    switch (random() % 5) {
    case 0:
        return {text.substr(0, at), at == 0 ? "empty" : "cut off"};
    case 1:
        return {text.substr(0, at) + std::string(text.size() - at, '\0'), "zeros"};
    case 2:
        return {std::string(text).replace(at, length, length, '\0'), "zeros"};
    case 3:
        return wronglyMarked(random);
    default:
        return swapped(random);
    }
}

/// What the check says of a file that cannot be read.
std::string errorOf(std::string bytes) {
    FindingCollection all;
    checkPackage("00112233-4455-6677-8899-aabbccddeeff.xml", FileContent{std::move(bytes), ""},
                 all);
    for (const Finding& finding : all.kept()) {
        if (finding.severity() == Severity::Error)
            return finding.found;
    }
    return "";
}

TEST(Damage, IsNamedOfNearlyEveryDamagedPackage) {
    const std::vector<std::string> texts = samples();
    ASSERT_EQ(texts.size(), 5U);
    std::mt19937 random(1); // the same each time
    constexpr int tries = 10000;
    int unnamed = 0;
    for (int i = 0; i < tries; ++i) {
        const Damaged file = damaged(texts[random() % texts.size()], random);
        const std::string error = errorOf(file.bytes);
        // A package can be read when only what stands behind its root is lost.
        const bool mayBeReadable = file.kind == "cut off" || file.kind == "zeros";
        if (error.find(file.kind) == std::string::npos && !(error.empty() && mayBeReadable))
            ++unnamed;
    }
    EXPECT_LT(unnamed, tries / 100);
}

TEST(Damage, IsNotSeenInGoodPackages) {
    for (const std::string& text : samples())
        EXPECT_EQ(errorOf(text), "");
    std::mt19937 random(1);
    for (int i = 0; i < 1000; ++i) {
        const std::string error = errorOf(test::randomPackage(random));
        EXPECT_EQ(error.find("the file "), std::string::npos) << error;
    }
}

} // namespace

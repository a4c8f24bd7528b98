#include "tools/check/FirstAid.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

std::string whatIs(const std::string& text) {
    const auto aid = firstAid(text, text.size());
    return aid ? aid->what : "";
}

TEST(FirstAid, NamesAFileThatHoldsNothing) {
    EXPECT_EQ(whatIs(""), "the file is empty");
    EXPECT_EQ(whatIs(" \r\n\t"), "the file holds nothing but blanks");
    EXPECT_EQ(whatIs("\xEF\xBB\xBF"), "the file holds nothing but blanks");
}

TEST(FirstAid, NamesZerosAndWhereTheyAre) {
    EXPECT_EQ(whatIs("\0\0\0\0\0\0"s),
              "the file holds nothing but zeros: it was damaged in copying");
    EXPECT_EQ(whatIs("<RecPackage>\0\0"s),
              "the file holds nothing but zeros from byte 13 on: it was damaged in copying");
    EXPECT_EQ(
        whatIs("<RecPackage>\0\0</RecPackage>"s),
        "the file holds nothing but zeros from byte 13 to byte 14: it was damaged in copying");
}

TEST(FirstAid, NamesFilesOfOtherFormats) {
    const std::vector<std::pair<std::string, std::string>> files = {
        {"\x4C\x6F\xA7\x94\x93", "the file is XML in EBCDIC, an encoding that is not read"},
        {"PK\3\4\x14\0\0"s, "the file is a ZIP archive, or a document in one"},
        {"\x1f\x8b\x08\0"s, "the file is compressed by gzip"},
        {"7z\xbc\xaf\x27\x1c\0"s, "the file is a 7-Zip archive"},
        {"Rar!\x1a\x07\x01\0"s, "the file is a RAR archive"},
        {"BZh91AY", "the file is compressed by bzip2"},
        {"\xfd"
         "7zXZ\0\0"s,
         "the file is compressed by xz"},
        {"%PDF-1.7\n", "the file is a PDF document"},
        {"\0\0\x27\x0a\0\0\0\0"s, "the file is a shapefile, which holds geometries"},
        {"\0\5\x16\7\0\2"s, "the file is a side file of macOS, which holds no data"},
        {"\x89PNG\r\n\x1a\n", "the file is a picture (PNG)"},
        {"\xff\xd8\xff\xe0", "the file is a picture (JPEG)"},
        {"GIF89a", "the file is a picture (GIF)"},
        {"\xd0\xcf\x11\xe0\xa1", "the file is a document of an older office program"},
        {"SQLite format 3\0"s, "the file is a database (SQLite or GeoPackage)"},
        {"{\\rtf1", "the file is a document (RTF)"},
        {"MZ\x90\0"s, "the file is a program for Windows"},
        {"<!DOCTYPE html><html>",
         "the file is a page of the web, perhaps one that asks to sign in"},
        {"\n<HTML lang=en>", "the file is a page of the web, perhaps one that asks to sign in"},
        {"{\"growers\": []}", "the file is JSON"},
        {"\xEF\xBB\xBF [1]", "the file is JSON"},
        {"Grower;Farm\n", "the file is no XML: it does not begin with \"<\""}};
    for (const auto& [content, what] : files)
        EXPECT_EQ(whatIs(content), what);
}

TEST(FirstAid, SaysWhereAFileWasCutOff) {
    EXPECT_EQ(whatIs("<RecPackage><Grower>"),
              "the file is cut off: it ends after 20 bytes, inside Grower");
    EXPECT_EQ(whatIs("<RecPackage><Grower><Farm FarmID=\"12"),
              "the file is cut off: it ends after 36 bytes, in the middle of a tag inside Grower");
    EXPECT_EQ(whatIs("<RecPackage></RecPack"),
              "the file is cut off: it ends after 21 bytes, in the middle of a tag inside "
              "RecPackage");
    EXPECT_EQ(whatIs("<RecPackage><!-- a"),
              "the file is cut off: it ends after 18 bytes, in the middle of a comment inside "
              "RecPackage");
    EXPECT_EQ(whatIs("<?xml version=\"1.0\"?>\n"),
              "the file is cut off: it ends after 22 bytes, before the end of its root element");
}

TEST(FirstAid, LeavesXmlWithAMistakeToTheMessageAboutItsPlace) {
    EXPECT_EQ(whatIs("<RecPackage><Grower></Farm></RecPackage>"), "");
    EXPECT_EQ(whatIs("<RecPackage><Grower></Farm>"), "");
    EXPECT_EQ(whatIs("<RecPackage a=b></RecPackage>"), "");
    EXPECT_EQ(whatIs("<Package/>"), "");
}

TEST(FirstAid, SaysWhatToDo) {
    EXPECT_EQ(firstAid("", 0)->cure,
              "copy it again from where it came, or have it written once more");
    EXPECT_EQ(firstAid("PK\3\4", 4)->cure, "unpack it, and take the packages that are in it");
}

/// The sample packages, as texts.
std::vector<std::string> samples() {
    std::vector<std::string> texts;
    for (const auto& entry : fs::directory_iterator(QENXML_SOURCE_DIR "/examples/packages")) {
        if (entry.path().extension() != ".xml")
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        texts.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return texts;
}

bool loads(const std::string& text) {
    return pugi::xml_document().load_buffer(text.data(), text.size());
}

/// What names a package that is damaged in one of the ways in which sticks and copies do it.
std::pair<std::string, std::string> damaged(const std::string& text, std::mt19937& random) {
    const std::size_t at = random() % text.size();
    const std::size_t length = 1 + random() % 4096;
    switch (random() % 3) {
    case 0:
        return {text.substr(0, at), at == 0 ? "empty" : "cut off"};
    case 1:
        return {text.substr(0, at) + std::string(text.size() - at, '\0'), "zeros"};
    default:
        return {std::string(text).replace(at, std::min(length, text.size() - at),
                                          std::min(length, text.size() - at), '\0'),
                "zeros"};
    }
}

TEST(FirstAid, NamesTheDamageOfNearlyEveryDamagedPackage) {
    const std::vector<std::string> texts = samples();
    ASSERT_FALSE(texts.empty());
    std::mt19937 random(1); // the same each time
    constexpr int tries = 10000;
    int named = 0;
    int whole = 0;
    for (int i = 0; i < tries; ++i) {
        const auto [text, kind] = damaged(texts[random() % texts.size()], random);
        const bool isWhole = kind == "cut off" && loads(text); // only line ends are lost
        const auto aid = isWhole || kind != "zeros" ? firstAid(text, text.size()) : zerosIn(text);
        whole += isWhole ? 1 : 0;
        named += !isWhole && aid && aid->what.find(kind) != std::string::npos ? 1 : 0;
        if (!isWhole && !(aid && aid->what.find(kind) != std::string::npos))
            ADD_FAILURE() << kind << ": " << (aid ? aid->what : "nothing") << "\n"
                          << text.substr(text.size() > 80 ? text.size() - 80 : 0);
    }
    EXPECT_GE(named, (tries - whole) * 99 / 100);
}

} // namespace

#include "tools/check/FirstAid.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

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
        {"GEOGCS[\"WGS 84\"", "the file is the coordinate system of a shapefile"},
        {"II*\0\x08"s, "the file is a picture (TIFF)"},
        {"\3\x7e\5\x11"s + std::string(28, '\0'),
         "the file is a table (DBF), such as belongs to a shapefile"},
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

TEST(FirstAid, NamesDamagedFilesOfOtherFormatsByTheirRoot) {
    EXPECT_EQ(whatIs("<?xml version='1.0'?><!-- a --><kml:kml xmlns:kml='a'><Placemark>"),
              "the file is a map (KML)");
    EXPECT_EQ(whatIs("\xEF\xBB\xBF<?xml version='1.0'?>\n<!DOCTYPE html><html><br></html>"),
              "the file is a page of the web, perhaps one that asks to sign in");
}

TEST(FirstAid, NamesAnEncodingThatTheFileDoesNotBeginWith) {
    EXPECT_EQ(whatIs("\n\0<\0R\0e\0"s),
              "the file is in UTF-16, but it does not begin with the byte-order mark that says so");
    EXPECT_EQ(whatIs("\0\n\0<\0R\0e"s),
              "the file is in UTF-16, but it does not begin with the byte-order mark that says so");
    EXPECT_EQ(whatIs("\n\0<\0?\0x\0m\0l\0 \0e\0n\0c\0o\0d\0i\0n\0g\0=\0'\0U\0'\0?\0>\0"s),
              "the file is in UTF-16, but it does not begin with the byte-order mark that says so, "
              "and declares \"U\"");
    // "<?xml encoding='U'?>" taken for characters of UTF-16.
    EXPECT_EQ(whatIs("\xEF\xBB\xBF\u3F3C\u6D78\u206C\u6E65\u6F63\u6964\u676E\u273D\u2755\u3E3F"),
              "the file begins with the byte-order mark of UTF-16, but the text behind it is in "
              "another encoding, and declares \"U\"");
    // "<R" taken for one character of UTF-16.
    EXPECT_EQ(whatIs("\xEF\xBB\xBF\u523C"),
              "the file begins with the byte-order mark of UTF-16, but the text behind it is in "
              "another encoding");
    EXPECT_EQ(whatIs("\xEF\xBB\xBF\u3C52"),
              "the file begins with the byte-order mark of UTF-16, but the text behind it is in "
              "another encoding");
}

TEST(FirstAid, NamesNoByteOfAFileInAnotherEncoding) {
    const std::string text = "<RecPackage>\0\0</RecPackage>"s;
    EXPECT_EQ(firstAid(text, 2 * text.size())->what,
              "the file holds zeros, of which no package has any: it was damaged in copying");
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

} // namespace

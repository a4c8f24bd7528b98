#include "tools/files/OriginalName.h"

#include <string>

#include <gtest/gtest.h>

namespace {

const std::string uuid = "00112233-4455-6677-8899-aabbccddeeff";
const std::string name = uuid + ".xml";

TEST(OriginalName, IsFoundInNamesThatProgramsAndPeopleGiveCopies) {
    for (const std::string& copy :
         {uuid + " (1).xml", uuid + " - Copy.xml", uuid + " - Kopie (2).xml",
          "Kopie von " + uuid + ".xml", uuid + ".xml.txt", "{" + uuid + "}.xml", uuid + "_2.xml",
          uuid, std::string("00112233-4455-6677-8899-AABBCCDDEEFF (1).xml"),
          std::string("00112233445566778899aabbccddeeff.xml"), "/media/stick/" + uuid + "(1).xml"})
        EXPECT_EQ(originalName(copy), name) << copy;
}

TEST(OriginalName, IsNoneWithoutAUuid) {
    for (const std::string path :
         {"", "/", "season.xml", "00112233-4455-6677-8899-aabbccddeef.xml",
          "00112233-4455-6677-8899-aabbccddeeff0.xml", "a00112233-4455-6677-8899-aabbccddeeff.xml",
          "00112233-44556677-8899-aabbccddeeff.xml", "0011223344556677889-aabbccddeeff.xml",
          "00112233-4455-6677-8899-aabbccddeegg.xml"})
        EXPECT_FALSE(originalName(path)) << path;
}

TEST(OriginalName, IsNotLookedForInTheNamesOfFolders) {
    EXPECT_FALSE(originalName("/media/" + uuid + "/season.xml"));
}

} // namespace

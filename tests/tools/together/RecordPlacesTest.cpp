#include "tools/together/RecordPlaces.h"

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/compare/RecordList.h"

namespace {

/// What stands at the places of all records of a package, by kind; "none" for no place.
std::vector<std::string> textsAtPlaces(const std::string& text, const std::string& inFile) {
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(text);
    const RecordList records(readPackage(path));
    folder.writePackage(inFile);
    const RecordPlaces places(path);
    std::vector<std::string> texts;
    for (const RecordView& record : records.records()) {
        const std::optional<Location> location = places.of(record);
        texts.push_back(location ? inFile.substr(location->extent.offset, location->extent.length)
                                 : "none");
    }
    return texts;
}

std::vector<std::string> textsAtPlaces(const std::string& text) {
    return textsAtPlaces(text, text);
}

std::string farm(const std::string& fields) {
    return test::package(test::grower(1, test::farm(2, fields)));
}

std::string quoted(const std::string& element, const std::string& attribute, unsigned number) {
    return "<" + element + " " + attribute + "=\"" + test::uuidText(number) + "\">";
}

TEST(RecordPlaces, AreTheStartTagsOfRecordsAndTheIdentifiersOfBoundaries) {
    const std::string text = farm(test::field(3, test::recommendations(test::rec(4))) +
                                  test::field(5, test::recommendations(test::rec(4))));
    const std::vector<std::string> found = textsAtPlaces(text);
    ASSERT_EQ(found.size(), 8U);
    EXPECT_EQ(found[0], quoted("Grower", "GrowerID", 1));
    EXPECT_EQ(found[1], quoted("Farm", "FarmID", 2));
    EXPECT_EQ(found[2], quoted("Field", "FieldID", 3));
    EXPECT_NE(found[3].find("FieldGeometryID"), std::string::npos);
    EXPECT_EQ(found[4], quoted("Rec", "RecID", 4));
    EXPECT_EQ(found[5], quoted("Field", "FieldID", 5));
    EXPECT_EQ(found[7], quoted("Rec", "RecID", 4));
}

TEST(RecordPlaces, AreNoneOfWhatStandsThereTwiceOrNotAtAll) {
    const std::string rec = test::rec(4);
    const std::string once = farm(test::field(3, test::recommendations(rec)));
    const std::string twice = farm(test::field(3, test::recommendations(rec + rec)));
    EXPECT_EQ(textsAtPlaces(once, twice).back(), "none");
    EXPECT_EQ(textsAtPlaces(once, farm(test::field(3))).back(), "none");
    EXPECT_EQ(textsAtPlaces(once, "").back(), "none");
}

} // namespace

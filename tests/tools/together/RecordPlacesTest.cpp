#include "tools/together/RecordPlaces.h"

#include <ctime>
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

TEST(RecordPlaces, AreThoseOfLaterGrowersAndFarmsToo) {
    const std::string farms = test::farm(2, test::field(3)) + test::farm(4, test::field(3));
    const std::vector<std::string> found =
        textsAtPlaces(test::package(test::grower(1, farms) + test::grower(5, farms)));
    ASSERT_EQ(found.size(), 14U);
    EXPECT_EQ(found[4], quoted("Farm", "FarmID", 4));
    EXPECT_EQ(found[7], quoted("Grower", "GrowerID", 5));
    EXPECT_EQ(found[8], quoted("Farm", "FarmID", 2));
    EXPECT_EQ(found[11], quoted("Farm", "FarmID", 4));
}

/// Processor time, which does not depend on what else the machine does. To search the file for each
/// of the thousand takes more than a hundred times as long as to read it.
TEST(RecordPlaces, OfAThousandRecsAmongTwentyThousandAreNotSearchedForOneByOne) {
    constexpr unsigned recs = 20'000;
    std::string list;
    for (unsigned number = 0; number < recs; ++number)
        list += test::rec(number);
    const std::string text = test::packageWithRecs(list);
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(text);
    const RecordList records(readPackage(path));
    ASSERT_EQ(records.records().size(), recs + 4U); // grower, farm, field and boundary

    const std::clock_t start = std::clock();
    const RecordPlaces places(path);
    const std::clock_t whenRead = std::clock();
    std::vector<std::optional<Location>> found;
    for (unsigned number = 0; number < recs; number += 20)
        found.push_back(places.of(records.records()[number + 4]));
    const std::clock_t whenFound = std::clock();

    EXPECT_LT(whenFound - whenRead, 10 * (whenRead - start));
    for (unsigned i = 0; i < found.size(); ++i) {
        ASSERT_TRUE(found[i]);
        const Extent& extent = found[i]->extent;
        EXPECT_EQ(text.substr(extent.offset, extent.length), quoted("Rec", "RecID", i * 20));
    }
}

} // namespace

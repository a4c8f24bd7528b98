// The UUID of a package, which is taken from the path of its file.

#include "parser/QenXmlParser.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

namespace {

using test::uuid;

const std::string name = "00112233-4455-6677-8899-aabbccddeeff";
const std::string nowhere = "/dev/null/"; // where no file can be

/// The UUID that a parser took from its last path: every rec that it reads carries it.
boost::uuids::uuid takenBy(QenXmlParser& parser) {
    static const test::Xml rec(test::rec(31));
    return parser.parseRecNode(uuid(21), uuid(71), rec.root()).xmlFileName();
}

/// What a new parser takes from the path of a file that does not exist.
boost::uuids::uuid takenFrom(const std::string& path) {
    QenXmlParser parser;
    EXPECT_FALSE(parser.parseFile(path));
    return takenBy(parser);
}

std::string messageFor(const std::string& path) {
    try {
        QenXmlParser().parseFile(path);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing raised";
}

} // namespace

TEST(PackageName, IsTakenFromAFileAndPutIntoEveryRec) {
    const test::TemporaryFolder folder;
    const std::string recs = test::recommendations(test::rec(31) + test::rec(32));
    const std::string content =
        test::package(test::grower(1, test::farm(11, test::field(21, recs))));
    for (const std::string extension : {".xml", ".dat"}) {
        SCOPED_TRACE(extension);
        QenXmlParser parser;
        ASSERT_TRUE(parser.parseFile(folder.write(name + extension, content)));
        std::vector<QenGrower> growers = parser.getGrowers();
        std::vector<QenRec>& read = growers.at(0).farms().at(0).fields().at(0).recs();
        ASSERT_EQ(2U, read.size());
        EXPECT_EQ(uuid(name), read[0].xmlFileName());
        EXPECT_EQ(uuid(name), read[1].xmlFileName());
        EXPECT_EQ(uuid(name), takenBy(parser));
    }
}

TEST(PackageName, IsNilBeforeTheFirstFile) {
    QenXmlParser parser;
    EXPECT_EQ(uuid(0), takenBy(parser));
}

TEST(PackageName, IsThatOfTheFileThatWasReadLast) {
    QenXmlParser parser;
    for (const unsigned number : {1U, 2U, 1U}) {
        EXPECT_FALSE(parser.parseFile(nowhere + test::uuidText(number) + ".xml"));
        EXPECT_EQ(uuid(number), takenBy(parser));
    }
}

TEST(PackageName, MayBeFollowedByAnyFourCharacters) {
    for (const std::string last : {".xml", ".XML", "....", "abcd", "-000", "}   "}) {
        SCOPED_TRACE(last);
        EXPECT_EQ(uuid(name), takenFrom(std::string(nowhere).append(name).append(last)));
    }
}

TEST(PackageName, MayBePrecededByAnything) {
    for (const std::string& before : std::vector<std::string>{nowhere, "", "package-", "{", "0"}) {
        SCOPED_TRACE(before);
        EXPECT_EQ(uuid(name), takenFrom(before + name + ".xml"));
    }
}

TEST(PackageName, MayBeTheNameOfAFolder) {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder.path(name));
    QenXmlParser parser;
    EXPECT_TRUE(parser.parseFile(folder.write(name + "/abc", test::package())));
    EXPECT_EQ(uuid(name), takenBy(parser));
}

TEST(PackageName, MayBeCutBySlashesThatCountAsDigits) {
    EXPECT_EQ(uuid("00112233-f445-5667-7889-9aabbccddeef"),
              takenFrom(nowhere + "00112233/445566778899aabbccddeeff123.xml"));
}

TEST(PackageName, BeforeALongerExtensionStartsOneCharacterLate) {
    EXPECT_EQ(uuid("011223ff-4455-f667-ff88-99faabbccdde"), takenFrom(nowhere + name + ".json"));
}

TEST(PackageName, OfOtherCharactersIsTakenAsDigitsThatAreNone) {
    EXPECT_EQ(uuid("ffffffff-ffff-ffff-ffff-ffffffffffff"),
              takenFrom(nowhere + std::string(36, 'z') + ".xml"));
}

TEST(PackageName, WithoutHyphensOrInBracesIsTakenAsWell) {
    EXPECT_EQ(uuid(name), takenFrom(nowhere + "00112233445566778899AABBCCDDEEFF-001.xml"));
    EXPECT_EQ(uuid(name), takenFrom(nowhere + "{00112233445566778899aabbccddeeff}--.xml"));
}

TEST(PackageName, EndsAfterItsThirtySixCharacters) {
    // The last digit and the closing brace belong to the last four characters and are not seen.
    EXPECT_EQ("invalid uuid string", messageFor(nowhere + "{" + name + "}.x"));
}

TEST(PackageName, WithHyphensInOtherPlacesRaisesAlthoughTheFileIsFine) {
    const test::TemporaryFolder folder;
    const std::string path =
        folder.write("packages-of-the-year-two-thousand-14.xml", test::package(test::grower(1)));
    EXPECT_EQ("invalid uuid string", messageFor(path));
}

TEST(PackageName, ThatIsNotTakenLeavesTheLastOne) {
    QenXmlParser parser;
    parser.parseFile(nowhere + name + ".xml");
    EXPECT_THROW(parser.parseFile(nowhere + "ffffffff-ffffffff-ffff-ffffffffffff-.xml"),
                 std::runtime_error);
    EXPECT_EQ(uuid(name), takenBy(parser));
    EXPECT_THROW(parser.parseFile("a.xml"), std::out_of_range);
    EXPECT_EQ(uuid(name), takenBy(parser));
}

TEST(PackageName, OfAPathThatIsTooShortRaises) {
    const std::string path = name + ".xml";
    ASSERT_EQ(40U, path.size());
    for (std::size_t length = 0; length < path.size(); ++length) {
        SCOPED_TRACE(length);
        // The end is kept, so that what is missing is the start of the UUID.
        EXPECT_THROW(QenXmlParser().parseFile(path.substr(path.size() - length)),
                     std::out_of_range);
    }
    EXPECT_EQ(uuid(name), takenFrom(path));
}

TEST(PackageName, MayHoldAnyCharacterAtAnyPosition) {
    const std::string digits = "0123456789abcdeffedcba9876543210....";
    const auto text = [](const boost::uuids::uuid& id) { return to_string(id); };
    const std::string hexadecimal = "0123456789abcdefABCDEF";
    for (std::size_t position = 0; position < 32; ++position) {
        for (int character = 0; character < 256; ++character) { // NUL included
            const char c = static_cast<char>(character);
            if ((c == '{' && position == 0) || (c == '-' && position == 8))
                continue; // They are not read as digits there.
            std::string path = nowhere + digits + ".xml";
            path[nowhere.size() + position] = c;

            // Hyphens of the canonical text stand after the digits 8, 12, 16 and 20.
            std::string wanted = "01234567-89ab-cdef-fedc-ba9876543210";
            std::size_t at = position;
            for (const std::size_t group : {8U, 12U, 16U, 20U})
                at += position >= group ? 1 : 0;
            if (hexadecimal.find(c) != std::string::npos) {
                wanted[at] = c;
            } else {
                wanted[at] = 'f';
                if (position % 2 == 1)
                    wanted[at - 1] = 'f';
            }
            ASSERT_EQ(text(uuid(wanted)), text(takenFrom(path)))
                << "character " << character << " at " << position;
        }
    }
}

TEST(PackageName, IsTakenFromTheWholePathAlsoBeyondANulCharacter) {
    // The file that is opened is the one before the NUL character.
    const test::TemporaryFolder folder;
    const std::string opened = folder.write("a", test::package());
    QenXmlParser parser;
    EXPECT_TRUE(parser.parseFile(opened + std::string(1, '\0') + name + ".xml"));
    EXPECT_EQ(uuid(name), takenBy(parser));
}

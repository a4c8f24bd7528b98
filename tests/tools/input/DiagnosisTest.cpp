#include "tools/input/Diagnosis.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tools/check/FindingCollection.h"
#include "tools/check/PackageCheck.h"
#include "tools/files/Descriptor.h"
#include "tools/files/FileContent.h"
#include "tools/input/PackageReading.h"

namespace {

const std::string uuidText = "a1b2c3d4-0000-4000-8000-000000000001";

/// "LINE:COLUMN reason", or only the reason, of what is wrong with a package.
std::string diagnosisOf(const std::string& path) {
    Diagnosis diagnosis;
    checkPackage(path, diagnosis);
    const ReadFailure failure = diagnosis.failure();
    std::string text;
    if (failure.position)
        text = std::to_string(failure.position->line) + ":" +
               std::to_string(failure.position->column) + " ";
    return text + failure.reason;
}

class DiagnosisTest : public testing::Test {
protected:
    std::string of(const std::string& content) {
        return diagnosisOf(folder_.writePackage(content));
    }

    /// Of a package with the given children of the only field's only rec.
    std::string ofRec(const std::string& attributes, const std::string& content) {
        return of("<RecPackage><Grower GrowerID='" + uuidText + "'><Farm FarmID='" + uuidText +
                  "'><Field FieldID='" + uuidText + "'><FieldGeometryID>" + uuidText +
                  "</FieldGeometryID><FieldGeometry>" + uuidText +
                  "</FieldGeometry><Recommendations>\n<Rec " + attributes + ">" + content +
                  "</Rec></Recommendations></Field></Farm></Grower></RecPackage>");
    }

    test::TemporaryFolder folder_;
};

const std::string recPath =
    "invalid uuid string: /RecPackage/Grower[1]/Farm[1]/Field[1]/Recommendations/Rec[1]";
const std::string recId = "RecID='" + uuidText + "'";
const std::string recGeometry = "<RecGeometry>" + uuidText + "</RecGeometry>";

TEST_F(DiagnosisTest, FindsThatAFileIsMissing) {
    EXPECT_EQ(diagnosisOf(folder_.path("00112233-4455-6677-8899-aabbccddeeff.xml")), "not found");
    EXPECT_EQ(diagnosisOf(folder_.path("a.xml")), "not found");
}

TEST_F(DiagnosisTest, FindsThatAFileIsAFolder) {
    const std::string path = folder_.path("00112233-4455-6677-8899-aabbccddeeff.xml");
    std::filesystem::create_directory(path);
    EXPECT_EQ(diagnosisOf(path), "is a directory");
}

TEST_F(DiagnosisTest, FindsThatAFileIsNoRegularFile) {
    const std::string path = folder_.path("00112233-4455-6677-8899-aabbccddeeff.xml");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(diagnosisOf(path), "is not a regular file");
    EXPECT_EQ(diagnosisOf("/dev/null"), "is not a regular file");
}

TEST_F(DiagnosisTest, FindsThatAFileMayNotBeRead) {
    const std::string path = folder_.writePackage("<RecPackage/>");
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const uid_t user = geteuid();
    // Root may read everything, so it has to become somebody else meanwhile.
    const uid_t nobody = 65534;
    ASSERT_EQ(seteuid(user == 0 ? nobody : user), 0);
    const PackageReading reading = readPackage(path);
    ASSERT_EQ(seteuid(user), 0);
    ASSERT_TRUE(reading.failure);
    EXPECT_EQ(reading.failure->reason, "permission denied");
    EXPECT_EQ(reading.failure->position, std::nullopt);
}

TEST_F(DiagnosisTest, SaysOfOtherFailuresWhatTheSystemSays) {
    EXPECT_EQ(diagnosisOf(folder_.writePackage("<RecPackage/>") + "/a"),
              "cannot be read: Not a directory");
    EXPECT_EQ(describeFileError(EIO), "cannot be read: Input/output error");
    EXPECT_EQ(describeFileError(EACCES), "permission denied");
}

TEST_F(DiagnosisTest, FindsThatAFileNameHasNoUuid) {
    const std::string expected =
        "; a name such as 00112233-4455-6677-8899-aabbccddeeff.xml is expected";
    EXPECT_EQ(diagnosisOf(folder_.write("00112233-44556677-8899-aabbccddeeff_.xml", "<a>")),
              "the file name holds no package UUID" + expected);
    const std::string shortPath = "/proc/version"; // there on every machine
    EXPECT_EQ(diagnosisOf(shortPath), "the path has 13 of at least 40 bytes" + expected);
}

TEST_F(DiagnosisTest, FindsWhereAFileIsNotWellFormed) {
    EXPECT_EQ(of(""), "1:1 the file is empty; copy it again from where it came, or have it "
                      "written once more");
    EXPECT_EQ(of("\n"),
              "2:1 the file holds nothing but blanks; copy it again from where it came, or "
              "have it written once more");
    EXPECT_EQ(of("<RecPackage>\n  <Grower></Farm>\n</RecPackage>"),
              "2:13 not well-formed: Start-end tags mismatch; Grower of line 2 has not ended here");
    EXPECT_EQ(of("<RecPackage>\n<Grower GrowerID=1/>"),
              "2:18 not well-formed: Error parsing element attribute");
}

TEST_F(DiagnosisTest, FindsThatTheRootIsAnother) {
    EXPECT_EQ(of("<?xml version='1.0'?>\n<!-- x -->\n <Package/>"),
              "3:2 the root element is \"Package\" instead of RecPackage");
    EXPECT_EQ(of("<p:RecPackage/>"),
              "1:1 the root element is \"p:RecPackage\" instead of RecPackage");
    EXPECT_EQ(of("<recpackage\u2028/>"),
              "1:1 the root element is \"recpackage\\u{2028}\" instead of RecPackage");
}

TEST_F(DiagnosisTest, FindsIdentifiersOfGrowers) {
    EXPECT_EQ(of("<RecPackage>\n <Grower GrowerID='" + uuidText + "'/>\n <Grower/></RecPackage>"),
              "3:2 invalid uuid string: /RecPackage/Grower[2]: Grower has no attribute GrowerID");
    EXPECT_EQ(of("<RecPackage><Grower GrowerID=''/></RecPackage>"),
              "1:31 invalid uuid string: /RecPackage/Grower[1]/@GrowerID: GrowerID is empty");
    EXPECT_EQ(
        of("<RecPackage><Grower GrowerID='0011\\'/></RecPackage>"),
        "1:36 invalid uuid string: /RecPackage/Grower[1]/@GrowerID: GrowerID \"0011\\\\\" is too "
        "short: it ends after 5 of 32 digits");
}

TEST_F(DiagnosisTest, FindsIdentifiersOfFarms) {
    EXPECT_EQ(
        of("<RecPackage><Grower GrowerID='" + uuidText + "'><Farm FarmID='" + uuidText +
           "'/>\n<Farm FarmID='" + uuidText + "'/><Farm FarmID='x'/></Grower></RecPackage>"),
        "2:69 invalid uuid string: /RecPackage/Grower[1]/Farm[3]/@FarmID: FarmID \"x\" is too "
        "short: it ends after 1 of 32 digits");
}

TEST_F(DiagnosisTest, FindsIdentifiersOfFields) {
    const auto ofField = [&](const std::string& field) {
        return of("<RecPackage><Grower GrowerID='" + uuidText + "'><Farm FarmID='" + uuidText +
                  "'>\n" + field + "</Farm></Grower></RecPackage>");
    };
    const std::string path = "invalid uuid string: /RecPackage/Grower[1]/Farm[1]/Field[1]";
    EXPECT_EQ(ofField("<Field/>"), "2:1 " + path + ": Field has no attribute FieldID");
    const std::string start = "<Field FieldID='" + uuidText + "'>\n";
    EXPECT_EQ(ofField(start + "</Field>"),
              "2:1 " + path + ": Field has no element FieldGeometryID");
    EXPECT_EQ(ofField(start + " <FieldGeometryID/><FieldGeometry>" + uuidText +
                      "</FieldGeometry></Field>"),
              "3:2 " + path + "/FieldGeometryID: FieldGeometryID is empty");
    EXPECT_EQ(
        ofField(start + "<FieldGeometryID>" + uuidText +
                "</FieldGeometryID>\n<FieldGeometry>17</FieldGeometry></Field>"),
        "4:18 " + path +
            "/FieldGeometry: FieldGeometry \"17\" is too short: it ends after 2 of 32 digits");
}

TEST_F(DiagnosisTest, FindsIdentifiersOfRecs) {
    EXPECT_EQ(ofRec("", ""), "2:1 " + recPath + ": Rec has no attribute RecID");
    EXPECT_EQ(ofRec(recId, ""), "2:1 " + recPath + ": Rec has no element RecGeometry");
    EXPECT_EQ(ofRec(recId + " MgmtZoneID='abc'", recGeometry),
              "2:66 " + recPath +
                  "/@MgmtZoneID: MgmtZoneID \"abc\" is too short: it ends after 3 of 32 digits");
    EXPECT_EQ(ofRec(recId + " MgmtZoneID=''", "\n<RecGeometry>x</RecGeometry>"),
              "3:15 " + recPath +
                  "/RecGeometry: RecGeometry \"x\" is too short: it ends after 1 of 32 digits");
    EXPECT_EQ(ofRec(recId, recGeometry + "\n<Operation/>"),
              "3:1 " + recPath + "/Operation: Operation has no attribute OpID");
}

TEST_F(DiagnosisTest, FindsTheIdentifierOfABlend) {
    std::string blend = "<RecData><CustomFertilizer>\n<ProductID/><ProductName/><UOMID/><UOM/>"
                        "<SFertT_ID/><SpGravity/>";
    for (const std::string nutrient :
         {"N", "P", "K", "Ca", "Mg", "S", "Fe", "Mn", "Zn", "Cu", "B", "Mo", "Cl"})
        blend += "<Pct_" + nutrient + "/>";
    blend += "</CustomFertilizer></RecData>";
    EXPECT_EQ(ofRec(recId, recGeometry + blend),
              "3:1 " + recPath + "/RecData/CustomFertilizer/ProductID: ProductID is empty");
}

TEST_F(DiagnosisTest, ReportsTheIdentifierThatStopsTheLibraryFirst) {
    // The farm has no identifier either, but the library never comes to it.
    EXPECT_EQ(of("<RecPackage><Grower>\n<Farm/></Grower></RecPackage>"),
              "1:13 invalid uuid string: /RecPackage/Grower[1]: Grower has no attribute GrowerID");
}

TEST_F(DiagnosisTest, ExplainsThatAForeignNodeAfterAListIsReadAsAnItem) {
    EXPECT_EQ(
        of("<RecPackage><Grower GrowerID='" + uuidText + "'><Farm FarmID='" + uuidText +
           "'/>\n<GrowerName>Hansen</GrowerName></Grower></RecPackage>"),
        "2:1 invalid uuid string: /RecPackage/Grower[1]/GrowerName[1]: \"GrowerName\" follows "
        "the first Farm and is read as one too, but has no readable FarmID");
    EXPECT_EQ(of("<RecPackage><Grower GrowerID='" + uuidText + "'/>\n stray</RecPackage>"),
              "2:2 invalid uuid string: /RecPackage/text()[1]: the text \"stray\" follows the "
              "first Grower and is read as one too, but has no readable GrowerID");
}

TEST_F(DiagnosisTest, CutsLongTexts) {
    EXPECT_EQ(of("<" + std::string(100000, 'a') + "/>"),
              "1:1 the root element is \"" + std::string(60, 'a') + "...\" instead of RecPackage");
    const std::string text(100, '-');
    EXPECT_EQ(of("<RecPackage><Grower GrowerID='{" + text + "'/></RecPackage>"),
              "1:68 invalid uuid string: /RecPackage/Grower[1]/@GrowerID: GrowerID \"{" +
                  std::string(59, '-') + "...\" lacks the closing brace after its last digit");
}

TEST_F(DiagnosisTest, AdmitsThatItFindsNothingWrong) {
    EXPECT_EQ(of("<RecPackage/>"),
              "could not be read, but nothing is wrong with it now; it may have changed meanwhile");
}

TEST(PackageReading, KeepsTheGrowersBeforeAFailure) {
    const test::TemporaryFolder folder;
    PackageReading reading = readPackage(folder.writePackage(
        "<RecPackage><Grower GrowerID='" + uuidText + "'/><Grower/></RecPackage>"));
    EXPECT_EQ(reading.uuid, test::uuid("00112233-4455-6677-8899-aabbccddeeff"));
    ASSERT_EQ(reading.growers.size(), 1U);
    EXPECT_EQ(reading.growers[0].id(), test::uuid(uuidText));
    ASSERT_TRUE(reading.failure);
    EXPECT_EQ(reading.failure->reason,
              "invalid uuid string: /RecPackage/Grower[2]: Grower has no attribute GrowerID");
}

/// How often a file is opened from now on.
class OpenCount {
public:
    explicit OpenCount(const std::string& path) : watch_(inotify_init1(IN_NONBLOCK)) {
        // Of equal events in succession only one is told, so there must be others between them.
        EXPECT_GE(inotify_add_watch(watch_.number(), path.c_str(), IN_OPEN | IN_CLOSE_NOWRITE), 0);
    }

    int count() const {
        int opened = 0;
        inotify_event event{}; // without a name: it is the file itself that is watched
        while (read(watch_.number(), &event, sizeof event) == sizeof event)
            opened += (event.mask & IN_OPEN) != 0 ? 1 : 0;
        return opened;
    }

private:
    Descriptor watch_;
};

TEST(PackageReading, ReadsABrokenFileOnceForAllButTheLibrary) {
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage("<RecPackage><Grower GrowerID='" + uuidText +
                                                 "'/>\n<Grower/><Grower/></RecPackage>");
    const OpenCount opened(path);
    FindingCollection findings;
    const PackageReading reading = readPackage(PackageInput(path), &findings);
    EXPECT_EQ(findings.counts().of(FindingCode::GrowerId), 2U);
    ASSERT_TRUE(reading.failure);
    EXPECT_EQ(reading.failure->position->line, 2U);
    EXPECT_EQ(reading.gaps.size(), 1U);
    EXPECT_EQ(opened.count(), 2); // The library opens it itself.
}

TEST(PackageReading, FailsInNothingForAGoodPackage) {
    const test::TemporaryFolder folder;
    const PackageReading reading = readPackage(folder.writePackage("<RecPackage/>"));
    EXPECT_FALSE(reading.failure);
    EXPECT_TRUE(reading.growers.empty());
}

TEST(PackageReading, DoesNotWaitForSomebodyToWriteToAPipe) {
    const test::TemporaryFolder folder;
    const std::string path = folder.path("00112233-4455-6677-8899-aabbccddeeff.xml");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const PackageReading reading = readPackage(path);
    ASSERT_TRUE(reading.failure);
    EXPECT_EQ(reading.failure->reason, "is not a regular file");
}

TEST(PackageReading, SaysWhatIsShownAfterAFailure) {
    PackageReading reading;
    reading.name = "a\nb.xml";
    reading.failure = ReadFailure{"is broken", Position{3, 4}};
    EXPECT_EQ(failureMessage(reading, "shown"), "a\\nb.xml:3:4: is broken; the file is skipped");
    reading.growers.resize(1);
    EXPECT_EQ(failureMessage(reading, "shown"),
              "a\\nb.xml:3:4: is broken; the grower before it is shown");
    reading.growers.resize(2);
    EXPECT_EQ(failureMessage(reading, "shown"),
              "a\\nb.xml:3:4: is broken; the 2 growers before it are shown");
    reading.failure->position.reset();
    EXPECT_EQ(failureMessage(reading, "shown"),
              "a\\nb.xml: is broken; the 2 growers before it are shown");
}

} // namespace

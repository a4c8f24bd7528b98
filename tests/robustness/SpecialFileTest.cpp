// What lies under the path of a package and is no file. HostileFileTest.cpp has folders, devices
// and pipes.

#include <string>

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/robustness/Outcome.h"
#include "tests/support/TemporaryFolder.h"

TEST(SpecialFile, ThatIsASocketIsRefused) {
    const test::TemporaryFolder folder;
    const std::string path = folder.path("00112233-4455-6677-8899-aabbccddeeff.xml");
    ASSERT_EQ(0, mknod(path.c_str(), S_IFSOCK | 0600, 0));
    QenXmlParser parser;
    EXPECT_EQ(test::outcome::refused, test::outcomeOf(parser, path));
    EXPECT_EQ(0U, parser.getGrowers().size());
}

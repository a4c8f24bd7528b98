#include "tools/input/PassedOver.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

class PassedOverInFolder : public testing::Test {
protected:
    std::optional<PassedOverReason> reasonOf(const std::string& name) const {
        return reasonToPassOver(fs::directory_entry(folder_.path(name)));
    }

    test::TemporaryFolder folder_;
};

TEST_F(PassedOverInFolder, AreFilesByTheirNames) {
    for (const std::string name :
         {"a.xml", "a.XML", "a.xml.bak", "xml", "._a.xml", "._a", ".a.xml", ".a"})
        folder_.write(name, "");
    EXPECT_EQ(reasonOf("a.xml"), std::nullopt);
    EXPECT_EQ(reasonOf("a.XML"), std::nullopt);
    EXPECT_EQ(reasonOf("a.xml.bak"), PassedOverReason::OtherName);
    EXPECT_EQ(reasonOf("xml"), PassedOverReason::OtherName);
    EXPECT_EQ(reasonOf("._a.xml"), PassedOverReason::SideFile);
    EXPECT_EQ(reasonOf("._a"), PassedOverReason::SideFile);
    EXPECT_EQ(reasonOf(".a.xml"), PassedOverReason::HiddenFile);
    EXPECT_EQ(reasonOf(".a"), PassedOverReason::HiddenFile);
}

TEST_F(PassedOverInFolder, AreFoldersThatHoldNoPackages) {
    for (const std::string name : {"a", "b.xml", ".git", "$RECYCLE.BIN", "$Recycle.Bin",
                                   "System Volume Information", "lost+found", "__MACOSX"})
        fs::create_directory(folder_.path(name));
    fs::create_directory_symlink(folder_.path("a"), folder_.path("link"));
    EXPECT_EQ(reasonOf("a"), std::nullopt);
    EXPECT_EQ(reasonOf("b.xml"), std::nullopt);
    EXPECT_EQ(reasonOf(".git"), PassedOverReason::HiddenFolder);
    for (const std::string name :
         {"$RECYCLE.BIN", "$Recycle.Bin", "System Volume Information", "lost+found", "__MACOSX"})
        EXPECT_EQ(reasonOf(name), PassedOverReason::SystemFolder) << name;
    EXPECT_EQ(reasonOf("link"), PassedOverReason::LinkToFolder);
}

TEST_F(PassedOverInFolder, AreThingsThatAreNoFilesButNotLinksThatLeadNowhere) {
    ASSERT_EQ(mkfifo(folder_.path("pipe.xml").c_str(), S_IRUSR), 0);
    fs::create_symlink("nowhere.xml", folder_.path("lost.xml"));
    fs::create_symlink("self.xml", folder_.path("self.xml"));
    EXPECT_EQ(reasonOf("pipe.xml"), PassedOverReason::NoFile);
    EXPECT_EQ(reasonOf("lost.xml"), std::nullopt);
    EXPECT_EQ(reasonOf("self.xml"), std::nullopt);
}

TEST(PassedOver, IsToldByReasonInNumbers) {
    PassedOver passedOver;
    EXPECT_EQ(passedOver.text(), "");
    passedOver.add(PassedOverReason::NoFile);
    EXPECT_EQ(passedOver.text(), "1 device, pipe or socket");
    for (int i = 0; i < 1200; ++i)
        passedOver.add(PassedOverReason::OtherName);
    passedOver.add(PassedOverReason::HiddenFolder);
    passedOver.add(PassedOverReason::HiddenFolder);
    EXPECT_EQ(passedOver.text(),
              "1,200 files not named .xml, 2 hidden folders, 1 device, pipe or socket");
}

} // namespace

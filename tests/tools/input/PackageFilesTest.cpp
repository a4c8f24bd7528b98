#include "tools/input/PackageFiles.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

TEST(PackageFiles, KeepsFilesInTheirOrderWhetherTheyExistOrNot) {
    const PackageFiles files = packageFiles({"b.xml", "a.txt", "b.xml"});
    EXPECT_EQ(files.paths, (std::vector<std::string>{"b.xml", "a.txt", "b.xml"}));
    EXPECT_EQ(files.complaints, std::vector<std::string>{});
}

TEST(PackageFiles, FindsThePackagesInAFolderAndItsFoldersSorted) {
    const test::TemporaryFolder folder;
    fs::create_directories(folder.path("a/deep"));
    fs::create_directories(folder.path("c.xml")); // a folder, whatever its name
    for (const std::string name : {"b.xml", "a/deep/z.xml", "a/y.XML", "readme.txt", "xml"})
        folder.write(name, "");
    const PackageFiles files = packageFiles({"first", folder.path("")});
    EXPECT_EQ(files.paths,
              (std::vector<std::string>{"first", folder.path("a/deep/z.xml"),
                                        folder.path("a/y.XML"), folder.path("b.xml")}));
    EXPECT_EQ(files.complaints, std::vector<std::string>{});
}

TEST(PackageFiles, ComplainsOfAFolderWithoutPackages) {
    const test::TemporaryFolder folder;
    fs::create_directory(folder.path("empty\n"));
    const PackageFiles files = packageFiles({folder.path("empty\n")});
    EXPECT_EQ(files.paths, std::vector<std::string>{});
    EXPECT_EQ(
        files.complaints,
        (std::vector<std::string>{folder.path("empty") +
                                  "\\n: no visible file in it ends in .xml; nothing is checked"}));
}

TEST(PackageFiles, LeavesTheStandardInputToItsReader) {
    const test::TemporaryFolder folder;
    fs::create_directory(folder.path("-"));
    const fs::path before = fs::current_path();
    fs::current_path(folder.path(""));
    const PackageFiles files = packageFiles({"-"});
    fs::current_path(before);
    EXPECT_EQ(files.paths, std::vector<std::string>{"-"});
    EXPECT_EQ(files.complaints, std::vector<std::string>{});
}

TEST(PackageFiles, ComplainsOfEachFolderThatItMayNotList) {
    const test::TemporaryFolder folder;
    fs::create_directories(folder.path("a/locked"));
    folder.write("a/b.xml", "");
    fs::permissions(folder.path("a/locked"), fs::perms::none);
    test::openToEverybody(folder.path("a"));
    test::openToEverybody(folder.path(""));
    EXPECT_TRUE(test::asOrdinaryUser(folder.path(""), [] {
        const PackageFiles files = packageFiles({"a"});
        return files.paths == std::vector<std::string>{"a/b.xml"} &&
               files.complaints == std::vector<std::string>{
                                       "a/locked: permission denied; packages in it are left out"};
    }));
    fs::permissions(folder.path("a/locked"), fs::perms::owner_all); // so that it can be deleted
}

TEST(PackageFiles, CountsWhatIsPassedOverInEachFolderByReason) {
    const test::TemporaryFolder folder;
    for (const std::string name : {"a/.git", "a/$Recycle.Bin", "a/deep", "b"})
        fs::create_directories(folder.path(name));
    for (const std::string name : {"a/1.xml", "a/readme.txt", "a/deep/1.xml.bak", "a/deep/._1.xml",
                                   "a/.2.xml", "a/.git/3.xml", "a/$Recycle.Bin/4.xml", "b/5.xml"})
        folder.write(name, "");
    fs::create_symlink("nowhere", folder.path("b/6.xml"));
    const PackageFiles files = packageFiles({folder.path("a"), folder.path("b")});
    EXPECT_EQ(files.paths, (std::vector<std::string>{folder.path("a/1.xml"), folder.path("b/5.xml"),
                                                     folder.path("b/6.xml")}));
    EXPECT_EQ(files.remarks,
              std::vector<std::string>{folder.path("a") +
                                       ": passed over 2 files not named .xml, 1 side file of macOS "
                                       "(._NAME), 1 hidden file, 1 hidden folder, 1 folder of the "
                                       "system"});
}

TEST(PackageFiles, ReadsWhatIsNamedEvenIfAFolderWouldPassItOver) {
    const test::TemporaryFolder folder;
    fs::create_directory(folder.path(".hidden"));
    folder.write(".hidden/a.xml", "");
    folder.write("._a.xml", "");
    const PackageFiles files = packageFiles({folder.path(".hidden"), folder.path("._a.xml")});
    EXPECT_EQ(files.paths,
              (std::vector<std::string>{folder.path(".hidden/a.xml"), folder.path("._a.xml")}));
    EXPECT_EQ(files.remarks, std::vector<std::string>{});
}

TEST(PackageFiles, FollowsNoLinksToFolders) {
    const test::TemporaryFolder folder;
    fs::create_directories(folder.path("a"));
    folder.write("a/b.xml", "");
    fs::create_directory_symlink(folder.path("a"), folder.path("a/again"));
    const PackageFiles files = packageFiles({folder.path("a")});
    EXPECT_EQ(files.paths, std::vector<std::string>{folder.path("a/b.xml")});
    EXPECT_EQ(files.remarks,
              std::vector<std::string>{folder.path("a") + ": passed over 1 link to a folder"});
}

} // namespace

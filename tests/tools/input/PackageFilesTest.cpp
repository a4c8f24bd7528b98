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
    EXPECT_EQ(files.complaints,
              (std::vector<std::string>{folder.path("empty") +
                                        "\\n: no file in it ends in .xml; nothing is checked"}));
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

TEST(PackageFiles, FollowsNoLinksToFolders) {
    const test::TemporaryFolder folder;
    fs::create_directories(folder.path("a"));
    folder.write("a/b.xml", "");
    fs::create_directory_symlink(folder.path("a"), folder.path("a/again"));
    EXPECT_EQ(packageFiles({folder.path("a")}).paths,
              std::vector<std::string>{folder.path("a/b.xml")});
}

} // namespace

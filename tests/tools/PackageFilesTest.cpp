#include "tools/PackageFiles.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

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
              (std::vector<std::string>{folder.path("empty") + "\\n: no file in it ends in .xml"}));
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

} // namespace

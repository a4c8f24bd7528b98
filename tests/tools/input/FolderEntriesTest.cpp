#include "tools/input/FolderEntries.h"

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

/// The entries in their order, folders with a slash.
std::vector<std::string> entriesOf(FolderEntries& entries, PassedOver& passedOver) {
    std::vector<std::string> names;
    while (const auto entry = entries.next(passedOver))
        names.push_back(fs::path(entry->path).filename().string() + (entry->isFolder ? "/" : ""));
    return names;
}

TEST(FolderEntries, AreSortedAsThePathsBelowThem) {
    const test::TemporaryFolder folder;
    fs::create_directory(folder.path("a"));
    for (const std::string name : {"a.xml", "a0.xml", "B.xml", "c.txt"})
        folder.write(name, "");
    FolderEntries entries(folder.path(""));
    PassedOver passedOver;
    EXPECT_EQ(entriesOf(entries, passedOver),
              (std::vector<std::string>{"B.xml", "a.xml", "a/", "a0.xml"}));
    EXPECT_EQ(passedOver.text(), "1 file not named .xml");
    EXPECT_EQ(entries.error(), 0);
}

TEST(FolderEntries, AreTheSameHoweverFewAreKeptAtATime) {
    const test::TemporaryFolder folder;
    fs::create_directory(folder.path("2"));
    for (int i = 10; i < 60; ++i)
        folder.write(std::to_string(i * 37 % 100) + (i % 10 == 0 ? ".txt" : ".xml"), "");
    PassedOver passedOver;
    FolderEntries whole(folder.path(""));
    const std::vector<std::string> expected = entriesOf(whole, passedOver);
    ASSERT_EQ(expected.size(), 46U);
    for (const std::size_t atATime : {1U, 2U, 45U, 46U, 47U}) {
        FolderEntries entries(folder.path(""), atATime);
        PassedOver again;
        EXPECT_EQ(entriesOf(entries, again), expected) << atATime;
        EXPECT_EQ(again.text(), "5 files not named .xml") << atATime;
    }
}

TEST(FolderEntries, AreNoneWhereTheFolderCannotBeListed) {
    FolderEntries entries("/dev/null/missing");
    PassedOver passedOver;
    EXPECT_EQ(entries.next(passedOver), std::nullopt);
    EXPECT_EQ(entries.error(), ENOTDIR);
}

} // namespace

#include "tools/report/FileNames.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

FileNames namesOf(const std::vector<std::string>& paths) {
    FileNames names;
    for (const std::string& path : paths)
        names.add(path);
    return names;
}

TEST(FileNames, GiveTheFolderOfAllFilesOnce) {
    const FileNames names = namesOf({"season/2026/a.xml", "season/2026/b.xml"});
    EXPECT_EQ(names.folder(), "season/2026");
    EXPECT_EQ(names.name("season/2026/b.xml"), "b.xml");
}

TEST(FileNames, KeepTheFoldersInWhichFilesDiffer) {
    const FileNames names = namesOf({"/media/stick/north/a.xml", "/media/stick/not/a.xml"});
    EXPECT_EQ(names.folder(), "/media/stick");
    EXPECT_EQ(names.name("/media/stick/north/a.xml"), "north/a.xml");
    EXPECT_EQ(names.name("/media/stick/not/a.xml"), "not/a.xml");
}

TEST(FileNames, DoNotTakePartOfANameForAFolder) {
    const FileNames names = namesOf({"a/season1/x.xml", "a/season12/x.xml", "a/season/y.xml"});
    EXPECT_EQ(names.folder(), "a");
    EXPECT_EQ(names.name("a/season1/x.xml"), "season1/x.xml");
}

TEST(FileNames, AreWholeWithoutAFolderInCommon) {
    const FileNames names = namesOf({"here/a.xml", "/there/b.xml"});
    EXPECT_EQ(names.folder(), "");
    EXPECT_EQ(names.name("/there/b.xml"), "/there/b.xml");
    EXPECT_EQ(namesOf({"a.xml", "season/b.xml"}).name("season/b.xml"), "season/b.xml");
    EXPECT_EQ(namesOf({}).folder(), "");
}

TEST(FileNames, SayNothingOfThePresentFolder) {
    const FileNames names = namesOf({"./a.xml", "./b.xml"});
    EXPECT_EQ(names.folder(), "");
    EXPECT_EQ(names.name("./b.xml"), "b.xml");
}

TEST(FileNames, KnowTheRootAndRepeatedSlashes) {
    EXPECT_EQ(namesOf({"/a.xml", "/b.xml"}).folder(), "/");
    EXPECT_EQ(namesOf({"/a.xml", "/b/c.xml"}).name("/b/c.xml"), "b/c.xml");
    EXPECT_EQ(namesOf({"season//a.xml"}).folder(), "season");
    EXPECT_EQ(namesOf({"season//a.xml"}).name("season//a.xml"), "a.xml");
}

} // namespace

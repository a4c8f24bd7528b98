#include "tools/input/PackageNames.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

namespace {

/// Takes the names that options ask for, and what is said about them.
class NamesOfPackages : public testing::Test {
protected:
    ~NamesOfPackages() override {
        std::fclose(output_);
        std::fclose(messages_);
    }

    PackageOptions named(const Names& files) {
        PackageOptions options;
        options.files = files;
        return options;
    }

    PackageOptions listed(const std::string& content, bool zeroEnds = false) {
        PackageOptions options;
        options.list = folder_.write("list", content);
        options.zeroEnds = zeroEnds;
        return options;
    }

    Names taken(const PackageOptions& options) {
        Names names;
        PackageNames packages(options, console_);
        packages.forEach([&](const PackageInput& input) {
            names.push_back(input.name());
            return true;
        });
        allFound_ = packages.finish();
        return names;
    }

    std::string messages() {
        std::string text(static_cast<std::size_t>(std::ftell(messages_)), '\0');
        std::rewind(messages_);
        text.resize(std::fread(text.data(), 1, text.size(), messages_));
        return text;
    }

    test::TemporaryFolder folder_;
    std::FILE* output_ = std::tmpfile();
    std::FILE* messages_ = std::tmpfile();
    Console console_{output_, messages_, Style()};
    bool allFound_ = false;
};

TEST_F(NamesOfPackages, AreFilesInTheirOrderWhetherTheyExistOrNot) {
    EXPECT_EQ(taken(named({"b.xml", "a.txt", "b.xml"})), (Names{"b.xml", "a.txt", "b.xml"}));
    EXPECT_TRUE(allFound_);
    EXPECT_EQ(messages(), "");
}

TEST_F(NamesOfPackages, AreThoseInAFolderAndItsFoldersSorted) {
    fs::create_directories(folder_.path("a/deep"));
    fs::create_directories(folder_.path("c.xml")); // a folder, whatever its name
    for (const std::string name :
         {"b.xml", "a/deep/z.xml", "a/y.XML", "a.xml", "c.xml/d.xml", "readme.txt", "xml"})
        folder_.write(name, "");
    EXPECT_EQ(taken(named({"first", folder_.path("")})),
              (Names{"first", folder_.path("a.xml"), folder_.path("a/deep/z.xml"),
                     folder_.path("a/y.XML"), folder_.path("b.xml"), folder_.path("c.xml/d.xml")}));
    EXPECT_TRUE(allFound_);
    EXPECT_EQ(messages(), "qenxml: passed over 2 files not named .xml\n");
}

TEST_F(NamesOfPackages, AreMissedInAFolderWithoutPackages) {
    fs::create_directory(folder_.path("empty\n"));
    fs::create_directory(folder_.path("good"));
    folder_.write("good/a.xml", "");
    EXPECT_EQ(taken(named({folder_.path("good"), folder_.path("empty\n")})),
              Names{folder_.path("good/a.xml")});
    EXPECT_FALSE(allFound_);
    EXPECT_EQ(messages(), "qenxml: " + folder_.path("empty") +
                              "\\n: no visible file in it ends in .xml; nothing is read\n");
}

TEST_F(NamesOfPackages, AreMissedInSoManyFoldersThatTheRestIsCounted) {
    Names folders;
    std::string expected;
    for (int i = 0; i < 12; ++i) {
        folders.push_back(folder_.path(std::to_string(i)));
        fs::create_directory(folders.back());
        if (i < 10)
            expected += "qenxml: " + folders.back() +
                        ": no visible file in it ends in .xml; nothing is read\n";
    }
    EXPECT_EQ(taken(named(folders)), Names());
    EXPECT_FALSE(allFound_);
    EXPECT_EQ(messages(), expected + "qenxml: 2 more folders that cannot be listed, or without a "
                                     "visible file that ends in .xml\n");
}

TEST_F(NamesOfPackages, AreMissedInTenFoldersThatAreAllNamed) {
    Names folders;
    for (int i = 0; i < 10; ++i) {
        folders.push_back(folder_.path(std::to_string(i)));
        fs::create_directory(folders.back());
    }
    EXPECT_EQ(taken(named(folders)), Names());
    EXPECT_EQ(messages().find(" more folder"), std::string::npos) << messages();
}

TEST_F(NamesOfPackages, LeaveTheStandardInputToItsReader) {
    fs::create_directory(folder_.path("-"));
    const fs::path before = fs::current_path();
    fs::current_path(folder_.path(""));
    PackageOptions options = named({"-"});
    options.uuid = "00112233-4455-6677-8899-aabbccddeeff";
    EXPECT_EQ(PackageNames(options, console_).next(), "-");
    fs::current_path(before);
}

TEST_F(NamesOfPackages, AreTheOthersWhereAFolderMayNotBeListed) {
    fs::create_directories(folder_.path("a/locked"));
    folder_.write("a/b.xml", "");
    folder_.write("a/z.xml", "");
    fs::permissions(folder_.path("a/locked"), fs::perms::none);
    test::openToEverybody(folder_.path("a"));
    test::openToEverybody(folder_.path(""));
    EXPECT_TRUE(test::asOrdinaryUser(folder_.path(""), [this] {
        return taken(named({"a"})) == Names{"a/b.xml", "a/z.xml"} && !allFound_ &&
               messages() == "qenxml: a/locked: permission denied; packages in it are left out\n";
    }));
    fs::permissions(folder_.path("a/locked"), fs::perms::owner_all); // so that it can be deleted
}

TEST_F(NamesOfPackages, PassOverInFoldersWhatIsCountedByReason) {
    for (const std::string name : {"a/.git", "a/$Recycle.Bin", "a/deep", "b"})
        fs::create_directories(folder_.path(name));
    for (const std::string name :
         {"a/1.xml", "a/readme.txt", "a/deep/1.xml.bak", "a/deep/._1.xml", "a/.2.xml",
          "a/.git/3.xml", "a/$Recycle.Bin/4.xml", "b/5.xml", "b/more.txt"})
        folder_.write(name, "");
    fs::create_symlink("nowhere", folder_.path("b/6.xml"));
    EXPECT_EQ(taken(named({folder_.path("a"), folder_.path("b")})),
              (Names{folder_.path("a/1.xml"), folder_.path("b/5.xml"), folder_.path("b/6.xml")}));
    EXPECT_TRUE(allFound_);
    EXPECT_EQ(messages(), "qenxml: passed over 3 files not named .xml, 1 side file of macOS "
                          "(._NAME), 1 hidden file, 1 hidden folder, 1 folder of the system\n");
}

TEST_F(NamesOfPackages, AreTakenWhenNamedEvenIfAFolderWouldPassThemOver) {
    fs::create_directory(folder_.path(".hidden"));
    folder_.write(".hidden/a.xml", "");
    folder_.write("._a.xml", "");
    EXPECT_EQ(taken(named({folder_.path(".hidden"), folder_.path("._a.xml")})),
              (Names{folder_.path(".hidden/a.xml"), folder_.path("._a.xml")}));
    EXPECT_EQ(messages(), "");
}

TEST_F(NamesOfPackages, FollowNoLinksToFolders) {
    fs::create_directories(folder_.path("a"));
    folder_.write("a/b.xml", "");
    fs::create_directory_symlink(folder_.path("a"), folder_.path("a/again"));
    EXPECT_EQ(taken(named({folder_.path("a")})), Names{folder_.path("a/b.xml")});
    EXPECT_EQ(messages(), "qenxml: passed over 1 link to a folder\n");
}

TEST_F(NamesOfPackages, OfAListComeBehindThoseOfTheCommandLine) {
    fs::create_directory(folder_.path("folder"));
    PackageOptions options = listed("b.xml\n-\nmissing.xml\n" + folder_.path("folder") + "\n");
    options.files = {"first"};
    EXPECT_EQ(taken(options),
              (Names{"first", "b.xml", "./-", "missing.xml", folder_.path("folder")}));
    EXPECT_TRUE(allFound_);
    EXPECT_EQ(messages(), "");
}

TEST_F(NamesOfPackages, AreMissedInAListWithout) {
    PackageOptions options = listed("\n\r\n");
    options.files = {"first"};
    EXPECT_EQ(taken(options), Names{"first"});
    EXPECT_FALSE(allFound_);
    EXPECT_EQ(messages(), "qenxml: " + options.list + ": names no file\n");
}

TEST_F(NamesOfPackages, AreThoseBeforeWhereAListCanBeReadNoFurther) {
    const PackageOptions options = listed(std::string("a\nb\0c\nd\n", 8));
    EXPECT_EQ(taken(options), Names{"a"});
    EXPECT_FALSE(allFound_);
    EXPECT_EQ(messages(), "qenxml: " + options.list +
                              ": holds a zero byte; for names that end with zero bytes give "
                              "--null; nothing more is read from it\n");
}

TEST_F(NamesOfPackages, AreRefusedWhereTheListIsNotThere) {
    PackageOptions options;
    options.list = folder_.path("missing");
    try {
        const PackageNames names(options, console_);
        FAIL();
    } catch (const CLI::ValidationError& error) {
        EXPECT_EQ(error.what(), "--files-from: " + options.list + ": not found");
    }
}

TEST_F(NamesOfPackages, OfAListComeWhileItIsWritten) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    PackageOptions options;
    options.list = "/dev/fd/" + std::to_string(ends[0]);
    PackageNames names(options, console_);
    for (const std::string name : {"a.xml", "b.xml"}) {
        ASSERT_EQ(write(ends[1], (name + "\n").data(), name.size() + 1), 6);
        EXPECT_EQ(names.next(), name);
    }
    close(ends[1]);
    EXPECT_EQ(names.next(), std::nullopt);
    close(ends[0]);
}

TEST_F(NamesOfPackages, AreKnownToBeOneBeforeItIsTaken) {
    folder_.write("a.xml", "");
    const std::vector<std::pair<Names, bool>> cases = {
        {{"a"}, true}, {{"a", "b"}, false}, {{folder_.path("")}, true}, {{"a", "a", "a"}, false}};
    for (const auto& [files, isOne] : cases) {
        const PackageOptions options = named(files);
        PackageNames names(options, console_);
        EXPECT_EQ(names.isOne(), isOne);
        std::size_t count = 0;
        while (names.next())
            ++count;
        EXPECT_EQ(count, files.size());
    }
}

TEST_F(NamesOfPackages, EndWhereTheOutputWouldBeRead) {
    folder_.write("a.xml", "");
    PackageOptions options = named({folder_.path("")});
    options.output = folder_.write("b.xml", "");
    PackageNames names(options, console_);
    EXPECT_EQ(names.next(), folder_.path("a.xml"));
    try {
        names.next();
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(error.what(),
                  "the output would go to " + folder_.path("b.xml") + ", which is to be read");
    }
}

TEST_F(NamesOfPackages, AreCountedWhereTheyCannotBeRead) {
    const PackageOptions options = named({"a", "b", "c"});
    PackageNames names(options, console_);
    names.forEach([](const PackageInput& input) { return input.name() == "b"; });
    EXPECT_FALSE(names.finish());
    EXPECT_EQ(messages(), "qenxml: 2 of 3 files could not be read, or only in part\n");
}

} // namespace

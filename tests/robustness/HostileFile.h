/// @file
/// Whatever a file holds, or is: reading it ends in one of the documented ways, the growers read
/// before stay, and the parser reads the next file as if nothing had happened.

#ifndef QENXML_TESTS_ROBUSTNESS_HOSTILEFILE_H
#define QENXML_TESTS_ROBUSTNESS_HOSTILEFILE_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "parser/QenXmlParser.h"
#include "tests/robustness/NumberPackage.h"
#include "tests/robustness/Outcome.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Texts.h"

namespace test {

constexpr std::size_t million = 1'000'000;

inline const std::string packageUuid = "00112233-4455-6677-8899-aabbccddeeff";

/// A whole package whose farm is called @p name, a text as it stands in a file.
inline std::string packageWithFarm(const std::string& name) {
    return package(grower(1, farm(11, element("FarmName", name))));
}

/// A package that has every kind of element, with line breaks between them.
inline std::string completePackage() {
    return "<?xml version=\"1.0\"?>\n<!-- complete -->\n" +
           package("\n  " + growerWithNumbers("12.75") + "\n  " + grower(2)) + "\n";
}

struct Reading {
    std::string outcome;
    std::vector<QenGrower> growers;

    std::string farmName() { return growers.at(0).farms().at(0).name(); }
};

/// Whether the document of a file holds a package at all, as the XML library sees it.
inline bool holdsPackage(std::string_view content) {
    pugi::xml_document document;
    return document.load_buffer(content.data(), content.size()) && document.child("RecPackage");
}

} // namespace test

class HostileFile : public testing::Test {
protected:
    /// Reads an ordinary package before and after the hostile one, with the same parser, and
    /// expects them to be read as ever.
    test::Reading readFrom(const std::string& path) {
        QenXmlParser parser;
        EXPECT_EQ(test::outcome::read, test::outcomeOf(parser, ordinary_));
        test::Reading reading;
        reading.outcome = test::outcomeOf(parser, path);
        EXPECT_EQ(test::outcome::read, test::outcomeOf(parser, ordinary_));

        reading.growers = parser.getGrowers();
        if (reading.growers.size() < 2) {
            ADD_FAILURE() << "ordinary growers are lost";
            return reading;
        }
        EXPECT_EQ(described_, test::describe(reading.growers.front()));
        EXPECT_EQ(described_, test::describe(reading.growers.back()));
        reading.growers.erase(reading.growers.begin());
        reading.growers.pop_back();
        return reading;
    }

    test::Reading read(std::string_view content) {
        // A new file each time: some file systems write an overwritten one to the disk at once.
        std::filesystem::remove(path());
        return readFrom(folder_.writePackage(content, test::packageUuid));
    }

    /// Expects a package to be read as another one is, which has nothing unusual.
    void expectReadAs(std::string_view usual, std::string_view content) {
        test::Reading reading = read(content);
        EXPECT_EQ(test::outcome::read, reading.outcome);
        EXPECT_EQ(test::describe(read(usual).growers), test::describe(reading.growers));
    }

    /// Expects a package to be read that has a farm with this name.
    void expectFarm(const std::string& name, std::string_view content) {
        test::Reading reading = read(content);
        ASSERT_EQ(test::outcome::read, reading.outcome);
        EXPECT_TRUE(name == reading.farmName()) << name.substr(0, 100); // it may be very long
    }

    void expectRefused(std::string_view content) { expectOutcome(test::outcome::refused, content); }

    void expectOutcome(const std::string& expected, std::string_view content) {
        const test::Reading reading = read(content);
        EXPECT_EQ(expected, reading.outcome);
        EXPECT_EQ("", test::describe(reading.growers));
    }

    /// A path in the folder that carries a UUID, as every path must.
    std::string path() const { return folder_.path(test::packageUuid + ".xml"); }

    const test::TemporaryFolder folder_;

private:
    const std::string ordinary_ = folder_.writePackage(
        test::package(test::grower(
            3, test::farm(13, test::field(23, test::recommendations(test::recWithNumbers(
                                                  33, RecTypePlanting, "3.5")))))),
        "ffffffff-4455-6677-8899-aabbccddeeff");
    const std::string described_ = [this] {
        QenXmlParser parser;
        parser.parseFile(ordinary_);
        return test::describe(parser.getGrowers());
    }();
};

#endif

/// @file
/// The sample packages, and what their tests look at.

#ifndef QENXML_TESTS_PACKAGE_SAMPLES_H
#define QENXML_TESTS_PACKAGE_SAMPLES_H

#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <boost/exception/exception.hpp>
#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/support/FileFacts.h"
#include "tests/support/SourceFolder.h"

namespace test {

namespace fs = std::filesystem;

inline const fs::path packages = test::inSources("examples/packages");
inline const fs::path broken = packages / "broken";

/// The text of a file that has one.
inline std::string textOf(const fs::path& path) {
    if (!fs::is_regular_file(path))
        throw std::runtime_error("cannot open " + path.string());
    return contentOf(path.string());
}

/// The names of all records that have one, indented by level: the shape of a tree.
inline std::string outline(std::vector<QenGrower> growers) {
    std::string result;
    for (QenGrower& grower : growers) {
        result += grower.name() + '\n';
        for (QenFarm& farm : grower.farms()) {
            result += "  " + farm.name() + '\n';
            for (QenField& field : farm.fields()) {
                result += "    " + field.name() + '\n';
                for (QenRec& rec : field.recs())
                    result += "      " + rec.name() + '\n';
            }
        }
    }
    return result;
}

template <class Visit>
void forEachRec(std::vector<QenGrower> growers, Visit visit) {
    for (QenGrower& grower : growers)
        for (QenFarm& farm : grower.farms())
            for (QenField& field : farm.fields())
                for (QenRec& rec : field.recs())
                    visit(rec);
}

/// Names of the entries of a folder.
inline std::set<std::string> entries(const fs::path& folder, bool folders) {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        if (entry.is_directory() == folders)
            names.insert(entry.path().filename().string());
    return names;
}

/// How a call of parseFile() ends.
inline std::string outcomeOf(QenXmlParser& parser, const std::string& path) {
    try {
        return parser.parseFile(path) ? "true" : "false";
    } catch (const std::out_of_range&) {
        return "out of range";
    } catch (const std::runtime_error& error) {
        const bool boosted = dynamic_cast<const boost::exception*>(&error) != nullptr;
        return error.what() + std::string(boosted ? "" : ", no boost::exception");
    }
}

} // namespace test

#endif

/// @file
/// What the check promises: a package without errors and warnings reads as what a conforming XML
/// reader and a person see in it.
///
/// QENXML_PROPERTY_PACKAGES says how many packages are tried, and QENXML_PROPERTY_SEED which is the
/// first; each has a seed of its own, so that one can be tried again alone.

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/support/Describe.h"
#include "tests/support/PlainTree.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tests/tools/check/ExpatTree.h"
#include "tests/tools/check/Findings.h"
#include "tests/tools/check/PersonsReading.h"
#include "tests/tools/check/SlippedPackage.h"
#include "tools/check/PackageCheck.h"

namespace {

using Growers = std::vector<plain::Grower>;

const char* const packageName = "00112233-4455-6677-8899-aabbccddeeff";

/// Calls @p change with each text of a rec.
template <class Change>
void forTexts(plain::Rec& rec, Change change) {
    for (std::string* const text :
         {&rec.name, &rec.creationDate, &rec.editDate, &rec.dbfCol, &rec.operationName,
          &rec.seasonName, &rec.rateUom, &rec.totalUom, &rec.areaUom})
        change(*text);
    if (auto* const planting = std::get_if<plain::Planting>(&rec.product)) {
        for (std::string* const text :
             {&planting->cropName, &planting->companyName, &planting->varietyName, &planting->uom})
            change(*text);
    } else if (auto* const bought = std::get_if<plain::CommercialFertilizer>(&rec.product)) {
        change(bought->productName);
        change(bought->uom);
    } else if (auto* const blend = std::get_if<plain::CustomFertilizer>(&rec.product)) {
        change(blend->productName);
        change(blend->uom);
    }
}

template <class Change>
void forTexts(Growers& growers, Change change) {
    for (plain::Grower& grower : growers) {
        change(grower.name);
        for (plain::Farm& farm : grower.farms) {
            change(farm.name);
            for (plain::Field& field : farm.fields) {
                change(field.name);
                for (plain::Geometry& geometry : field.geometries)
                    change(geometry.date);
                for (plain::Rec& rec : field.recs)
                    forTexts(rec, change);
            }
        }
    }
}

/// Records as a person sees them: nothing in a text of blanks and, where a value is written in
/// pieces, no blanks around it.
Growers asSeen(Growers growers, bool inPieces) {
    forTexts(growers, [&](std::string& text) {
        const std::string_view seen = test::withoutBlanks(text);
        if (inPieces || seen.empty())
            text = std::string(seen);
    });
    return growers;
}

std::string describe(const Growers& growers) {
    std::vector<QenGrower> records;
    for (const plain::Grower& grower : growers)
        records.push_back(plain::toLibrary(grower));
    return test::describe(records);
}

/// Bytes as people can read them and paste them into a program.
std::string printable(const std::string& bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n' || (byte >= 0x20 && byte < 0x7F && c != '\\'))
            text += c;
        else
            text += std::string("\\x") + digits[byte / 16] + digits[byte % 16];
    }
    return text;
}

std::size_t fromEnvironment(const char* name, std::size_t otherwise) {
    const char* const text = std::getenv(name); // NOLINT(concurrency-mt-unsafe): one thread
    return text == nullptr ? otherwise : std::stoull(text);
}

/// What the check, the library, a conforming reader and a person make of one package.
struct Judgement {
    std::set<FindingCode> losses; ///< Errors and warnings.
    bool hasNotes = false;
    bool isRead = false;    ///< By the library.
    bool isRefused = false; ///< By a conforming reader.
    std::string difference; ///< Between what the library reads and what a person sees; or empty.
    std::string details;    ///< Of the difference.
};

class Judge {
public:
    Judgement judge(const std::string& bytes) const {
        Judgement judgement;
        const std::string path = folder_.writePackage(bytes, packageName);
        for (const Finding& finding : checkPackage(path)) {
            if (finding.severity() == Severity::Note)
                judgement.hasNotes = true;
            else
                judgement.losses.insert(finding.code);
        }
        const Growers read = readByLibrary(path, judgement);
        findDifference(read, bytes, judgement);
        return judgement;
    }

private:
    static Growers readByLibrary(const std::string& path, Judgement& judgement) {
        QenXmlParser parser;
        try {
            judgement.isRead = parser.parseFile(path);
        } catch (const std::exception&) {
            judgement.isRead = false;
        }
        Growers growers;
        for (const QenGrower& grower : parser.getGrowers())
            growers.push_back(plain::fromLibrary(grower));
        return growers;
    }

    static void findDifference(const Growers& read, const std::string& bytes,
                               Judgement& judgement) {
        const test::XmlReading xml = test::readXml(bytes);
        judgement.isRefused = !xml.root;
        if (!xml.root) {
            judgement.difference = "a conforming reader says: " + xml.refusal;
            judgement.details = "in line " + std::to_string(xml.line);
            return;
        }
        const test::PersonsReading person =
            test::readAsPerson(*xml.root, test::uuid(std::string(packageName)));
        const Growers seen = asSeen(person.growers, person.inPieces);
        const Growers given = asSeen(read, person.inPieces);
        if (!person.doubt.empty()) {
            judgement.difference = "a person is in doubt";
            judgement.details = person.doubt;
        } else if (!judgement.isRead) {
            judgement.difference = "the library does not read it";
        } else if (!(seen == given)) {
            judgement.difference = "they read otherwise";
            judgement.details =
                "A person sees\n" + describe(seen) + "\nthe library gives\n" + describe(given);
        }
    }

    test::TemporaryFolder folder_ = test::TemporaryFolder::inMemory();
};

/// How often something was found alone, and how often it then stood for a difference.
struct Alone {
    std::size_t packages = 0;
    std::size_t differing = 0;
};

/// The results of many packages.
struct Tally {
    std::size_t packages = 0;
    std::size_t clean = 0;
    std::size_t withNotes = 0; ///< Among those that are clean.
    std::size_t refused = 0;
    std::size_t unread = 0;
    std::map<std::string, std::size_t> failures; ///< By the kind of their difference.
    std::map<FindingCode, Alone> alone;

    void add(const Judgement& judgement) {
        ++packages;
        refused += judgement.isRefused ? 1 : 0;
        unread += judgement.isRead ? 0 : 1;
        clean += judgement.losses.empty() ? 1 : 0;
        withNotes += judgement.losses.empty() && judgement.hasNotes ? 1 : 0;
        if (judgement.losses.size() != 1)
            return;
        Alone& only = alone[*judgement.losses.begin()];
        ++only.packages;
        only.differing += judgement.difference.empty() ? 0 : 1;
    }

    void print() const {
        std::cout << packages << " packages: " << clean << " without errors and warnings, "
                  << withNotes << " of these with notes; " << refused
                  << " refused by a conforming reader, " << unread << " not read by the library\n";
        for (const auto& [difference, count] : failures)
            std::cout << count << " without errors and warnings: " << difference << "\n";
        for (const auto& [code, only] : alone)
            std::cout << kindOf(code).code << " alone in " << only.packages << ", of which "
                      << only.differing << " read otherwise\n";
    }
};

/// Expects that packages hold to the promise, and counts what they are.
Tally tried(std::size_t packages) {
    constexpr std::size_t shown = 2; // of a kind
    const std::size_t first = fromEnvironment("QENXML_PROPERTY_SEED", 1);
    const Judge judge;
    Tally tally;
    for (std::size_t seed = first; seed < first + packages; ++seed) {
        std::mt19937 random(static_cast<std::mt19937::result_type>(seed));
        const std::string bytes = test::slippedPackage(random);
        const Judgement judgement = judge.judge(bytes);
        tally.add(judgement);
        if (!judgement.losses.empty() || judgement.difference.empty())
            continue;
        if (++tally.failures[judgement.difference] <= shown)
            ADD_FAILURE() << "seed " << seed << ": " << judgement.difference << "\n"
                          << judgement.details << "\n"
                          << printable(bytes);
    }
    return tally;
}

TEST(Theorem, APackageWithoutErrorsAndWarningsReadsAsAConformingReaderAndAPersonSeeIt) {
    const char* const variable = "QENXML_PROPERTY_PACKAGES";
    const Tally tally = tried(fromEnvironment(variable, 4000));
    EXPECT_EQ(tally.failures.size(), 0U);
    if (std::getenv(variable) != nullptr) // NOLINT(concurrency-mt-unsafe): one thread
        tally.print();
    if (tally.packages < 4000)
        return;
    // It promises something: many packages are clean, and many are not. Without most of the checks
    // it would not hold: what one of them finds alone, is read otherwise.
    EXPECT_GE(tally.clean, tally.packages / 5);
    EXPECT_GE(tally.packages - tally.clean, tally.packages / 5);
    EXPECT_GE(std::count_if(tally.alone.begin(), tally.alone.end(),
                            [](const auto& only) { return only.second.differing > 0; }),
              20);
}

} // namespace

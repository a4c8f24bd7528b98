// What may be done on several threads at once. These tests show most under ThreadSanitizer; they
// are a program of their own so that nothing else of a test (a lock around the memory, for one)
// orders the threads by accident.

#include <atomic>
#include <cstddef>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "parser/QenXmlParser.h"
#include "tests/robustness/NumberPackage.h"
#include "tests/robustness/Outcome.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageReading.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"

namespace {

constexpr std::size_t threadCount = 8;
constexpr int turns = 20;

/// Runs a function on many threads that begin at the same time, each with its number.
void onThreads(const std::function<void(std::size_t)>& run) {
    std::atomic<std::size_t> waiting{threadCount};
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            --waiting;
            while (waiting > 0)
                std::this_thread::yield();
            run(i);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

/// Threads leave what they found here; it is compared when they are done, because assertions take
/// locks.
using Found = std::vector<std::vector<std::string>>;

/// Expects that something reads the same on all threads at once, over and over.
void expectEverywhere(const std::string& expected, const std::function<std::string()>& read) {
    Found found(threadCount);
    onThreads([&](std::size_t number) {
        for (int i = 0; i < turns; ++i)
            found[number].push_back(read());
    });
    EXPECT_EQ(Found(threadCount, std::vector<std::string>(turns, expected)), found);
}

std::string packageUuid(std::size_t number) {
    return test::uuidText(static_cast<unsigned>(1000 + number));
}

/// A package that differs from all others.
std::string packageNumber(std::size_t number) {
    const auto id = static_cast<unsigned>(number);
    const std::string text = std::to_string(number) + ".5";
    return test::package(
        test::grower(100 + id, test::element("GrowerName", text) + test::farmWithNumbers(text)) +
        test::growerWithNumbers(" 0x1p" + std::to_string(number)));
}

QenGrower readGrower() {
    QenGrower grower = test::growersOf(packageNumber(5)).at(0);
    // Beyond what a package yields: a second geometry, and the product data that is never read.
    QenField& field = grower.farms().at(0).fields().at(0);
    field.addFieldGeometry(
        QenFieldGeometry(test::uuid(71), "2026-05-01", test::uuid(72), LLA{1.0, 2.0, 3.0}));
    QenRec rec;
    rec.setId(test::uuid(34));
    rec.setRecData(new PesticideRec(
        test::uuid(34), {PesticideByPercent(1, "a", 2, "b", Herbicide, 3.5)},
        {PesticideByAmount(4, "c", 5, "d", Carrier, 6.5, 7, "l")}, "mix", 8, "l/ha"));
    field.addRec(rec);
    return grower;
}

} // namespace

TEST(Threads, ReadDifferentFilesWithParsersOfTheirOwn) {
    const test::TemporaryFolder folder;
    std::vector<std::string> paths;
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < threadCount; ++i) {
        paths.push_back(folder.writePackage(packageNumber(i), packageUuid(i)));
        QenXmlParser parser;
        ASSERT_TRUE(parser.parseFile(paths.back()));
        expected.push_back(test::describe(parser.getGrowers()));
        ASSERT_TRUE(i == 0 || expected[i] != expected[i - 1]);
    }

    Found found(threadCount);
    onThreads([&](std::size_t number) {
        for (int i = 0; i < turns; ++i) {
            QenXmlParser parser;
            const std::string outcome = test::outcomeOf(parser, paths[number]);
            found[number].push_back(outcome + "\n" + test::describe(parser.getGrowers()));
        }
    });
    for (std::size_t i = 0; i < threadCount; ++i)
        EXPECT_EQ(std::vector<std::string>(turns, "true\n" + expected[i]), found[i]);
}

TEST(Threads, ReadTheSameFileWithParsersOfTheirOwn) {
    const test::TemporaryFolder folder;
    const std::string path = folder.writePackage(packageNumber(3), packageUuid(3));
    QenXmlParser parser;
    ASSERT_TRUE(parser.parseFile(path));
    const std::string expected = test::describe(parser.getGrowers());

    Found found(threadCount);
    onThreads([&](std::size_t number) {
        QenXmlParser own;
        for (int i = 0; i < turns; ++i)
            test::outcomeOf(own, path);
        for (QenGrower& grower : own.getGrowers())
            found[number].push_back(test::describe(grower));
    });
    std::vector<std::string> growers;
    for (QenGrower& grower : parser.getGrowers())
        growers.push_back(test::describe(grower));
    EXPECT_EQ(expected, growers.at(0) + growers.at(1));
    std::vector<std::string> all;
    for (int i = 0; i < turns; ++i)
        all.insert(all.end(), growers.begin(), growers.end());
    EXPECT_EQ(std::vector(threadCount, all), found);
}

TEST(Threads, FailWithoutDisturbingOthersThatRead) {
    const test::TemporaryFolder folder;
    const std::vector<std::string> paths = {
        folder.writePackage(packageNumber(1), packageUuid(1)),
        folder.writePackage(test::package(test::grower(1) + "<Stray/>"), packageUuid(2)),
        folder.writePackage("<RecPackage>", packageUuid(3)),
        "short",
    };
    const std::vector<std::string> expected = {
        test::outcome::read,
        test::outcome::invalid,
        test::outcome::refused,
        test::outcome::tooShort,
    };
    Found found(threadCount);
    onThreads([&](std::size_t number) {
        for (int i = 0; i < turns; ++i) {
            QenXmlParser parser;
            found[number].push_back(test::outcomeOf(parser, paths[number % paths.size()]));
        }
    });
    for (std::size_t i = 0; i < threadCount; ++i)
        EXPECT_EQ(std::vector<std::string>(turns, expected[i % expected.size()]), found[i]);
}

TEST(Threads, CallElementReadersOnTheSameDocumentWithParsersOfTheirOwn) {
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(packageNumber(4).c_str()));
    const pugi::xml_node element = document.child("RecPackage").child("Grower");
    const std::string expected = test::describe(QenXmlParser().parseGrowerNode(element));
    Found found(threadCount);
    onThreads([&](std::size_t number) {
        QenXmlParser parser;
        for (int i = 0; i < turns; ++i)
            found[number].push_back(test::describe(parser.parseGrowerNode(element)));
    });
    EXPECT_EQ(Found(threadCount, std::vector<std::string>(turns, expected)), found);
}

TEST(Threads, CopyOneUnchangingTree) {
    const QenGrower grower = readGrower();
    const std::string expected = test::describe(grower);
    expectEverywhere(expected + "equal", [&] {
        QenGrower copy = grower;
        QenGrower assigned;
        assigned = grower;
        const std::string found =
            test::describe(copy) + (assigned == grower && copy == assigned ? "equal" : "unequal");
        // Copies belong to their thread alone.
        copy.setName("changed");
        copy.farms().clear();
        assigned.merge(grower);
        return found;
    });
    EXPECT_EQ(expected, test::describe(grower));
}

TEST(Threads, ReadOneUnchangingTreeThroughConstAccessors) {
    QenGrower changing = readGrower();
    const QenGrower& grower = changing;
    const QenFarm& farm = changing.farms().at(0);
    const QenField& field = changing.farms().at(0).fields().at(0);
    const QenRec& rec = changing.farms().at(0).fields().at(0).recs().at(0);
    const auto read = [&] {
        std::string text = farm.name() + to_string(farm.growerId()) + field.name() +
                           to_string(field.id()) + to_string(field.growerId()) +
                           to_string(field.farmId());
        for (const unsigned id : {7021U, 71U, 99U}) {
            const boost::uuids::uuid geometry = test::uuid(id);
            const LLA centroid = field.centroid(geometry);
            text += field.geometryDate(geometry) + field.geometryFileName(geometry) +
                    to_string(field.geometryFileId(geometry)) + std::to_string(centroid.latitude) +
                    std::to_string(centroid.altitude);
        }
        for (const QenFieldGeometry& geometry : field.geometries())
            text += test::describe(geometry);
        for (const unsigned id : {31U, 32U, 33U, 34U, 99U})
            text += test::describe(field.rec(test::uuid(id)));
        text += grower == QenGrower(grower) && !(grower != grower) ? "same" : "other";
        text += farm == QenFarm(farm) && field == QenField(field) && rec == QenRec(rec) ? "same"
                                                                                        : "other";
        return text + test::describe(grower) + test::describe(farm) + test::describe(field) +
               test::describe(rec);
    };
    const std::string expected = read();
    EXPECT_NE(std::string::npos, expected.find("samesame"));
    expectEverywhere(expected, read);
}

// Most getters are no const members, and change nothing all the same.
TEST(Threads, ReadOneUnchangingTreeThroughAllOtherGetters) {
    QenGrower grower = readGrower();
    const auto read = [&] {
        std::string text = to_string(grower.id());
        for (QenFarm& farm : grower.farms()) {
            text += to_string(farm.id());
            for (QenField& field : farm.fields()) {
                for (QenRec& rec : field.recs()) {
                    text += rec.name() + to_string(rec.id()) + to_string(rec.fieldId()) +
                            to_string(rec.recGeometry()) + rec.operationName() + rec.seasonName() +
                            std::to_string(rec.seasonId()) + std::to_string(rec.averageRate()) +
                            rec.rateUom() + to_string(rec.xmlFileName());
                    text += test::describe(rec.recData());
                }
            }
        }
        return text;
    };
    const std::string expected = read();
    EXPECT_NE(std::string::npos, expected.find("\"mix\" \"8\""));
    expectEverywhere(expected, read);
}

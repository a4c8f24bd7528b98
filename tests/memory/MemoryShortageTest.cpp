// What the commands do when memory runs out, at each allocation that they make: they say so, and
// what they say they did is done.

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/robustness/NumberPackage.h"
#include "tests/support/FileFacts.h"
#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/WatchedMemory.h"
#include "tools/commands/CommandLine.h"
#include "tools/input/InputCopy.h"
#include "tools/output/OutputFile.h"

namespace {

/// A stream into memory that comes from malloc(), which never fails here.
class MemoryStream {
public:
    MemoryStream() : stream_(open_memstream(&data_, &size_)) {}
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;
    ~MemoryStream() {
        std::fclose(stream_);
        std::free(data_);
    }

    std::FILE* stream() const { return stream_; }
    std::string text() const {
        std::fflush(stream_);
        return {data_, size_};
    }

private:
    char* data_ = nullptr;
    std::size_t size_ = 0;
    std::FILE* stream_;
};

struct Result {
    ExitCode code = ExitCode::Success;
    std::string output;
    std::string messages;
};

/// Runs a command, for which the allocation with the number @p point fails.
Result run(const std::vector<const char*>& words, std::size_t point, test::Failing failing,
           test::AllocationCounts& counts) {
    const MemoryStream output;
    const MemoryStream messages;
    Result result;
    {
        Console console(output.stream(), messages.stream(), Style(false));
        const test::FailingAllocations armed(point, failing, counts);
        result.code = runCommandLine(static_cast<int>(words.size()), words.data(), console);
    }
    result.output = output.text();
    result.messages = messages.text();
    return result;
}

class MemoryShortageOfExport : public testing::Test {
protected:
    void expectWholeOrOld(const char* format, test::Failing failing) const {
        const test::WatchedXmlMemory watched;
        const std::string out = folder_.path("out");
        const std::vector<const char*> words = {"qenxml", "export",    "--format",   format,
                                                "-o",     out.c_str(), path_.c_str()};
        test::AllocationCounts all;
        run(words, std::numeric_limits<std::size_t>::max(), test::Failing::Once, all);
        const std::string whole = test::contentOf(out);
        ASSERT_NE(whole, "");
        for (std::size_t point = 1; point <= all.all && !HasFailure(); ++point) {
            folder_.write("out", "old");
            test::AllocationCounts counts;
            const Result result = run(words, point, failing, counts);
            EXPECT_TRUE(test::contentOf(out) == (result.code == ExitCode::Success ? whole : "old"))
                << "allocation " << point << ": " << test::contentOf(out);
        }
    }

    const test::TemporaryFolder folder_;
    const std::string path_ = folder_.writePackage(test::package(
        test::grower(1, test::farm(2, test::field(3, "<FieldCentroid><Latitude>1</Latitude>"
                                                     "<Longitude>2</Longitude></FieldCentroid>" +
                                                         test::recommendations(test::recWithNumbers(
                                                             4, RecTypePlanting, "3.5")))))));
};

class MemoryShortage : public MemoryShortageOfExport,
                       public testing::WithParamInterface<std::vector<const char*>> {};

TEST_P(MemoryShortage, IsToldAndNothingIsClaimedThatWasNotDone) {
    const test::WatchedXmlMemory watched;
    std::vector<const char*> words = {"qenxml"};
    words.insert(words.end(), GetParam().begin(), GetParam().end());
    words.push_back(path_.c_str());
    test::AllocationCounts none;
    const Result whole =
        run(words, std::numeric_limits<std::size_t>::max(), test::Failing::Once, none);
    ASSERT_EQ(whole.code, ExitCode::Success) << whole.messages;
    for (const test::Failing failing : {test::Failing::Once, test::Failing::FromThenOn}) {
        for (std::size_t point = 1; point <= none.all && !HasFailure(); ++point) {
            SCOPED_TRACE("allocation " + std::to_string(point));
            test::AllocationCounts counts;
            const Result result = run(words, point, failing, counts);
            if (result.code == ExitCode::Success) {
                EXPECT_TRUE(result.output == whole.output) << result.output;
                EXPECT_EQ(result.messages, whole.messages);
            } else {
                EXPECT_EQ(result.code, ExitCode::Failure);
                EXPECT_NE(result.messages + result.output, "");
            }
        }
    }
    RecordProperty("allocations", std::to_string(none.all));
}

TEST_F(MemoryShortageOfExport, ReplacesAFileByTheWholeOutputOnly) {
    expectWholeOrOld("json", test::Failing::Once);
}

TEST_F(MemoryShortageOfExport, ReplacesAFileByAWholeWorkbookOnly) {
    // Once is too little: what could not be checked then is said in the workbook.
    expectWholeOrOld("xlsx", test::Failing::FromThenOn);
}

INSTANTIATE_TEST_SUITE_P(Commands, MemoryShortage,
                         testing::Values(std::vector<const char*>{"export", "--format", "json"},
                                         std::vector<const char*>{"export", "--format", "jsonl"},
                                         std::vector<const char*>{"export", "--format", "geojson"},
                                         std::vector<const char*>{"export", "--format", "csv"},
                                         std::vector<const char*>{"report"},
                                         std::vector<const char*>{"show"},
                                         std::vector<const char*>{"check"},
                                         std::vector<const char*>{"check", "--json"},
                                         std::vector<const char*>{"check", "--format", "sarif"}),
                         [](const auto& words) {
                             std::string name;
                             for (const std::string word : words.param)
                                 name += word.substr(word.find_first_not_of('-'));
                             return name;
                         });

class MemoryShortageOf : public testing::TestWithParam<FileKind> {};

INSTANTIATE_TEST_SUITE_P(Kinds, MemoryShortageOf,
                         testing::Values(FileKind::Unnamed, FileKind::Named), [](const auto& kind) {
                             return kind.param == FileKind::Named ? "Named" : "Unnamed";
                         });

TEST_P(MemoryShortageOf, LeavesTheOutputWhatItWasOrIsAndNothingElse) {
    const test::TemporaryFolder folder;
    const std::string path = folder.path("out");
    bool failed = true;
    for (std::size_t point = 1; failed && !HasFailure(); ++point) {
        folder.write("out", "old");
        test::AllocationCounts counts;
        bool written = false;
        try {
            const test::FailingAllocations armed(point, test::Failing::FromThenOn, counts);
            OutputFile file(path, GetParam());
            file.write("new");
            file.commit();
            written = true;
        } catch (const std::bad_alloc&) {
            written = false;
        }
        failed = counts.failedCpp > 0;
        EXPECT_EQ(written, !failed) << point;
        EXPECT_EQ(test::contentOf(path), written ? "new" : "old") << point;
        EXPECT_EQ(test::namesIn(folder.path("")), std::vector<std::string>{"out"}) << point;
    }
}

TEST_P(MemoryShortageOf, LeavesNoCopyOfTheStandardInput) {
    const test::TemporaryFolder folder;
    setenv("TMPDIR", folder.path("").c_str(), 1);
    const Descriptor before(dup(STDIN_FILENO));
    dup2(open("/dev/null", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
    bool failed = true;
    for (std::size_t point = 1; failed && !HasFailure(); ++point) {
        test::AllocationCounts counts;
        try {
            const std::string uuid = "aaaaaaaa-0000-4000-8000-000000000001";
            const test::FailingAllocations armed(point, test::Failing::FromThenOn, counts);
            const InputCopy copy(uuid, GetParam());
        } catch (const std::bad_alloc&) {
            EXPECT_GT(counts.failedCpp, 0U);
        }
        failed = counts.failedCpp > 0;
        EXPECT_EQ(test::namesIn(folder.path("")), std::vector<std::string>{}) << point;
    }
    dup2(before.number(), STDIN_FILENO);
    unsetenv("TMPDIR");
}

} // namespace

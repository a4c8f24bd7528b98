#include "tools/output/Console.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

struct Close {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, Close>;

std::string contentOf(std::FILE* file) {
    std::string text;
    std::rewind(file);
    for (int c = 0; (c = std::fgetc(file)) != EOF;)
        text += static_cast<char>(c);
    return text;
}

TEST(Console, WritesResultsToTheOutputAndMessagesBesideThem) {
    const File output(std::tmpfile());
    const File messages(std::tmpfile());
    Console console(output.get(), messages.get(), Style());
    console.print("one\n");
    console.complain("went wrong");
    console.print("two\n");
    console.flush();
    EXPECT_EQ(contentOf(output.get()), "one\ntwo\n");
    EXPECT_EQ(contentOf(messages.get()), "qenxml: went wrong\n");
}

TEST(Console, WritesTheResultsSoFarBeforeAMessage) {
    const File both(std::tmpfile());
    Console console(both.get(), both.get(), Style());
    console.print("one\n");
    console.complain("went wrong");
    console.print("two\n");
    console.flush();
    EXPECT_EQ(contentOf(both.get()), "one\nqenxml: went wrong\ntwo\n");
}

TEST(Console, KeepsNoMessageBack) {
    const File output(std::tmpfile());
    const File messages(std::tmpfile()); // has a buffer, as streams have that are no terminals
    std::string written;
    const auto newlyWritten = [&messages, &written] {
        std::string all(1000, '\0');
        all.resize(
            static_cast<std::size_t>(pread(fileno(messages.get()), all.data(), all.size(), 0)));
        return all.substr(std::exchange(written, all).size());
    };
    Console console(output.get(), messages.get(), Style(), true);
    console.complain("went wrong");
    EXPECT_EQ(newlyWritten(), "qenxml: went wrong\n");
    console.showProgress("half");
    EXPECT_EQ(newlyWritten(), "\rhalf\x1b[K");
    console.clearProgress();
    EXPECT_EQ(newlyWritten(), "\r\x1b[K");
}

TEST(Console, RaisesWhatTheSystemSaysWhenTheOutputCannotBeWritten) {
    const File full(std::fopen("/dev/full", "w"));
    const File messages(std::tmpfile());
    Console console(full.get(), messages.get(), Style());
    console.print("small enough for the buffer");
    try {
        console.flush();
        FAIL() << "the device is full";
    } catch (const OutputError& error) {
        EXPECT_EQ(error.code().value(), ENOSPC);
    }
    EXPECT_THROW(console.print(std::string(1 << 20, 'x')), OutputError);
}

} // namespace

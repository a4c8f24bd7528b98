#include "tools/output/Console.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>

#include <gtest/gtest.h>

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

#include "tools/output/Console.h"

#include <cerrno>
#include <utility>

#include <fmt/format.h>
#include <unistd.h>

namespace {

[[noreturn]] void throwOutputError() {
    throw OutputError(errno, std::generic_category());
}

} // namespace

bool Console::isTerminal() const {
    return isatty(fileno(output_)) != 0;
}

void Console::print(std::string_view text) {
    clearProgress();
    if (std::fwrite(text.data(), 1, text.size(), output_) != text.size())
        throwOutputError();
}

void Console::flush() {
    if (std::fflush(output_) != 0)
        throwOutputError();
}

void Console::complain(std::string_view message) {
    flush();
    complainAtOnce(message);
}

void Console::complainAtOnce(std::string_view message) {
    clearProgress();
    // In one piece, so that it stays whole beside the output of other programs, and short ones
    // without memory, of which there may be none. Nobody is left to tell when it fails.
    fmt::memory_buffer line;
    fmt::format_to(fmt::appender(line), "qenxml: {}\n", message);
    std::fwrite(line.data(), 1, line.size(), messages_);
    std::fflush(messages_);
}

void Console::showProgress(std::string_view line) {
    if (!showsProgress_)
        return;
    const std::string shown = fmt::format("\r{}\x1b[K", line); // and nothing behind it
    std::fwrite(shown.data(), 1, shown.size(), messages_);
    std::fflush(messages_);
    progressShown_ = true;
}

void Console::clearProgress() {
    if (!std::exchange(progressShown_, false))
        return;
    std::fputs("\r\x1b[K", messages_);
    std::fflush(messages_);
}

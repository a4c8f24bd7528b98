#ifndef QENXML_TOOLS_CONSOLE_H
#define QENXML_TOOLS_CONSOLE_H

#include <cstdio>
#include <string_view>
#include <system_error>

#include "tools/Style.h"

/// The output could not be written: the disk is full, or the reader of a pipe is gone.
class OutputError : public std::system_error {
public:
    using std::system_error::system_error;
};

/// Where a command writes: its results to the output, what went wrong to the messages.
class Console {
public:
    /// The streams stay the caller's.
    Console(std::FILE* output, std::FILE* messages, Style style)
        : output_(output), messages_(messages), style_(style) {}

    /// How results look.
    const Style& style() const { return style_; }

    /// Writes results, which may stay in a buffer until flush().
    ///
    /// @throws OutputError
    void print(std::string_view text);

    /// @throws OutputError when not all results can be written
    void flush();

    /// Writes the line "qenxml: " with a message, after all results so far, so that the two are in
    /// order where they go to the same place.
    ///
    /// @param message one line without its end; texts of others in it are already escaped
    /// @throws OutputError when the results so far cannot be written
    void complain(std::string_view message);

    /// As complain(), but without writing the results so far.
    void complainOnly(std::string_view message);

private:
    std::FILE* output_;
    std::FILE* messages_;
    Style style_;
};

#endif

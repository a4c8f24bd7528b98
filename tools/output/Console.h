#ifndef QENXML_TOOLS_OUTPUT_CONSOLE_H
#define QENXML_TOOLS_OUTPUT_CONSOLE_H

#include <cstdio>
#include <string_view>
#include <system_error>

#include "tools/output/Style.h"

/// The output could not be written: the disk is full, or the reader of a pipe is gone.
class OutputError : public std::system_error {
public:
    using std::system_error::system_error;
};

/// Where a command writes: its results to the output, what went wrong to the messages.
class Console {
public:
    /// The streams stay the caller's.
    ///
    /// @param showsProgress whether messages go to a terminal on which a line can be replaced
    Console(std::FILE* output, std::FILE* messages, Style style, bool showsProgress = false)
        : output_(output), messages_(messages), style_(style), showsProgress_(showsProgress) {}

    /// How results look.
    const Style& style() const { return style_; }

    /// Whether results go to a terminal.
    bool isTerminal() const;

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
    void complainAtOnce(std::string_view message);

    /// Shows how far the work is in a line that anything else replaces; nothing where that cannot
    /// be done.
    ///
    /// @param line safe to print
    void showProgress(std::string_view line);

    /// Takes that line away.
    void clearProgress();

private:
    std::FILE* output_;
    std::FILE* messages_;
    Style style_;
    bool showsProgress_;
    bool progressShown_ = false;
};

#endif

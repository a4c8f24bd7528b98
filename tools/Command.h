#ifndef QENXML_TOOLS_COMMAND_H
#define QENXML_TOOLS_COMMAND_H

#include <functional>
#include <string>

#include <CLI/CLI.hpp>

#include "tools/Console.h"
#include "tools/ExitCode.h"

/// A sub-command of qenxml.
struct Command {
    CLI::App* parser; ///< Its part of the command line.

    /// Does what the parsed command line says. Throws CLI::ParseError, before it does anything,
    /// where what it says makes no sense.
    std::function<ExitCode(Console&)> run;
};

/// Writes help texts in the order: examples, usage, arguments and options, exit codes.
class HelpFormatter : public CLI::Formatter {
public:
    /// @param examples lines with examples of use
    explicit HelpFormatter(std::string examples);

    std::string make_usage(const CLI::App* app, std::string name) const override;
    std::string make_help(const CLI::App* app, std::string name,
                          CLI::AppFormatMode mode) const override;

private:
    std::string examples_;
};

#endif

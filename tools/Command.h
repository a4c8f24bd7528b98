#ifndef QENXML_TOOLS_COMMAND_H
#define QENXML_TOOLS_COMMAND_H

#include <functional>
#include <string>
#include <vector>

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

/// The arguments of a command line, so that the parser takes each of them as it is given: it would
/// take "[a,b]" for a list of two and "{}" for an empty one, wherever they stand. What takes a name
/// is added with addName() or addNames(), any other option is read through asGiven().
///
/// @return in the order in which the parser wants them: the last one first
std::vector<std::string> guardedArguments(int argc, const char* const* argv);

/// The argument as it was given.
std::string unguarded(std::string argument);

/// Adds an option that takes a name.
CLI::Option* addName(CLI::App& parser, const std::string& option, std::string& name,
                     const std::string& description);

/// Adds a positional that takes one or more names.
CLI::Option* addNames(CLI::App& parser, const std::string& positional,
                      std::vector<std::string>& names, const std::string& description);

/// Gives an option its arguments as they were given, before they are checked.
CLI::Option* asGiven(CLI::Option* option);

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

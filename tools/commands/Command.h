#ifndef QENXML_TOOLS_COMMANDS_COMMAND_H
#define QENXML_TOOLS_COMMANDS_COMMAND_H

#include <functional>

#include "tools/commands/ExitCode.h"
#include "tools/options/CommandLineTypes.h"
#include "tools/output/Console.h"

/// A sub-command of qenxml.
struct Command {
    CLI::App* parser; ///< Its part of the command line.

    /// Does what the parsed command line says. Throws CLI::ParseError, before it does anything,
    /// where what it says makes no sense.
    std::function<ExitCode(Console&)> run;

    ExitCode failure = ExitCode::Failure; ///< When its output cannot be written, for example.
};

#endif

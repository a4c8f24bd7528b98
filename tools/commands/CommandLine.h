#ifndef QENXML_TOOLS_COMMANDS_COMMANDLINE_H
#define QENXML_TOOLS_COMMANDS_COMMANDLINE_H

#include "tools/commands/ExitCode.h"
#include "tools/output/Console.h"

/// The whole command: does what the arguments say.
///
/// @param argc number of arguments, the name of the command included
/// @param argv the arguments
ExitCode runCommandLine(int argc, const char* const* argv, Console& console);

#endif

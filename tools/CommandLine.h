#ifndef QENXML_TOOLS_COMMANDLINE_H
#define QENXML_TOOLS_COMMANDLINE_H

#include "tools/Console.h"
#include "tools/ExitCode.h"

/// The whole command: does what the arguments say.
///
/// @param argc number of arguments, the name of the command included
/// @param argv the arguments
ExitCode runCommandLine(int argc, const char* const* argv, Console& console);

#endif

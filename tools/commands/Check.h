#ifndef QENXML_TOOLS_COMMANDS_CHECK_H
#define QENXML_TOOLS_COMMANDS_CHECK_H

#include "tools/commands/Command.h"

/// Adds `qenxml check`, which finds what is wrong with packages, to the command line.
Command addCheck(CLI::App& application);

#endif

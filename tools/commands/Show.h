#ifndef QENXML_TOOLS_COMMANDS_SHOW_H
#define QENXML_TOOLS_COMMANDS_SHOW_H

#include "tools/commands/Command.h"

/// Adds `qenxml show`, which prints what packages hold, to the command line.
Command addShow(CLI::App& application);

#endif

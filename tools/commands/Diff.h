#ifndef QENXML_TOOLS_COMMANDS_DIFF_H
#define QENXML_TOOLS_COMMANDS_DIFF_H

#include "tools/commands/Command.h"

/// Adds "diff", which compares packages by their records.
Command addDiff(CLI::App& application);

#endif

#ifndef QENXML_TOOLS_COMMANDS_EXPLAIN_H
#define QENXML_TOOLS_COMMANDS_EXPLAIN_H

#include "tools/commands/Command.h"

/// Adds `qenxml explain`, which says what a code of findings means and what to do.
Command addExplain(CLI::App& application);

#endif

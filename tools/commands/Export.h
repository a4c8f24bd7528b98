#ifndef QENXML_TOOLS_COMMANDS_EXPORT_H
#define QENXML_TOOLS_COMMANDS_EXPORT_H

#include "tools/commands/Command.h"

/// Adds `qenxml export`, which writes what packages hold in other formats, to the command line.
Command addExport(CLI::App& application);

#endif

#ifndef QENXML_TOOLS_COMMANDS_EXPORT_H
#define QENXML_TOOLS_COMMANDS_EXPORT_H

#include <vector>

#include "tools/commands/Command.h"

/// What a format of `qenxml export` is called: on the command line, and by people, who may have no
/// other name for it.
struct ExportFormatName {
    const char* name;
    const char* title;
};

/// All formats.
std::vector<ExportFormatName> exportFormats();

/// Adds `qenxml export`, which writes what packages hold in other formats, to the command line.
Command addExport(CLI::App& application);

#endif

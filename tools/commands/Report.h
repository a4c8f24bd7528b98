#ifndef QENXML_TOOLS_COMMANDS_REPORT_H
#define QENXML_TOOLS_COMMANDS_REPORT_H

#include "tools/commands/Command.h"

/// Adds `qenxml report`, which writes a page about packages for a browser, to the command line.
Command addReport(CLI::App& application);

#endif

#ifndef QENXML_TOOLS_REPORT_H
#define QENXML_TOOLS_REPORT_H

#include "tools/Command.h"

/// Adds `qenxml report`, which writes a page about packages for a browser, to the command line.
Command addReport(CLI::App& application);

#endif

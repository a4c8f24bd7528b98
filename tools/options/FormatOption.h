#ifndef QENXML_TOOLS_OPTIONS_FORMATOPTION_H
#define QENXML_TOOLS_OPTIONS_FORMATOPTION_H

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

/// Adds `--format`, which takes one of @p names, in whatever case.
CLI::Option* addFormatOption(CLI::App& parser, std::string& format,
                             const std::vector<std::string>& names);

#endif

#ifndef QENXML_TOOLS_OPTIONS_ARGUMENTS_H
#define QENXML_TOOLS_OPTIONS_ARGUMENTS_H

#include <string>
#include <vector>

#include "tools/options/CommandLineTypes.h"

/// The arguments of a command line, so that the parser takes each of them as it is given: it would
/// take "[a,b]" for a list of two and "{}" for an empty one, wherever they stand. What takes a name
/// is added with addName() or addNames(), any other option is read through asGiven().
///
/// @return in the order in which the parser wants them: the last one first
std::vector<std::string> guardedArguments(int argc, const char* const* argv);

/// The argument as it was given.
std::string unguarded(std::string argument);

/// Adds an option that takes a name.
CLI::Option* addName(CLI::App& parser, const std::string& option, std::string& name,
                     const std::string& description);

/// Adds a positional that takes one or more names.
CLI::Option* addNames(CLI::App& parser, const std::string& positional,
                      std::vector<std::string>& names, const std::string& description);

/// Adds an option that takes one of @p choices, in whatever case.
CLI::Option* addChoice(CLI::App& parser, const std::string& option, std::string& choice,
                       const std::vector<std::string>& choices, const std::string& description);

/// Gives an option its arguments as they were given, before they are checked.
CLI::Option* asGiven(CLI::Option* option);

#endif

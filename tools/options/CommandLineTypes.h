/// @file
/// The types of CLI11 that headers name. Its own header takes longer to compile than most sources
/// of the command, so only sources include it.

#ifndef QENXML_TOOLS_OPTIONS_COMMANDLINETYPES_H
#define QENXML_TOOLS_OPTIONS_COMMANDLINETYPES_H

namespace CLI { // NOLINT(readability-identifier-naming)
class App;
class Option;
} // namespace CLI

#endif

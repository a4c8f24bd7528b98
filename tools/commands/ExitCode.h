/// @file
/// The exit codes of the qenxml command: their only home.

#ifndef QENXML_TOOLS_COMMANDS_EXITCODE_H
#define QENXML_TOOLS_COMMANDS_EXITCODE_H

enum class ExitCode : int {
    Success = 0,    ///< All files were read, or found to be readable.
    Failure = 1,    ///< Some file cannot be read, or the output could not be written.
    WrongUsage = 2, ///< The command line was not understood; nothing was done.

    // Those of a comparison, which are as diff(1) has them.
    Different = 1,
    NotCompared = 2 ///< Not all of it, at least.
};

/// The exit codes of the command that checks files.
inline constexpr const char* checkExitCodeHelp =
    "Exit codes:\n"
    "  0  nothing was found that is as grave as --fail-on says\n"
    "  1  something was; or a folder or a list names no file, or not all; or the output could\n"
    "     not be written\n"
    "  2  wrong usage; nothing was read";

/// The exit codes of the command that explains findings.
inline constexpr const char* explainExitCodeHelp = "Exit codes:\n"
                                                   "  0  the codes were explained\n"
                                                   "  1  the output could not be written\n"
                                                   "  2  wrong usage, such as a code that is none";

/// The exit codes of the command that compares packages.
inline constexpr const char* diffExitCodeHelp =
    "Exit codes:\n"
    "  0  nothing differs\n"
    "  1  something differs\n"
    "  2  wrong usage; or some file could not be read; or a folder holds no package or cannot be\n"
    "     listed; or the output could not be written";

/// The exit codes as the help texts of the other commands explain them.
inline constexpr const char* exitCodeHelp =
    "Exit codes:\n"
    "  0  all files were read\n"
    "  1  some file could not be read; or a folder or a list names none, or not all; or the\n"
    "     output could not be written\n"
    "  2  wrong usage; nothing was read";

#endif

/// @file
/// Runs the built qenxml command as a user does.

#ifndef QENXML_TESTS_TOOLS_RUNCOMMAND_H
#define QENXML_TESTS_TOOLS_RUNCOMMAND_H

#include <optional>
#include <string>
#include <vector>

#include <sys/resource.h>

namespace test {

/// Where the output of a command goes.
enum class Output {
    File,         ///< collected
    Terminal,     ///< a terminal; collected
    FullDisk,     ///< a device on which there is never room
    ClosedPipe,   ///< a pipe whose reader is gone
    SameAsErrors, ///< collected together with the messages, in `errors`
};

struct RunOptions {
    std::string folder;                   ///< Current folder of the command; none for an empty one.
    std::vector<std::string> environment; ///< Its whole environment, as NAME=VALUE.
    std::string input = "/dev/null";      ///< The file that is its standard input.
    Output output = Output::File;
    std::string appendTo;           ///< A file that its standard output is appended to instead.
    std::vector<int> closed;        ///< Standard streams that it does not get, by number.
    std::optional<rlim_t> fileSize; ///< The largest file that it may write.
};

struct RunResult {
    std::string output; ///< What the command wrote to its standard output.
    std::string errors; ///< What it wrote to its standard error.
    int exitCode = -1;  ///< -1 when a signal ended it.
};

RunResult runCommand(const std::vector<std::string>& arguments, const RunOptions& options = {});

} // namespace test

#endif

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

#include "tools/CommandLine.h"

int main(int argc, char** argv) {
    // When the reader of a pipe is gone, writing shall fail, not end the process.
    std::signal(SIGPIPE, SIG_IGN);

    // NOLINTBEGIN(concurrency-mt-unsafe): there is one thread
    const bool coloured =
        wantsColour(isatty(STDOUT_FILENO) != 0, std::getenv("NO_COLOR"), std::getenv("TERM"));
    const bool showsProgress =
        wantsColour(isatty(STDERR_FILENO) != 0, nullptr, std::getenv("TERM"));
    // NOLINTEND(concurrency-mt-unsafe)
    Console console(stdout, stderr, Style(coloured), showsProgress);
    return static_cast<int>(runCommandLine(argc, argv, console));
}

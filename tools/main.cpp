#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "tools/commands/CommandLine.h"

namespace {

/// Takes the place of closed standard streams, lest a file that is opened later gets it, and with
/// it the messages. Reading and writing them still fails.
bool occupyStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        const int direction = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
        if (fcntl(stream, F_GETFD) < 0 && open("/dev/null", direction | O_CLOEXEC) != stream)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
#ifdef __GLIBC__
    // Memory of one package is for the next one: giving it back and asking for it again takes a
    // tenth of the time of a check. The one threshold fixes the other, which grows otherwise.
    constexpr int mostUnused = 4'000'000;
    // NOLINTBEGIN(concurrency-mt-unsafe): there is one thread
    mallopt(M_TRIM_THRESHOLD, mostUnused);
    mallopt(M_MMAP_THRESHOLD, mostUnused);
    // NOLINTEND(concurrency-mt-unsafe)
#endif
    if (!occupyStandardStreams())
        return static_cast<int>(ExitCode::Failure);

    // When the reader of a pipe is gone, or a file as large as it may be, writing shall fail, not
    // end the process.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);

    // NOLINTBEGIN(concurrency-mt-unsafe): there is one thread
    const bool coloured =
        wantsColour(isatty(STDOUT_FILENO) != 0, std::getenv("NO_COLOR"), std::getenv("TERM"));
    const bool showsProgress =
        wantsColour(isatty(STDERR_FILENO) != 0, nullptr, std::getenv("TERM"));
    // NOLINTEND(concurrency-mt-unsafe)
    Console console(stdout, stderr, Style(coloured), showsProgress);
    return static_cast<int>(runCommandLine(argc, argv, console));
}

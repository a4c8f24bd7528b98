#include "tests/tools/RunCommand.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <future>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <pty.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"

namespace test {

namespace {

void require(bool success, const char* what) {
    if (!success)
        throw std::system_error(errno, std::generic_category(), what);
}

/// A file descriptor that is not inherited by commands, and none of the standard streams, which
/// take other places there, also when the tests themselves run without some of them.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(fcntl(number, F_DUPFD_CLOEXEC, 3)) {
        if (number >= 0)
            close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { reset(); }

    int number() const { return number_; }

    void reset() {
        if (number_ >= 0)
            close(std::exchange(number_, -1));
    }

private:
    int number_;
};

/// The two ends of a channel: the command writes to one, the test reads from the other.
struct Channel {
    Descriptor reader;
    Descriptor writer;
};

Channel openPipe() {
    std::array<int, 2> ends{};
    require(pipe(ends.data()) == 0, "pipe");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

Channel openTerminal() {
    int master = -1;
    int terminal = -1;
    termios raw = {}; // so that line feeds come out as they are
    cfmakeraw(&raw);
    require(openpty(&master, &terminal, nullptr, &raw, nullptr) == 0, "openpty");
    return {Descriptor(master), Descriptor(terminal)};
}

Channel openOutput(Output output) {
    switch (output) {
    case Output::Terminal:
        return openTerminal();
    case Output::FullDisk:
        return {Descriptor(), Descriptor(open("/dev/full", O_WRONLY))};
    case Output::ClosedPipe: {
        Channel channel = openPipe();
        channel.reader.reset();
        return channel;
    }
    case Output::File:
    case Output::SameAsErrors:
        break;
    }
    return openPipe();
}

std::string readAll(int descriptor) {
    std::string text;
    std::array<char, 4096> buffer{};
    // A terminal whose other end is closed reports an error instead of an end.
    for (ssize_t count = 0; (count = read(descriptor, buffer.data(), buffer.size())) > 0;)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return text;
}

/// While it exists, what this process starts may write files of a certain size only.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::optional<rlim_t> size) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit = {size.value_or(before_.rlim_cur), before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_ = {};
};

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

} // namespace

RunResult runCommand(const std::vector<std::string>& arguments, const RunOptions& options) {
    // Whatever is in the folders of this machine, a test finds nothing that it has not made.
    const TemporaryFolder empty;
    const std::string folder = options.folder.empty() ? empty.path("") : options.folder;
    Channel output = openOutput(options.output);
    Channel errors = openPipe();
    require(output.writer.number() >= 0, "output");

    const bool together = options.output == Output::SameAsErrors;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, options.input.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(
        &actions, together ? errors.writer.number() : output.writer.number(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.writer.number(), STDERR_FILENO);
    if (!options.appendTo.empty())
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, options.appendTo.c_str(),
                                         O_WRONLY | O_APPEND, 0);
    for (const int stream : options.closed)
        posix_spawn_file_actions_addclose(&actions, stream);

    std::vector<std::string> words = {QENXML_COMMAND}; // behind the emulator, if there is one
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> environment = options.environment;
    pid_t process = 0;
    int failure = 0;
    {
        const FileSizeLimit limit(options.fileSize);
        failure = posix_spawnp(&process, words.front().c_str(), &actions, nullptr,
                               pointers(words).data(), pointers(environment).data());
    }
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0)
        throw std::system_error(failure, std::generic_category(), words.front());

    output.writer.reset();
    errors.writer.reset();
    // At the same time, lest the command waits for one channel while the test reads the other.
    auto messages = std::async(std::launch::async, readAll, errors.reader.number());
    RunResult result;
    result.output = output.reader.number() >= 0 ? readAll(output.reader.number()) : "";
    result.errors = messages.get();
    int status = 0;
    require(waitpid(process, &status, 0) == process, "waitpid");
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

} // namespace test

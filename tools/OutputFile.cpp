#include "tools/OutputFile.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int attempts = 100;

/// Another name in the folder of a file. It does not contain the name of the file, which may be as
/// long as a name can be.
std::string otherName(const std::string& path, int attempt) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    return (folder / fmt::format(".qenxml-{}-{}.tmp", getpid(), attempt)).string();
}

/// Where symbolic links lead, also when nothing is there yet.
std::string withoutLinks(const std::string& path) {
    std::error_code error;
    std::filesystem::path result = path;
    // As many as the system follows.
    for (int i = 0; i < 40 && std::filesystem::is_symlink(result, error); ++i)
        result = result.parent_path() / std::filesystem::read_symlink(result, error);
    return result.string();
}

} // namespace

OutputFile::OutputFile(const std::string& path) : shownPath_(path), path_(withoutLinks(path)) {
    constexpr unsigned forEverybody = 0666; // less what the umask takes away
    struct stat status = {};
    if (stat(path_.c_str(), &status) != 0)
        openTemporary(false, forEverybody);
    else if (S_ISREG(status.st_mode))
        openTemporary(true, status.st_mode & 07777U);
    else
        openDirectly();
}

void OutputFile::openDirectly() {
    stream_.reset(std::fopen(path_.c_str(), "we"));
    if (!stream_)
        fail(errno);
}

void OutputFile::openTemporary(bool replaces, unsigned mode) {
    // Otherwise a file that is protected against writing could be replaced.
    if (replaces && access(path_.c_str(), W_OK) != 0)
        fail(errno);
    int descriptor = -1;
    for (int attempt = 0; descriptor < 0 && attempt < attempts; ++attempt) {
        const std::string name = otherName(path_, attempt);
        descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (descriptor >= 0)
            temporary_.emplace(name);
        else if (errno != EEXIST)
            fail(errno);
    }
    if (descriptor < 0)
        fail(EEXIST);
    if (replaces)
        fchmod(descriptor, mode); // whatever the umask
    stream_.reset(fdopen(descriptor, "w"));
    if (!stream_) {
        const int error = errno;
        close(descriptor);
        fail(error);
    }
}

void OutputFile::write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stream_.get()) != text.size())
        fail(errno);
}

void OutputFile::commit() {
    if (std::fflush(stream_.get()) != 0)
        fail(errno);
    if (!temporary_)
        return;
    if (fsync(fileno(stream_.get())) != 0)
        fail(errno);
    if (std::fclose(stream_.release()) != 0)
        fail(errno);
    if (std::rename(temporary_->path().c_str(), path_.c_str()) != 0)
        fail(errno);
    temporary_->release();
}

void OutputFile::fail(int error) const {
    throw OutputFileError(fmt::format("{}: cannot be written: {}", shownPath_,
                                      std::generic_category().message(error)));
}

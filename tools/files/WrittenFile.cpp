#include "tools/files/WrittenFile.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char* standardStream = "-";

/// None when there is no regular file.
std::optional<struct stat> statusOf(const std::string& path, int standard) {
    struct stat status = {};
    const int failed =
        path == standardStream ? fstat(standard, &status) : stat(path.c_str(), &status);
    if (failed != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return status;
}

} // namespace

WrittenFile::WrittenFile(const std::string& path)
    : isStandardOutput_(path.empty() || path == standardStream) {
    const auto status = statusOf(isStandardOutput_ ? standardStream : path, STDOUT_FILENO);
    if (!status)
        return;
    identity_.emplace(status->st_dev, status->st_ino);
    isEmpty_ = status->st_size == 0;
}

bool WrittenFile::is(const std::string& path) const {
    if (!identity_)
        return false;
    const auto status = statusOf(path, STDIN_FILENO);
    return status && Identity(status->st_dev, status->st_ino) == identity_;
}

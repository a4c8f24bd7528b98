#include "tools/output/OutputPlace.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/vfs.h>

namespace {

bool isSame(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool isInProc(const Descriptor& folder) {
    constexpr auto procSystem = 0x9FA0; // of <linux/magic.h>, which not every system has
    struct statfs system = {};
    return fstatfs(folder.number(), &system) == 0 && system.f_type == procSystem;
}

} // namespace

OutputFileError::OutputFileError(const std::string& path, std::string_view reason)
    : std::runtime_error(fmt::format("{}: cannot be written: {}", path, reason)) {}

OutputFileError::OutputFileError(const std::string& path, int error)
    : OutputFileError(path, std::generic_category().message(error)) {}

OutputPlace::OutputPlace(const std::string& path) : path_(path), link_(path) {
    constexpr int mostLinks = 40; // as many as the system follows
    for (int links = 0; links <= mostLinks; ++links) {
        enter(link_);
        lookAtName();
        if (present_ && mayBeATrap())
            throw OutputFileError(
                path, "it belongs to somebody else, in a folder that everybody may put files into; "
                      "choose another name or folder");
        // The links of /proc lead to open files, whatever their text says.
        if (!present_ || !S_ISLNK(present_->st_mode) || isInProc(folder_))
            return;
    }
    throw OutputFileError(path, ELOOP);
}

/// Opens the folder of a path, which begins in the present one.
void OutputPlace::enter(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    name_ = slash == std::string::npos ? path : path.substr(slash + 1);
    folder_ = Descriptor(openat(folder_ ? folder_.number() : AT_FDCWD, folder.c_str(),
                                O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder_)
        throw OutputFileError(path_, errno);
    if (name_.empty())
        throw OutputFileError(path_, EISDIR);
}

void OutputPlace::lookAtName() {
    present_.reset();
    const Descriptor entry(openat(folder(), name_.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (!entry && errno == ENOENT)
        return;
    struct stat status = {};
    if (!entry || fstat(entry.number(), &status) != 0)
        throw OutputFileError(path_, errno);
    present_ = status;
    if (!S_ISLNK(status.st_mode))
        return;
    std::array<char, PATH_MAX> target{};
    const ssize_t size = readlinkat(entry.number(), "", target.data(), target.size());
    if (size < 0)
        throw OutputFileError(path_, errno);
    link_.assign(target.data(), static_cast<std::size_t>(size));
}

bool OutputPlace::mayBeATrap() const {
    constexpr mode_t everybodys = S_ISVTX | S_IWOTH;
    const mode_t kind = present_->st_mode & static_cast<mode_t>(S_IFMT);
    struct stat folder = {};
    if (fstat(folder_.number(), &folder) != 0)
        throw OutputFileError(path_, errno);
    return (kind == S_IFLNK || kind == S_IFREG || kind == S_IFIFO) &&
           (folder.st_mode & everybodys) == everybodys && present_->st_uid != geteuid() &&
           present_->st_uid != folder.st_uid;
}

/// Whether the name is the number of a file that this process has open.
bool OutputPlace::isProcessFile() const {
    struct stat own = {};
    struct stat folder = {};
    return S_ISLNK(present_->st_mode) && stat("/proc/self/fd", &own) == 0 &&
           fstat(folder_.number(), &folder) == 0 && isSame(own, folder);
}

Descriptor OutputPlace::openSpecial() const {
    // Opened anew, a file that is appended to (">> FILE") would be written over.
    if (isProcessFile()) {
        const int file = static_cast<int>(std::strtol(name_.c_str(), nullptr, 10));
        const int flags = fcntl(file, F_GETFL);
        if (flags >= 0 && (flags & O_ACCMODE) == O_RDONLY) // what a closed stream is, too
            throw OutputFileError(path_, "it is closed, or open for reading only");
        return Descriptor(fcntl(file, F_DUPFD_CLOEXEC, 0));
    }
    const int follow = S_ISLNK(present_->st_mode) ? 0 : O_NOFOLLOW;
    return Descriptor(openat(folder(), name_.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC | follow));
}

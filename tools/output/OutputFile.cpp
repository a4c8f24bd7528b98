#include "tools/output/OutputFile.h"

#include <cerrno>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int attempts = 100;

/// Another name in the folder of a file. It does not contain the name of the file, which may be as
/// long as a name can be.
std::string otherName(int attempt) {
    return fmt::format(".qenxml-{}-{}.tmp", getpid(), attempt);
}

/// A mode that gives a group no more rights than everybody has.
mode_t withoutGroup(mode_t mode) {
    return (mode & ~static_cast<mode_t>(S_IRWXG)) | (mode & S_IRWXO) << 3U;
}

} // namespace

OutputFile::OutputFile(const std::string& path, FileKind kind) : path_(path), place_(path) {
    Descriptor file = isDirect() ? place_.openSpecial() : openTemporary(kind);
    if (file)
        stream_.reset(fdopen(file.number(), "w"));
    if (!stream_)
        fail(errno);
    file.release();
}

Descriptor OutputFile::openTemporary(FileKind kind) {
    constexpr unsigned forEverybody = 0666; // less what the umask takes away
    constexpr unsigned forUs = 0600;        // until it gets the mode of the file that it replaces
    requireReplaceable();
    const unsigned mode = place_.present() ? forUs : forEverybody;
    Descriptor file;
    if (kind == FileKind::Unnamed)
        file = openUnnamedFile(place_.folder(), ".", mode);
    return file ? std::move(file) : openNamed(mode);
}

/// Otherwise a file that is protected against writing could be replaced.
void OutputFile::requireReplaceable() const {
    if (place_.present() &&
        faccessat(place_.folder(), place_.name().c_str(), W_OK, AT_EACCESS) != 0)
        fail(errno);
}

Descriptor OutputFile::openNamed(unsigned mode) {
    Descriptor file;
    for (int attempt = 0; !file && attempt < attempts; ++attempt) {
        temporary_.emplace(otherName(attempt), place_.folder());
        temporary_->make([&](const std::string& name) {
            file = Descriptor(openat(place_.folder(), name.c_str(),
                                     O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
            return static_cast<bool>(file);
        });
        if (!file && errno != EEXIST)
            break;
    }
    return file;
}

void OutputFile::write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stream_.get()) != text.size())
        fail(errno);
}

void OutputFile::commit() {
    if (std::fflush(stream_.get()) != 0)
        fail(errno);
    if (isDirect())
        return;
    if (place_.present())
        keepOwnerAndMode();
    if (fsync(fileno(stream_.get())) != 0)
        fail(errno);
    nameIt();
    if (std::fclose(stream_.release()) != 0)
        fail(errno);
    if (renameat(place_.folder(), temporary_->name().c_str(), place_.folder(),
                 place_.name().c_str()) != 0)
        fail(errno);
    temporary_->release();
}

void OutputFile::keepOwnerAndMode() {
    const struct stat& replaced = *place_.present();
    const int file = fileno(stream_.get());
    struct stat present = {};
    if (fstat(file, &present) != 0)
        fail(errno);
    mode_t mode = replaced.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    // The group first: who gives a file away may not change it any more.
    if (replaced.st_gid != present.st_gid &&
        fchown(file, static_cast<uid_t>(-1), replaced.st_gid) != 0) {
        mode = withoutGroup(mode);
        remark_ = "its group could not be kept, and has no more rights to it than everybody";
    }
    if (fchmod(file, mode) != 0 && (present.st_mode & 0777U) != mode)
        remark_ = "its mode could not be kept";
    if (replaced.st_uid != present.st_uid &&
        fchown(file, replaced.st_uid, static_cast<gid_t>(-1)) != 0)
        remark_ = "it belonged to somebody else, to whom it could not be left; it is yours now";
}

/// Gives a file without a name one that makes way, as no file can get that of another.
void OutputFile::nameIt() {
    const std::string file = Descriptor::path(fileno(stream_.get()));
    bool made = temporary_.has_value();
    for (int attempt = 0; !made && attempt < attempts; ++attempt) {
        temporary_.emplace(otherName(attempt), place_.folder());
        made = temporary_->make([&](const std::string& name) {
            return linkat(AT_FDCWD, file.c_str(), place_.folder(), name.c_str(),
                          AT_SYMLINK_FOLLOW) == 0;
        });
        if (!made && errno != EEXIST)
            break;
    }
    if (!made)
        fail(errno);
}

void OutputFile::fail(int error) const {
    throw OutputFileError(path_, error);
}

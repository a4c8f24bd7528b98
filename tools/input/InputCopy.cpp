#include "tools/input/InputCopy.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include "tools/files/FileContent.h"
#include "tools/files/TemporaryFolder.h"
#include "tools/text/Escape.h"

namespace {

/// In words, why no copy could be made.
std::string describeCopyError(int error) {
    return fmt::format("cannot be copied to a temporary file in {}: {}", escape(temporaryFolder()),
                       std::generic_category().message(error));
}

bool writeAll(int descriptor, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t count = write(descriptor, data, size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        data += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

/// Copies all that is left in a file to another one.
///
/// @return why that failed
std::optional<std::string> copyRest(int from, int to) {
    constexpr std::size_t bufferSize = 65536;
    std::array<char, bufferSize> buffer{};
    while (true) {
        const ssize_t count = read(from, buffer.data(), buffer.size());
        if (count == 0)
            return std::nullopt;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return describeFileError(errno);
        if (!writeAll(to, buffer.data(), static_cast<std::size_t>(count)))
            return describeCopyError(errno);
    }
}

} // namespace

InputCopy::InputCopy(const std::string& uuid, FileKind kind) {
    if (kind == FileKind::Unnamed)
        file_ = openUnnamed(uuid);
    if (!file_)
        file_ = openNamed(uuid);
    failure_ = file_ ? copyRest(STDIN_FILENO, file_.number()) : describeCopyError(errno);
    // Some file systems say only now that there is no room.
    if (name_ && file_ && close(file_.release()) != 0 && !failure_)
        failure_ = describeCopyError(errno);
}

Descriptor InputCopy::openUnnamed(const std::string& uuid) {
    constexpr unsigned forUs = 0600;
    Descriptor file = openUnnamedFile(AT_FDCWD, temporaryFolder(), forUs);
    // The system opens what comes before the NUL; the library takes the UUID from behind it.
    path_ = file.path() + '\0' + uuid + ".xml";
    return file;
}

Descriptor InputCopy::openNamed(const std::string& uuid) {
    constexpr unsigned forUs = 0600;
    folder_.emplace(temporaryFolder() + "/qenxml-XXXXXX");
    if (!folder_->make([](std::string& name) { return mkdtemp(name.data()) != nullptr; }))
        return Descriptor();
    path_ = folder_->name() + "/" + uuid + ".xml";
    name_.emplace(path_);
    Descriptor file;
    name_->make([&](const std::string& name) {
        file = Descriptor(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, forUs));
        return static_cast<bool>(file);
    });
    return file;
}

#include "tools/files/FileContent.h"

#include <cerrno>
#include <cstddef>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

OpenFile openRegularFile(const std::string& path) {
    const auto failed = [](std::string why) { return OpenFile{Descriptor(), 0, std::move(why)}; };
    // Without O_NONBLOCK, opening a named pipe would wait for somebody to write to it.
    Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (!file || fstat(file.number(), &status) != 0)
        return failed(describeFileError(errno));
    if (S_ISDIR(status.st_mode))
        return failed(describeFileError(EISDIR));
    if (!S_ISREG(status.st_mode))
        return failed("is not a regular file");
    return {std::move(file), static_cast<std::size_t>(status.st_size), ""};
}

FileContent readFileContent(const std::string& path) {
    const OpenFile opened = openRegularFile(path);
    if (!opened.failure.empty())
        return {"", opened.failure};
    return readDescriptor(opened.file.number(), opened.size);
}

FileContent readDescriptor(int file, std::size_t size) {
    FileContent content;
    content.bytes.resize(size);
    std::size_t present = 0;
    while (present < size) {
        const ssize_t count = read(file, content.bytes.data() + present, size - present);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {"", describeFileError(errno)};
        if (count == 0)
            break; // It has become shorter.
        present += static_cast<std::size_t>(count);
    }
    content.bytes.resize(present);
    return content;
}

std::string describeFileError(int error) {
    switch (error) {
    case ENOENT:
        return "not found";
    case EACCES:
        return "permission denied";
    case EISDIR:
        return "is a directory";
    default:
        return fmt::format("cannot be read: {}", std::generic_category().message(error));
    }
}

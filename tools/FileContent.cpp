#include "tools/FileContent.h"

#include <cerrno>
#include <cstddef>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0)
            close(number_);
    }

    int number() const { return number_; }

private:
    int number_;
};

} // namespace

FileContent readFileContent(const std::string& path) {
    // Without O_NONBLOCK, opening a named pipe would wait for somebody to write to it.
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (file.number() < 0 || fstat(file.number(), &status) != 0)
        return {"", describeFileError(errno)};
    if (S_ISDIR(status.st_mode))
        return {"", describeFileError(EISDIR)};
    if (!S_ISREG(status.st_mode))
        return {"", "is not a regular file"};

    FileContent content;
    content.bytes.resize(static_cast<std::size_t>(status.st_size));
    std::size_t size = 0;
    while (size < content.bytes.size()) {
        const ssize_t count =
            read(file.number(), content.bytes.data() + size, content.bytes.size() - size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {"", describeFileError(errno)};
        if (count == 0)
            break; // The file has become shorter.
        size += static_cast<std::size_t>(count);
    }
    content.bytes.resize(size);
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

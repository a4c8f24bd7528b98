#include "tools/Diagnosis.h"

#include <cerrno>
#include <cstddef>
#include <new>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include "parser/TagNames.h"
#include "tools/Escape.h"
#include "tools/PackageUuid.h"
#include "tools/UnreadableIdentifier.h"

namespace tag = qenxml::tag;

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

/// The content of a file, or why it cannot be had.
struct Content {
    std::string bytes;
    std::string failure;
};

Content readContent(const std::string& path) {
    // Without O_NONBLOCK, opening a named pipe would wait for somebody to write to it.
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (file.number() < 0 || fstat(file.number(), &status) != 0)
        return {"", describeFileError(errno)};
    if (S_ISDIR(status.st_mode))
        return {"", describeFileError(EISDIR)};
    if (!S_ISREG(status.st_mode))
        return {"", "is not a regular file"};

    Content content;
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

ReadFailure diagnoseContent(std::string bytes) {
    if (bytes.empty())
        return {"not well-formed: the file is empty", Position{1, 1}};

    const SourceText text(std::move(bytes));
    pugi::xml_document document;
    const pugi::xml_parse_result loaded = text.load(document);
    if (loaded.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (!loaded)
        return {fmt::format("not well-formed: {}", loaded.description()),
                text.position(static_cast<std::size_t>(loaded.offset))};

    const pugi::xml_node package = document.child(tag::RecPackage);
    if (!package) {
        const pugi::xml_node root = document.document_element();
        return {fmt::format("no \"{}\": the root element is \"{}\"", tag::RecPackage,
                            escapeExcerpt(root.name())),
                text.position(root)};
    }

    if (const auto identifier = findUnreadableIdentifier(package))
        return {fmt::format("invalid uuid string: {}", identifier->description),
                text.position(identifier->node)};

    return {"could not be read, but nothing is wrong with it now; it may have changed meanwhile",
            std::nullopt};
}

} // namespace

ReadFailure diagnose(const std::string& path) {
    Content content = readContent(path);
    if (!content.failure.empty())
        return {content.failure, std::nullopt};
    if (!packageUuid(path))
        return {fmt::format("file name without a package UUID: a name such as {} is expected",
                            packageNameForm),
                std::nullopt};
    return diagnoseContent(std::move(content.bytes));
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

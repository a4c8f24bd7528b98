#include "tools/PackageInput.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include "tools/FileContent.h"
#include "tools/PackageUuid.h"

namespace {

/// In words, why no copy of the standard input could be made.
std::string describeCopyError(int error) {
    return fmt::format("cannot be copied to a temporary file: {}",
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

std::string checkUuid(const std::string& text) {
    const bool canonical = text.size() == 36 && isNamedByUuid(text + ".xml");
    return canonical ? "" : "a UUID such as 00112233-4455-6677-8899-aabbccddeeff is expected";
}

bool isSameFile(const std::string& a, const std::string& b) {
    std::error_code ignored;
    return std::filesystem::equivalent(a, b, ignored) &&
           std::filesystem::is_regular_file(a, ignored);
}

} // namespace

bool isStandardInput(const std::string& file) {
    return file == "-";
}

void addPackageOptions(CLI::App& parser, PackageOptions& options, const std::string& files) {
    parser.add_option("FILE", options.files, files + "; \"-\" is the standard input")
        ->required()
        ->option_text(" ");
    parser.add_option("--uuid", options.uuid, "UUID of the package on the standard input")
        ->check(CLI::Validator(checkUuid, ""))
        ->option_text("UUID");
}

void requireUsable(const PackageOptions& options, const std::string& output) {
    const auto count = std::count_if(options.files.begin(), options.files.end(), isStandardInput);
    if (count > 1)
        throw CLI::ValidationError("\"-\" is given more than once");
    if (count == 1 && options.uuid.empty())
        throw CLI::ValidationError("\"-\" requires --uuid: the standard input has no name that "
                                   "carries the UUID of the package");
    if (count == 0 && !options.uuid.empty())
        throw CLI::ValidationError("--uuid is for the standard input, which no \"-\" asks for");
    for (const std::string& file : options.files) {
        if (!isStandardInput(file) && isSameFile(file, output))
            throw CLI::ValidationError("the output would replace a package that is to be read");
    }
}

PackageInput::PackageInput(std::string path) : name_(path), path_(std::move(path)) {}

PackageInput::PackageInput(const std::string& file, const PackageOptions& options)
    : name_(file), path_(file) {
    if (isStandardInput(file))
        copyStandardInput(options.uuid);
}

void PackageInput::copyStandardInput(const std::string& uuid) {
    std::error_code error;
    std::string folder = (std::filesystem::temp_directory_path(error) / "qenxml-XXXXXX").string();
    if (error || mkdtemp(folder.data()) == nullptr) {
        failure_ = describeCopyError(error ? error.value() : errno);
        return;
    }
    folder_.emplace(folder);
    path_ = folder + "/" + uuid + ".xml";
    const int copy = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (copy < 0) {
        failure_ = describeCopyError(errno);
        return;
    }
    copy_.emplace(path_);
    failure_ = copyRest(STDIN_FILENO, copy);
    if (close(copy) != 0 && !failure_)
        failure_ = describeCopyError(errno);
}

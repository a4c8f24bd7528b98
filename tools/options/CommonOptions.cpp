#include "tools/options/CommonOptions.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "tools/files/PackageUuid.h"
#include "tools/options/Arguments.h"

namespace {

std::string checkUuid(const std::string& text) {
    const bool canonical = text.size() == qenxml::identifierLength && isNamedByUuid(text + ".xml");
    return canonical ? "" : "a UUID such as 00112233-4455-6677-8899-aabbccddeeff is expected";
}

/// A regular file by what the system knows it by, whatever its names; none when it is none.
std::optional<std::pair<dev_t, ino_t>> identityOf(int failed, const struct stat& status) {
    if (failed != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return std::pair(status.st_dev, status.st_ino);
}

std::optional<std::pair<dev_t, ino_t>> identityOf(const std::string& path) {
    struct stat status = {};
    return isStandardInput(path) ? identityOf(fstat(STDIN_FILENO, &status), status)
                                 : identityOf(stat(path.c_str(), &status), status);
}

/// Refuses to write over a package that is to be read, or behind it.
void requireOtherFile(const PackageOptions& options, const std::string& output) {
    struct stat status = {};
    const bool isNamed = !output.empty() && output != "-";
    const auto written =
        isNamed ? identityOf(output) : identityOf(fstat(STDOUT_FILENO, &status), status);
    const auto isWritten = [&](const std::string& file) { return identityOf(file) == written; };
    if (!written || std::none_of(options.files.begin(), options.files.end(), isWritten))
        return;
    if (isNamed)
        throw CLI::ValidationError("the output would replace a package that is to be read");
    throw CLI::ValidationError(
        status.st_size > 0 ? "the standard output is a package that is to be read"
                           : "the standard output is a package that is to be read, and the shell "
                             "has emptied it already: \">\" does so before qenxml begins");
}

} // namespace

bool isStandardInput(const std::string& file) {
    return file == "-";
}

void addPackageOptions(CLI::App& parser, PackageOptions& options, const std::string& files) {
    addNames(parser, "FILE", options.files, files + "; \"-\" is the standard input")
        ->required()
        ->option_text(" ");
    asGiven(parser.add_option("--uuid", options.uuid, "UUID of the package on the standard input"))
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
    requireOtherFile(options, output);
}

void addOutputOption(CLI::App& parser, std::string& path) {
    addName(parser, "-o,--output", path,
            "Write to this file, which is replaced only by a whole one")
        ->option_text("OUT");
}

#include "tools/options/CommonOptions.h"

#include <algorithm>

#include <CLI/CLI.hpp>

#include "tools/files/PackageUuid.h"
#include "tools/files/WrittenFile.h"
#include "tools/options/Arguments.h"

namespace {

std::string checkUuid(const std::string& text) {
    const bool canonical = text.size() == qenxml::identifierLength && isNamedByUuid(text + ".xml");
    return canonical ? "" : "a UUID such as 00112233-4455-6677-8899-aabbccddeeff is expected";
}

/// Refuses to write over a package that is to be read, or behind it.
void requireOtherFile(const PackageOptions& options) {
    const WrittenFile written(options.output);
    const auto isWritten = [&](const std::string& file) { return written.is(file); };
    if (std::none_of(options.files.begin(), options.files.end(), isWritten))
        return;
    if (!written.isStandardOutput())
        throw CLI::ValidationError("the output would replace a package that is to be read");
    throw CLI::ValidationError(
        written.isEmpty() ? "the standard output is a package that is to be read, and the shell "
                            "has emptied it already: \">\" does so before qenxml begins"
                          : "the standard output is a package that is to be read");
}

/// Refuses to take the standard input for two things.
void requireOneStandardInput(const PackageOptions& options) {
    const auto count = std::count_if(options.files.begin(), options.files.end(), isStandardInput);
    if (count + (isStandardInput(options.list) ? 1 : 0) > 1)
        throw CLI::ValidationError("\"-\" is given more than once");
    if (count == 1 && options.uuid.empty())
        throw CLI::ValidationError("\"-\" requires --uuid: the standard input has no name that "
                                   "carries the UUID of the package");
    if (count == 0 && !options.uuid.empty())
        throw CLI::ValidationError("--uuid is for the standard input, which no \"-\" asks for");
}

} // namespace

void addPackageOptions(CLI::App& parser, PackageOptions& options) {
    addNames(parser, "FILE", options.files,
             "Package files, named UUID.xml, and folders with such; \"-\" is the standard input")
        ->option_text(" ");
    CLI::Option* list =
        addName(parser, "--files-from", options.list,
                "Read the files that LIST names, a line each; \"-\" is the standard input")
            ->option_text("LIST");
    parser.add_flag("-0,--null", options.zeroEnds, "Names in LIST end with zero bytes, not lines")
        ->needs(list)
        ->option_text(" ");
    addUuidOption(parser, options);
}

void addUuidOption(CLI::App& parser, PackageOptions& options) {
    asGiven(parser.add_option("--uuid", options.uuid, "UUID of the package on the standard input"))
        ->check(CLI::Validator(checkUuid, ""))
        ->option_text("UUID");
}

void requireUsable(const PackageOptions& options) {
    if (options.files.empty() && options.list.empty())
        throw CLI::ValidationError("FILE or --files-from is required");
    requireOneStandardInput(options);
    requireOtherFile(options);
}

void addOutputOption(CLI::App& parser, PackageOptions& options) {
    addName(parser, "-o,--output", options.output,
            "Write to this file, which is replaced only by a whole one")
        ->option_text("OUT");
}

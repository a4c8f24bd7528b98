#include "tools/input/PackageReading.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "parser/QenXmlParser.h"
#include "tools/files/FileContent.h"
#include "tools/files/PackageUuid.h"
#include "tools/input/InputCheck.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"

namespace {

/// Whether there is something at a path that is no file with a content of its own. XML is not read
/// from such: a named pipe would make the reader wait, a folder ask for all memory.
bool isSpecial(const std::string& path) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(path, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

/// What the library reads of a package.
///
/// @param growers out: what was read
/// @return whether that is all of it
bool parse(const std::string& path, std::vector<QenGrower>& growers) {
    QenXmlParser parser;
    bool complete = false;
    try {
        complete = !isSpecial(path) && parser.parseFile(path);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        // The diagnosis says more than its text.
    }
    growers = parser.getGrowers();
    return complete;
}

/// Reads what can be read.
///
/// @param content out: that of the file, for all but the library, which takes no less than a path
/// @return whether that is all
bool read(const std::string& path, PackageReading& reading, std::optional<FileContent>& content) {
    reading.uuid = packageUuid(path);
    std::vector<QenGrower> growers;
    const bool complete = parse(path, growers);
    content = readFileContent(path);
    // Without the gaps, what is not known would be taken for 0.
    reading.gaps = findGaps(content->bytes, growers.size());
    reading.growers = std::move(growers);
    return complete;
}

} // namespace

PackageReading readPackage(const PackageInput& input, FindingSink* findings) {
    PackageReading reading;
    reading.name = input.name();
    const auto unlessMemoryRunsOut = [&](const auto& step) {
        try {
            step();
        } catch (const std::bad_alloc&) {
            reading.failure = ReadFailure{"not enough memory", std::nullopt};
        }
    };
    std::optional<FileContent> content;
    bool complete = false;
    unlessMemoryRunsOut(
        [&] { complete = !input.failure() && read(input.path(), reading, content); });
    const bool unexplained = !complete && !reading.failure;
    if (findings == nullptr && !unexplained)
        return reading;
    unlessMemoryRunsOut([&] {
        Diagnosis diagnosis(findings);
        checkInput(input, diagnosis, std::move(content));
        if (unexplained)
            reading.failure = diagnosis.failure();
    });
    return reading;
}

PackageReading readPackage(const std::string& path) {
    return readPackage(PackageInput(path));
}

PackageReading readAndComplain(const PackageInput& input, std::string_view done, Console& console,
                               FindingSink* findings) {
    PackageReading reading = readPackage(input, findings);
    if (reading.failure)
        console.complain(failureMessage(reading, done));
    else if (!isNamedByUuid(input.path()))
        console.complain(oddNameMessage(reading, done));
    return reading;
}

bool isLost(const PackageReading& reading) {
    return reading.failure && reading.growers.empty();
}

std::string failureMessage(const PackageReading& reading, std::string_view done) {
    const ReadFailure& failure = reading.failure.value();
    std::string place = escape(reading.name);
    if (failure.position)
        place += fmt::format(":{}:{}", failure.position->line, failure.position->column);

    const std::string consequence =
        reading.growers.empty()
            ? "the file is skipped"
            : fmt::format("{} {}", thoseBefore(reading.growers.size(), "grower"), done);
    return fmt::format("{}: {}; {}", place, failure.reason, consequence);
}

std::string oddNameMessage(const PackageReading& reading, std::string_view done) {
    return fmt::format(
        "{}: file name without a proper package UUID: a name such as {} is expected; "
        "the file is {}, its recs carry the UUID {}",
        escape(reading.name), packageNameForm, done, to_string(reading.uuid.value()));
}

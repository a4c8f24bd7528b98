#include "tools/PackageReading.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <new>
#include <system_error>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "parser/QenXmlParser.h"
#include "tools/Escape.h"
#include "tools/PackageUuid.h"

namespace {

/// Whether there is something at a path that is no file with a content of its own. XML is not read
/// from such: a named pipe would make the reader wait, a folder ask for all memory.
bool isSpecial(const std::string& path) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(path, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

bool parse(QenXmlParser& parser, const std::string& path) {
    if (isSpecial(path))
        return false;
    try {
        return parser.parseFile(path);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return false; // The diagnosis says more than its text.
    }
}

} // namespace

PackageReading readPackage(const std::string& path) {
    PackageReading reading;
    reading.path = path;
    try {
        reading.uuid = packageUuid(path);
        QenXmlParser parser;
        const bool complete = parse(parser, path);
        reading.growers = parser.getGrowers();
        if (!complete)
            reading.failure = diagnose(path);
    } catch (const std::bad_alloc&) {
        reading.failure = ReadFailure{"not enough memory", std::nullopt};
    }
    return reading;
}

std::string failureMessage(const PackageReading& reading) {
    const ReadFailure& failure = reading.failure.value();
    std::string place = escape(reading.path);
    if (failure.position)
        place += fmt::format(":{}:{}", failure.position->line, failure.position->column);

    const std::size_t count = reading.growers.size();
    const std::string consequence = count == 0 ? "the file is skipped"
                                    : count == 1
                                        ? "the grower before it is shown"
                                        : fmt::format("the {} growers before it are shown", count);
    return fmt::format("{}: {}; {}", place, failure.reason, consequence);
}

std::string oddNameMessage(const PackageReading& reading) {
    return fmt::format(
        "{}: file name without a proper package UUID: a name such as {} is expected; "
        "the file is shown, its recs carry the UUID {}",
        escape(reading.path), packageNameForm, to_string(reading.uuid.value()));
}

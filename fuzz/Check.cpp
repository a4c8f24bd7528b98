// Checks any bytes as a package: errors are found if and only if the library cannot read it, every
// text is safe to print, every place is in the file, and findings come in the order of their
// places.

#include <algorithm>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>

#include "fuzz/Require.h"
#include "parser/QenXmlParser.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/check/PackageCheck.h"
#include "tools/findings/FindingText.h"
#include "tools/text/Escape.h"

namespace {

bool canRead(const std::string& path) {
    try {
        return QenXmlParser().parseFile(path);
    } catch (const std::exception&) {
        return false;
    }
}

/// Whether escaping a text would change no more than to write its backslashes twice.
bool isSafe(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '\\'), text.end());
    return escape(text) == text;
}

bool isBefore(const Position& a, const Position& b) {
    return a.line < b.line || (a.line == b.line && a.column < b.column);
}

void requireSense(const Finding& finding) {
    for (const std::string& text :
         {finding.path, finding.found, recordsText(finding), consequenceText(finding),
          finding.location ? finding.location->excerpt.line : ""})
        require(isSafe(text), "what is found is safe to print");
    require(!finding.found.empty() && !consequenceText(finding).empty(),
            "a finding says something");
    if (!finding.location)
        return;
    const Location& location = *finding.location;
    require(location.excerpt.caret <= location.excerpt.line.size(), "the caret is below the line");
    require(location.begin.line > 0 && location.begin.column > 0, "places count from 1");
    require(!isBefore(location.end, location.begin), "a place ends behind its begin");
}

/// Whether a finding may come after another: what is about no place comes first.
bool isInOrder(const std::optional<Location>& earlier, const std::optional<Location>& later) {
    return earlier ? later && !isBefore(later->begin, earlier->begin) : true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto folder = test::TemporaryFolder::inMemory();
    const std::string path = folder.writePackage({reinterpret_cast<const char*>(data), size});
    bool hasError = false;
    std::optional<Location> last;
    for (const Finding& finding : checkPackage(path)) {
        requireSense(finding);
        require(isInOrder(last, finding.location), "findings come in the order of their places");
        last = finding.location;
        hasError = hasError || finding.severity() == Severity::Error;
    }
    require(hasError != canRead(path), "errors are found in what cannot be read, only");
    return 0;
}

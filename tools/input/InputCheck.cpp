#include "tools/input/InputCheck.h"

#include <new>
#include <string>
#include <utility>

#include "tools/check/PackageCheck.h"

namespace {

void addUnreadable(FindingSink& sink, std::string found, std::string consequence) {
    if (!sink.wants(FindingCode::Unreadable))
        return;
    Finding finding;
    finding.code = kindOf(FindingCode::Unreadable).code;
    finding.found = std::move(found);
    finding.consequence = std::move(consequence);
    sink.add(finding);
}

} // namespace

void checkInput(const PackageInput& input, FindingSink& sink) {
    if (input.failure()) {
        addUnreadable(sink, *input.failure(), "nothing of the package is read");
        return;
    }
    try {
        checkPackage(input.path(), sink);
    } catch (const std::bad_alloc&) {
        addUnreadable(sink, "there is not enough memory to check the file", "the check ends here");
    }
}

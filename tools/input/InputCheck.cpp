#include "tools/input/InputCheck.h"

#include <new>
#include <string>
#include <utility>

#include "tools/check/PackageCheck.h"

namespace {

void addUnreadable(FindingSink& sink, std::string found, Consequence consequence) {
    if (sink.wants(FindingCode::Unreadable))
        sink.add({FindingCode::Unreadable, std::move(found), std::move(consequence)});
    else
        sink.addCode(FindingCode::Unreadable);
}

} // namespace

void checkInput(const PackageInput& input, FindingSink& sink) {
    if (input.failure()) {
        addUnreadable(sink, *input.failure(), NothingRead{});
        return;
    }
    try {
        checkPackage(input.path(), sink);
    } catch (const std::bad_alloc&) {
        addUnreadable(sink, "there is not enough memory to check the file", CheckEnds{});
    }
}

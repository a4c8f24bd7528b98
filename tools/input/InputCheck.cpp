#include "tools/input/InputCheck.h"

#include <new>
#include <utility>

#include "tools/check/PackageCheck.h"

void checkInput(const PackageInput& input, FindingSink& sink, std::optional<FileContent> content) {
    if (input.failure()) {
        sink.offer({FindingCode::Unreadable, *input.failure(), NothingRead{}});
        return;
    }
    try {
        checkPackage(input.path(), content ? std::move(*content) : readFileContent(input.path()),
                     sink);
    } catch (const std::bad_alloc&) {
        sink.offer(
            {FindingCode::Unreadable, "there is not enough memory to check the file", CheckEnds{}});
    }
}

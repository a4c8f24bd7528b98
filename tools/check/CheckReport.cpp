#include "tools/check/CheckReport.h"

#include <fmt/format.h>

#include "tools/text/Escape.h"

void CheckReport::add(FindingCode code, Extent extent, std::string_view step,
                      const MakeDetails& make) {
    const bool error = kindOf(code).severity == Severity::Error;
    if (sink_.wants(code)) {
        Details details = make();
        if (error)
            details.consequence = errorConsequence();
        sink_.add({code, std::move(details.found), std::move(details.consequence),
                   source_.location(extent), path(step), records_});
    } else {
        sink_.addCode(code);
    }
    if (error)
        noteError(extent.offset);
}

void CheckReport::noteError(std::size_t offset) {
    ++errors_;
    if (firstError_)
        return;
    firstError_ = offset;
    growerOfFirstError_ = grower_;
}

Consequence CheckReport::errorConsequence() const {
    if (grower_ == 0)
        return NothingRead{};
    if (firstError_)
        return NotReached{line(*firstError_), errors_, growerOfFirstError_ == grower_};
    return ReadingEnds{grower_ - 1};
}

std::string CheckReport::path(std::string_view step) const {
    std::string path;
    for (const auto& [name, number] : path_) {
        path += *name == '\0' ? "/text()" : "/" + escapeExcerpt(name);
        if (number > 0)
            path += fmt::format("[{}]", number);
    }
    if (!step.empty())
        path += "/" + escapeExcerpt(step);
    return path;
}

#include "tools/check/CheckReport.h"

#include <algorithm>

#include <fmt/format.h>

#include "tools/text/Escape.h"

void CheckReport::add(FindingCode code, Extent extent, std::string_view step,
                      const MakeDetails& make) {
    const bool error = kindOf(code).severity == Severity::Error;
    if (sink_.wants(code)) {
        Details details = make();
        if (error)
            details.consequence = errorConsequence();
        Finding finding{code,
                        std::move(details.found),
                        std::move(details.consequence),
                        source_.location(extent),
                        path(step),
                        recordNames()};
        if (held_)
            held_->push_back(std::move(finding));
        else
            sink_.add(finding);
    } else {
        sink_.addCode(code);
    }
    if (error)
        noteError(extent.offset);
}

void CheckReport::inOrder(const std::function<void()>& checks) {
    held_.emplace();
    checks();
    std::vector<Finding> findings = std::move(*held_);
    held_.reset();
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        return a.location->extent.offset < b.location->extent.offset;
    });
    for (const Finding& finding : findings)
        sink_.add(finding);
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

std::vector<RecordName> CheckReport::recordNames() const {
    std::vector<RecordName> names;
    names.reserve(records_.size());
    for (const OpenRecord& record : records_)
        names.push_back({record.kind, escapeExcerpt(record.name), record.id});
    return names;
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

#include "tools/check/CheckReport.h"

#include <fmt/format.h>

#include "tools/text/Escape.h"

void CheckReport::send(FindingCode code, std::size_t offset, std::string_view step, Texts texts) {
    Finding finding;
    finding.code = kindOf(code).code;
    finding.severity = kindOf(code).severity;
    finding.position = source_.position(offset);
    finding.path = path(step);
    finding.records = records();
    finding.found = std::move(texts.found);
    finding.consequence = std::move(texts.consequence);
    finding.excerpt = source_.excerpt(offset);
    sink_.add(finding);
}

void CheckReport::noteError(std::size_t offset) {
    ++errors_;
    if (firstError_)
        return;
    firstError_ = offset;
    growerOfFirstError_ = grower_;
}

std::string CheckReport::errorConsequence() const {
    if (grower_ == 0)
        return "nothing of the file is read";
    if (firstError_ && growerOfFirstError_ == grower_)
        return fmt::format("this grower is not read because of line {}; it is not enough to mend "
                           "that alone",
                           line(*firstError_));
    if (firstError_)
        return fmt::format("reading ends before this, because of line {}; once {} mended, it ends "
                           "here",
                           line(*firstError_),
                           errors_ == 1 ? "that is"
                                        : fmt::format("the {} errors before it are", errors_));
    const std::size_t before = grower_ - 1;
    const std::string kept = before == 0   ? "; no grower is"
                             : before == 1 ? "; the grower before it is"
                                           : fmt::format("; the {} growers before it are", before);
    return "this grower and the rest of the file are not read" + kept;
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

std::string CheckReport::records() const {
    std::string records;
    for (const auto& [kind, name] : records_) {
        if (*name == '\0')
            continue;
        records += records.empty() ? "" : ", ";
        records += fmt::format("{} \"{}\"", kind, escapeExcerpt(name));
    }
    return records;
}

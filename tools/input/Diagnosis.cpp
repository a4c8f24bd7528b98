#include "tools/input/Diagnosis.h"

#include <variant>

#include <fmt/format.h>

void Diagnosis::add(const Finding& finding) {
    if (isFirstError(finding.code))
        error_ = finding;
    if (next_ != nullptr)
        next_->offer(finding);
}

void Diagnosis::addCode(FindingCode code) {
    if (next_ != nullptr)
        next_->addCode(code);
}

ReadFailure Diagnosis::failure() const {
    if (!error_)
        return {"could not be read, but nothing is wrong with it now; it may have changed "
                "meanwhile",
                std::nullopt};
    if (std::holds_alternative<CheckEnds>(error_->consequence))
        return {"not enough memory", std::nullopt};
    const std::optional<Position> position =
        error_->location ? std::optional(error_->location->begin) : std::nullopt;
    const bool identifier = !error_->path.empty() && error_->code != FindingCode::NoRecPackage;
    if (!identifier)
        return {error_->found, position};
    // The text of the library's exception comes first, for those who have seen it.
    return {fmt::format("invalid uuid string: {}: {}", error_->path, error_->found), position};
}

#include "tools/input/Diagnosis.h"

#include <fmt/format.h>

#include "tools/check/PackageCheck.h"

namespace {

/// Keeps the first error.
class FirstError : public FindingSink {
public:
    bool wants(FindingCode code) const override {
        return !error_ && kindOf(code).severity == Severity::Error;
    }
    void add(const Finding& finding) override { error_ = finding; }

    const std::optional<Finding>& error() const { return error_; }

private:
    std::optional<Finding> error_;
};

std::optional<Position> positionOf(const Finding& finding) {
    return finding.location ? std::optional(finding.location->begin) : std::nullopt;
}

} // namespace

ReadFailure diagnose(const std::string& path) {
    FirstError sink;
    checkPackage(path, sink);
    if (!sink.error())
        return {"could not be read, but nothing is wrong with it now; it may have changed "
                "meanwhile",
                std::nullopt};
    const Finding& error = *sink.error();
    const bool identifier = !error.path.empty() && error.code != FindingCode::NoRecPackage;
    if (!identifier)
        return {error.found, positionOf(error)};
    // The text of the library's exception comes first, for those who have seen it.
    return {fmt::format("invalid uuid string: {}: {}", error.path, error.found), positionOf(error)};
}

#include "tools/input/Diagnosis.h"

#include <string_view>

#include <fmt/format.h>

#include "tools/check/PackageCheck.h"

namespace {

constexpr std::string_view noPackage = kindOf(FindingCode::NoRecPackage).code;

/// Keeps the first error.
class FirstError : public FindingSink {
public:
    bool wants(FindingCode code) override {
        return !error_ && kindOf(code).severity == Severity::Error;
    }
    void add(const Finding& finding) override { error_ = finding; }

    const std::optional<Finding>& error() const { return error_; }

private:
    std::optional<Finding> error_;
};

} // namespace

ReadFailure diagnose(const std::string& path) {
    FirstError sink;
    checkPackage(path, sink);
    if (!sink.error())
        return {"could not be read, but nothing is wrong with it now; it may have changed "
                "meanwhile",
                std::nullopt};
    const Finding& error = *sink.error();
    const bool identifier = !error.path.empty() && error.code != noPackage;
    if (!identifier)
        return {error.found, error.position};
    // The text of the library's exception comes first, for those who have seen it.
    return {fmt::format("invalid uuid string: {}: {}", error.path, error.found), error.position};
}

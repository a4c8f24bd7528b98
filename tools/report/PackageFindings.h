#ifndef QENXML_TOOLS_REPORT_PACKAGEFINDINGS_H
#define QENXML_TOOLS_REPORT_PACKAGEFINDINGS_H

#include <cstddef>
#include <optional>

#include "tools/report/FindingGroups.h"

/// Takes the findings of one package into those of all, counts them and keeps the first error.
class PackageFindings : public FindingSink {
public:
    /// @param package its index
    PackageFindings(FindingGroups& groups, std::size_t package)
        : groups_(groups), package_(package) {}

    bool wants(FindingCode code) const override {
        return isFirstError(code) || groups_.wants(code);
    }

    void add(const Finding& finding) override {
        ++count_;
        if (isFirstError(finding.code))
            error_ = finding;
        groups_.add(package_, finding);
    }

    void addCode(FindingCode code) override {
        ++count_;
        groups_.addCode(package_, code);
    }

    std::size_t count() const { return count_; }

    /// Where reading the package ends, and why.
    const std::optional<Finding>& error() const { return error_; }

private:
    bool isFirstError(FindingCode code) const {
        return !error_ && kindOf(code).severity == Severity::Error;
    }

    FindingGroups& groups_;
    std::size_t package_;
    std::size_t count_ = 0;
    std::optional<Finding> error_;
};

#endif

#ifndef QENXML_TOOLS_INPUT_DIAGNOSIS_H
#define QENXML_TOOLS_INPUT_DIAGNOSIS_H

#include <optional>
#include <string>

#include "tools/check/Finding.h"

/// Why a package file could not be read.
struct ReadFailure {
    std::string reason;               ///< In words, safe to print.
    std::optional<Position> position; ///< Where in the file, if it is about a place there.
};

/// Finds out why the library could not read a package, of which the library itself says little:
/// from the first of the errors that are found in it. All findings go on to another sink, if there
/// is one, so that the file is checked once for both.
class Diagnosis : public FindingSink {
public:
    explicit Diagnosis(FindingSink* next = nullptr) : next_(next) {}

    bool wants(FindingCode code) const override {
        return isFirstError(code) || (next_ != nullptr && next_->wants(code));
    }
    void add(const Finding& finding) override;
    void addCode(FindingCode code) override;

    ReadFailure failure() const;

private:
    bool isFirstError(FindingCode code) const {
        return !error_ && kindOf(code).severity == Severity::Error;
    }

    FindingSink* next_;
    std::optional<Finding> error_;
};

#endif

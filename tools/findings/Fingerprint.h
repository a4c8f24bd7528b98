#ifndef QENXML_TOOLS_FINDINGS_FINGERPRINT_H
#define QENXML_TOOLS_FINDINGS_FINGERPRINT_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "tools/check/Finding.h"

/// The name under which outputs give fingerprints. Its number rises when they are made otherwise.
inline constexpr std::string_view fingerprintName = "qenxmlFinding/v1";

/// What is the same of a finding wherever it stands: the FNV-1a hash, of 64 bits, of the name of
/// the file without its folders, the code, the kinds and identifiers of the records around it (the
/// name where an identifier cannot be read), the path and what was found, these two without any
/// numbers of lines, bytes and siblings. Findings that are alike in all that have the same one.
///
/// @param path of the file
std::uint64_t fingerprintOf(const Finding& finding, std::string_view path);

/// The fingerprints of the findings of a file as outputs give them: "8c736521fd1a2e5b:1", with the
/// number among equal ones.
class FingerprintTexts {
public:
    explicit FingerprintTexts(std::string path = "") : path_(std::move(path)) {}

    std::string next(const Finding& finding);

private:
    /// Of how many different findings equal ones are counted; the others are number 1.
    static constexpr std::size_t mostCounted = 100000;

    std::string path_;
    std::map<std::uint64_t, std::size_t> equal_; ///< How many there are, by fingerprint.
};

#endif

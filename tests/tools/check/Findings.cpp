#include "tests/tools/check/Findings.h"

#include <algorithm>
#include <variant>

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/check/PackageCheck.h"

namespace test {

namespace {

struct ConsequenceText {
    std::string operator()(const Kept&) const { return "kept"; }
    std::string operator()(const Dropped& dropped) const { return "dropped " + dropped.what; }
    std::string operator()(const ReadAs& read) const {
        return "read as " + read.value + (read.onceComplete ? " once complete" : "");
    }
    std::string operator()(const Replaces& other) const {
        return std::string("replaces ") + other.record + " of line " + std::to_string(other.line) +
               " with " + std::to_string(other.fields) + " field(s), " +
               std::to_string(other.recs) + " rec(s)";
    }
    std::string operator()(const Without& without) const {
        const char* const part = without.part == RecPart::Product     ? "without product"
                                 : without.part == RecPart::Operation ? "without operation"
                                                                      : "without season";
        return part + (without.name.empty() ? "" : " " + without.name) +
               (without.nextError.empty() ? "" : ", then " + without.nextError);
    }
    std::string operator()(const NothingRead&) const { return "nothing read"; }
    std::string operator()(const ReadingEnds& end) const {
        return "reading ends after " + std::to_string(end.growers);
    }
    std::string operator()(const NotReached& end) const {
        return "behind error " + std::to_string(end.errors) + " since line " +
               std::to_string(end.line) + (end.sameGrower ? " of this grower" : "");
    }
    std::string operator()(const CheckEnds&) const { return "check ends"; }
    std::string operator()(const Merges& merges) const {
        return "shows that of " + merges.versions.front().file;
    }
};

} // namespace

std::string toText(const Consequence& consequence) {
    return std::visit(ConsequenceText(), consequence);
}

std::string toText(const Finding& finding) {
    std::string text;
    if (finding.location)
        text += std::to_string(finding.location->begin.line) + ":" +
                std::to_string(finding.location->begin.column) + " ";
    return text + kindOf(finding.code).code + " " + finding.path + ": " + finding.found + " -> " +
           toText(finding.consequence);
}

std::vector<Finding> findingsIn(const std::string& content) {
    const TemporaryFolder folder;
    return checkPackage(folder.writePackage(content));
}

std::string findingTexts(const std::string& content) {
    std::string text;
    for (const Finding& finding : findingsIn(content))
        text += toText(finding) + "\n";
    return text;
}

std::vector<Finding> findingsOf(const std::string& content, FindingCode code) {
    std::vector<Finding> findings = findingsIn(content);
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [&](const Finding& finding) { return finding.code != code; }),
                   findings.end());
    return findings;
}

Finding findingOf(const std::string& content, FindingCode code) {
    const std::vector<Finding> found = findingsOf(content, code);
    EXPECT_EQ(found.size(), 1U) << kindOf(code).code << " in " << content;
    return found.empty() ? Finding{} : found.front();
}

std::string consequenceOf(const std::string& content, FindingCode code) {
    return toText(findingOf(content, code).consequence);
}

std::string excerptOf(const Finding& finding) {
    return finding.location->excerpt.line + "\n" +
           std::string(finding.location->excerpt.caret, ' ') + "^";
}

std::string packageWithField(const std::string& content) {
    return package(grower(1, farm(2, field(3, content))));
}

std::string packageWithRec(const std::string& content) {
    return packageWithField(recommendations(rec(4, content)));
}

} // namespace test

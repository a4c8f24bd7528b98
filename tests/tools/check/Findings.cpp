#include "tests/tools/check/Findings.h"

#include <gtest/gtest.h>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/check/PackageCheck.h"

namespace test {

std::string toText(const Finding& finding) {
    std::string text;
    if (finding.position)
        text += std::to_string(finding.position->line) + ":" +
                std::to_string(finding.position->column) + " ";
    return text + finding.code + " " + finding.path + ": " + finding.found + " -> " +
           finding.consequence;
}

std::vector<Finding> findingsIn(const std::string& content) {
    const TemporaryFolder folder;
    return checkPackage(folder.writePackage(content));
}

std::string findingTexts(const std::string& content, const std::string& code) {
    std::string text;
    for (const Finding& finding : findingsIn(content)) {
        if (code.empty() || finding.code == code)
            text += toText(finding) + "\n";
    }
    return text;
}

Finding findingOf(const std::string& content, const std::string& code) {
    std::vector<Finding> found;
    for (const Finding& finding : findingsIn(content)) {
        if (finding.code == code)
            found.push_back(finding);
    }
    EXPECT_EQ(found.size(), 1U) << code << " in " << content;
    return found.empty() ? Finding{} : found.front();
}

std::string excerptOf(const Finding& finding) {
    return finding.excerpt.line + "\n" + std::string(finding.excerpt.caret, ' ') + "^";
}

std::string packageWithField(const std::string& content) {
    return package(grower(1, farm(2, field(3, content))));
}

std::string packageWithRec(const std::string& content) {
    return packageWithField(recommendations(rec(4, content)));
}

} // namespace test

#include "tools/findings/WantedFindings.h"

#include "tools/findings/Explanation.h"

WantedCodes wantedCodes(const std::vector<std::string>& ignored) {
    WantedCodes wanted{};
    wanted.fill(true);
    for (const std::string& code : ignored)
        wanted.at(static_cast<std::size_t>(codeNamed(code).value())) = false;
    return wanted;
}

void WantedFindings::add(const Finding& finding) {
    counts_.add(finding.code);
    sink_.add(finding);
}

void WantedFindings::addCode(FindingCode code) {
    if (!isWanted(code))
        return;
    counts_.add(code);
    sink_.addCode(code);
}

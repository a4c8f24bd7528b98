#include "tools/PackageCheck.h"

#include "tools/PackageReading.h"

std::vector<Finding> checkPackage(const std::string& path) {
    std::vector<Finding> findings;
    const PackageReading reading = readPackage(path);
    if (reading.failure) {
        Finding finding;
        finding.code = "unreadable";
        finding.position = reading.failure->position;
        finding.found = reading.failure->reason;
        finding.consequence = "the package is not, or not completely, read";
        findings.push_back(finding);
    }
    return findings;
}

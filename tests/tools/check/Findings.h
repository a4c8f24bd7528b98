/// @file
/// What is found in a package, and short forms of it to compare.

#ifndef QENXML_TESTS_TOOLS_CHECK_FINDINGS_H
#define QENXML_TESTS_TOOLS_CHECK_FINDINGS_H

#include <string>
#include <vector>

#include "tools/check/Finding.h"

namespace test {

/// "read as 135", "replaces farm of line 5 with 1 field(s), 2 rec(s)".
std::string toText(const Consequence& consequence);

/// "2:1 grower-id /RecPackage/Grower[2]: Grower has no attribute GrowerID -> reading ends after 1".
std::string toText(const Finding& finding);

/// All that is found in a package file of this content.
std::vector<Finding> findingsIn(const std::string& content);

/// All, one per line.
std::string findingTexts(const std::string& content);

/// Those of a code.
std::vector<Finding> findingsOf(const std::string& content, FindingCode code);

/// The one finding of a code; fails the test when there is none, or more of them.
Finding findingOf(const std::string& content, FindingCode code);

/// What the one finding of a code comes to.
std::string consequenceOf(const std::string& content, FindingCode code);

/// The line of the file that a finding shows, and the caret below it.
std::string excerptOf(const Finding& finding);

/// A package with one field of this content beside what a field must hold.
std::string packageWithField(const std::string& content);

/// A package with one rec of this content beside what a rec must hold.
std::string packageWithRec(const std::string& content);

} // namespace test

#endif

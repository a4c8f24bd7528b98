/// @file
/// From where on something is not plausible. docs/findings.md says so to people.

#ifndef QENXML_TOOLS_CHECK_PLAUSIBILITYLIMITS_H
#define QENXML_TOOLS_CHECK_PLAUSIBILITYLIMITS_H

#include <cstddef>

namespace plausible {

/// By what part a total may differ from rate times area, beside what the last digits leave open.
constexpr double totalTolerance = 0.02;

/// How far a field lies, in kilometres, from the other fields of its farm when nobody needs to know
/// why to doubt it.
constexpr double farAway = 500;

/// The same where a slip explains it, in a farm of few fields and of many. Fields of one farm are
/// up to 150 km around its centre, and some farms lie on both sides of the equator or of Greenwich.
constexpr double farBySlip = 300;
constexpr double farBySlipAmongMany = 200;
constexpr std::size_t manyFields = 10;

/// How many times as far it lies from their centre as most of them do.
constexpr double farBeyondOthers = 4;

/// How far from the others a field may be without the slip: this part of its distance with it, but
/// not more kilometres; or so many times as far as most of the others are.
constexpr double nearPart = 0.1;
constexpr double nearAtMost = 300;
constexpr double nearAsOthers = 2;

/// The longest name of a column in a DBF file.
constexpr std::size_t columnLength = 10;

} // namespace plausible

#endif

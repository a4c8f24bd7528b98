/// @file
/// A package as a person reads it: what it says, with nothing lost and nothing guessed. Written by
/// hand from the description of the format, it shares nothing with the library and the check.

#ifndef QENXML_TESTS_TOOLS_CHECK_PERSONSREADING_H
#define QENXML_TESTS_TOOLS_CHECK_PERSONSREADING_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "tests/support/PlainTree.h"
#include "tests/tools/check/ExpatTree.h"

namespace test {

struct PersonsReading {
    std::vector<plain::Grower> growers;
    std::string doubt;     ///< The first thing that is unclear, or has no place in the records.
    bool inPieces = false; ///< A value is written in pieces, so that blanks in it mean nothing.
};

/// @param package the UUID that the name of the file says
PersonsReading readAsPerson(const XmlElement& root, const boost::uuids::uuid& package);

// What a person takes for a value. Blanks around it are none of it.
std::optional<double> personsNumber(std::string_view text);
std::optional<int> personsInteger(std::string_view text);
std::optional<boost::uuids::uuid> personsIdentifier(std::string_view text);

/// A text without the blanks around it.
std::string_view withoutBlanks(std::string_view text);

} // namespace test

#endif

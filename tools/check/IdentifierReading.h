#ifndef QENXML_TOOLS_CHECK_IDENTIFIERREADING_H
#define QENXML_TOOLS_CHECK_IDENTIFIERREADING_H

#include <cstddef>
#include <string>
#include <string_view>

#include <boost/uuid/uuid.hpp>

#include "parser/internal/Identifier.h"

/// What the library makes of the text of an identifier, and what is odd about it.
struct IdentifierReading {
    using Fault = qenxml::ExplainedIdentifier::Fault;

    Fault fault = Fault::None;   ///< Why the library refuses the text, if it does.
    std::size_t digits = 0;      ///< How many digits come before the fault.
    std::size_t faultOffset = 0; ///< Where in the text the fault is.
    boost::uuids::uuid value{};  ///< Without a fault: the UUID.
    std::size_t wrongDigits = 0; ///< Without a fault: how many characters in it are no digits.
    std::size_t wrongOffset = 0; ///< Where the first of them is.
    std::string_view ignored;    ///< Without a fault: what follows, unless it is white space. With
                                 ///< the whole of a character that the last digit is a part of.
};

/// Takes the text of an identifier apart, by the rules of the library.
IdentifierReading readIdentifier(std::string_view text);

/// What a fault is, to follow the name of the identifier: "is empty".
///
/// @param text the text that was read; what is shown of it is escaped
std::string describeFault(const IdentifierReading& identifier, std::string_view text);

#endif

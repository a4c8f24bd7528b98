#ifndef QENXML_TOOLS_CHECK_ENCODINGCHECK_H
#define QENXML_TOOLS_CHECK_ENCODINGCHECK_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "tools/check/PlacedFindings.h"
#include "tools/check/SecondReader.h"
#include "tools/text/SourceText.h"

/// The first letter of a file that is written in UTF-8 although it is read in an encoding of one
/// byte a letter, as its declaration says.
///
/// @return the letter in UTF-8; empty when the file is not like that
std::string mistakenLetter(const std::string& bytes, pugi::xml_encoding encoding);

/// Checks the encoding that a file is in against the one that it is read in, and the one that it
/// declares.
class EncodingCheck {
public:
    explicit EncodingCheck(const SourceText& source);

    /// Finds bytes that are no letters.
    void invalidUtf8(PlacedFindings& all) const;

    /// Finds letters that programs or people read in another way.
    void mistaken(const std::string& mistakenLetter, const SecondReading& second,
                  PlacedFindings& all) const;

private:
    bool declares(const char* name) const;
    std::string describeReading() const;
    bool isOfSingleBytes() const;

    const SourceText& source_;
    std::string_view declared_;
    std::optional<std::size_t> invalidByte_;
};

#endif

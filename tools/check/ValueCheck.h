#ifndef QENXML_TOOLS_CHECK_VALUECHECK_H
#define QENXML_TOOLS_CHECK_VALUECHECK_H

#include <cstddef>
#include <string_view>

#include "tools/check/CheckReport.h"
#include "tools/check/PackageFormat.h"

/// Checks identifiers and numbers.
class ValueCheck {
public:
    explicit ValueCheck(CheckReport& report) : report_(report) {}

    /// @param extent where the value stands, or its element when there is no value
    /// @param step   the last step of its path; empty for the element that the check is in
    void check(const DatumFormat& datum, const char* text, Extent extent, std::string_view step);

    /// Whether what follows is a part of a product that is incomplete, of which nothing is read
    /// before it is complete.
    void setIncomplete(bool incomplete) { incomplete_ = incomplete; }

private:
    void identifier(const DatumFormat& datum, std::string_view text, Extent extent,
                    std::string_view step);
    void number(const DatumFormat& datum, const char* text, Extent extent, std::string_view step);
    Extent partOf(Extent extent, std::string_view value, std::size_t index,
                  std::size_t length) const;
    Extent restOf(Extent extent, std::string_view value, std::size_t index) const;

    CheckReport& report_;
    bool incomplete_ = false;
};

#endif

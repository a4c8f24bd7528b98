#ifndef QENXML_TOOLS_CHECK_UNITCODES_H
#define QENXML_TOOLS_CHECK_UNITCODES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "tools/check/CheckReport.h"

/// The codes and texts of the units of one kind in a package, such as those of rates: one code
/// stands for one unit. It remembers the first ones only, as there may be any number of them.
class UnitCodes {
public:
    /// @param textName name of the elements that hold the texts
    /// @param codeName name of those beside them that hold the codes
    UnitCodes(const char* textName, const char* codeName)
        : textName_(textName), codeName_(codeName) {}

    /// Checks an element, if it is the text of such a unit, with its code against those before it.
    /// Each pair of them is found once.
    void check(CheckReport& report, pugi::xml_node child);

private:
    struct Unit {
        int code;
        std::string text;
        std::size_t offset;
    };

    const Unit* contradiction(int code, std::string_view text) const;

    const char* textName_;
    const char* codeName_;
    std::vector<Unit> units_;
};

#endif

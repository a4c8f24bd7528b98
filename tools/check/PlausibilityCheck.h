#ifndef QENXML_TOOLS_CHECK_PLAUSIBILITYCHECK_H
#define QENXML_TOOLS_CHECK_PLAUSIBILITYCHECK_H

#include <array>

#include <pugixml.hpp>

#include "parser/internal/TagConstants.h"
#include "tools/check/CheckReport.h"
#include "tools/check/FarmSpread.h"
#include "tools/check/PackageFormat.h"
#include "tools/check/UnitCodes.h"

/// Checks what a package says against what else it says: what is read as it is written, but is
/// hardly meant so. Its findings are notes.
class PlausibilityCheck {
public:
    explicit PlausibilityCheck(CheckReport& report) : report_(report) {}

    /// The check comes to a farm.
    void beginFarm(pugi::xml_node farm) { farm_ = FarmSpread(farm); }

    /// Checks an element that holds others, which the report is in.
    void element(const ElementFormat& format, pugi::xml_node node);

    /// Checks an element that holds a value, in whose parent the report is.
    ///
    /// @param format of the parent
    /// @param datum  of the child
    void value(const ElementFormat& format, const DatumFormat& datum, pugi::xml_node child);

private:
    void statistic(const DatumFormat& datum, pugi::xml_node child);

    CheckReport& report_;
    FarmSpread farm_;
    std::array<UnitCodes, 3> unitCodes_ = {
        UnitCodes(qenxml::tag::RateUOM, qenxml::tag::RateUOMID),
        UnitCodes(qenxml::tag::TotalUOM, qenxml::tag::TotalUOMID),
        UnitCodes(qenxml::tag::AreaUOM, qenxml::tag::AreaUOMID)};
};

#endif

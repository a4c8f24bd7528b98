#include "tools/check/PlausibilityCheck.h"

#include <string_view>

#include "tools/check/CentroidCheck.h"
#include "tools/check/ColumnCheck.h"
#include "tools/check/DateCheck.h"
#include "tools/check/RateCheck.h"
#include "tools/check/TotalCheck.h"
#include "tools/check/UnitCheck.h"

namespace tag = qenxml::tag;

void PlausibilityCheck::element(const ElementFormat& format, pugi::xml_node node) {
    if (&format != &format::fieldCentroid())
        return;
    checkCentroid(report_, node);
    checkSpread(report_, farm_, node);
}

void PlausibilityCheck::value(const ElementFormat& format, const DatumFormat& datum,
                              pugi::xml_node child) {
    if (&format == &format::recStats())
        statistic(datum, child);
    else if (&format == &format::fieldCentroid())
        checkCoordinate(report_, child);
    else if (datum.kind != qenxml::format::Kind::Text)
        return;
    else if (std::string_view(datum.name) == tag::RecDBFCol)
        checkColumn(report_, child);
    else
        checkDate(report_, child);
}

void PlausibilityCheck::statistic(const DatumFormat& datum, pugi::xml_node child) {
    if (datum.kind == qenxml::format::Kind::Text) {
        for (UnitCodes& codes : unitCodes_)
            codes.check(report_, child);
    } else if (datum.kind == qenxml::format::Kind::Number) {
        if (std::string_view(datum.name) == tag::Total)
            checkTotal(report_, child);
        else
            checkRate(report_, child);
        checkUnit(report_, child);
    }
}

#ifndef QENXML_TOOLS_TEXT_SPELTDATE_H
#define QENXML_TOOLS_TEXT_SPELTDATE_H

#include <string_view>

#include "tools/text/DateText.h"

/// What a text is as a date, in whatever spelling: one as in ISO 8601 is no better than others. A
/// date is refused only where no reading of it makes a date.
DateKind kindOfSpeltDate(std::string_view text);

#endif

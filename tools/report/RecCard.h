#ifndef QENXML_TOOLS_REPORT_RECCARD_H
#define QENXML_TOOLS_REPORT_RECCARD_H

#include <string>

#include "model/QenRec.h"
#include "tools/records/MissingNumbers.h"
#include "tools/report/RateBar.h"

/// The rates that a package gives for a rec.
Rates ratesOf(QenRec& rec, const MissingNumbers& missing);

/// What a package gives for a rec, as an item of a list.
///
/// @param scale that of all recs of the field with rates in the same unit
std::string recCard(QenRec& rec, const MissingNumbers& missing, const RateScale& scale);

#endif

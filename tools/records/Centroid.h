#ifndef QENXML_TOOLS_RECORDS_CENTROID_H
#define QENXML_TOOLS_RECORDS_CENTROID_H

#include "model/QenFieldGeometry.h"
#include "tools/records/MissingNumbers.h"

/// Whether a centroid is a place on earth. (0, 0) is none: programs write it for "none", and no
/// field lies there, in the sea. One of which a number is missing is none either.
bool isPlace(const LLA& centroid, const MissingNumbers& missing = {});

#endif

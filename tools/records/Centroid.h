#ifndef QENXML_TOOLS_RECORDS_CENTROID_H
#define QENXML_TOOLS_RECORDS_CENTROID_H

#include "model/QenFieldGeometry.h"

/// Whether a centroid is a place on earth. (0, 0) is none: it is what a package without a centroid
/// reads as, and no field lies there, in the sea.
bool isPlace(const LLA& centroid);

#endif

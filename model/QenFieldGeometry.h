#ifndef QENXML_MODEL_QENFIELDGEOMETRY_H
#define QENXML_MODEL_QENFIELDGEOMETRY_H

#include <string>

#include <boost/uuid/uuid.hpp>

#include "QenExport.h"

/// A point on the earth: the centroid of a field geometry. A plain aggregate; `LLA{}` is all zeros.
/// The values are kept as given, out of range or not.
struct LLA {
    double latitude;  ///< Degrees, as the package gives them.
    double longitude; ///< Degrees, as the package gives them.
    double altitude;  ///< Packages hold none: 0 in everything that was read from one.
};

/// One boundary geometry of a field: which file holds its shape, its date and its centroid.
///
/// A plain value that does not change once constructed. The accessors are non-const members, so
/// whoever holds a const geometry asks a copy of it. They return copies and throw nothing but
/// std::bad_alloc.
///
/// Threads: the accessors change nothing; a geometry that no thread changes may be read by several.
class QENXML_EXPORT QenFieldGeometry {
public:
    /// A geometry with these values; there is no empty one.
    ///
    /// @param geometryId   identity of this geometry
    /// @param geometryDate its date, kept as text and never parsed
    /// @param geometry     identity of the geometry file
    /// @param centroid     centre point, in degrees
    QenFieldGeometry(const boost::uuids::uuid& geometryId, const std::string& geometryDate,
                     const boost::uuids::uuid& geometry, const LLA& centroid);

    boost::uuids::uuid geometryId(); ///< Identity of this geometry.
    std::string geometryDate();      ///< The date as text; empty when the package gives none.
    boost::uuids::uuid geometry();   ///< Identity of the geometry file, whose name is its text.
    LLA centroid();                  ///< Centre point; (0, 0, 0) when the package gives none.

    /// True when the two geometryId() are equal; date, file and centroid are not compared. There is
    /// no `operator!=`.
    bool operator==(const QenFieldGeometry& other) const;

private:
    friend class QenField; // Its look-ups read const geometries without copying them.

    boost::uuids::uuid geometryId_;
    std::string geometryDate_;
    boost::uuids::uuid geometry_;
    LLA centroid_;
};

#endif

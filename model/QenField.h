#ifndef QENXML_MODEL_QENFIELD_H
#define QENXML_MODEL_QENFIELD_H

#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "QenExport.h"
#include "QenFieldGeometry.h"
#include "QenRec.h"

/// A field: its identity, its boundary geometries and its recs.
///
/// A plain value: a copy has geometries, recs and product data of its own. Unlike assigning a
/// single QenRec, assigning a field loses nothing: the recs that it held before are destroyed with
/// their product data.
///
/// Look-ups never fail; they return the empty value that each of them names. Nothing is validated,
/// and no operation throws anything but std::bad_alloc.
///
/// Threads: a field may be read by several threads at once as long as none changes it; recs()
/// changes nothing by itself although it is not a const member.
class QENXML_EXPORT QenField {
public:
    /// A field with nil identifiers, an empty name, no geometries and no recs.
    QenField();

    /// A field without geometries and recs.
    ///
    /// @param name     display name
    /// @param id       identity of the field
    /// @param growerId grower that the field belongs to; kept, never compared
    /// @param farmId   farm that the field belongs to; kept, never compared
    QenField(const std::string& name, const boost::uuids::uuid& id,
             const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId);

    /// A field with one geometry and no recs. Note that the geometry's date comes before its two
    /// identifiers, unlike in the constructor of QenFieldGeometry.
    ///
    /// @param name         display name
    /// @param id           identity of the field
    /// @param growerId     grower that the field belongs to; kept, never compared
    /// @param farmId       farm that the field belongs to; kept, never compared
    /// @param geometryDate date of the geometry, as text
    /// @param geometryId   identity of the geometry
    /// @param geometry     identity of the geometry file
    /// @param centroid     centre point of the geometry; only read
    QenField(const std::string& name, const boost::uuids::uuid& id,
             const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId,
             const std::string& geometryDate, const boost::uuids::uuid& geometryId,
             const boost::uuids::uuid& geometry, LLA& centroid);

    /// A copy with geometries, recs and product data of its own. Product data whose kind is none of
    /// the four variants is dropped (see QenRec).
    QenField(const QenField& other);

    /// Takes over the content of a field that nobody will look at again, product data of any kind
    /// included.
    QenField(QenField&& other) noexcept;

    /// Makes this field a copy of @p other and destroys the recs that it held before. When memory
    /// runs out, nothing has changed.
    QenField& operator=(const QenField& other);

    /// Takes over the content of a field that nobody will look at again, and destroys the recs that
    /// this field held before.
    QenField& operator=(QenField&& other) noexcept;

    /// Destroys the recs with their product data.
    ~QenField();

    /// Display name; may be empty. From a package it is UTF-8, unless the package holds bytes that
    /// are none.
    std::string name() const;

    void setName(std::string name); ///< Replaces the display name.

    boost::uuids::uuid id() const;       ///< Identity of the field; all that equality looks at.
    boost::uuids::uuid growerId() const; ///< Grower that the field belongs to; never compared.
    boost::uuids::uuid farmId() const;   ///< Farm that the field belongs to; never compared.

    /// The date of the geometry @p geometryId, as text that is never parsed; empty when the field
    /// has no such geometry. Of several geometries with that identifier the last one answers, here
    /// and in the three look-ups below.
    std::string geometryDate(const boost::uuids::uuid& geometryId) const;

    /// The name of the file that holds the shape of the geometry @p geometryId: the text of
    /// geometryFileId() in lower case and with hyphens (8-4-4-4-12), without folder and extension.
    /// Empty when the field has no such geometry.
    std::string geometryFileName(const boost::uuids::uuid& geometryId) const;

    /// The identity of the file that holds the shape of the geometry @p geometryId; nil when the
    /// field has no such geometry.
    boost::uuids::uuid geometryFileId(const boost::uuids::uuid& geometryId) const;

    /// The centre point of the geometry @p geometryId, in degrees; (0, 0, 0) when the field has no
    /// such geometry.
    LLA centroid(const boost::uuids::uuid& geometryId) const;

    /// A copy of the geometries, in the order in which they were added. Changing it changes nothing
    /// in the field, unlike changing recs().
    std::vector<QenFieldGeometry> geometries() const;

    /// The recs themselves, in the order in which they were added; the caller may change the list
    /// and its elements. Changing the list may invalidate references to its elements, and assigning
    /// an element loses its product data (see QenRec). A const field does not give them: walk a
    /// copy of it.
    std::vector<QenRec>& recs();

    /// A copy of the first rec whose product data carries the identifier @p recId
    /// (QenRecData::recId(); the rec's own id is not consulted). Recs without product data are
    /// skipped. A default-constructed rec when there is none. In what was read from a package, the
    /// product data of a rec carries that rec's id.
    QenRec rec(boost::uuids::uuid recId) const;

    /// True when the two id() are equal; nothing else is compared.
    bool operator==(const QenField& other) const;

    /// True when the two id() differ.
    bool operator!=(const QenField& other) const;

    /// Appends a copy of @p geometry, also when the field has one with the same identifier.
    void addFieldGeometry(const QenFieldGeometry& geometry);

    /// Puts @p rec in the place of the first rec with the same id, or else appends it. As when a
    /// QenRec is assigned, the product data of a rec that is replaced is not deleted: it belongs to
    /// the caller, who takes the pointer beforehand. When memory runs out, nothing has changed.
    ///
    /// A rec of the caller, std::move() of it included, is copied with its product data. A
    /// temporary is not copied but taken over: the object that its recData() pointed to is that of
    /// the field's rec then. Product data whose kind is none of the four variants is dropped in
    /// either case.
    void addRec(QenRec rec);

    /// Adds what @p other, another version of the same field, has beyond this one: its recs with
    /// new ids, then its geometries with new identifiers, each appended in order; of several with
    /// the same new identifier only the first one. What this field has already stays as it is, its
    /// name and several recs or geometries with one identifier included; so merging a field with
    /// itself changes nothing. Does nothing when the two ids differ. The argument is a copy: the
    /// caller's field stays as it is.
    ///
    /// When memory runs out, the recs and geometries added so far stay.
    void merge(QenField other);

private:
    /// The last of the geometries with the identifier, or null.
    QENXML_LOCAL const QenFieldGeometry* lastGeometry(const boost::uuids::uuid& geometryId) const;

    boost::uuids::uuid id_{};
    boost::uuids::uuid growerId_{};
    boost::uuids::uuid farmId_{};
    std::string name_;
    std::vector<QenFieldGeometry> geometries_;
    std::vector<QenRec> recs_;
};

#endif

#ifndef QENXML_MODEL_QENFARM_H
#define QENXML_MODEL_QENFARM_H

#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "QenExport.h"
#include "QenField.h"

/// A farm of a grower: its identity and its fields.
///
/// A plain value: copying it copies every field, geometry, rec and product data beneath it.
/// Nothing is validated, and no operation throws anything but std::bad_alloc. When memory runs out
/// in an assignment, the farm holds old values and new ones, each field whole; adding changes
/// nothing then.
///
/// Threads: a farm may be read by several threads at once as long as none changes it; id() and
/// fields() change nothing by themselves although they are not const members.
class QENXML_EXPORT QenFarm {
public:
    /// A farm with nil identifiers, an empty name and no fields.
    QenFarm();

    /// A farm without fields.
    ///
    /// @param name     display name
    /// @param id       identity of the farm
    /// @param growerId grower that the farm belongs to; kept, never compared
    QenFarm(const std::string& name, const boost::uuids::uuid& id,
            const boost::uuids::uuid& growerId);

    /// Display name; may be empty. From a package it is UTF-8, unless the package holds bytes that
    /// are none.
    std::string name() const;

    void setName(std::string name); ///< Replaces the display name.

    /// Identity of the farm; all that equality looks at. Unlike that of a grower or field it is not
    /// given by a const farm: ask a copy of it.
    boost::uuids::uuid id();

    boost::uuids::uuid growerId() const; ///< Grower that the farm belongs to; kept, never compared.

    /// The fields themselves, in the order in which they were added; the caller may change the list
    /// and its elements. Changing the list may invalidate references to its elements. A const farm
    /// does not give them: walk a copy of it.
    std::vector<QenField>& fields();

    /// True when the two id() are equal; nothing else is compared.
    bool operator==(const QenFarm& other) const;

    /// True when the two id() differ.
    bool operator!=(const QenFarm& other) const;

    /// Puts a copy of @p field in the place of the first field with the same id, whose name, ids,
    /// geometries and recs are discarded (merge() combines them instead), or else appends it. The
    /// field's growerId() and farmId() are not looked at.
    void addField(QenField field);

    /// Adds what @p other, another version of the same farm, holds. This farm keeps its name,
    /// identifiers and order of fields. A field that both hold becomes that of @p other, merged
    /// with this farm's (so with the name, recs and geometries of @p other first); the fields that
    /// only @p other holds are appended in its order. Does nothing when the two ids differ. The
    /// argument is a copy: the caller's farm stays as it is.
    ///
    /// A rec or geometry that both hold keeps the content that it has in @p other. (When growers
    /// are merged it is the other way round: QenGrower::merge() calls this operation with swapped
    /// roles.)
    ///
    /// Several fields with one id, which a host may have put into a list by way of fields(): those
    /// of @p other absorb each other in turn, and the last one, with its name, takes the place of
    /// the first field with that id here, or is appended; others with that id here stay as they
    /// are. So merging a farm with itself changes nothing unless its list holds two such fields.
    ///
    /// When memory runs out, the fields added so far stay.
    void merge(QenFarm other);

private:
    std::string name_;
    boost::uuids::uuid id_{};
    boost::uuids::uuid growerId_{};
    std::vector<QenField> fields_;
};

#endif

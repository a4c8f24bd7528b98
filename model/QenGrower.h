#ifndef QENXML_MODEL_QENGROWER_H
#define QENXML_MODEL_QENGROWER_H

#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "QenExport.h"
#include "QenFarm.h"

/// A grower: the root of a record tree, with the grower's identity and farms.
///
/// A plain value: copying it copies the whole tree beneath it. Nothing is validated, and no
/// operation throws anything but std::bad_alloc. When memory runs out in an assignment, the grower
/// holds old values and new ones, each field whole; adding changes nothing then.
///
/// Threads: a grower may be read by several threads at once as long as none changes it; farms()
/// changes nothing by itself although it is not a const member.
class QENXML_EXPORT QenGrower {
public:
    /// A grower with a nil identifier, an empty name and no farms.
    QenGrower();

    /// A grower without farms.
    ///
    /// @param name display name
    /// @param id   identity of the grower
    QenGrower(const std::string& name, const boost::uuids::uuid& id);

    /// Display name; may be empty. From a package it is UTF-8, unless the package holds bytes that
    /// are none.
    std::string name() const;

    void setName(std::string name); ///< Replaces the display name.

    boost::uuids::uuid id() const; ///< Identity of the grower; all that equality looks at.

    /// The farms themselves, in the order in which they were added; the caller may change the list
    /// and its elements. Changing the list may invalidate references to its elements. A const
    /// grower does not give them: walk a copy of it.
    std::vector<QenFarm>& farms();

    /// True when the two id() are equal; nothing else is compared.
    bool operator==(const QenGrower& other) const;

    /// True when the two id() differ.
    bool operator!=(const QenGrower& other) const;

    /// Puts a copy of @p farm in the place of the first farm with the same id, whose name,
    /// growerId() and fields are discarded (merge() combines them instead), or else appends it. The
    /// farm's growerId() is not looked at.
    void addFarm(QenFarm farm);

    /// Adds what @p other, another version of the same grower, holds. This grower keeps its name
    /// and its order of farms. A farm that both hold becomes that of @p other, merged with this
    /// grower's; the farms that only @p other holds are appended in its order. Does nothing when
    /// the two ids differ. The argument is a copy: the caller's grower stays as it is.
    ///
    /// Which side wins alternates from level to level. Of a farm that both hold, the name and
    /// grower of @p other's remain, and its fields come first. Of a field that both hold, this
    /// grower's name, recs and geometries remain and come first; a rec that both hold keeps the
    /// content that it has here.
    ///
    /// Several farms with one id, which a host may have put into a list by way of farms(): those of
    /// @p other absorb each other in turn, and the last one, with its name, takes the place of the
    /// first farm with that id here, or is appended; others with that id here stay as they are. So
    /// it is, with swapped roles, with several fields of a farm that both hold: see
    /// QenFarm::merge(). Merging a grower with itself changes nothing unless some list in it holds
    /// two such farms or fields.
    ///
    /// For each child the list is searched from the front, so the time grows with the product of
    /// the lengths of both lists.
    ///
    /// When memory runs out, the farms added so far stay.
    void merge(QenGrower other);

private:
    std::string name_;
    boost::uuids::uuid id_{};
    std::vector<QenFarm> farms_;
};

#endif

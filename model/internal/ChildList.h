/// @file
/// What the lists of farms and fields have in common.
///
/// Children come into a list by value: the argument belongs to the operation, which moves from it.
/// All the same it has to look as if they were copied, and copying a rec drops product data of an
/// unknown kind.

#ifndef QENXML_MODEL_INTERNAL_CHILDLIST_H
#define QENXML_MODEL_INTERNAL_CHILDLIST_H

#include <algorithm>
#include <utility>
#include <vector>

class QenFarm;
class QenField;

namespace qenxml {

/// Deletes the product data that a copy would not have.
void dropUnknownProductData(QenField& field) noexcept;
void dropUnknownProductData(QenFarm& farm) noexcept;

/// Puts @p child in the place of the first child with the same identifier, or else appends it. When
/// memory runs out, the list has not changed.
template <class Child>
void replaceOrAppend(std::vector<Child>& children, Child& child) {
    dropUnknownProductData(child);
    const auto present = std::find(children.begin(), children.end(), child);
    if (present != children.end())
        *present = std::move(child);
    else
        children.push_back(std::move(child));
}

/// Adds each of the @p incoming children to @p children. The incoming child absorbs the present
/// one of the same identifier, not the other way round: this is what makes the winning side
/// alternate from level to level.
/// @param absorb is called with the incoming child and the present one
template <class Child, class Absorb>
void mergeChildren(std::vector<Child>& children, std::vector<Child>& incoming, Absorb absorb) {
    for (Child& child : incoming) {
        const auto present = std::find(children.begin(), children.end(), child);
        if (present != children.end())
            absorb(child, *present);
        replaceOrAppend(children, child);
    }
}

} // namespace qenxml

#endif

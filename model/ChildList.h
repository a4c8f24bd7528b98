/// @file
/// What the lists of a grower and of a farm have in common: one child per identifier. Not part of
/// the public interface.

#ifndef QENXML_MODEL_CHILDLIST_H
#define QENXML_MODEL_CHILDLIST_H

#include <algorithm>
#include <vector>

namespace qenxml {

/// Puts a copy of @p child in the place of the first child with the same identifier, or else
/// appends it. When memory runs out, the list has not changed.
template <class Child>
void replaceOrAppend(std::vector<Child>& children, const Child& child) {
    const auto present = std::find(children.begin(), children.end(), child);
    if (present != children.end())
        *present = Child(child);
    else
        children.push_back(child);
}

/// Adds each of the @p incoming children to @p children. The incoming child absorbs the present
/// one of the same identifier, not the other way round: this is what makes the winning side
/// alternate from level to level.
template <class Child>
void mergeChildren(std::vector<Child>& children, std::vector<Child>& incoming) {
    for (Child& child : incoming) {
        const auto present = std::find(children.begin(), children.end(), child);
        if (present != children.end())
            child.merge(*present);
        replaceOrAppend(children, child);
    }
}

} // namespace qenxml

#endif

#ifndef QENXML_TOOLS_TOGETHER_PACKAGETWINS_H
#define QENXML_TOOLS_TOGETHER_PACKAGETWINS_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "tools/compare/RecordVersions.h"

/// A package that one before it has the UUID or the content of.
struct PackageTwin {
    std::size_t other; ///< The one before it.
    bool sameUuid;
    bool sameContent;
};

/// Finds packages that are given more than once, under one name or several.
class PackageTwins {
public:
    /// @param uuid     none for one that has none
    /// @param versions of its records; a package without records is no twin by its content
    void add(const std::optional<boost::uuids::uuid>& uuid,
             const std::vector<RecordVersion>& versions);

    /// The twin of a package, by its number; none where it has none before it.
    std::optional<PackageTwin> of(std::size_t package) const;

private:
    /// What comes first with some UUID or content.
    struct First {
        std::uint32_t byUuid;
        std::uint32_t byContent;
        std::uint64_t content;
    };

    std::vector<First> packages_;
    std::map<boost::uuids::uuid, std::uint32_t> uuids_;
    std::map<std::uint64_t, std::uint32_t> contents_;
};

#endif

#ifndef QENXML_TOOLS_CHECK_NAMECOUNTS_H
#define QENXML_TOOLS_CHECK_NAMECOUNTS_H

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

/// Numbers siblings among those of the same name.
class NameCounts {
public:
    /// The number of the next sibling of a name, from 1.
    ///
    /// @param name lives longer
    std::size_t next(std::string_view name) { return ++counts_[name]; }

private:
    std::unordered_map<std::string_view, std::size_t> counts_;
};

/// A step of a path: "Remark" for the first of a name, then "Remark[2]".
std::string pathStep(std::string_view name, std::size_t number);

#endif

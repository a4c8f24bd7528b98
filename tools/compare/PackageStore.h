#ifndef QENXML_TOOLS_COMPARE_PACKAGESTORE_H
#define QENXML_TOOLS_COMPARE_PACKAGESTORE_H

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tools/compare/RecordList.h"
#include "tools/compare/RecordVersions.h"
#include "tools/input/PackageInput.h"

/// Packages that may be too many for memory: each is read whenever it is asked for, and the few
/// that were read last are kept.
class PackageStore {
public:
    /// Reads the next package.
    ///
    /// @return its number
    std::size_t add(const PackageInput& input);

    std::size_t size() const { return names_.size(); }

    /// How the package is called.
    const std::string& name(std::size_t package) const { return names_[package]; }

    /// Its records, which stay until records of others were asked for a few times.
    const RecordList& records(std::size_t package);

    /// The record that a version was made of.
    ///
    /// @throws std::runtime_error when the package has changed since
    const RecordView& record(const RecordVersion& version);

private:
    static constexpr std::size_t mostKept = 8;

    using Kept = std::pair<std::size_t, std::unique_ptr<RecordList>>;

    const RecordList& keep(std::size_t package, const PackageInput& input);

    std::vector<std::string> names_;
    std::deque<Kept> kept_;
    Kept standardInput_; ///< It can be read only once, so it is kept to the end.
};

#endif

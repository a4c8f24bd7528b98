#ifndef QENXML_TOOLS_TOGETHER_TOGETHERCHECK_H
#define QENXML_TOOLS_TOGETHER_TOGETHERCHECK_H

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "tools/check/Finding.h"
#include "tools/compare/PackageStore.h"
#include "tools/compare/RecordVersions.h"
#include "tools/together/Meetings.h"
#include "tools/together/PackageTwins.h"

/// Finds what merging packages loses or changes. All of them are added first; then each is asked
/// for, in the same order.
class TogetherCheck {
public:
    /// Reads the next package.
    void add(const PackageInput& input);

    std::size_t size() const { return packages_.size(); }
    const std::string& name(std::size_t package) const { return packages_.name(package); }

    /// Gives what is found of a package to @p sink: why it cannot be read, or not all of it, and
    /// what it has otherwise than others.
    void check(std::size_t package, FindingSink& sink);

private:
    void checkReading(std::size_t package, FindingSink& sink);

    PackageStore packages_;
    RecordVersions versions_{RecordVersions::Keep::Contents};
    PackageTwins twins_;
    std::map<std::size_t, std::string> failures_; ///< Why packages cannot be read.
    std::vector<Meeting> meetings_;               ///< Found when the first package is asked for.
    std::size_t next_ = 0;                        ///< The meetings before it were given.
};

#endif

#ifndef QENXML_TOOLS_FINDINGS_FINDINGSTATISTICS_H
#define QENXML_TOOLS_FINDINGS_FINDINGSTATISTICS_H

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "tools/check/FindingCollection.h"

/// What was found in several files, in numbers, and which of them cannot be read.
class FindingStatistics {
public:
    /// A file that cannot be read.
    struct Unreadable {
        std::string file;
        std::vector<FindingCode> errors; ///< Each code once.
    };

    /// So many of those that cannot be read are kept; of the others there is only the number.
    static constexpr std::size_t mostNamed = 100;

    /// @param file how it is called, safe to print
    void addFile(const std::string& file, const FindingCounts& counts);

    std::size_t files() const { return files_; }
    std::size_t filesWithout() const { return filesWithout_; } ///< Those without findings.
    std::size_t filesWith(FindingCode code) const {
        return filesWith_[static_cast<std::size_t>(code)];
    }
    const FindingCounts& counts() const { return counts_; }

    std::size_t unreadable() const { return unreadable_; }          ///< How many cannot be read.
    const std::vector<Unreadable>& named() const { return named_; } ///< The first ones of them.

    /// The codes that were found, the gravest first.
    std::vector<FindingCode> codes() const;

private:
    std::size_t files_ = 0;
    std::size_t filesWithout_ = 0;
    std::size_t unreadable_ = 0;
    std::array<std::size_t, findingKinds.size()> filesWith_{};
    FindingCounts counts_;
    std::vector<Unreadable> named_;
};

#endif

#ifndef QENXML_TOOLS_DIFF_RECORDDIFFERENCE_H
#define QENXML_TOOLS_DIFF_RECORDDIFFERENCE_H

#include <cstddef>
#include <string>
#include <vector>

#include "tools/compare/RecordValues.h"

/// What can have become of a record.
enum class DifferenceKind { Removed, Changed, Added };

/// A record that is not the same on both sides.
struct RecordDifference {
    DifferenceKind kind;
    const RecordView& record; ///< On the second side, or on the first one when it was removed.
    std::string from;         ///< The package that it was in; empty when it was added.
    std::string to;           ///< The package that it is in; empty when it was removed.
    std::vector<ValueChange> changes; ///< When it was changed.
};

/// A format of `qenxml diff`.
class DiffWriter {
public:
    DiffWriter() = default;
    DiffWriter(const DiffWriter&) = delete;
    DiffWriter& operator=(const DiffWriter&) = delete;
    virtual ~DiffWriter() = default;

    virtual void add(const RecordDifference& difference) = 0;

    /// @param unread how many packages could not be read
    virtual void end(std::size_t unread) = 0;
};

#endif

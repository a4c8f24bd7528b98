#ifndef QENXML_TOOLS_COMPARE_RECORDVERSIONS_H
#define QENXML_TOOLS_COMPARE_RECORDVERSIONS_H

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "tools/compare/RecordList.h"

/// A record of a package, small enough that those of all packages fit into memory: what it is and
/// holds only as hashes.
struct RecordVersion {
    std::uint64_t record = 0;  ///< Of its kind and identifier.
    std::uint64_t place = 0;   ///< Of those of all records from the grower to itself.
    std::uint64_t outer = 0;   ///< The place of the record that it stands in.
    std::uint64_t parent = 0;  ///< Of the identifier of that record.
    std::uint64_t content = 0; ///< As contentHash() has it.
    std::uint32_t package = 0;
    std::uint32_t number = 0; ///< In the package, as RecordList counts.
    std::uint32_t count = 1;  ///< How many records it stands for, which are the same but for where.
    Owner owner = Owner::Grower;
    bool canCount = true; ///< Whether merging shows it in some order of the packages.

    /// Whether it stands before another one in the order of the packages.
    bool isBefore(const RecordVersion& other) const {
        return package != other.package ? package < other.package : number < other.number;
    }
};

/// Whether merging shows the one rather than the other, of two versions of one record in one place:
/// that of the first package counts, but of a farm the last.
bool outranks(const RecordVersion& a, const RecordVersion& b);

/// The records of packages, as versions in the order of the package.
std::vector<RecordVersion> versionsOf(const RecordList& records, std::size_t package);

/// Different versions of the records of any number of packages, of equal ones one.
class RecordVersions {
public:
    /// What of them are equal.
    enum class Keep {
        Contents, ///< Those in the same place with the same content: the one that outranks the
                  ///< others.
        Merged    ///< Those in the same place: what is left is what merging shows.
    };

    explicit RecordVersions(Keep keep) : keep_(keep) {}

    /// @param versions those of the next package
    void add(const std::vector<RecordVersion>& versions);

    /// All of them, those of a record together, and within them those in one place. More cannot be
    /// added afterwards.
    const std::deque<RecordVersion>& all();

private:
    void compact();
    bool isEqual(const RecordVersion& a, const RecordVersion& b) const;

    Keep keep_;
    std::deque<RecordVersion> versions_;
    std::size_t limit_ = 1 << 16; ///< How many there may be until equal ones are looked for.
};

#endif

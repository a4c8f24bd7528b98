#ifndef QENXML_TESTS_TOOLS_RECORDS_RANDOMGROWERS_H
#define QENXML_TESTS_TOOLS_RECORDS_RANDOMGROWERS_H

#include <random>
#include <string>
#include <vector>

#include "tests/support/PlainTree.h"

namespace test {

/// How many records there are at most among siblings, and how many contents they have.
struct GrowerSizes {
    unsigned growers = 2;
    unsigned farms = 3;
    unsigned fields = 4;
    unsigned geometries = 3;
    unsigned recs = 4;
    unsigned contents = 0; ///< So few that records are often equal; 0 when each has its own.
};

/// Makes growers of few identifiers, so that packages overlap, in which each record tells by its
/// values where it comes from. Siblings have different identifiers, as those of packages have; two
/// growers may have the same.
class RandomGrowers {
public:
    explicit RandomGrowers(unsigned seed, const GrowerSizes& sizes = {})
        : random_(seed), sizes_(sizes) {}

    /// Those of the next package.
    std::vector<QenGrower> growers();

    /// A number below a limit.
    unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

private:
    template <class Record>
    std::vector<Record> some(unsigned most);

    std::string label();

    void fill(plain::Grower& grower);
    void fill(plain::Farm& farm);
    void fill(plain::Field& field);
    void fill(plain::Geometry& geometry);
    void fill(plain::Rec& rec);

    std::mt19937 random_;
    GrowerSizes sizes_;
    unsigned number_ = 1000;
};

} // namespace test

#endif

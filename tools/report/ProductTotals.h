#ifndef QENXML_TOOLS_REPORT_PRODUCTTOTALS_H
#define QENXML_TOOLS_REPORT_PRODUCTTOTALS_H

#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"
#include "tools/records/MissingNumbers.h"

/// A product, and the unit in which its total is given.
struct ProductUnit {
    std::string kind; ///< Empty for recs without product data.
    std::string name;
    std::string unit;

    /// By kind, name and unit; recs without product data come last.
    bool operator<(const ProductUnit& other) const;
};

/// A sum of numbers as packages give them, which does not gather the errors of its additions.
class Sum {
public:
    void add(double number);

    /// The sum with all digits that are exact; a single number as it was given; empty without any.
    std::string text() const;

private:
    double sum_ = 0.0;
    double lost_ = 0.0; // by rounding, so far
    std::size_t numbers_ = 0;
};

/// What recs say together about a product.
struct ProductTotal {
    std::size_t recs = 0;
    std::size_t recsWithoutTotal = 0; ///< Their packages do not give any.
    Sum total;
    std::map<std::string, Sum> areas; ///< By unit.
};

/// Sums up recs by product and unit. A rec that several packages hold counts once, as it is read
/// first: the library merges them so.
class ProductTotals {
public:
    void add(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps);

    const std::map<ProductUnit, ProductTotal>& totals() const { return totals_; }

    /// How many recs came again.
    std::size_t repeated() const { return repeated_; }

private:
    void add(QenRec& rec, const MissingNumbers& missing);

    std::map<ProductUnit, ProductTotal> totals_;
    std::set<std::array<boost::uuids::uuid, 4>> seen_; // grower, farm, field and rec
    std::size_t repeated_ = 0;
};

#endif

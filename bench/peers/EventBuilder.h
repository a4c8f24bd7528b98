/// @file
/// Builds plain structs from the events of a parser that keeps no document.

#ifndef QENXML_BENCH_PEERS_EVENTBUILDER_H
#define QENXML_BENCH_PEERS_EVENTBUILDER_H

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "tests/support/PlainTree.h"

namespace plain {

class EventBuilder {
public:
    explicit EventBuilder(const boost::uuids::uuid& package) : package_(package) {}

    void open(const char* name);
    void attribute(const char* name, const char* value); ///< Of the element opened last.
    void text(const char* text, std::size_t length) { text_.append(text, length); }
    void close(const char* name);

    std::vector<Grower> take() { return std::move(growers_); }

private:
    /// Where the innermost open element stands. A value is an element that holds a text.
    enum class Level {
        Document,
        Package,
        Grower,
        Farm,
        Field,
        Centroid,
        Recommendations,
        Rec,
        Operation,
        Season,
        Data,
        CommercialFertilizer,
        CustomFertilizer,
        Planting,
        Statistics,
        Value
    };

    Level opened(const char* name);
    Level openedInRec(const char* name) const;
    Level openedInData(const char* name);
    void value(const char* name);

    Grower& grower() { return growers_.back(); }
    Farm& farm() { return grower().farms.back(); }
    Field& field() { return farm().fields.back(); }
    Rec& rec() { return field().recs.back(); }

    template <class Kind>
    Kind& product() {
        return std::get<Kind>(rec().product);
    }

    boost::uuids::uuid package_;
    std::vector<Grower> growers_;
    std::vector<Level> levels_ = {Level::Document};
    std::string text_;
    std::size_t next_ = 0; ///< Where the next value of a level is looked for first.
};

} // namespace plain

#endif

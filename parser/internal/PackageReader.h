/// @file
/// The readers of all levels.

#ifndef QENXML_PARSER_INTERNAL_PACKAGEREADER_H
#define QENXML_PARSER_INTERNAL_PACKAGEREADER_H

#include <memory>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "model/QenFarm.h"
#include "model/QenField.h"
#include "model/QenGrower.h"
#include "model/QenRec.h"
#include "model/QenRecData.h"
#include "parser/TagNames.h"
#include "parser/internal/ElementReader.h"
#include "parser/internal/PackageFormat.h"

namespace qenxml {

/// Reads elements into records, a member for each level in a source of its own. Each reads its
/// element, whatever its name, and everything beneath; all throw std::runtime_error "invalid uuid
/// string".
class PackageReader {
public:
    /// @param names   the parser's table; every look-up passes a member of it
    /// @param origin  where the nodes come from
    /// @param package UUID of the package file, for the recs
    PackageReader(const TagNames& names, Origin origin, const boost::uuids::uuid& package)
        : names_(names), origin_(origin), package_(package) {}

    QenGrower grower(pugi::xml_node node) const;
    QenFarm farm(const boost::uuids::uuid& growerId, pugi::xml_node node) const;
    QenField field(const boost::uuids::uuid& growerId, const boost::uuids::uuid& farmId,
                   pugi::xml_node node) const;

    /// Fills @p rec, which is freshly constructed, in its place: a rec cannot be moved.
    void readRec(QenRec& rec, const boost::uuids::uuid& fieldId,
                 const boost::uuids::uuid& fieldGeometryId, pugi::xml_node node) const;

    /// The product data of a RecData element, or null.
    std::unique_ptr<QenRecData> recData(const boost::uuids::uuid& recId, pugi::xml_node node) const;

    /// The product data of an element of one kind; null when something of it is missing.
    template <const auto& format>
    auto product(const boost::uuids::uuid& recId, pugi::xml_node node) const;

    /// An element to be read by the table.
    template <const auto& element>
    ElementReader<element> read(pugi::xml_node node) const {
        return {names_, node, origin_};
    }

private:
    template <const auto&... formats>
    std::unique_ptr<QenRecData> productOf(format::Elements<formats...> products,
                                          const boost::uuids::uuid& recId,
                                          pugi::xml_node node) const;

    void readOperation(RecDescription& rec, pugi::xml_node node) const;
    void readSeason(RecDescription& rec, pugi::xml_node node) const;
    LLA centroid(pugi::xml_node node) const;

    const TagNames& names_;
    Origin origin_;
    boost::uuids::uuid package_;
};

} // namespace qenxml

#endif

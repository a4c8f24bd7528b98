#ifndef QENXML_TOOLS_RECORDS_MISSINGNUMBERS_H
#define QENXML_TOOLS_RECORDS_MISSINGNUMBERS_H

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "model/QenField.h"

struct ElementFormat;

/// Which numbers of a record its package does not give, because the element or attribute is not
/// there or its text is no number. The library reads each of them as 0, so a record alone does not
/// tell "none" from "zero".
class MissingNumbers {
public:
    /// @param name of the element or attribute
    bool contains(std::string_view name) const;

    /// A number of the record; none when it is missing.
    ///
    /// @param name of the element or attribute
    template <class Number>
    std::optional<Number> known(std::string_view name, Number number) const {
        return contains(name) ? std::nullopt : std::optional<Number>(number);
    }

    /// Adds those of an element.
    ///
    /// @param element may be null: then all of its numbers are missing
    void add(const ElementFormat& format, pugi::xml_node element);

    /// Adds those of another record.
    void add(const MissingNumbers& other);

private:
    std::vector<const char*> names_;
};

/// The missing numbers of all records below a grower.
class GrowerGaps {
public:
    /// @param element that the grower was read from
    static GrowerGaps of(pugi::xml_node element);

    const MissingNumbers& ofRec(QenField& field, const boost::uuids::uuid& recId) const;
    const MissingNumbers& ofGeometry(QenField& field, const boost::uuids::uuid& geometryId) const;

    /// Does what QenGrower::merge does to the records: those that are there already stay.
    void merge(GrowerGaps other);

private:
    /// Farm, field and record.
    using Key = std::array<boost::uuids::uuid, 3>;
    using Gaps = std::map<Key, MissingNumbers>;

    static const MissingNumbers& find(const Gaps& gaps, const Key& key);
    void addFarm(pugi::xml_node element);
    void addField(const boost::uuids::uuid& farmId, pugi::xml_node element);
    void remove(const Key& first, std::size_t length);

    Gaps recs_;
    Gaps geometries_;
};

/// What is missing from a package.
///
/// @param bytes   the content of its file
/// @param growers how many of its growers the library has read
/// @return one for each of them that the file has
/// @throws std::bad_alloc
std::vector<GrowerGaps> findGaps(const std::string& bytes, std::size_t growers);

#endif

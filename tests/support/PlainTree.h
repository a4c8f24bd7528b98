/// @file
/// The record tree as plain structs, with a model of merging that is independent of the library's:
/// it puts together, list by list, what a merged tree consists of, instead of adding child after
/// child.

#ifndef QENXML_TESTS_SUPPORT_PLAINTREE_H
#define QENXML_TESTS_SUPPORT_PLAINTREE_H

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"

namespace test::plain {

/// Of a rec, what tells two versions of it apart.
struct Rec {
    boost::uuids::uuid id{};
    std::string name;
    std::string editDate;
    double averageRate = 0.0;
    std::optional<int> cropId; ///< Of its product data, if that is a planting.
};

struct Geometry {
    boost::uuids::uuid id{};
    std::string date;
    boost::uuids::uuid file{};
    double latitude = 0.0;
};

struct Field {
    boost::uuids::uuid id{};
    boost::uuids::uuid growerId{};
    boost::uuids::uuid farmId{};
    std::string name;
    std::vector<Geometry> geometries;
    std::vector<Rec> recs;
};

struct Farm {
    boost::uuids::uuid id{};
    boost::uuids::uuid growerId{};
    std::string name;
    std::vector<Field> fields;
};

struct Grower {
    boost::uuids::uuid id{};
    std::string name;
    std::vector<Farm> farms;
};

bool operator==(const Rec& left, const Rec& right);
bool operator==(const Geometry& left, const Geometry& right);
bool operator==(const Field& left, const Field& right);
bool operator==(const Farm& left, const Farm& right);
bool operator==(const Grower& left, const Grower& right);

std::ostream& operator<<(std::ostream& out, const Field& field);
std::ostream& operator<<(std::ostream& out, const Farm& farm);
std::ostream& operator<<(std::ostream& out, const Grower& grower);

/// What @p record is after `record.merge(other)`.
Field merged(const Field& record, const Field& other);
Farm merged(const Farm& record, const Farm& other);
Grower merged(const Grower& record, const Grower& other);

// The lists are filled directly, so children with the same identifier all get into the tree.
QenField toLibrary(const Field& field);
QenFarm toLibrary(const Farm& farm);
QenGrower toLibrary(const Grower& grower);

// Taken by value, because most accessors are not const members.
Field fromLibrary(QenField field);
Farm fromLibrary(QenFarm farm);
Grower fromLibrary(QenGrower grower);

} // namespace test::plain

#endif

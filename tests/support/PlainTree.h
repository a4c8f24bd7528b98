/// @file
/// The record tree as plain structs: what tests make random trees of, what readers other than the
/// library's read into, and what tells whether two of them are the same.

#ifndef QENXML_TESTS_SUPPORT_PLAINTREE_H
#define QENXML_TESTS_SUPPORT_PLAINTREE_H

#include <cstdint>
#include <cstring>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"

namespace plain {

/// For comparing doubles bit for bit.
template <class... Numbers>
auto bitsOf(Numbers... numbers) {
    const auto bits = [](double number) {
        std::uint64_t result = 0;
        static_assert(sizeof result == sizeof number);
        std::memcpy(&result, &number, sizeof result);
        return result;
    };
    return std::make_tuple(bits(numbers)...);
}

struct CommercialFertilizer {
    boost::uuids::uuid recId{};
    int productId = 0;
    std::string productName;
    int uomId = 0;
    std::string uom;

    auto content() const { return std::tie(recId, productId, productName, uomId, uom); }
};

struct CustomFertilizer {
    boost::uuids::uuid recId{};
    boost::uuids::uuid productId{};
    std::string productName;
    int uomId = 0;
    std::string uom;
    int typeId = 0;
    double gravity = 0.0;
    double n = 0.0, p = 0.0, k = 0.0, ca = 0.0, mg = 0.0, s = 0.0, fe = 0.0, mn = 0.0, zn = 0.0,
           cu = 0.0, b = 0.0, mo = 0.0, cl = 0.0;

    auto content() const {
        return std::tuple_cat(std::tie(recId, productId, productName, uomId, uom, typeId),
                              bitsOf(gravity, n, p, k, ca, mg, s, fe, mn, zn, cu, b, mo, cl));
    }
};

struct Planting {
    boost::uuids::uuid recId{};
    int cropId = 0;
    std::string cropName;
    int companyId = 0;
    std::string companyName;
    int varietyId = 0;
    std::string varietyName;
    int uomId = 0;
    std::string uom;

    auto content() const {
        return std::tie(recId, cropId, cropName, companyId, companyName, varietyId, varietyName,
                        uomId, uom);
    }
};

using Product = std::variant<std::monostate, CommercialFertilizer, CustomFertilizer, Planting>;

struct Rec {
    boost::uuids::uuid fieldId{};
    boost::uuids::uuid fieldGeometryId{};
    std::string name;
    boost::uuids::uuid id{};
    boost::uuids::uuid geometry{};
    std::string creationDate;
    std::string editDate;
    std::string dbfCol;
    std::string operationName;
    boost::uuids::uuid operationId{};
    std::string seasonName;
    int seasonId = -1;
    boost::uuids::uuid zoneId{};
    Product product;
    double minimumRate = 0.0;
    double maximumRate = 0.0;
    double averageRate = 0.0;
    int rateUomId = 0;
    std::string rateUom;
    double total = 0.0;
    int totalUomId = 0;
    std::string totalUom;
    double area = 0.0;
    int areaUomId = 0;
    std::string areaUom;
    bool isUsed = false;
    boost::uuids::uuid package{};

    auto content() const {
        return std::tuple_cat(std::tie(fieldId, fieldGeometryId, name, id, geometry, creationDate,
                                       editDate, dbfCol, operationName, operationId, seasonName,
                                       seasonId, zoneId, product, rateUomId, rateUom, totalUomId,
                                       totalUom, areaUomId, areaUom, isUsed, package),
                              bitsOf(minimumRate, maximumRate, averageRate, total, area));
    }
};

struct Geometry {
    boost::uuids::uuid id{};
    std::string date;
    boost::uuids::uuid file{};
    double latitude = 0.0;
    double longitude = 0.0;
    double altitude = 0.0;

    auto content() const {
        return std::tuple_cat(std::tie(id, date, file), bitsOf(latitude, longitude, altitude));
    }
};

struct Field {
    std::string name;
    boost::uuids::uuid id{};
    boost::uuids::uuid growerId{};
    boost::uuids::uuid farmId{};
    std::vector<Geometry> geometries;
    std::vector<Rec> recs;

    auto content() const { return std::tie(name, id, growerId, farmId, geometries, recs); }
};

struct Farm {
    std::string name;
    boost::uuids::uuid id{};
    boost::uuids::uuid growerId{};
    std::vector<Field> fields;

    auto content() const { return std::tie(name, id, growerId, fields); }
};

struct Grower {
    std::string name;
    boost::uuids::uuid id{};
    std::vector<Farm> farms;

    auto content() const { return std::tie(name, id, farms); }
};

/// Everything is compared.
template <class Record>
auto operator==(const Record& left, const Record& right)
    -> decltype(left.content() == right.content()) {
    return left.content() == right.content();
}

// The lists are filled directly, so children with the same identifier all get into the tree.
QenField toLibrary(const Field& field);
QenFarm toLibrary(const Farm& farm);
QenGrower toLibrary(const Grower& grower);

// Taken by value, because most accessors are not const members.
/// @throws std::runtime_error for product data of another kind
Field fromLibrary(QenField field);
Farm fromLibrary(QenFarm farm);
Grower fromLibrary(QenGrower grower);

} // namespace plain

#endif

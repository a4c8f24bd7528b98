/// @file
/// The text of packages, put together from elements. Each element holds what it must hold, so that
/// a test writes only what it is about.
///
/// Identifiers are those of test::uuid(unsigned). A field with the number N has the geometry
/// 7000 + N and the geometry file 8000 + N, a rec the geometry 9000 + N.

#ifndef QENXML_TESTS_SUPPORT_PACKAGETEXT_H
#define QENXML_TESTS_SUPPORT_PACKAGETEXT_H

#include <string>
#include <vector>

#include "tests/support/Uuids.h"

namespace test {

inline std::string uuidText(unsigned number) {
    return to_string(uuid(number));
}

/// An element without attributes.
inline std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// An element with its identifier as an attribute.
inline std::string element(const std::string& name, const std::string& attribute, unsigned number,
                           const std::string& content) {
    return "<" + name + " " + attribute + "=\"" + uuidText(number) + "\">" + content + "</" + name +
           ">";
}

inline std::string elements(const std::vector<std::string>& names, const std::string& content) {
    std::string result;
    for (const std::string& name : names)
        result += element(name, content);
    return result;
}

/// Product data that have everything.
inline std::string fertilizer(const std::string& name = "Urea", const std::string& uom = "kg") {
    return element("RecData", element("CommercialFertilizer",
                                      "<ProductID>5</ProductID>" + element("ProductName", name) +
                                          "<UOMID>6</UOMID>" + element("UOM", uom)));
}

/// Product data that have everything, so that the identifier of the product is looked at.
inline std::string blend(const std::string& productId) {
    const std::vector<std::string> others = {
        "ProductName", "UOMID",  "UOM",    "SFertT_ID", "SpGravity", "Pct_N",
        "Pct_P",       "Pct_K",  "Pct_Ca", "Pct_Mg",    "Pct_S",     "Pct_Fe",
        "Pct_Mn",      "Pct_Zn", "Pct_Cu", "Pct_B",     "Pct_Mo",    "Pct_Cl"};
    return element("RecData", element("CustomFertilizer",
                                      element("ProductID", productId) + elements(others, "1")));
}

inline std::string rec(unsigned number, const std::string& content = "") {
    return element("Rec", "RecID", number,
                   element("RecGeometry", uuidText(9000 + number)) + content);
}

/// @param content children of the field, Recommendations for one
inline std::string field(unsigned number, const std::string& content = "") {
    return element("Field", "FieldID", number,
                   element("FieldGeometryID", uuidText(7000 + number)) +
                       element("FieldGeometry", uuidText(8000 + number)) + content);
}

inline std::string recommendations(const std::string& recs) {
    return element("Recommendations", recs);
}

inline std::string farm(unsigned number, const std::string& content = "") {
    return element("Farm", "FarmID", number, content);
}

inline std::string grower(unsigned number, const std::string& content = "") {
    return element("Grower", "GrowerID", number, content);
}

inline std::string package(const std::string& growers = "") {
    return element("RecPackage", growers);
}

/// A package with one grower, farm and field.
inline std::string packageWithRecs(const std::string& recs) {
    return package(grower(1, farm(11, field(21, recommendations(recs)))));
}

} // namespace test

#endif

#include "tools/export/OutputFields.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "model/PesticideRec.h"
#include "tests/support/FileFacts.h"
#include "tests/support/PackageText.h"
#include "tests/support/SourceFolder.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"
#include "tools/check/PackageFormat.h"
#include "tools/input/PackageReading.h"
#include "tools/records/RecordWalk.h"

namespace {

/// What is expected of one field.
struct Expected {
    Owner owner;
    std::string key;
    std::string column;
    std::string value;
    std::string number; ///< The element or attribute of the number that it is.
};

std::string id(unsigned number) {
    return to_string(test::uuid(number));
}

const std::vector<Expected> aroundProduct = {
    {Owner::Package, "", "file", "season/a.xml", ""},
    {Owner::Package, "", "package", "00112233-4455-6677-8899-aabbccddeeff", ""},
    {Owner::Rec, "xmlFileName", "", "00112233-4455-6677-8899-aabbccddeeff", ""},
    {Owner::Grower, "name", "grower", "Ana", ""},
    {Owner::Farm, "name", "farm", "Home", ""},
    {Owner::Field, "name", "field", "North", ""},
    {Owner::Rec, "name", "rec", "Spring", ""},
    {Owner::Rec, "operationName", "operation", "Spreading", ""},
    {Owner::Rec, "seasonName", "season", "This year", ""},
    {Owner::Rec, "seasonId", "season_id", "101", "SeasonID"},
    {Owner::Rec, "creationDate", "created", "2026-01-01", ""},
    {Owner::Rec, "editDate", "edited", "2026-02-02", ""},
    {Owner::Rec, "minimumRate", "minimum_rate", "102.5", "MinimumRate"},
    {Owner::Rec, "averageRate", "average_rate", "103.5", "AverageRate"},
    {Owner::Rec, "maximumRate", "maximum_rate", "104.5", "MaximumRate"},
    {Owner::Rec, "rateUomId", "rate_unit_id", "105", "RateUOMID"},
    {Owner::Rec, "rateUom", "rate_unit", "kg/ha", ""},
    {Owner::Rec, "total", "total", "106.5", "Total"},
    {Owner::Rec, "totalUomId", "total_unit_id", "107", "TotalUOMID"},
    {Owner::Rec, "totalUom", "total_unit", "t", ""},
    {Owner::Rec, "area", "area", "108.5", "Area"},
    {Owner::Rec, "areaUomId", "area_unit_id", "109", "AreaUOMID"},
    {Owner::Rec, "areaUom", "area_unit", "ha", ""},
    {Owner::Centroid, "latitude", "latitude", "41.5", "Latitude"},
    {Owner::Centroid, "longitude", "longitude", "-93.5", "Longitude"},
    {Owner::Centroid, "altitude", "", "none", ""},
    {Owner::Rec, "recDbfCol", "dbf_column", "RATE", ""},
    {Owner::Grower, "id", "grower_id", id(1), ""},
    {Owner::Farm, "id", "farm_id", id(2), ""},
    {Owner::Farm, "growerId", "", id(1), ""},
    {Owner::Field, "id", "field_id", id(3), ""},
    {Owner::Field, "growerId", "", id(1), ""},
    {Owner::Field, "farmId", "", id(2), ""},
    {Owner::Rec, "id", "rec_id", id(6), ""},
    {Owner::Rec, "fieldId", "", id(3), ""},
    {Owner::Rec, "fieldGeometryId", "", id(4), ""},
    {Owner::Rec, "recGeometry", "rec_geometry", id(8), ""},
    {Owner::Rec, "operationId", "operation_id", id(9), ""},
    {Owner::Rec, "mgmtZoneId", "zone_id", id(7), ""},
    {Owner::Rec, "isUsed", "", "false", ""},
    {Owner::Geometry, "geometryId", "boundary_id", id(4), ""},
    {Owner::Geometry, "geometryDate", "boundary_date", "2025-12-12", ""},
    {Owner::Geometry, "geometry", "boundary_file_id", id(5), ""},
};

/// A kind of product: its element, what it holds, and the fields.
struct ExpectedProduct {
    std::string element;
    std::string content;
    std::vector<Expected> fields;
};

std::vector<ExpectedProduct> expectedProducts() {
    constexpr Owner product = Owner::Product;
    std::vector<ExpectedProduct> products = {
        {"CommercialFertilizer",
         "<ProductID>201</ProductID><ProductName>Urea</ProductName><UOMID>202</UOMID>"
         "<UOM>kg</UOM>",
         {{product, "kind", "", "commercialFertilizer", ""},
          {product, "", "product_kind", "fertilizer", ""},
          {product, "productId", "", "201", "ProductID"},
          {product, "", "product_id", "201", "ProductID"},
          {product, "productName", "", "Urea", ""},
          {product, "", "product", "Urea", ""},
          {product, "recType", "", "1", ""}}},
        {"Planting",
         "<CropID>203</CropID><CropName>Corn</CropName><CompanyID>204</CompanyID>"
         "<CompanyName>Seeds Ltd</CompanyName><VarietyID>205</VarietyID>"
         "<VarietyName>S 44</VarietyName><UOMID>202</UOMID><UOM>kg</UOM>",
         {{product, "kind", "", "planting", ""},
          {product, "", "product_kind", "planting", ""},
          {product, "", "product", "Corn, Seeds Ltd, S 44", ""},
          {product, "cropId", "crop_id", "203", "CropID"},
          {product, "cropName", "crop", "Corn", ""},
          {product, "companyId", "company_id", "204", "CompanyID"},
          {product, "companyName", "company", "Seeds Ltd", ""},
          {product, "varietyId", "variety_id", "205", "VarietyID"},
          {product, "varietyName", "variety", "S 44", ""},
          {product, "recType", "", "3", ""}}},
        {"CustomFertilizer",
         "<ProductID>" + id(10) +
             "</ProductID><ProductName>Mix</ProductName><UOMID>202</UOMID><UOM>kg</UOM>"
             "<SFertT_ID>206</SFertT_ID><SpGravity>1.25</SpGravity>",
         {{product, "kind", "", "customFertilizer", ""},
          {product, "", "product_kind", "blend", ""},
          {product, "productId", "", id(10), ""},
          {product, "", "product_id", id(10), ""},
          {product, "productName", "", "Mix", ""},
          {product, "", "product", "Mix", ""},
          {product, "sFertT_ID", "sfertt_id", "206", "SFertT_ID"},
          {product, "spGravity", "specific_gravity", "1.25", "SpGravity"},
          {product, "recType", "", "2", ""}}}};
    int percentage = 0;
    for (const std::string symbol :
         {"N", "P", "K", "Ca", "Mg", "S", "Fe", "Mn", "Zn", "Cu", "B", "Mo", "Cl"}) {
        const std::string element = "Pct_" + symbol;
        const std::string value = std::to_string(++percentage) + ".5";
        std::string column = "pct_" + symbol;
        std::transform(column.begin(), column.end(), column.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        products[2].content += test::element(element, value);
        products[2].fields.push_back({product, "pct_" + symbol, column, value, element});
    }
    for (ExpectedProduct& expected : products) {
        expected.fields.push_back({product, "uomId", "product_unit_id", "202", "UOMID"});
        expected.fields.push_back({product, "uom", "product_unit", "kg", ""});
        expected.fields.push_back({product, "recId", "", id(6), ""});
        expected.fields.insert(expected.fields.end(), aroundProduct.begin(), aroundProduct.end());
    }
    return products;
}

std::string packageWith(const ExpectedProduct& product) {
    return "<RecPackage><Grower GrowerID='" + id(1) +
           "'><GrowerName>Ana</GrowerName>"
           "<Farm FarmID='" +
           id(2) + "'><FarmName>Home</FarmName><Field FieldID='" + id(3) +
           "'><FieldName>North</FieldName><FieldGeometryID>" + id(4) +
           "</FieldGeometryID><FieldGeometryDate>2025-12-12</FieldGeometryDate><FieldGeometry>" +
           id(5) +
           "</FieldGeometry><FieldCentroid><Latitude>41.5</Latitude><Longitude>-93.5</Longitude>"
           "</FieldCentroid><Recommendations><Rec RecID='" +
           id(6) + "' MgmtZoneID='" + id(7) + "'><RecName>Spring</RecName><RecGeometry>" + id(8) +
           "</RecGeometry><CreationDate>2026-01-01</CreationDate><EditDate>2026-02-02</EditDate>"
           "<RecDBFCol>RATE</RecDBFCol><Operation OpID='" +
           id(9) +
           "'><OpName>Spreading</OpName></Operation><Season SeasonID='101'><SeasonName>This year"
           "</SeasonName></Season><RecData><" +
           product.element + ">" + product.content + "</" + product.element +
           "></RecData><RecStats><MinimumRate>102.5</MinimumRate><MaximumRate>104.5</MaximumRate>"
           "<AverageRate>103.5</AverageRate><RateUOMID>105</RateUOMID><RateUOM>kg/ha</RateUOM>"
           "<Total>106.5</Total><TotalUOMID>107</TotalUOMID><TotalUOM>t</TotalUOM>"
           "<Area>108.5</Area><AreaUOMID>109</AreaUOMID><AreaUOM>ha</AreaUOM></RecStats></Rec>"
           "</Recommendations></Field></Farm></Grower></RecPackage>";
}

std::string textOf(const OutputValue& value) {
    struct ToText {
        std::string operator()(std::monostate /*none*/) const { return "none"; }
        std::string operator()(const std::string& text) const { return text; }
        std::string operator()(double number) const {
            std::ostringstream text;
            text << number;
            return text.str();
        }
        std::string operator()(int number) const { return std::to_string(number); }
        std::string operator()(bool value) const { return value ? "true" : "false"; }
    };
    return std::visit(ToText(), value);
}

/// Whose field it is, with both of its names.
std::string described(Owner owner, const std::string& key, const std::string& column) {
    return std::to_string(static_cast<int>(owner)) + " " + key + "|" + column;
}

std::string orEmpty(const char* name) {
    return name == nullptr ? "" : name;
}

using Values = std::map<std::string, std::string>;

/// All fields of a context, or those of one owner.
Values valuesOf(const OutputContext& context, std::optional<Owner> owner = std::nullopt) {
    Values values;
    for (const OutputField& field : outputFields()) {
        if (owner && field.owner != *owner)
            continue;
        const auto& [key, column] = field.names;
        if (const std::optional<OutputValue> value = field.value(context))
            values[described(field.owner, orEmpty(key), orEmpty(column))] = textOf(*value);
    }
    return values;
}

/// All fields of the one rec of a package.
Values valuesOf(const std::string& package) {
    const test::TemporaryFolder folder;
    PackageReading reading = readPackage(folder.writePackage(package));
    Values values;
    forEachRec(reading.growers, reading.gaps, [&](const FieldContext& around, QenRec& rec) {
        QenFieldGeometry geometry = around.field.geometries().front();
        const std::string file = "season/a.xml";
        OutputContext context{&file,
                              nullptr,
                              &around.grower,
                              &around.farm,
                              &around.field,
                              &geometry,
                              geometry.centroid(),
                              &rec,
                              around.missingFrom(rec)};
        context.missing.add(around.missingFrom(geometry));
        values = valuesOf(context);
    });
    return values;
}

Values valuesOf(const std::vector<Expected>& fields) {
    Values values;
    for (const Expected& field : fields)
        values[described(field.owner, field.key, field.column)] = field.value;
    return values;
}

TEST(OutputFields, GiveAllThatAPackageGives) {
    for (const ExpectedProduct& product : expectedProducts())
        EXPECT_EQ(valuesOf(packageWith(product)), valuesOf(product.fields)) << product.element;
}

TEST(OutputFields, GiveNothingForANumberThatThePackageDoesNotGive) {
    for (const ExpectedProduct& product : expectedProducts()) {
        const std::string package = packageWith(product);
        for (const Expected& field : product.fields) {
            if (field.number.empty())
                continue;
            std::string without = package;
            const bool isAttribute = field.number == "SeasonID";
            const std::string before = isAttribute ? "SeasonID='" : "<" + field.number + ">";
            const std::size_t begin = without.find(before) + before.size();
            without.replace(begin, without.find(isAttribute ? '\'' : '<', begin) - begin, "x");
            Values expected = valuesOf(product.fields);
            for (const Expected& other : product.fields) {
                if (other.number == field.number) // in the tree and in the table
                    expected[described(other.owner, other.key, other.column)] = "none";
            }
            EXPECT_EQ(valuesOf(without), expected) << field.number;
        }
    }
}

// Packages hold none, but hosts may give some to a rec.
TEST(OutputFields, GiveThatOfAPesticideMix) {
    QenRec rec;
    rec.setRecData(new PesticideRec(test::uuid(6), {}, {}, "Weeds", 202, "l"));
    rec.setTotal(5.0);
    OutputContext context;
    context.rec = &rec;
    const test::Xml nothing("<Rec/>");
    context.missing.add(format::recStats(), nothing.root());
    constexpr Owner product = Owner::Product;
    EXPECT_EQ(valuesOf(context, product),
              valuesOf({{product, "kind", "", "pesticide", ""},
                        {product, "", "product_kind", "pesticide mix", ""},
                        {product, "pesticideMixName", "", "Weeds", ""},
                        {product, "", "product", "Weeds", ""},
                        {product, "uomId", "product_unit_id", "202", ""},
                        {product, "uom", "product_unit", "l", ""},
                        {product, "recType", "", "4", ""},
                        {product, "recId", "", id(6), ""}}));
}

TEST(OutputFields, GiveNothingOfRecordsThatAreNotAtHand) {
    QenField field;
    OutputContext context;
    context.field = &field;
    const boost::uuids::uuid package = test::uuid(1);
    context.package = &package;
    std::map<std::string, OutputValue> given;
    for (const OutputField& column : outputColumns()) {
        const OutputValue cell = column.cell(context);
        if (!std::holds_alternative<std::monostate>(cell))
            given[column.names.column] = cell;
    }
    // The name is empty.
    EXPECT_EQ(given, (std::map<std::string, OutputValue>{{"package", id(1)},
                                                         {"field_id", std::string(36, '0')
                                                                          .replace(8, 1, "-")
                                                                          .replace(13, 1, "-")
                                                                          .replace(18, 1, "-")
                                                                          .replace(23, 1, "-")}}));
}

/// The names of the members that an object has in the schema of the tree.
std::set<std::string> membersInSchema(const nlohmann::json& schema, const std::string& object) {
    std::set<std::string> members;
    for (const auto& [name, value] : schema["$defs"][object]["properties"].items())
        members.insert(name);
    return members;
}

TEST(OutputFields, AreThoseOfTheSchema) {
    const auto schema =
        nlohmann::json::parse(test::contentOf(test::inSources("docs/export.schema.json")));
    struct Case {
        std::string object;
        Owner owner;
        std::set<std::string> parts;
    };
    for (const Case& known :
         {Case{"grower", Owner::Grower, {"farms"}}, Case{"farm", Owner::Farm, {"fields"}},
          Case{"field", Owner::Field, {"geometries", "recs"}},
          Case{"geometry", Owner::Geometry, {"centroid"}}, Case{"centroid", Owner::Centroid, {}},
          Case{"rec", Owner::Rec, {"recData"}}}) {
        std::set<std::string> members = known.parts;
        for (const OutputField& field : outputFields()) {
            if (field.owner == known.owner && field.names.key != nullptr)
                members.insert(field.names.key);
        }
        EXPECT_EQ(membersInSchema(schema, known.object), members) << known.object;
    }
    for (const ExpectedProduct& product : expectedProducts()) {
        std::set<std::string> members;
        for (const Expected& field : product.fields) {
            if (field.owner == Owner::Product && !field.key.empty())
                members.insert(field.key);
        }
        EXPECT_EQ(membersInSchema(schema, product.fields.front().value), members);
    }
}

TEST(OutputFields, AreThoseOfTheSchemaOfRows) {
    const auto schema =
        nlohmann::json::parse(test::contentOf(test::inSources("docs/recs.schema.json")));
    std::set<std::string> columns;
    for (const OutputField& column : outputColumns())
        columns.insert(column.names.column);
    std::set<std::string> members;
    for (const auto& [name, value] : schema["properties"].items())
        members.insert(name);
    EXPECT_EQ(members, columns);
    EXPECT_EQ(schema["required"].size(), columns.size());
}

TEST(OutputFields, AreTheColumnsOfTheManual) {
    const std::string manual = test::contentOf(test::inSources("docs/man/qenxml-export.1"));
    const std::string beginning = "The columns are:\n.Bd -literal -offset indent\n";
    const std::size_t begin = manual.find(beginning) + beginning.size();
    std::istringstream words(manual.substr(begin, manual.find(".Ed", begin) - begin));
    std::vector<std::string> inManual;
    for (std::string word; words >> word;)
        inManual.push_back(word);
    std::vector<std::string> columns;
    for (const OutputField& column : outputColumns())
        columns.emplace_back(column.names.column);
    EXPECT_EQ(inManual, columns);
}

} // namespace

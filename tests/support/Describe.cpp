#include "tests/support/Describe.h"

#include <iomanip>
#include <sstream>

#include <boost/uuid/uuid_io.hpp>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"

namespace test {

namespace {

/// Writes values one after the other, texts in quotes, numbers with all their digits.
class Line {
public:
    explicit Line(const std::string& title) { out_ << title << std::setprecision(17); }

    Line& operator<<(const std::string& text) {
        out_ << ' ' << std::quoted(text);
        return *this;
    }

    template <class Value>
    Line& operator<<(const Value& value) {
        out_ << ' ' << value;
        return *this;
    }

    std::string text() const { return out_.str() + "\n"; }

private:
    std::ostringstream out_;
};

std::string line(CommercialFertilizerRec& data) {
    return (Line("commercial") << data.productId() << data.productName() << data.uomId()
                               << data.uom())
        .text();
}

std::string line(CustomFertilizerRec& data) {
    return (Line("custom") << data.productId() << data.productName() << data.uomId() << data.uom()
                           << data.sFertT_ID() << data.spGravity() << data.pct_N() << data.pct_P()
                           << data.pct_K() << data.pct_Ca() << data.pct_Mg() << data.pct_S()
                           << data.pct_Fe() << data.pct_Mn() << data.pct_Zn() << data.pct_Cu()
                           << data.pct_B() << data.pct_Mo() << data.pct_Cl())
        .text();
}

std::string line(PlantingRec& data) {
    return (Line("planting") << data.cropId() << data.cropName() << data.companyId()
                             << data.companyName() << data.varietyId() << data.varietyName()
                             << data.uomId() << data.uom())
        .text();
}

void add(Line& line, PestProduct& product) {
    line << product.productId() << product.productName() << product.regCodeId() << product.regCode()
         << static_cast<int>(product.pesticideType()) << product.amount();
}

std::string line(PesticideRec& data) {
    std::string result =
        (Line("pesticide") << data.pesticideMixName() << data.uomId() << data.uom()).text();
    for (PesticideByPercent& product : data.pesticidesByPercent()) {
        Line line("    percent");
        add(line, product);
        result += line.text();
    }
    for (PesticideByAmount& product : data.pesticidesByAmount()) {
        Line line("    amount");
        add(line, product);
        line << product.uomId() << product.uom();
        result += line.text();
    }
    return result;
}

} // namespace

std::string describe(QenRecData* data) {
    if (data == nullptr)
        return "none";
    const std::string rec = to_string(data->recId()) + " ";
    switch (data->recType()) {
    case RecTypeCommercialFertilizer:
        return rec + line(static_cast<CommercialFertilizerRec&>(*data));
    case RecTypeCustomFertilizer:
        return rec + line(static_cast<CustomFertilizerRec&>(*data));
    case RecTypePlanting:
        return rec + line(static_cast<PlantingRec&>(*data));
    case RecTypePesticide:
        return rec + line(static_cast<PesticideRec&>(*data));
    case RecTypeNone:
        break;
    }
    return rec + "of kind " + std::to_string(data->recType());
}

std::string describe(QenRec rec) {
    return (Line("      rec") << rec.id() << rec.name() << rec.fieldId() << rec.fieldGeometryId()
                              << rec.recGeometry() << rec.creationDate() << rec.editDate()
                              << rec.recDbfCol())
               .text() +
           (Line("        operation") << rec.operationId() << rec.operationName()).text() +
           (Line("        season") << rec.seasonId() << rec.seasonName()).text() +
           (Line("        zone") << rec.mgmtZoneId()).text() +
           (Line("        rates") << rec.minimumRate() << rec.maximumRate() << rec.averageRate()
                                  << rec.rateUomId() << rec.rateUom())
               .text() +
           (Line("        total") << rec.total() << rec.totalUomId() << rec.totalUom()).text() +
           (Line("        area") << rec.area() << rec.areaUomId() << rec.areaUom()).text() +
           (Line("        from") << rec.xmlFileName() << (rec.isUsed() ? "used" : "not used"))
               .text() +
           "        data " + describe(rec.recData()) + "\n";
}

std::string describe(QenFieldGeometry geometry) {
    const LLA centroid = geometry.centroid();
    return (Line("      geometry")
            << geometry.geometryId() << geometry.geometryDate() << geometry.geometry()
            << centroid.latitude << centroid.longitude << centroid.altitude)
        .text();
}

std::string describe(QenField field) {
    std::string result =
        (Line("    field") << field.id() << field.name() << field.growerId() << field.farmId())
            .text();
    for (const QenFieldGeometry& geometry : field.geometries())
        result += describe(geometry);
    for (const QenRec& rec : field.recs())
        result += describe(rec);
    return result;
}

std::string describe(QenFarm farm) {
    std::string result = (Line("  farm") << farm.id() << farm.name() << farm.growerId()).text();
    for (const QenField& field : farm.fields())
        result += describe(field);
    return result;
}

std::string describe(QenGrower grower) {
    std::string result = (Line("grower") << grower.id() << grower.name()).text();
    for (const QenFarm& farm : grower.farms())
        result += describe(farm);
    return result;
}

std::string describe(std::vector<QenGrower> growers) {
    std::string result;
    for (const QenGrower& grower : growers)
        result += describe(grower);
    return result;
}

} // namespace test

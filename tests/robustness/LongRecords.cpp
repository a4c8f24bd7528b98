#include "tests/robustness/LongRecords.h"

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tests/support/Describe.h"
#include "tests/support/Uuids.h"

namespace test {

namespace {

/// Makes the texts of one record.
class Texts {
public:
    Texts(const std::string& record, unsigned number, const std::string& version)
        : end_("-of-the-" + version + "-" + record + "-" + std::to_string(number)) {}

    std::string operator()(const std::string& start) const { return longText(start + end_); }

private:
    std::string end_;
};

int code(unsigned number) {
    return static_cast<int>(number);
}

} // namespace

std::string longText(const std::string& start) {
    return start + "-of-over-15-bytes";
}

PesticideByPercent longPercentLine(unsigned number, const std::string& version) {
    const Texts of("percent-line", number, version);
    return {code(number), of("product"), code(number) + 1, of("registration"), Fungicide, 12.5};
}

PesticideByAmount longAmountLine(unsigned number, const std::string& version) {
    const Texts of("amount-line", number, version);
    return {code(number), of("product"), code(number) + 1, of("registration"),
            Carrier,      0.75,          code(number) + 2, of("unit")};
}

std::unique_ptr<QenRecData> longData(RecType kind, unsigned number, const std::string& version) {
    const boost::uuids::uuid rec = uuid(number);
    const Texts of("product-data", number, version);
    switch (kind) {
    case RecTypeCommercialFertilizer:
        return std::make_unique<CommercialFertilizerRec>(rec, code(number), of("product"), 3,
                                                         of("unit"));
    case RecTypeCustomFertilizer:
        return std::make_unique<CustomFertilizerRec>(
            rec, uuid(100 + number), of("product"), 4, of("unit"), code(number), 1.25, 1.0, 2.0,
            3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, 10.0, 11.0, 12.0, 13.0);
    case RecTypePlanting:
        return std::make_unique<PlantingRec>(rec, code(number), of("crop"), 5, of("company"), 6,
                                             of("variety"), 7, of("unit"));
    case RecTypePesticide: {
        std::vector<PesticideByPercent> percent;
        std::vector<PesticideByAmount> amount;
        for (unsigned line = 0; line < (version == "present" ? 2U : 3U); ++line) {
            percent.push_back(longPercentLine(line, version));
            amount.push_back(longAmountLine(line, version));
        }
        return std::make_unique<PesticideRec>(rec, percent, amount, of("mix"), 8, of("unit"));
    }
    default:
        break;
    }
    return nullptr;
}

QenRec longRec(unsigned number, RecType kind, const std::string& version) {
    const Texts of("rec", number, version);
    QenRec rec(uuid(201), uuid(202), of("name"), uuid(number), uuid(203), of("creation-date"),
               of("column"), of("operation"), uuid(204), of("season"), 9, uuid(205),
               longData(kind, number, version).release(), 1.5, 3.5, 2.5, of("rate-unit"), 10, 100.0,
               11, of("total-unit"), 40.0, 12, of("area-unit"), true, uuid(206));
    rec.setEditDate(of("edit-date"));
    return rec;
}

QenFieldGeometry longGeometry(unsigned number, const std::string& version) {
    return {uuid(number), Texts("geometry", number, version)("date"), uuid(300 + number),
            LLA{51.5, -0.25, 0.0}};
}

QenField longField(unsigned number, const std::string& version, const std::vector<unsigned>& recs,
                   const std::vector<unsigned>& geometries) {
    QenField field(Texts("field", number, version)("name"), uuid(number), uuid(401), uuid(402));
    for (const unsigned geometry : geometries)
        field.addFieldGeometry(longGeometry(geometry, version));
    for (const unsigned rec : recs)
        field.addRec(longRec(rec, static_cast<RecType>(rec % 5), version));
    return field;
}

QenFarm longFarm(unsigned number, const std::string& version, const std::vector<QenField>& fields) {
    QenFarm farm(Texts("farm", number, version)("name"), uuid(number), uuid(501));
    farm.fields() = fields;
    return farm;
}

QenGrower longGrower(unsigned number, const std::string& version,
                     const std::vector<QenFarm>& farms) {
    QenGrower grower(Texts("grower", number, version)("name"), uuid(number));
    grower.farms() = farms;
    return grower;
}

std::string text(const std::string& value) {
    return value;
}

std::string text(PestProduct& line) {
    return std::to_string(line.productId()) + " " + line.productName() + " " +
           std::to_string(line.regCodeId()) + " " + line.regCode() + " " +
           std::to_string(line.pesticideType()) + " " + std::to_string(line.amount());
}

std::string text(PesticideByAmount& line) {
    return text(static_cast<PestProduct&>(line)) + " " + std::to_string(line.uomId()) + " " +
           line.uom();
}

std::string text(QenRecData& data) {
    return describe(&data);
}

std::string text(std::unique_ptr<QenRecData>& data) {
    return describe(data.get());
}

std::string text(QenRec& rec) {
    return describe(rec);
}

std::string text(QenFieldGeometry& geometry) {
    return describe(geometry);
}

// Child by child, because describe() would copy the whole tree once more for each level.

std::string text(QenField& field) {
    QenField childless(field.name(), field.id(), field.growerId(), field.farmId());
    std::string result = describe(childless);
    for (QenFieldGeometry& geometry : field.geometries())
        result += text(geometry);
    for (QenRec& rec : field.recs())
        result += text(rec);
    return result;
}

std::string text(QenFarm& farm) {
    QenFarm childless(farm.name(), farm.id(), farm.growerId());
    std::string result = describe(childless);
    for (QenField& field : farm.fields())
        result += text(field);
    return result;
}

std::string text(QenGrower& grower) {
    QenGrower childless(grower.name(), grower.id());
    std::string result = describe(childless);
    for (QenFarm& farm : grower.farms())
        result += text(farm);
    return result;
}

} // namespace test

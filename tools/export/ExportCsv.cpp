#include "tools/export/ExportCsv.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include <boost/uuid/uuid_io.hpp>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PlantingRec.h"
#include "parser/internal/TagConstants.h"
#include "tools/records/ProductText.h"
#include "tools/records/RecordWalk.h"
#include "tools/text/Escape.h"
#include "tools/text/NumberText.h"
#include "tools/text/Utf8.h"

namespace tag = qenxml::tag;

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isOneOf(std::u32string_view characters, char32_t c) {
    return characters.find(c) != std::u32string_view::npos;
}

bool beginsAFormula(char32_t c) {
    // Wide and small forms count, too: some input methods turn them into the plain ones.
    return isOneOf(U"=+-@\uFF1D\uFF0B\uFF0D\uFF20\uFE66\uFE62\uFE63\uFE6B", c);
}

/// Whether a new cell may begin after a character. All programs know that a comma in quotes is a
/// part of the text; but those that split lines at other characters take the quotes for a part of
/// the text as well, and line ends for the end of a row.
bool mayEndACell(char32_t c) {
    return isOneOf(U";\t\r\n\u2028\u2029", c);
}

/// Whether a program may skip a character at the beginning of a cell.
bool mayBeSkipped(char32_t c) {
    const bool space =
        (c >= 0x2000 && c <= 0x200A) || isOneOf(U" \u00A0\u1680\u202F\u205F\u3000", c);
    const bool joinerOrSelector =
        isOneOf(U"\u200C\u200D", c) || (c >= 0xFE00 && c <= 0xFE0F) || (c >= 0x180B && c <= 0x180D);
    return space || joinerOrSelector || c == '"' || isUnseen(c);
}

bool isForbidden(char32_t c) {
    return (c < 0x20 && !mayEndACell(c)) || (c >= 0x7F && c <= 0x9F);
}

/// The text with an apostrophe before each formula that a cell could begin with.
std::string withoutFormulas(std::string_view text) {
    std::string result;
    bool atBeginning = true;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const char32_t c = character.codePoint;
        if (atBeginning && beginsAFormula(c))
            result += '\'';
        atBeginning = mayEndACell(c) || (atBeginning && mayBeSkipped(c));
        result += text.substr(0, character.length);
        text.remove_prefix(character.length);
    }
    return result;
}

std::string withoutForbidden(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        if (character.valid && !isForbidden(character.codePoint))
            result += text.substr(0, character.length);
        else
            appendUtf8(result, 0xFFFD);
        text.remove_prefix(character.length);
    }
    return result;
}

/// A text that begins or ends with what may be skipped is put into quotes, too, so that it stays.
bool needsQuotes(std::string_view text) {
    if (text.empty())
        return false;
    const char last = text.back();
    return text.find_first_of(",\";\t\r\n") != std::string_view::npos ||
           mayBeSkipped(firstCharacter(text).codePoint) || last == ' ';
}

std::string inQuotes(std::string_view text) {
    if (!needsQuotes(text))
        return std::string(text);
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"')
            result += '"';
        result += c;
    }
    return result + '"';
}

std::string csvNumber(double number) {
    return std::isfinite(number) ? numberText(number) : csvText(numberText(number));
}

std::string csvIdentifier(const boost::uuids::uuid& id) {
    return to_string(id);
}

/// An identifier that a package need not give; empty when it does not.
std::string optionalIdentifier(const boost::uuids::uuid& id) {
    return id.is_nil() ? "" : csvIdentifier(id);
}

/// What a row is made of.
struct Row {
    QenGrower& grower;
    QenFarm& farm;
    QenField& field;
    LLA centroid;
    QenRec& rec;
    const MissingNumbers& missingFromCentroid;
    const MissingNumbers& missingFromRec;

    bool lacks(std::string_view number) const {
        return missingFromRec.contains(number) || missingFromCentroid.contains(number);
    }

    /// The product if it is of a kind, or else null.
    template <class Product>
    Product* product(RecType type) const {
        QenRecData* data = rec.recData();
        return data != nullptr && data->recType() == type ? static_cast<Product*>(data) : nullptr;
    }

    PlantingRec* planting() const { return product<PlantingRec>(RecTypePlanting); }
    CommercialFertilizerRec* fertilizer() const {
        return product<CommercialFertilizerRec>(RecTypeCommercialFertilizer);
    }
    CustomFertilizerRec* blend() const {
        return product<CustomFertilizerRec>(RecTypeCustomFertilizer);
    }
};

struct Column {
    const char* title = nullptr;
    std::string (*cell)(const Row&) = nullptr;
    const char* number = nullptr; ///< The name in a package of the number that the cell holds.
};

using R = const Row&;

template <double (CustomFertilizerRec::*percentage)()>
std::string nutrient(R row) {
    CustomFertilizerRec* blend = row.blend();
    return blend == nullptr ? "" : csvNumber((blend->*percentage)());
}

std::string productId(R row) {
    if (row.fertilizer() != nullptr)
        return std::to_string(row.fertilizer()->productId());
    return row.blend() == nullptr ? "" : csvIdentifier(row.blend()->productId());
}

std::string productName(R row) {
    if (row.fertilizer() != nullptr)
        return csvText(row.fertilizer()->productName());
    return row.blend() == nullptr ? "" : csvText(row.blend()->productName());
}

/// The cell of an integer that only plantings have.
template <int (PlantingRec::*code)()>
std::string plantingCode(R row) {
    PlantingRec* planting = row.planting();
    return planting == nullptr ? "" : std::to_string((planting->*code)());
}

/// The cell of a text that only plantings have.
template <std::string (PlantingRec::*text)()>
std::string plantingText(R row) {
    PlantingRec* planting = row.planting();
    return planting == nullptr ? "" : csvText((planting->*text)());
}

const std::array columns = {
    Column{"package", [](R r) { return csvIdentifier(r.rec.xmlFileName()); }},
    Column{"grower", [](R r) { return csvText(r.grower.name()); }},
    Column{"farm", [](R r) { return csvText(r.farm.name()); }},
    Column{"field", [](R r) { return csvText(r.field.name()); }},
    Column{"rec", [](R r) { return csvText(r.rec.name()); }},
    Column{"operation", [](R r) { return csvText(r.rec.operationName()); }},
    Column{"season", [](R r) { return csvText(r.rec.seasonName()); }},
    Column{"season_id",
           [](R r) { return r.rec.seasonId() == -1 ? "" : std::to_string(r.rec.seasonId()); },
           tag::SeasonID},
    Column{"created", [](R r) { return csvText(r.rec.creationDate()); }},
    Column{"edited", [](R r) { return csvText(r.rec.editDate()); }},
    Column{"product_kind", [](R r) { return productKind(r.rec.recData()); }},
    Column{"product_id", productId, tag::ProductID},
    Column{"product", productName},
    Column{"crop_id", plantingCode<&PlantingRec::cropId>, tag::CropID},
    Column{"crop", plantingText<&PlantingRec::cropName>},
    Column{"company_id", plantingCode<&PlantingRec::companyId>, tag::CompanyID},
    Column{"company", plantingText<&PlantingRec::companyName>},
    Column{"variety_id", plantingCode<&PlantingRec::varietyId>, tag::VarietyID},
    Column{"variety", plantingText<&PlantingRec::varietyName>},
    Column{"product_unit_id",
           [](R r) {
               const std::optional<Unit> unit = productUnit(r.rec.recData());
               return unit ? std::to_string(unit->code) : "";
           },
           tag::UOMID},
    Column{"product_unit",
           [](R r) {
               const std::optional<Unit> unit = productUnit(r.rec.recData());
               return unit ? csvText(unit->text) : "";
           }},
    Column{"sfertt_id",
           [](R r) { return r.blend() == nullptr ? "" : std::to_string(r.blend()->sFertT_ID()); },
           tag::SFertT_ID},
    Column{"specific_gravity", nutrient<&CustomFertilizerRec::spGravity>, tag::SpGravity},
    Column{"pct_n", nutrient<&CustomFertilizerRec::pct_N>, tag::Pct_N},
    Column{"pct_p", nutrient<&CustomFertilizerRec::pct_P>, tag::Pct_P},
    Column{"pct_k", nutrient<&CustomFertilizerRec::pct_K>, tag::Pct_K},
    Column{"pct_ca", nutrient<&CustomFertilizerRec::pct_Ca>, tag::Pct_Ca},
    Column{"pct_mg", nutrient<&CustomFertilizerRec::pct_Mg>, tag::Pct_Mg},
    Column{"pct_s", nutrient<&CustomFertilizerRec::pct_S>, tag::Pct_S},
    Column{"pct_fe", nutrient<&CustomFertilizerRec::pct_Fe>, tag::Pct_Fe},
    Column{"pct_mn", nutrient<&CustomFertilizerRec::pct_Mn>, tag::Pct_Mn},
    Column{"pct_zn", nutrient<&CustomFertilizerRec::pct_Zn>, tag::Pct_Zn},
    Column{"pct_cu", nutrient<&CustomFertilizerRec::pct_Cu>, tag::Pct_Cu},
    Column{"pct_b", nutrient<&CustomFertilizerRec::pct_B>, tag::Pct_B},
    Column{"pct_mo", nutrient<&CustomFertilizerRec::pct_Mo>, tag::Pct_Mo},
    Column{"pct_cl", nutrient<&CustomFertilizerRec::pct_Cl>, tag::Pct_Cl},
    Column{"minimum_rate", [](R r) { return csvNumber(r.rec.minimumRate()); }, tag::MinimumRate},
    Column{"average_rate", [](R r) { return csvNumber(r.rec.averageRate()); }, tag::AverageRate},
    Column{"maximum_rate", [](R r) { return csvNumber(r.rec.maximumRate()); }, tag::MaximumRate},
    Column{"rate_unit_id", [](R r) { return std::to_string(r.rec.rateUomId()); }, tag::RateUOMID},
    Column{"rate_unit", [](R r) { return csvText(r.rec.rateUom()); }},
    Column{"total", [](R r) { return csvNumber(r.rec.total()); }, tag::Total},
    Column{"total_unit_id", [](R r) { return std::to_string(r.rec.totalUomId()); },
           tag::TotalUOMID},
    Column{"total_unit", [](R r) { return csvText(r.rec.totalUom()); }},
    Column{"area", [](R r) { return csvNumber(r.rec.area()); }, tag::Area},
    Column{"area_unit_id", [](R r) { return std::to_string(r.rec.areaUomId()); }, tag::AreaUOMID},
    Column{"area_unit", [](R r) { return csvText(r.rec.areaUom()); }},
    Column{"latitude", [](R r) { return csvNumber(r.centroid.latitude); }, tag::Latitude},
    Column{"longitude", [](R r) { return csvNumber(r.centroid.longitude); }, tag::Longitude},
    Column{"dbf_column", [](R r) { return csvText(r.rec.recDbfCol()); }},
    Column{"grower_id", [](R r) { return csvIdentifier(r.grower.id()); }},
    Column{"farm_id", [](R r) { return csvIdentifier(r.farm.id()); }},
    Column{"field_id", [](R r) { return csvIdentifier(r.field.id()); }},
    Column{"rec_id", [](R r) { return csvIdentifier(r.rec.id()); }},
    Column{"boundary_id", [](R r) { return csvIdentifier(r.rec.fieldGeometryId()); }},
    Column{"rec_geometry", [](R r) { return csvIdentifier(r.rec.recGeometry()); }},
    Column{"operation_id", [](R r) { return optionalIdentifier(r.rec.operationId()); }},
    Column{"zone_id", [](R r) { return optionalIdentifier(r.rec.mgmtZoneId()); }},
};

class CsvExport : public ExportFormat {
public:
    explicit CsvExport(TextSink sink) : sink_(std::move(sink)) {}

    void begin(bool /*merged*/) override {
        text_ = byteOrderMark;
        for (const Column& column : columns)
            cell(column, column.title);
        sink_(text_);
    }

    std::string package(PackageReading& reading) override {
        return write(reading.growers, reading.gaps);
    }

    std::string merged(MergedGrowers& merged) override {
        return write(merged.growers(), merged.gaps());
    }

    void end() override {}

private:
    std::string write(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps) {
        forEachRec(growers, gaps, [this](const FieldContext& context, QenRec& rec) {
            write({context.grower, context.farm, context.field,
                   context.field.centroid(rec.fieldGeometryId()), rec,
                   context.gaps.ofGeometry(context.field, rec.fieldGeometryId()),
                   context.missingFrom(rec)});
        });
        return "";
    }

    void write(const Row& row) {
        text_.clear();
        for (const Column& column : columns)
            cell(column,
                 column.number != nullptr && row.lacks(column.number) ? "" : column.cell(row));
        sink_(text_);
    }

    void cell(const Column& column, std::string_view content) {
        text_ += content;
        text_ += &column == &columns.back() ? "\r\n" : ",";
    }

    TextSink sink_;
    std::string text_; // of a row
};

} // namespace

std::string csvText(std::string_view text) {
    return inQuotes(withoutFormulas(withoutForbidden(text)));
}

std::unique_ptr<ExportFormat> makeCsvExport(TextSink sink) {
    return std::make_unique<CsvExport>(std::move(sink));
}

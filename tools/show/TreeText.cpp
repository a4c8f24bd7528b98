#include "tools/show/TreeText.h"

#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tools/records/ProductText.h"
#include "tools/text/Escape.h"

namespace {

constexpr std::size_t indentPerLevel = 2;
constexpr std::size_t labelWidth = 9; // of the longest label, "operation"

/// Texts with a separator between them; empty ones are left out.
std::string join(const std::vector<std::string>& parts, std::string_view separator) {
    std::string result;
    for (const std::string& part : parts) {
        if (!result.empty() && !part.empty())
            result += separator;
        result += part;
    }
    return result;
}

std::string escapedTextOrCode(const std::string& text, int code) {
    return escape(textOrCode(text, code));
}

/// A value after what it means; empty without the value.
std::string labelled(std::string_view label, const std::string& value) {
    return value.empty() ? "" : fmt::format("{} {}", label, value);
}

/// A quantity with its unit; empty when both are missing.
std::string quantity(double value, const std::string& unit) {
    if (value == 0.0 && unit.empty())
        return "";
    return join({fmt::format("{}", value), unit}, " ");
}

class TreeWriter {
public:
    explicit TreeWriter(const TreeLayout& layout) : layout_(layout), style_(layout.style) {}

    void write(QenGrower& grower) {
        title(0, "Grower", grower.name(), grower.id());
        for (QenFarm& farm : grower.farms())
            write(farm);
    }

    const std::string& text() const { return text_; }

private:
    void write(QenFarm& farm) {
        title(1, "Farm", farm.name(), farm.id());
        for (QenField& field : farm.fields())
            write(field);
    }

    void write(QenField& field) {
        title(2, "Field", field.name(), field.id());
        std::vector<QenFieldGeometry> geometries = field.geometries();
        for (QenFieldGeometry& geometry : geometries)
            write(geometry);
        for (QenRec& rec : field.recs())
            write(rec, geometries.size() > 1);
    }

    void write(QenFieldGeometry& geometry) {
        title(3, "Boundary", geometry.geometryDate(), geometry.geometryId());
        property("file", identifier(geometry.geometry()));
        const LLA centroid = geometry.centroid();
        if (centroid.latitude != 0.0 || centroid.longitude != 0.0)
            property("centroid", fmt::format("{}, {}", centroid.latitude, centroid.longitude));
    }

    void write(QenRec& rec, bool showBoundary) {
        title(3, "Rec", rec.name(), rec.id());
        if (layout_.showPackages)
            property("package", identifier(rec.xmlFileName()));
        property("operation",
                 join({escape(rec.operationName()), identifier(rec.operationId())}, "  "));
        if (rec.seasonId() != -1)
            property("season", rec.seasonName().empty() ? fmt::format("code {}", rec.seasonId())
                                                        : escape(rec.seasonName()));
        property("zone", identifier(rec.mgmtZoneId()));
        writeProduct(rec.recData());
        writeStatistics(rec);
        if (showBoundary)
            property("boundary", identifier(rec.fieldGeometryId()));
        property("geometry",
                 join({identifier(rec.recGeometry()), labelled("column", escape(rec.recDbfCol()))},
                      "  "));
        property("created", escape(rec.creationDate()));
        property("edited", escape(rec.editDate()));
    }

    void writeStatistics(QenRec& rec) {
        const std::array rates = {rec.minimumRate(), rec.averageRate(), rec.maximumRate()};
        const std::string rateUnit = escapedTextOrCode(rec.rateUom(), rec.rateUomId());
        if (rates[0] != 0.0 || rates[1] != 0.0 || rates[2] != 0.0 || !rateUnit.empty())
            property("rate",
                     join({fmt::format("min {}, avg {}, max {}", rates[0], rates[1], rates[2]),
                           rateUnit},
                          " "));
        property("total",
                 quantity(rec.total(), escapedTextOrCode(rec.totalUom(), rec.totalUomId())));
        property("area", quantity(rec.area(), escapedTextOrCode(rec.areaUom(), rec.areaUomId())));
    }

    void writeProduct(QenRecData* data) {
        const RecType type = data == nullptr ? RecTypeNone : data->recType();
        switch (type) {
        case RecTypePlanting:
            return writeProduct(static_cast<PlantingRec&>(*data));
        case RecTypeCommercialFertilizer:
            return writeProduct(static_cast<CommercialFertilizerRec&>(*data));
        case RecTypeCustomFertilizer:
            return writeProduct(static_cast<CustomFertilizerRec&>(*data));
        case RecTypePesticide:
            return writeProduct(static_cast<PesticideRec&>(*data));
        case RecTypeNone:
            break;
        }
        property("product", style_.remark("no product data"));
    }

    void writeProduct(PlantingRec& planting) {
        product(
            "planting",
            {labelled("crop", escapedTextOrCode(planting.cropName(), planting.cropId())),
             labelled("company", escapedTextOrCode(planting.companyName(), planting.companyId())),
             labelled("variety", escapedTextOrCode(planting.varietyName(), planting.varietyId())),
             labelled("unit", escapedTextOrCode(planting.uom(), planting.uomId()))});
    }

    void writeProduct(CommercialFertilizerRec& fertilizer) {
        product("fertilizer",
                {escapedTextOrCode(fertilizer.productName(), fertilizer.productId()),
                 labelled("unit", escapedTextOrCode(fertilizer.uom(), fertilizer.uomId()))});
    }

    void writeProduct(CustomFertilizerRec& blend) {
        product("blend",
                {escape(blend.productName()),
                 labelled("unit", escapedTextOrCode(blend.uom(), blend.uomId()))},
                identifier(blend.productId()));
        property("", blendContent(blend));
    }

    void writeProduct(PesticideRec& mix) {
        product("pesticide mix", {escape(mix.pesticideMixName()),
                                  labelled("unit", escapedTextOrCode(mix.uom(), mix.uomId()))});
    }

    void product(const char* kind, const std::vector<std::string>& parts,
                 const std::string& id = "") {
        property("product", join({join({kind, join(parts, ", ")}, ": "), id}, "  "));
    }

    /// The line that opens a record: what it is, what it is called and its identifier.
    void title(std::size_t level, const char* kind, const std::string& name,
               const boost::uuids::uuid& id) {
        indent_ = layout_.indent + level * indentPerLevel;
        const std::string called = name.empty() ? "" : style_.name(escape(name));
        line(join({style_.kind(kind), called}, " ") + "  " + style_.identifier(to_string(id)));
        indent_ += indentPerLevel;
    }

    /// A line about the record opened last; none when there is nothing to say.
    void property(std::string_view label, const std::string& value) {
        if (value.empty())
            return;
        const std::string padding(labelWidth - label.size() + 2, ' ');
        line((label.empty() ? "" : style_.label(label)) + padding + value);
    }

    void line(const std::string& content) {
        text_.append(indent_, ' ');
        text_ += content;
        text_ += '\n';
    }

    /// Empty for the nil UUID, which stands for none.
    std::string identifier(const boost::uuids::uuid& id) const {
        return id.is_nil() ? "" : style_.identifier(to_string(id));
    }

    const TreeLayout& layout_;
    const Style& style_;
    std::size_t indent_ = 0;
    std::string text_;
};

} // namespace

std::string treeText(QenGrower& grower, const TreeLayout& layout) {
    TreeWriter writer(layout);
    writer.write(grower);
    return writer.text();
}

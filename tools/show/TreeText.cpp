#include "tools/show/TreeText.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "model/internal/RecDataVisit.h"
#include "parser/internal/TagConstants.h"
#include "tools/records/ProductText.h"
#include "tools/text/Escape.h"

namespace tag = qenxml::tag;

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

/// Empty for a number that the package does not give.
std::string knownText(const std::optional<double>& number) {
    return number ? fmt::format("{}", *number) : "";
}

/// A number, or several in words, with the unit; empty without a number, which a unit is nothing
/// without.
std::string quantity(const std::string& numbers, const std::string& unit) {
    return numbers.empty() ? "" : join({numbers, unit}, " ");
}

class TreeWriter {
public:
    TreeWriter(const TreeLayout& layout, const GrowerGaps& gaps)
        : layout_(layout), style_(layout.style), gaps_(gaps) {}

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
            write(geometry, gaps_.ofGeometry(field, geometry.geometryId()));
        for (QenRec& rec : field.recs())
            write(rec, gaps_.ofRec(field, rec.id()), geometries.size() > 1);
    }

    void write(QenFieldGeometry& geometry, const MissingNumbers& missing) {
        title(3, "Boundary", geometry.geometryDate(), geometry.geometryId());
        property("file", identifier(geometry.geometry()));
        const LLA centroid = geometry.centroid();
        const std::string latitude = knownText(missing.known(tag::Latitude, centroid.latitude));
        const std::string longitude = knownText(missing.known(tag::Longitude, centroid.longitude));
        const bool whole = !latitude.empty() && !longitude.empty();
        property("centroid", join({whole ? latitude : labelled("latitude", latitude),
                                   whole ? longitude : labelled("longitude", longitude)},
                                  ", "));
    }

    void write(QenRec& rec, const MissingNumbers& missing, bool showBoundary) {
        title(3, "Rec", rec.name(), rec.id());
        if (layout_.showPackages)
            property("package", identifier(rec.xmlFileName()));
        property("operation",
                 join({escape(rec.operationName()), identifier(rec.operationId())}, "  "));
        if (rec.seasonId() != -1)
            property("season", season(rec, missing));
        property("zone", identifier(rec.mgmtZoneId()));
        writeProduct(rec.recData(), missing);
        writeStatistics(rec, missing);
        if (showBoundary)
            property("boundary", identifier(rec.fieldGeometryId()));
        property("geometry",
                 join({identifier(rec.recGeometry()), labelled("column", escape(rec.recDbfCol()))},
                      "  "));
        property("created", escape(rec.creationDate()));
        property("edited", escape(rec.editDate()));
    }

    static std::string season(QenRec& rec, const MissingNumbers& missing) {
        if (!rec.seasonName().empty() || missing.contains(tag::SeasonID))
            return escape(rec.seasonName());
        return fmt::format("code {}", rec.seasonId());
    }

    void writeStatistics(QenRec& rec, const MissingNumbers& missing) {
        const auto known = [&missing](const char* name, double number) {
            return knownText(missing.known(name, number));
        };
        property("rate",
                 quantity(join({labelled("min", known(tag::MinimumRate, rec.minimumRate())),
                                labelled("avg", known(tag::AverageRate, rec.averageRate())),
                                labelled("max", known(tag::MaximumRate, rec.maximumRate()))},
                               ", "),
                          escapedTextOrCode(rec.rateUom(), rec.rateUomId())));
        property("total", quantity(known(tag::Total, rec.total()),
                                   escapedTextOrCode(rec.totalUom(), rec.totalUomId())));
        property("area", quantity(known(tag::Area, rec.area()),
                                  escapedTextOrCode(rec.areaUom(), rec.areaUomId())));
    }

    void writeProduct(QenRecData* data, const MissingNumbers& missing) {
        const auto write = [&](auto& product) {
            writeProduct(product, missing);
            return true;
        };
        if (data == nullptr || !qenxml::visitRecData(*data, write, false))
            property("product", style_.remark("no product data"));
    }

    template <class Product>
    void writeProduct(Product& product, const MissingNumbers& missing) {
        const std::string unit =
            labelled("unit", escapedTextOrCode(product.uom(), product.uomId()));
        const std::string what = join({called(product), unit}, ", ");
        property("product",
                 join({join({productKind(&product), what}, ": "), identifierOf(product)}, "  "));
        property("", contentOf(product, missing));
    }

    static std::string called(QenRecData& product) { return escape(productName(&product)); }

    static std::string called(PlantingRec& planting) {
        return join(
            {labelled("crop", escapedTextOrCode(planting.cropName(), planting.cropId())),
             labelled("company", escapedTextOrCode(planting.companyName(), planting.companyId())),
             labelled("variety", escapedTextOrCode(planting.varietyName(), planting.varietyId()))},
            ", ");
    }

    static std::string identifierOf(QenRecData& /*product*/) { return ""; }
    std::string identifierOf(CustomFertilizerRec& blend) const {
        return identifier(blend.productId());
    }

    static std::string contentOf(QenRecData& /*product*/, const MissingNumbers& /*missing*/) {
        return "";
    }
    static std::string contentOf(CustomFertilizerRec& blend, const MissingNumbers& missing) {
        return blendContent(blend, missing);
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
    const GrowerGaps& gaps_;
    std::size_t indent_ = 0;
    std::string text_;
};

} // namespace

std::string treeText(QenGrower& grower, const GrowerGaps& gaps, const TreeLayout& layout) {
    TreeWriter writer(layout, gaps);
    writer.write(grower);
    return writer.text();
}

#include "tools/export/ExportGeoJson.h"

#include <cstddef>
#include <optional>
#include <utility>

#include <boost/uuid/uuid.hpp>
#include <fmt/format.h>

#include "tools/export/RecordJson.h"
#include "tools/output/JsonWriter.h"
#include "tools/records/Centroid.h"
#include "tools/records/RecordWalk.h"

namespace {

class GeoJsonExport : public ExportFormat {
public:
    explicit GeoJsonExport(TextSink sink) : writer_(std::move(sink)) {}

    void begin(bool /*merged*/) override {
        writer_.beginObject();
        writer_.member("type", "FeatureCollection");
        writer_.beginArray("features");
    }

    std::string package(PackageReading& reading) override {
        package_ = reading.uuid;
        return write(reading.growers, reading.gaps);
    }

    std::string merged(MergedGrowers& merged) override {
        package_.reset();
        return write(merged.growers(), merged.gaps());
    }

    void end() override {
        writer_.endArray();
        writer_.endObject();
        writer_.endDocument();
    }

private:
    std::string write(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps) {
        features_ = 0;
        withoutPoint_ = 0;
        forEachField(growers, gaps, [this](const FieldContext& context) { write(context); });
        if (withoutPoint_ == 0)
            return "";
        return fmt::format("{} of {} field boundaries have no centroid, or one that is no place; "
                           "their features have no point",
                           withoutPoint_, features_);
    }

    void write(const FieldContext& context) {
        std::vector<QenFieldGeometry> geometries = context.field.geometries();
        for (QenFieldGeometry& geometry : geometries)
            write(context, geometry);
    }

    void write(const FieldContext& context, QenFieldGeometry& geometry) {
        const LLA centroid = geometry.centroid();
        const MissingNumbers& missing = context.missingFrom(geometry);
        const bool hasPoint = isPlace(centroid, missing);
        ++features_;
        withoutPoint_ += hasPoint ? 0 : 1;
        writer_.beginObject();
        writer_.member("type", "Feature");
        if (hasPoint)
            writePoint(centroid);
        else
            writer_.member("geometry", nullptr);
        writer_.beginObject("properties");
        // The first one is what maps show beside a point.
        writer_.member("name", jsonText(context.field.name()));
        writer_.member("fieldId", jsonIdentifier(context.field.id()));
        writer_.member("farmName", jsonText(context.farm.name()));
        writer_.member("farmId", jsonIdentifier(context.farm.id()));
        writer_.member("growerName", jsonText(context.grower.name()));
        writer_.member("growerId", jsonIdentifier(context.grower.id()));
        if (package_)
            writer_.member("package", jsonIdentifier(*package_));
        writer_.member("geometryId", jsonIdentifier(geometry.geometryId()));
        writer_.member("geometryDate", jsonText(geometry.geometryDate()));
        // A property "geometry" would be a second column of that name where properties and shapes
        // become one table.
        writer_.member("geometryFileId", jsonIdentifier(geometry.geometry()));
        writeCentroid(writer_, centroid, missing);
        writeRecs(context, geometry.geometryId());
        writer_.endObject();
        writer_.endObject();
    }

    void writePoint(const LLA& centroid) {
        writer_.beginObject("geometry");
        writer_.member("type", "Point");
        writer_.beginArray("coordinates");
        writer_.element(centroid.longitude);
        writer_.element(centroid.latitude);
        writer_.endArray();
        writer_.endObject();
    }

    void writeRecs(const FieldContext& context, const boost::uuids::uuid& geometryId) {
        writer_.beginArray("recs");
        for (QenRec& rec : context.field.recs()) {
            if (rec.fieldGeometryId() == geometryId)
                writeElement(rec, context.missingFrom(rec));
        }
        writer_.endArray();
    }

    void writeElement(QenRec& rec, const MissingNumbers& missing) {
        writer_.beginObject();
        writeMembers(writer_, rec, missing);
        writer_.endObject();
    }

    JsonWriter writer_;
    std::optional<boost::uuids::uuid> package_;
    std::size_t features_ = 0;
    std::size_t withoutPoint_ = 0;
};

} // namespace

std::unique_ptr<ExportFormat> makeGeoJsonExport(TextSink sink) {
    return std::make_unique<GeoJsonExport>(std::move(sink));
}

#include "tools/export/ExportGeoJson.h"

#include <cstddef>
#include <optional>
#include <utility>

#include <boost/uuid/uuid_io.hpp>
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
        const OutputContext values{&context.grower, &context.farm, &context.field, &geometry,
                                   centroid,        nullptr,       missing};
        // The first one, the name of the field, is what maps show beside a point.
        for (const Owner owner : {Owner::Field, Owner::Farm, Owner::Grower})
            writeMembers(writer_, owner, values, &OutputNames::property);
        if (package_)
            writer_.member("package", to_string(*package_));
        writeMembers(writer_, Owner::Geometry, values, &OutputNames::property);
        writeCentroid(writer_, values);
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
            if (rec.fieldGeometryId() != geometryId)
                continue;
            OutputContext values;
            values.rec = &rec;
            values.missing = context.missingFrom(rec);
            writeRec(writer_, values);
        }
        writer_.endArray();
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

#include "tools/export/ExportGeoJson.h"

#include <cstddef>
#include <optional>
#include <utility>

#include <boost/uuid/uuid.hpp>
#include <fmt/format.h>

#include "tools/Centroid.h"
#include "tools/JsonWriter.h"
#include "tools/export/RecordJson.h"

namespace {

/// The records around a feature.
struct Place {
    QenGrower& grower;
    QenFarm& farm;
    QenField& field;
};

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
        return write(reading.growers);
    }

    std::string merged(std::vector<QenGrower>& growers) override {
        package_.reset();
        return write(growers);
    }

    void end() override {
        writer_.endArray();
        writer_.endObject();
        writer_.endDocument();
    }

private:
    std::string write(std::vector<QenGrower>& growers) {
        features_ = 0;
        withoutPoint_ = 0;
        for (QenGrower& grower : growers)
            for (QenFarm& farm : grower.farms())
                for (QenField& field : farm.fields())
                    write(Place{grower, farm, field});
        if (withoutPoint_ == 0)
            return "";
        return fmt::format("{} of {} field boundaries have no centroid, or one that is no place; "
                           "their features have no point",
                           withoutPoint_, features_);
    }

    void write(const Place& place) {
        std::vector<QenFieldGeometry> geometries = place.field.geometries();
        for (QenFieldGeometry& geometry : geometries)
            write(place, geometry);
    }

    void write(const Place& place, QenFieldGeometry& geometry) {
        const LLA centroid = geometry.centroid();
        ++features_;
        withoutPoint_ += isPlace(centroid) ? 0 : 1;
        writer_.beginObject();
        writer_.member("type", "Feature");
        writePoint(centroid);
        writer_.beginObject("properties");
        // The first one is what maps show beside a point.
        writer_.member("name", jsonText(place.field.name()));
        writer_.member("fieldId", jsonIdentifier(place.field.id()));
        writer_.member("farmName", jsonText(place.farm.name()));
        writer_.member("farmId", jsonIdentifier(place.farm.id()));
        writer_.member("growerName", jsonText(place.grower.name()));
        writer_.member("growerId", jsonIdentifier(place.grower.id()));
        if (package_)
            writer_.member("package", jsonIdentifier(*package_));
        writeMembers(writer_, geometry);
        writeRecs(place.field, geometry.geometryId());
        writer_.endObject();
        writer_.endObject();
    }

    void writePoint(const LLA& centroid) {
        if (!isPlace(centroid)) {
            writer_.member("geometry", nullptr);
            return;
        }
        writer_.beginObject("geometry");
        writer_.member("type", "Point");
        writer_.beginArray("coordinates");
        writer_.element(centroid.longitude);
        writer_.element(centroid.latitude);
        writer_.endArray();
        writer_.endObject();
    }

    void writeRecs(QenField& field, const boost::uuids::uuid& geometryId) {
        writer_.beginArray("recs");
        for (QenRec& rec : field.recs()) {
            if (rec.fieldGeometryId() == geometryId)
                writeElement(rec);
        }
        writer_.endArray();
    }

    void writeElement(QenRec& rec) {
        writer_.beginObject();
        writeMembers(writer_, rec);
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

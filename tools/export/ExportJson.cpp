#include "tools/export/ExportJson.h"

#include <utility>

#include <boost/uuid/uuid_io.hpp>

#include "tools/export/RecordJson.h"
#include "tools/output/JsonWriter.h"
#include "tools/records/RecordWalk.h"

using Json = nlohmann::ordered_json;

namespace {

class JsonExport : public ExportFormat {
public:
    explicit JsonExport(TextSink sink) : writer_(std::move(sink)) {}

    void begin(bool merged) override {
        merged_ = merged;
        writer_.beginObject();
        writer_.beginArray("packages");
    }

    std::string package(PackageReading& reading) override {
        writer_.beginObject();
        writer_.member("file", jsonText(reading.name));
        writer_.member("uuid", reading.uuid ? Json(to_string(*reading.uuid)) : Json());
        write(reading.failure);
        if (!merged_)
            write(reading.growers, reading.gaps);
        writer_.endObject();
        return "";
    }

    std::string merged(MergedGrowers& merged) override {
        writer_.endArray();
        write(merged.growers(), merged.gaps());
        return "";
    }

    void end() override {
        if (!merged_)
            writer_.endArray();
        writer_.endObject();
        writer_.endDocument();
    }

private:
    void write(const std::optional<ReadFailure>& failure) {
        if (!failure) {
            writer_.member("failure", nullptr);
            return;
        }
        writer_.beginObject("failure");
        writer_.member("reason", jsonText(failure->reason));
        writer_.member("line", failure->position ? Json(failure->position->line) : Json());
        writer_.member("column", failure->position ? Json(failure->position->column) : Json());
        writer_.endObject();
    }

    void write(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps) {
        writer_.beginArray("growers");
        forEachGrower(growers, gaps, [this](QenGrower& grower, const GrowerGaps& gapsOfGrower) {
            write(grower, gapsOfGrower);
        });
        writer_.endArray();
    }

    void write(QenGrower& grower, const GrowerGaps& gaps) {
        writer_.beginObject();
        OutputContext context;
        context.grower = &grower;
        writeMembers(writer_, Owner::Grower, context);
        writer_.beginArray("farms");
        for (QenFarm& farm : grower.farms())
            write(farm, gaps);
        writer_.endArray();
        writer_.endObject();
    }

    void write(QenFarm& farm, const GrowerGaps& gaps) {
        writer_.beginObject();
        OutputContext context;
        context.farm = &farm;
        writeMembers(writer_, Owner::Farm, context);
        writer_.beginArray("fields");
        for (QenField& field : farm.fields())
            write(field, gaps);
        writer_.endArray();
        writer_.endObject();
    }

    void write(QenField& field, const GrowerGaps& gaps) {
        writer_.beginObject();
        OutputContext context;
        context.field = &field;
        writeMembers(writer_, Owner::Field, context);
        writer_.beginArray("geometries");
        for (QenFieldGeometry& geometry : field.geometries()) {
            context.geometry = &geometry;
            context.centroid = geometry.centroid();
            context.missing = gaps.ofGeometry(field, geometry.geometryId());
            writer_.beginObject();
            writeMembers(writer_, Owner::Geometry, context);
            writeCentroid(writer_, context);
            writer_.endObject();
        }
        writer_.endArray();
        writer_.beginArray("recs");
        for (QenRec& rec : field.recs()) {
            context.rec = &rec;
            context.missing = gaps.ofRec(field, rec.id());
            writeRec(writer_, context);
        }
        writer_.endArray();
        writer_.endObject();
    }

    JsonWriter writer_;
    bool merged_ = false;
};

} // namespace

std::unique_ptr<ExportFormat> makeJsonExport(TextSink sink) {
    return std::make_unique<JsonExport>(std::move(sink));
}

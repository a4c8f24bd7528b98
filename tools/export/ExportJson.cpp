#include "tools/export/ExportJson.h"

#include <utility>

#include "tools/JsonWriter.h"
#include "tools/export/RecordJson.h"

using Json = nlohmann::ordered_json;

namespace {

Json failureJson(const std::optional<ReadFailure>& failure) {
    if (!failure)
        return nullptr;
    Json json = {{"reason", jsonText(failure->reason)}, {"line", nullptr}, {"column", nullptr}};
    if (failure->position) {
        json["line"] = failure->position->line;
        json["column"] = failure->position->column;
    }
    return json;
}

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
        writer_.member("uuid", reading.uuid ? jsonIdentifier(*reading.uuid) : Json());
        writer_.member("failure", failureJson(reading.failure));
        if (!merged_)
            write(reading.growers);
        writer_.endObject();
        return "";
    }

    std::string merged(std::vector<QenGrower>& growers) override {
        writer_.endArray();
        write(growers);
        return "";
    }

    void end() override {
        if (!merged_)
            writer_.endArray();
        writer_.endObject();
        writer_.endDocument();
    }

private:
    void write(std::vector<QenGrower>& growers) {
        writer_.beginArray("growers");
        for (QenGrower& grower : growers)
            write(grower);
        writer_.endArray();
    }

    void write(QenGrower& grower) {
        writer_.beginObject();
        writer_.member("name", jsonText(grower.name()));
        writer_.member("id", jsonIdentifier(grower.id()));
        writer_.beginArray("farms");
        for (QenFarm& farm : grower.farms())
            write(farm);
        writer_.endArray();
        writer_.endObject();
    }

    void write(QenFarm& farm) {
        writer_.beginObject();
        writer_.member("name", jsonText(farm.name()));
        writer_.member("id", jsonIdentifier(farm.id()));
        writer_.member("growerId", jsonIdentifier(farm.growerId()));
        writer_.beginArray("fields");
        for (QenField& field : farm.fields())
            write(field);
        writer_.endArray();
        writer_.endObject();
    }

    void write(QenField& field) {
        writer_.beginObject();
        writer_.member("name", jsonText(field.name()));
        writer_.member("id", jsonIdentifier(field.id()));
        writer_.member("growerId", jsonIdentifier(field.growerId()));
        writer_.member("farmId", jsonIdentifier(field.farmId()));
        writer_.beginArray("geometries");
        for (QenFieldGeometry& geometry : field.geometries())
            writer_.element(geometryJson(geometry));
        writer_.endArray();
        writer_.beginArray("recs");
        for (QenRec& rec : field.recs())
            writer_.element(recJson(rec));
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

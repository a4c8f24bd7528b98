#include "tools/export/ExportJson.h"

#include <utility>

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
        writer_.member("uuid", reading.uuid ? jsonIdentifier(*reading.uuid) : Json());
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
        writer_.member("name", jsonText(grower.name()));
        writer_.member("id", jsonIdentifier(grower.id()));
        writer_.beginArray("farms");
        for (QenFarm& farm : grower.farms())
            write(farm, gaps);
        writer_.endArray();
        writer_.endObject();
    }

    void write(QenFarm& farm, const GrowerGaps& gaps) {
        writer_.beginObject();
        writer_.member("name", jsonText(farm.name()));
        writer_.member("id", jsonIdentifier(farm.id()));
        writer_.member("growerId", jsonIdentifier(farm.growerId()));
        writer_.beginArray("fields");
        for (QenField& field : farm.fields())
            write(field, gaps);
        writer_.endArray();
        writer_.endObject();
    }

    void write(QenField& field, const GrowerGaps& gaps) {
        writer_.beginObject();
        writer_.member("name", jsonText(field.name()));
        writer_.member("id", jsonIdentifier(field.id()));
        writer_.member("growerId", jsonIdentifier(field.growerId()));
        writer_.member("farmId", jsonIdentifier(field.farmId()));
        writer_.beginArray("geometries");
        for (QenFieldGeometry& geometry : field.geometries())
            writeElement(geometry, gaps.ofGeometry(field, geometry.geometryId()));
        writer_.endArray();
        writer_.beginArray("recs");
        for (QenRec& rec : field.recs())
            writeElement(rec, gaps.ofRec(field, rec.id()));
        writer_.endArray();
        writer_.endObject();
    }

    template <class Record>
    void writeElement(Record& record, const MissingNumbers& missing) {
        writer_.beginObject();
        writeMembers(writer_, record, missing);
        writer_.endObject();
    }

    JsonWriter writer_;
    bool merged_ = false;
};

} // namespace

std::unique_ptr<ExportFormat> makeJsonExport(TextSink sink) {
    return std::make_unique<JsonExport>(std::move(sink));
}

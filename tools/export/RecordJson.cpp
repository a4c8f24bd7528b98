#include "tools/export/RecordJson.h"

namespace {

using Json = nlohmann::ordered_json;

struct ToJson {
    Json operator()(std::monostate /*none*/) const { return nullptr; }
    Json operator()(const std::string& text) const { return jsonText(text); }
    Json operator()(double number) const { return jsonNumber(number); }
    Json operator()(int number) const { return number; }
    Json operator()(bool value) const { return value; }
};

} // namespace

Json jsonValue(const OutputValue& value) {
    return std::visit(ToJson(), value);
}

void writeMembers(JsonWriter& writer, Owner owner, const OutputContext& context) {
    for (const OutputField& field : outputFields()) {
        if (field.owner != owner || field.names.key == nullptr)
            continue;
        if (const std::optional<OutputValue> value = field.value(context))
            writer.member(field.names.key, jsonValue(*value));
    }
}

void writeCentroid(JsonWriter& writer, const OutputContext& context) {
    writer.beginObject("centroid");
    writeMembers(writer, Owner::Centroid, context);
    writer.endObject();
}

void writeRec(JsonWriter& writer, const OutputContext& context) {
    writer.beginObject();
    writeMembers(writer, Owner::Rec, context);
    if (context.rec->recData() == nullptr) {
        writer.member("recData", nullptr);
    } else {
        writer.beginObject("recData");
        writeMembers(writer, Owner::Product, context);
        writer.endObject();
    }
    writer.endObject();
}

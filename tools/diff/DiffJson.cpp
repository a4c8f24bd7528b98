#include "tools/diff/DiffJson.h"

#include <array>

#include <boost/uuid/uuid_io.hpp>

#include "tools/compare/RecordNames.h"
#include "tools/export/RecordJson.h"
#include "tools/output/JsonWriter.h"

namespace {

class DiffJson : public DiffWriter {
public:
    explicit DiffJson(Console& console)
        : writer_([&console](std::string_view text) { console.print(text); }) {
        writer_.beginObject();
        writer_.beginArray("differences");
    }

    void add(const RecordDifference& difference) override {
        const auto kind = static_cast<std::size_t>(difference.kind);
        ++counts_.at(kind);
        writer_.beginObject();
        writer_.member("difference", words.at(kind));
        writeRecords(difference.record);
        writer_.member("from", fileOrNull(difference.from));
        writer_.member("to", fileOrNull(difference.to));
        if (difference.kind == DifferenceKind::Changed)
            writeChanges(difference.changes);
        writer_.endObject();
    }

    void end(std::size_t unread) override {
        writer_.endArray();
        for (std::size_t kind = 0; kind < counts_.size(); ++kind)
            writer_.member(words.at(kind), counts_.at(kind));
        writer_.member("unread", unread);
        writer_.endObject();
        writer_.endDocument();
    }

private:
    static constexpr std::array<const char*, 3> words = {"removed", "changed", "added"};

    static nlohmann::ordered_json fileOrNull(const std::string& file) {
        return file.empty() ? nlohmann::ordered_json() : jsonText(file);
    }

    void writeRecords(const RecordView& record) {
        const std::vector<RecordName> names = namesOf(record);
        writer_.member("record", names.back().kind);
        writer_.member("id", to_string(*names.back().id));
        writer_.beginArray("records");
        for (const RecordName& name : names) {
            writer_.beginObject();
            writer_.member("kind", name.kind);
            writer_.member("name", jsonText(name.name));
            writer_.member("id", to_string(*name.id));
            writer_.endObject();
        }
        writer_.endArray();
    }

    void writeChanges(const std::vector<ValueChange>& changes) {
        writer_.beginArray("values");
        for (const ValueChange& change : changes) {
            writer_.beginObject();
            writer_.member("name", change.from.name);
            writeValue("from", change.from);
            writeValue("to", change.to);
            writer_.endObject();
        }
        writer_.endArray();
    }

    void writeValue(const char* key, const RecordValue& value) {
        writer_.beginObject(key);
        writer_.member("value", jsonValue(value.value));
        if (!value.unit.empty())
            writer_.member("unit", jsonText(value.unit));
        writer_.endObject();
    }

    JsonWriter writer_;
    std::array<std::size_t, 3> counts_{};
};

} // namespace

std::unique_ptr<DiffWriter> makeDiffJson(Console& console) {
    return std::make_unique<DiffJson>(console);
}

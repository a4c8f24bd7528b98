#include "tools/export/ExportGeoJson.h"

#include <cstddef>
#include <utility>

#include <fmt/format.h>

#include "tools/export/RowExport.h"
#include "tools/export/RowJson.h"
#include "tools/output/JsonWriter.h"
#include "tools/records/Centroid.h"

namespace {

/// What stands around features.
struct Frame {
    const char* begin;
    const char* beforeFirst;
    const char* beforeOthers;
    const char* after; ///< Each of them.
    const char* end;
};

constexpr Frame collection = {"{\"type\":\"FeatureCollection\",\"features\":[", "\n", ",\n", "",
                              "\n]}\n"};
constexpr Frame sequence = {"", "\x1E", "\x1E", "\n", ""};

class GeoJsonExport : public RowExport {
public:
    GeoJsonExport(TextSink sink, const Frame& frame)
        : sink_(std::move(sink)), frame_(frame), before_(frame.beforeFirst) {}

    void begin(bool /*merged*/) override { sink_(frame_.begin); }
    void end() override { sink_(frame_.end); }

private:
    void writeRec(const OutputContext& context) override { write(context); }

    void writeBoundary(const OutputContext& context, std::size_t recs) override {
        if (recs == 0)
            write(context);
    }

    void write(const OutputContext& context) {
        const bool hasPoint =
            context.geometry != nullptr && isPlace(context.centroid, context.missing);
        ++features_;
        withoutPoint_ += hasPoint ? 0 : 1;
        text_ = std::exchange(before_, frame_.beforeOthers);
        text_ += R"({"type":"Feature","geometry":)";
        if (hasPoint)
            text_ += fmt::format(R"({{"type":"Point","coordinates":[{},{}]}})",
                                 jsonNumber(context.centroid.longitude).dump(),
                                 jsonNumber(context.centroid.latitude).dump());
        else
            text_ += "null";
        text_ += R"(,"properties":)";
        appendRow(text_, context);
        text_ += '}';
        text_ += frame_.after;
        sink_(text_);
    }

    std::string remark() override {
        const std::size_t features = std::exchange(features_, 0);
        const std::size_t withoutPoint = std::exchange(withoutPoint_, 0);
        if (withoutPoint == 0)
            return "";
        return fmt::format("{} of {} features have no point, as their centroid is missing or no "
                           "place",
                           withoutPoint, features);
    }

    TextSink sink_;
    const Frame& frame_;
    const char* before_; ///< The next feature.
    std::string text_;
    std::size_t features_ = 0; ///< Of the package.
    std::size_t withoutPoint_ = 0;
};

} // namespace

std::unique_ptr<ExportFormat> makeGeoJsonExport(TextSink sink) {
    return std::make_unique<GeoJsonExport>(std::move(sink), collection);
}

std::unique_ptr<ExportFormat> makeGeoJsonSequenceExport(TextSink sink) {
    return std::make_unique<GeoJsonExport>(std::move(sink), sequence);
}

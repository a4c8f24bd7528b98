#include "tools/export/ExportJsonLines.h"

#include <utility>

#include "tools/export/RowExport.h"
#include "tools/export/RowJson.h"

namespace {

class JsonLinesExport : public RowExport {
public:
    explicit JsonLinesExport(TextSink sink) : sink_(std::move(sink)) {}

    void begin(bool /*merged*/) override {}
    void end() override {}

private:
    void writeRec(const OutputContext& context) override {
        line_.clear();
        appendRow(line_, context);
        line_ += '\n';
        sink_(line_);
    }

    TextSink sink_;
    std::string line_;
};

} // namespace

std::unique_ptr<ExportFormat> makeJsonLinesExport(TextSink sink) {
    return std::make_unique<JsonLinesExport>(std::move(sink));
}

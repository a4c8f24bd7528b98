#include "tools/export/RowExport.h"

#include <algorithm>

std::string RowExport::package(PackageReading& reading) {
    OutputContext origin;
    origin.file = &reading.name;
    origin.package = reading.uuid ? &*reading.uuid : nullptr;
    write(reading.growers, reading.gaps, origin);
    return remark();
}

std::string RowExport::merged(MergedGrowers& merged) {
    write(merged.growers(), merged.gaps(), {}); // Which files they come from is not known any more.
    return remark();
}

void RowExport::write(std::vector<QenGrower>& growers, const std::vector<GrowerGaps>& gaps,
                      const OutputContext& origin) {
    forEachField(growers, gaps, [&](const FieldContext& around) { write(around, origin); });
}

void RowExport::write(const FieldContext& around, OutputContext context) {
    context.grower = &around.grower;
    context.farm = &around.farm;
    context.field = &around.field;
    std::vector<QenFieldGeometry> boundaries = around.field.geometries();
    const auto take = [&](QenFieldGeometry* boundary) {
        context.geometry = boundary;
        context.centroid = boundary == nullptr ? LLA() : boundary->centroid();
        context.missing = boundary == nullptr ? MissingNumbers() : around.missingFrom(*boundary);
    };
    const std::size_t recs = around.field.recs().size();
    for (QenFieldGeometry& boundary : boundaries) {
        take(&boundary);
        writeBoundary(context, recs);
    }
    if (boundaries.empty()) {
        take(nullptr);
        writeBoundary(context, recs);
    }
    for (QenRec& rec : around.field.recs()) {
        // Of several with one identifier the last one counts, as for the library.
        const auto boundary =
            std::find_if(boundaries.rbegin(), boundaries.rend(), [&rec](QenFieldGeometry& other) {
                return other.geometryId() == rec.fieldGeometryId();
            });
        take(boundary == boundaries.rend() ? nullptr : &*boundary);
        context.rec = &rec;
        context.missing.add(around.missingFrom(rec));
        writeRec(context);
        context.rec = nullptr;
    }
}

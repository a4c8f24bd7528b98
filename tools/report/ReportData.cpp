#include "tools/report/ReportData.h"

#include <utility>

#include "tools/records/RecordWalk.h"

namespace {

constexpr std::string_view standardInput = "-";

} // namespace

bool isWhole(const ReportPackage& package) {
    // Where reading succeeds, the check finds no error, unless it could not read the file.
    return !package.failure && !package.error;
}

bool isLost(const ReportPackage& package) {
    return package.failure && package.counts.growers == 0;
}

bool isReadable(const ReportPackage& package) {
    return !isLost(package) || !package.error || package.error->code != FindingCode::Unreadable;
}

void ReportData::add(PackageReading reading, const PackageFindings& findings) {
    ReportPackage package{reading.name,
                          reading.uuid,
                          reading.failure,
                          findings.error(),
                          countRecords(reading.growers),
                          findings.count()};
    if (package.name != standardInput)
        files_.add(package.name);
    totals_.add(reading.growers, reading.gaps);
    forEachField(reading.growers, reading.gaps,
                 [this](const FieldContext& context) { places_.add(context); });
    const bool isFull = counts_.fields >= mostFields || counts_.recs >= mostRecs;
    if (!isFull && package.counts.fields > 0)
        records_.push_back({packages_.size(), std::move(reading.growers), std::move(reading.gaps)});
    counts_ += package.counts;
    packages_.push_back(std::move(package));
}

std::string_view ReportData::fileName(const ReportPackage& package) const {
    return package.name == standardInput ? "standard input" : files_.name(package.name);
}

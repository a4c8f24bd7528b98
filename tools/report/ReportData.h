#ifndef QENXML_TOOLS_REPORT_REPORTDATA_H
#define QENXML_TOOLS_REPORT_REPORTDATA_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "tools/input/PackageReading.h"
#include "tools/report/FarmPlaces.h"
#include "tools/report/FileNames.h"
#include "tools/report/FindingGroups.h"
#include "tools/report/PackageFindings.h"
#include "tools/report/ProductTotals.h"
#include "tools/report/RecordCounts.h"

/// A package without its records.
struct ReportPackage {
    std::string name;
    std::optional<boost::uuids::uuid> uuid;
    std::optional<ReadFailure> failure;
    std::optional<Finding> error; ///< The first one.
    RecordCounts counts;
    std::size_t findings = 0;
};

/// Whether all of it was read and checked.
bool isWhole(const ReportPackage& package);

/// Whether nothing of it was read.
bool isLost(const ReportPackage& package);

/// Whether there is a file that could be read or checked, be it a broken one.
bool isReadable(const ReportPackage& package);

/// The records of a package.
struct PackageRecords {
    std::size_t package; ///< Its index.
    std::vector<QenGrower> growers;
    std::vector<GrowerGaps> gaps;
};

/// What the report says about packages, which are added one by one. Of most of them it keeps no
/// records, so that thousands fit into memory.
class ReportData {
public:
    // A page of everything in thousands of packages would open in no browser.
    static constexpr std::size_t mostFields = 300;
    static constexpr std::size_t mostRecs = 400;

    /// Takes the findings of the package that is added next.
    PackageFindings nextFindings() { return {findings_, packages_.size()}; }

    void add(PackageReading reading, const PackageFindings& findings);

    const std::vector<ReportPackage>& packages() const { return packages_; }
    const RecordCounts& counts() const { return counts_; }
    const FindingGroups& findings() const { return findings_; }
    const FarmPlaces& places() const { return places_; }
    const ProductTotals& totals() const { return totals_; }

    /// Those of the first packages with fields, as far as they are shown.
    std::vector<PackageRecords>& records() { return records_; }

    /// The folder of all files, not escaped; may be empty.
    std::string folder() const { return files_.folder(); }

    /// The file of a package without that folder, not escaped.
    std::string_view fileName(const ReportPackage& package) const;

private:
    std::vector<ReportPackage> packages_;
    RecordCounts counts_;
    FindingGroups findings_;
    FarmPlaces places_;
    ProductTotals totals_;
    std::vector<PackageRecords> records_;
    FileNames files_;
};

#endif

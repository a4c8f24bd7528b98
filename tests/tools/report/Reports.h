/// @file
/// Packages for the tests of the report, and what it says about them.

#ifndef QENXML_TESTS_TOOLS_REPORT_REPORTS_H
#define QENXML_TESTS_TOOLS_REPORT_REPORTS_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tools/output/Output.h"
#include "tools/report/ReportData.h"

namespace test {

/// A rec with a total in kg.
///
/// @param product the name of a fertilizer; none for an empty one
QenRec recOf(unsigned number, double total, const std::string& product);

/// A field with recs at a place.
QenField fieldOf(unsigned number, const std::string& name, const LLA& centroid,
                 const std::vector<QenRec>& recs = {});

/// A grower with one farm. The numbers are those of the identifiers.
QenGrower growerOf(unsigned number, unsigned farm, const std::vector<QenField>& fields);

/// A grower with a field of these recs.
QenGrower growerWith(const std::vector<QenRec>& recs);

PackageReading readingOf(const std::string& name, const std::vector<QenGrower>& growers);

/// A package of which the first growers alone are read.
PackageReading brokenReading(const std::string& name, const std::vector<QenGrower>& growers = {});

void add(ReportData& data, const PackageReading& reading,
         const std::vector<Finding>& findings = {});

ReportData dataOf(const std::vector<PackageReading>& readings);

/// What is written into a sink.
std::string written(const std::function<void(const TextSink&)>& write);

/// The page without its style.
std::string pageOf(ReportData data);
std::string pageOf(const std::vector<PackageReading>& readings);

bool contains(const std::string& text, const std::string& part);

std::size_t occurrences(const std::string& text, const std::string& part);

} // namespace test

#endif

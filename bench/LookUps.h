/// @file
/// The look-ups of fields that are measured.

#ifndef QENXML_BENCH_LOOKUPS_H
#define QENXML_BENCH_LOOKUPS_H

#include <string>
#include <vector>

#include "model/QenField.h"

namespace bench {

struct LookUp {
    const char* name;
    /// Looks the @p rec of @p field up, or the geometry that it belongs to.
    void (*run)(const QenField& field, QenRec& rec);
};

const std::vector<LookUp>& lookUps();

/// Seconds per look-up, each rec of a package looked up in turn, over and over.
double secondsOfLookUp(const LookUp& lookUp, const std::string& path);

} // namespace bench

#endif

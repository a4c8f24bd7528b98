#ifndef QENXML_TOOLS_PACKAGEREADING_H
#define QENXML_TOOLS_PACKAGEREADING_H

#include <optional>
#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"
#include "tools/Diagnosis.h"

/// What came of reading one package file.
struct PackageReading {
    std::string path;
    std::optional<boost::uuids::uuid> uuid; ///< Identity of the package, from the path.
    std::vector<QenGrower> growers;         ///< After a failure, those that came before it.
    std::optional<ReadFailure> failure;     ///< Set when not all of the file was read.
};

/// Reads one package file; whatever goes wrong is in the result.
PackageReading readPackage(const std::string& path);

/// The message about a file that was not, or not completely, read: which file, where in it, why,
/// and what is shown of it all the same.
///
/// @param reading one with a failure
std::string failureMessage(const PackageReading& reading);

/// The message about a file that was read although its name is not that of a package.
std::string oddNameMessage(const PackageReading& reading);

#endif

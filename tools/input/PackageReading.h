#ifndef QENXML_TOOLS_INPUT_PACKAGEREADING_H
#define QENXML_TOOLS_INPUT_PACKAGEREADING_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "model/QenGrower.h"
#include "tools/input/Diagnosis.h"
#include "tools/input/PackageInput.h"
#include "tools/output/Console.h"
#include "tools/records/MissingNumbers.h"

/// What came of reading one package file.
struct PackageReading {
    std::string name;                       ///< What messages call the file.
    std::optional<boost::uuids::uuid> uuid; ///< Identity of the package, from the path.
    std::vector<QenGrower> growers;         ///< After a failure, those that came before it.
    std::vector<GrowerGaps> gaps;           ///< What the package does not give of each of them.
    std::optional<ReadFailure> failure;     ///< Set when not all of the file was read.
};

/// Reads one package; whatever goes wrong is in the result.
///
/// @param findings takes all that is wrong with it, if that is wanted
PackageReading readPackage(const PackageInput& input, FindingSink* findings = nullptr);
PackageReading readPackage(const std::string& path);

/// Reads one package. When that fails, says so, and what has been printed before comes before it.
///
/// @param done what the command does with what it reads: "shown"
PackageReading readAndComplain(const PackageInput& input, std::string_view done, Console& console,
                               FindingSink* findings = nullptr);

/// Nothing came of it: it failed before its first grower.
bool isLost(const PackageReading& reading);

/// The message about a file that was not, or not completely, read: which file, where in it, why,
/// and what is done with it all the same.
///
/// @param reading one with a failure
/// @param done    "shown"
std::string failureMessage(const PackageReading& reading, std::string_view done);

/// The message about a file that was read although its name is not that of a package.
std::string oddNameMessage(const PackageReading& reading, std::string_view done);

#endif

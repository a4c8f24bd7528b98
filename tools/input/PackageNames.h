#ifndef QENXML_TOOLS_INPUT_PACKAGENAMES_H
#define QENXML_TOOLS_INPUT_PACKAGENAMES_H

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/files/WrittenFile.h"
#include "tools/input/FolderEntries.h"
#include "tools/input/NameList.h"
#include "tools/input/PackageInput.h"
#include "tools/input/PackageOptions.h"
#include "tools/input/PassedOver.h"
#include "tools/output/Console.h"

/// The names of the packages that a command line asks for, one by one, so that there may be any
/// number of them.
///
/// Files are taken as they are named, whether they exist or not, the standard input too. Of folders
/// come all files in them and in their folders that end in ".xml", whatever the case, sorted by
/// path. What is hidden is passed over, as is what a system keeps for itself; and no link to a
/// folder is followed. Last come the names of the list, which are files: a list of what a folder
/// holds mostly names the folder, too.
class PackageNames {
public:
    /// @param options have to stay as long as this object
    /// @throws CLI::ValidationError where they are no way to name packages
    PackageNames(const PackageOptions& options, Console& console);

    /// The next name; complains of what cannot be listed on the way to it.
    ///
    /// @return none after the last one
    /// @throws std::runtime_error, safe to print when escaped, rather than to name the file that is
    ///         written
    std::optional<std::string> next();

    /// Whether there is exactly one name; may be asked before the first is taken.
    bool isOne();

    /// Calls a function with each of the packages.
    ///
    /// @param read returns whether all of the package could be read
    void forEach(const std::function<bool(const PackageInput&)>& read);

    /// Tells what was passed over, and how many packages forEach() could not read.
    ///
    /// @return whether it could read all, and nothing kept packages from being found
    bool finish();

private:
    std::optional<std::string> find();
    std::optional<std::string> findInFolders();
    std::optional<std::string> findInList();
    void endFolder();
    void endList();
    void complainOfFolder(const FolderEntries& folder, const std::string& problem);
    void complain(const std::string& place, const std::string& problem);
    void requireNotWritten(const std::string& name) const;

    const PackageOptions& options_;
    Console& console_;
    WrittenFile written_;
    std::optional<NameList> list_;
    std::size_t argument_ = 0;           ///< The next one of the files.
    std::vector<FolderEntries> folders_; ///< Each within the one before it.
    std::size_t found_ = 0;              ///< In the first of the folders, or in the list.
    std::deque<std::string> ahead_;      ///< Found, but not taken yet.
    PassedOver passedOver_;
    std::size_t packages_ = 0; ///< That forEach() came to.
    std::size_t failures_ = 0; ///< Of them, those that could not be read.
    std::size_t complaints_ = 0;
    std::size_t badFolders_ = 0;
    std::size_t badFoldersBefore_ = 0; ///< The first of the folders was begun.
};

#endif

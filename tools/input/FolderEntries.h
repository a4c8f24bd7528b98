#ifndef QENXML_TOOLS_INPUT_FOLDERENTRIES_H
#define QENXML_TOOLS_INPUT_FOLDERENTRIES_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tools/input/PassedOver.h"

/// The packages and the folders in a folder, sorted as their paths are when all that is below the
/// folders comes in their place.
///
/// A folder may hold more names than shall be in memory: so many are kept at a time, and it is
/// listed anew for those that follow.
class FolderEntries {
public:
    struct Entry {
        std::string path;
        bool isFolder;
    };

    static constexpr std::size_t usualNumber = 50'000;

    /// @param atATime how many names are kept
    explicit FolderEntries(std::string folder, std::size_t atATime = usualNumber)
        : folder_(std::move(folder)), atATime_(atATime) {}

    /// @param passedOver counts, at the first call, what there is beside packages and folders
    /// @return none after the last one, and where the folder cannot be listed
    std::optional<Entry> next(PassedOver& passedOver);

    const std::string& folder() const { return folder_; }

    /// The number of the error that listing it ended with; 0 for none.
    int error() const { return error_; }

private:
    void list(PassedOver* passedOver);
    void keep(std::string key);

    std::string folder_;
    std::size_t atATime_;
    std::vector<std::string> keys_; ///< Of the next ones, the last one first: names, those of
                                    ///< folders with a slash.
    std::string lastKey_;
    bool isListed_ = false;
    bool hasMore_ = true; ///< Than what is kept.
    int error_ = 0;
};

#endif

/// @file
/// The current folder, for the time of a test.

#ifndef QENXML_TESTS_SUPPORT_CURRENTFOLDER_H
#define QENXML_TESTS_SUPPORT_CURRENTFOLDER_H

#include <filesystem>

namespace test {

/// Makes a folder the current one.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::filesystem::path& folder) {
        std::filesystem::current_path(folder);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
    }

private:
    std::filesystem::path before_ = std::filesystem::current_path();
};

} // namespace test

#endif

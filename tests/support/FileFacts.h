/// @file
/// What a test looks at in files that something else wrote.

#ifndef QENXML_TESTS_SUPPORT_FILEFACTS_H
#define QENXML_TESTS_SUPPORT_FILEFACTS_H

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace test {

inline std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

/// The names in a folder, sorted.
inline std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

inline struct stat statusOf(const std::string& path) {
    struct stat status = {};
    lstat(path.c_str(), &status);
    return status;
}

inline unsigned modeOf(const std::string& path) {
    return statusOf(path).st_mode & 07777U;
}

} // namespace test

#endif

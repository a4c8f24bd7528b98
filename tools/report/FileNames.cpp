#include "tools/report/FileNames.h"

namespace {

/// All up to the last slash.
std::string_view folderPart(std::string_view path) {
    return path.substr(0, path.rfind('/') + 1);
}

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

} // namespace

void FileNames::add(std::string_view path) {
    if (!any_)
        prefix_ = folderPart(path);
    any_ = true;
    while (!startsWith(path, prefix_))
        prefix_ = folderPart(std::string_view(prefix_).substr(0, prefix_.size() - 1));
}

std::string FileNames::folder() const {
    const std::size_t last = prefix_.find_last_not_of('/');
    if (last == std::string::npos)
        return prefix_.substr(0, 1); // of the root, the slash stays
    const std::string folder = prefix_.substr(0, last + 1);
    return folder == "." ? "" : folder;
}

std::string_view FileNames::name(std::string_view path) const {
    return path.substr(prefix_.size());
}

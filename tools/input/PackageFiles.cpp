#include "tools/input/PackageFiles.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <locale>
#include <system_error>
#include <utility>

#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>

#include "tools/files/FileContent.h"
#include "tools/input/PackageInput.h"
#include "tools/options/CommonOptions.h"
#include "tools/text/Escape.h"

namespace fs = std::filesystem;

namespace {

bool isNamedXml(const fs::path& path) {
    return boost::algorithm::iequals(path.extension().string(), ".xml", std::locale::classic());
}

/// What is in a folder.
struct FolderContent {
    std::vector<std::string> packages;
    std::vector<std::string> folders;
};

/// Lists a folder; of what is not allowed or fails there is a complaint.
FolderContent list(const std::string& folder, PackageFiles& files) {
    FolderContent content;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (!entry->is_directory(ignored)) {
            if (isNamedXml(entry->path()))
                content.packages.push_back(entry->path().string());
        } else if (!entry->is_symlink(ignored)) { // which may lead back to where it is
            content.folders.push_back(entry->path().string());
        }
    }
    if (error)
        files.complaints.push_back(fmt::format("{}: {}; packages in it are left out",
                                               escape(folder), describeFileError(error.value())));
    return content;
}

void addFolder(const std::string& folder, PackageFiles& files) {
    const std::size_t complaints = files.complaints.size();
    std::vector<std::string> found;
    for (std::vector<std::string> folders = {folder}; !folders.empty();) {
        const std::string next = std::move(folders.back());
        folders.pop_back();
        const FolderContent content = list(next, files);
        found.insert(found.end(), content.packages.begin(), content.packages.end());
        folders.insert(folders.end(), content.folders.begin(), content.folders.end());
    }
    if (found.empty() && files.complaints.size() == complaints)
        files.complaints.push_back(
            fmt::format("{}: no file in it ends in .xml; nothing is checked", escape(folder)));
    std::sort(found.begin(), found.end());
    files.paths.insert(files.paths.end(), found.begin(), found.end());
}

} // namespace

PackageFiles packageFiles(const std::vector<std::string>& arguments) {
    PackageFiles files;
    for (const std::string& argument : arguments) {
        std::error_code ignored;
        if (!isStandardInput(argument) && fs::is_directory(argument, ignored))
            addFolder(argument, files);
        else
            files.paths.push_back(argument);
    }
    return files;
}

#include "tools/input/PackageFiles.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fmt/format.h>

#include "tools/files/FileContent.h"
#include "tools/input/PackageInput.h"
#include "tools/input/PassedOver.h"
#include "tools/options/CommonOptions.h"
#include "tools/text/Escape.h"

namespace fs = std::filesystem;

namespace {

/// What is in a folder.
struct FolderContent {
    std::vector<std::string> packages;
    std::vector<std::string> folders;
};

/// Lists a folder; of what is not allowed or fails there is a complaint.
FolderContent list(const std::string& folder, PackageFiles& files, PassedOver& passedOver) {
    FolderContent content;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (const auto reason = reasonToPassOver(*entry))
            passedOver.add(*reason);
        else if (entry->is_directory(ignored))
            content.folders.push_back(entry->path().string());
        else
            content.packages.push_back(entry->path().string());
    }
    if (error)
        files.complaints.push_back(fmt::format("{}: {}; packages in it are left out",
                                               escape(folder), describeFileError(error.value())));
    return content;
}

void addFolder(const std::string& folder, PackageFiles& files) {
    const std::size_t complaints = files.complaints.size();
    PassedOver passedOver;
    std::vector<std::string> found;
    for (std::vector<std::string> folders = {folder}; !folders.empty();) {
        const std::string next = std::move(folders.back());
        folders.pop_back();
        const FolderContent content = list(next, files, passedOver);
        found.insert(found.end(), content.packages.begin(), content.packages.end());
        folders.insert(folders.end(), content.folders.begin(), content.folders.end());
    }
    if (found.empty() && files.complaints.size() == complaints)
        files.complaints.push_back(fmt::format(
            "{}: no visible file in it ends in .xml; nothing is checked", escape(folder)));
    if (const std::string text = passedOver.text(); !text.empty())
        files.remarks.push_back(fmt::format("{}: passed over {}", escape(folder), text));
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

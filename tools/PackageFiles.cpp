#include "tools/PackageFiles.h"

#include <algorithm>
#include <filesystem>
#include <locale>
#include <system_error>

#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>

#include "tools/Escape.h"
#include "tools/FileContent.h"
#include "tools/PackageInput.h"

namespace fs = std::filesystem;

namespace {

bool isNamedXml(const fs::path& path) {
    return boost::algorithm::iequals(path.extension().string(), ".xml", std::locale::classic());
}

void addFolder(const std::string& folder, PackageFiles& files) {
    std::vector<std::string> found;
    std::error_code error;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator entry(folder, options, error), end;
         !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (isNamedXml(entry->path()) && !entry->is_directory(ignored))
            found.push_back(entry->path().string());
    }
    if (error)
        files.complaints.push_back(
            fmt::format("{}: {}", escape(folder), describeFileError(error.value())));
    else if (found.empty())
        files.complaints.push_back(fmt::format("{}: no file in it ends in .xml", escape(folder)));
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

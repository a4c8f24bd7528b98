#include "tools/input/PassedOver.h"

#include <algorithm>
#include <locale>
#include <string_view>
#include <system_error>
#include <vector>

#include <boost/algorithm/string/predicate.hpp>

#include "tools/text/Words.h"

namespace fs = std::filesystem;

namespace {

/// What is passed over for each reason: one, and several.
struct Nouns {
    const char* one;
    const char* several;
};

constexpr std::array<Nouns, 7> nouns = {{
    {"file not named .xml", "files not named .xml"},
    {"side file of macOS (._NAME)", "side files of macOS (._NAME)"},
    {"hidden file", "hidden files"},
    {"hidden folder", "hidden folders"},
    {"folder of the system", "folders of the system"},
    {"link to a folder", "links to folders"},
    {"device, pipe or socket", "devices, pipes or sockets"},
}};

bool isSame(const std::string& left, std::string_view right) {
    return boost::algorithm::iequals(left, right, std::locale::classic());
}

/// Where Windows and others keep what was deleted, and what is theirs.
bool isSystemFolder(const std::string& name) {
    constexpr std::array<std::string_view, 5> names = {
        "$RECYCLE.BIN", "RECYCLER", "System Volume Information", "lost+found", "__MACOSX"};
    return std::any_of(names.begin(), names.end(),
                       [&name](std::string_view other) { return isSame(name, other); });
}

std::optional<PassedOverReason> reasonOfFolder(const fs::directory_entry& entry,
                                               const std::string& name) {
    std::error_code ignored;
    if (entry.is_symlink(ignored))
        return PassedOverReason::LinkToFolder;
    if (isSystemFolder(name))
        return PassedOverReason::SystemFolder;
    if (name.front() == '.')
        return PassedOverReason::HiddenFolder;
    return std::nullopt;
}

} // namespace

std::optional<PassedOverReason> reasonToPassOver(const fs::directory_entry& entry) {
    const std::string name = entry.path().filename().string();
    std::error_code ignored;
    if (entry.is_directory(ignored))
        return reasonOfFolder(entry, name);
    if (name.substr(0, 2) == "._")
        return PassedOverReason::SideFile;
    if (name.front() == '.')
        return PassedOverReason::HiddenFile;
    if (!isSame(entry.path().extension().string(), ".xml"))
        return PassedOverReason::OtherName;
    // A link that leads nowhere was meant to be a package.
    if (entry.is_other(ignored))
        return PassedOverReason::NoFile;
    return std::nullopt;
}

std::string PassedOver::text() const {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < counts_.size(); ++i) {
        const std::size_t count = counts_.at(i);
        if (count > 0)
            texts.push_back(grouped(std::to_string(count), ",") + " " +
                            (count == 1 ? nouns.at(i).one : nouns.at(i).several));
    }
    return joined(texts, ", ");
}

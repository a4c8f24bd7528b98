#include "tools/input/PackageNames.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "tools/files/FileContent.h"
#include "tools/options/CommonOptions.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"

namespace {

/// Of so many folders it is told what keeps packages from being found in them; others are counted.
constexpr std::size_t mostFoldersTold = 10;

} // namespace

PackageNames::PackageNames(const PackageOptions& options, Console& console)
    : options_(options), console_(console), written_(options.output) {
    requireUsable(options);
    if (options.list.empty())
        return;
    try {
        list_.emplace(options.list, options.zeroEnds);
    } catch (const std::invalid_argument& error) {
        throw CLI::ValidationError("--files-from", error.what());
    }
}

std::optional<std::string> PackageNames::next() {
    if (ahead_.empty())
        return find();
    std::string name = std::move(ahead_.front());
    ahead_.pop_front();
    return name;
}

bool PackageNames::isOne() {
    while (ahead_.size() < 2) {
        std::optional<std::string> name = find();
        if (!name)
            break;
        ahead_.push_back(*std::move(name));
    }
    return ahead_.size() == 1;
}

void PackageNames::forEach(const std::function<bool(const PackageInput&)>& read) {
    while (const std::optional<std::string> name = next()) {
        ++packages_;
        failures_ += read(PackageInput(*name, options_)) ? 0 : 1;
    }
}

bool PackageNames::finish() {
    if (badFolders_ > mostFoldersTold)
        console_.complain(
            fmt::format("{} that cannot be listed, or without a visible file that ends in .xml",
                        quantity(badFolders_ - mostFoldersTold, "more folder")));
    if (const std::string text = passedOver_.text(); !text.empty())
        console_.complain(fmt::format("passed over {}", text));
    if (packages_ > 1 && failures_ > 0)
        console_.complain(fmt::format("{} of {} could not be read, or only in part",
                                      grouped(std::to_string(failures_), ","),
                                      quantity(packages_, "file")));
    return failures_ == 0 && complaints_ == 0;
}

std::optional<std::string> PackageNames::find() {
    while (!folders_.empty() || argument_ < options_.files.size()) {
        if (auto name = findInFolders())
            return name;
        if (argument_ == options_.files.size())
            break;
        const std::string& argument = options_.files[argument_++];
        std::error_code ignored;
        if (isStandardInput(argument) || !std::filesystem::is_directory(argument, ignored))
            return argument;
        badFoldersBefore_ = badFolders_;
        folders_.emplace_back(argument);
    }
    return findInList();
}

std::optional<std::string> PackageNames::findInFolders() {
    while (!folders_.empty()) {
        auto entry = folders_.back().next(passedOver_);
        if (!entry) {
            endFolder();
        } else if (entry->isFolder) {
            folders_.emplace_back(std::move(entry->path));
        } else {
            ++found_;
            requireNotWritten(entry->path);
            return std::move(entry->path);
        }
    }
    return std::nullopt;
}

void PackageNames::endFolder() {
    const FolderEntries& folder = folders_.back();
    if (folder.error() != 0)
        complainOfFolder(folder,
                         describeFileError(folder.error()) + "; packages in it are left out");
    else if (folders_.size() == 1 && found_ == 0 && badFolders_ == badFoldersBefore_)
        complainOfFolder(folder, "no visible file in it ends in .xml; nothing is read");
    folders_.pop_back();
    if (folders_.empty())
        found_ = 0;
}

std::optional<std::string> PackageNames::findInList() {
    if (!list_)
        return std::nullopt;
    if (auto name = list_->next()) {
        ++found_;
        if (isStandardInput(*name))
            name->insert(0, "./");
        requireNotWritten(*name);
        return name;
    }
    endList();
    return std::nullopt;
}

void PackageNames::endList() {
    if (!list_->failure().empty())
        complain(options_.list, list_->failure() + "; nothing more is read from it");
    else if (found_ == 0)
        complain(options_.list, "names no file");
    list_.reset();
}

void PackageNames::complainOfFolder(const FolderEntries& folder, const std::string& problem) {
    if (++badFolders_ <= mostFoldersTold)
        complain(folder.folder(), problem);
}

void PackageNames::complain(const std::string& place, const std::string& problem) {
    ++complaints_;
    console_.complain(fmt::format("{}: {}", escape(place), problem));
}

/// Of what is named on the command line, that is known before anything is done.
void PackageNames::requireNotWritten(const std::string& name) const {
    if (written_.is(name))
        throw std::runtime_error(
            fmt::format("the output would go to {}, which is to be read", name));
}

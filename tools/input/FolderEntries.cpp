#include "tools/input/FolderEntries.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

std::optional<FolderEntries::Entry> FolderEntries::next(PassedOver& passedOver) {
    if (keys_.empty() && hasMore_)
        list(std::exchange(isListed_, true) ? nullptr : &passedOver);
    if (keys_.empty())
        return std::nullopt;
    lastKey_ = std::move(keys_.back());
    keys_.pop_back();
    const bool isFolder = lastKey_.back() == '/';
    const std::string name = lastKey_.substr(0, lastKey_.size() - (isFolder ? 1 : 0));
    return Entry{(fs::path(folder_) / name).string(), isFolder};
}

/// Keeps the first names behind the last one.
void FolderEntries::list(PassedOver* passedOver) {
    hasMore_ = false;
    std::error_code error;
    for (fs::directory_iterator entry(folder_, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (const auto reason = reasonToPassOver(*entry)) {
            if (passedOver != nullptr)
                passedOver->add(*reason);
            continue;
        }
        keep(entry->path().filename().string() + (entry->is_directory(ignored) ? "/" : ""));
    }
    error_ = error.value();
    std::sort(keys_.begin(), keys_.end(), std::greater<>());
}

void FolderEntries::keep(std::string key) {
    if (key <= lastKey_)
        return;
    keys_.push_back(std::move(key));
    std::push_heap(keys_.begin(), keys_.end());
    if (keys_.size() <= atATime_)
        return;
    std::pop_heap(keys_.begin(), keys_.end());
    keys_.pop_back();
    hasMore_ = true;
}

#include "tools/input/PackageInput.h"

#include <utility>

PackageInput::PackageInput(std::string path) : name_(path), path_(std::move(path)) {}

PackageInput::PackageInput(const std::string& file, const PackageOptions& options)
    : name_(file), path_(file) {
    if (!isStandardInput(file))
        return;
    copy_.emplace(options.uuid);
    path_ = copy_->path();
    failure_ = copy_->failure();
}

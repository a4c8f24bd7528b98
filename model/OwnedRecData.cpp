#include "model/OwnedRecData.h"

#include <memory>
#include <type_traits>
#include <utility>

#include "model/internal/RecDataVisit.h"

namespace {

std::unique_ptr<QenRecData> copyOf(QenRecData* data) {
    if (data == nullptr)
        return nullptr;
    const auto copy = [](auto& variant) -> std::unique_ptr<QenRecData> {
        return std::make_unique<std::remove_reference_t<decltype(variant)>>(variant);
    };
    return qenxml::visitRecData(*data, copy, std::unique_ptr<QenRecData>());
}

} // namespace

qenxml::OwnedRecData::OwnedRecData(const OwnedRecData& other)
    : data_(copyOf(other.data_).release()) {}

qenxml::OwnedRecData& qenxml::OwnedRecData::operator=(const OwnedRecData& other) {
    if (this != &other)
        data_ = copyOf(other.data_).release(); // The earlier object is the caller's from here on.
    return *this;
}

void qenxml::OwnedRecData::take(OwnedRecData& other) noexcept {
    const bool known = other.data_ != nullptr && isOfKnownKind(*other.data_);
    data_ = known ? std::exchange(other.data_, nullptr) : nullptr;
}

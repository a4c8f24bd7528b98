#include "tools/findings/Fingerprint.h"

#include <algorithm>
#include <array>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/text/Fnv1a.h"

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Adds a text without the numbers that say where in the file something stands.
void addWithoutPlaces(Fnv1a& hash, std::string_view text) {
    constexpr std::array<std::string_view, 4> words = {"line ", "byte ", "after ", "["};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool comesNumber = std::any_of(words.begin(), words.end(), [&](auto word) {
            return i >= word.size() && text.substr(i - word.size(), word.size()) == word;
        });
        while (comesNumber && i < text.size() && isDigit(text[i]))
            ++i;
        if (i < text.size())
            hash.add(text[i]);
    }
    hash.add('\0');
}

} // namespace

std::uint64_t fingerprintOf(const Finding& finding, std::string_view path) {
    Fnv1a hash;
    hash.add(path.substr(path.rfind('/') + 1));
    hash.add(kindOf(finding.code).code);
    for (const RecordName& record : finding.records) {
        hash.add(record.kind);
        hash.add(record.id ? to_string(*record.id) : record.name);
    }
    addWithoutPlaces(hash, finding.path);
    addWithoutPlaces(hash, finding.found);
    return hash.value();
}

std::string FingerprintTexts::next(const Finding& finding) {
    const std::uint64_t fingerprint = fingerprintOf(finding, path_);
    std::size_t number = 1;
    if (equal_.size() < mostCounted || equal_.count(fingerprint) > 0)
        number = ++equal_[fingerprint];
    return fmt::format("{:016x}:{}", fingerprint, number);
}

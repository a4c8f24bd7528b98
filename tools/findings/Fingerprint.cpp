#include "tools/findings/Fingerprint.h"

#include <algorithm>
#include <array>

#include <boost/uuid/uuid_io.hpp>

namespace {

class Fnv1a {
public:
    /// A text, told from what follows it.
    void add(std::string_view text) {
        for (const char c : text)
            add(c);
        add('\0');
    }
    void add(char c) { hash_ = (hash_ ^ static_cast<unsigned char>(c)) * prime; }

    std::uint64_t value() const { return hash_; }

private:
    static constexpr std::uint64_t prime = 0x100000001B3;
    std::uint64_t hash_ = 0xCBF29CE484222325;
};

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

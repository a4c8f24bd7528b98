#ifndef QENXML_TOOLS_TEXT_FNV1A_H
#define QENXML_TOOLS_TEXT_FNV1A_H

#include <cstdint>
#include <string_view>

/// A hash of texts, the same on every machine: FNV-1a, of 64 bits.
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

#endif

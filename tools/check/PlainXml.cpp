#include "tools/check/PlainXml.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "tools/text/TextCursor.h"
#include "tools/text/Utf8.h"

namespace {

bool isWhiteSpace(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isInName(char c) {
    return isLetter(c) || isDigit(c) || c == '-' || c == '.';
}

/// Whether a character of ASCII may stand in a text or value: no markup, no "]", as "]]>" is wrong.
constexpr std::array<bool, 256> makeTextBytes() {
    std::array<bool, 256> bytes{};
    for (std::size_t c = 0; c < bytes.size(); ++c)
        bytes[c] = c == '\n' || c == '\r' || c == '\t' ||
                   (c >= ' ' && c < 0x7F && c != '<' && c != '&' && c != ']');
    return bytes;
}

constexpr std::array<bool, 256> textBytes = makeTextBytes();

/// Reads a file as long as it is plain.
class PlainXml {
public:
    explicit PlainXml(std::string_view bytes) : cursor_(bytes) {}

    bool isAll() {
        constexpr std::string_view declaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";
        if (cursor_.rest().substr(0, declaration.size()) == declaration)
            cursor_.skip(declaration.size());
        do {
            if (!tag() || (depth_ > 0 && !text('<')))
                return false;
        } while (depth_ > 0);
        cursor_.takeAll(isWhiteSpace);
        return depth_ == 0 && cursor_.atEnd();
    }

private:
    bool tag() {
        cursor_.takeAll(isWhiteSpace);
        if (!cursor_.take("<"))
            return false;
        const bool ends = cursor_.take("/");
        if (name().empty() || (!ends && !attributes()))
            return false;
        cursor_.takeAll(isWhiteSpace);
        const bool isEmpty = !ends && cursor_.take("/");
        depth_ += ends ? -1 : isEmpty ? 0 : 1;
        return cursor_.take(">");
    }

    std::string_view name() {
        return isLetter(cursor_.front()) ? cursor_.takeAll(isInName) : std::string_view();
    }

    bool attributes() {
        std::array<std::string_view, 4> names; // An element of packages has fewer.
        auto* next = names.begin();
        while (!cursor_.takeAll(isWhiteSpace).empty()) {
            const std::string_view attribute = name();
            if (attribute.empty())
                return true; // The tag ends.
            if (next == names.end() || std::find(names.begin(), next, attribute) != next)
                return false;
            *next++ = attribute;
            const bool isGiven = cursor_.take("=");
            const char quote = cursor_.front();
            if (!isGiven || !cursor_.take("\"'") || !text(quote) || !cursor_.take("\"'"))
                return false;
        }
        return true;
    }

    /// Text up to a character.
    bool text(char end) {
        const auto isText = [end](char c) {
            return c != end && textBytes[static_cast<unsigned char>(c)];
        };
        for (cursor_.takeAll(isText); cursor_.front() != end; cursor_.takeAll(isText)) {
            if (!otherLetter())
                return false;
        }
        return true;
    }

    /// A letter that is not of ASCII.
    bool otherLetter() {
        if (cursor_.atEnd() || static_cast<unsigned char>(cursor_.front()) < 0x80)
            return false;
        const Utf8Character character = firstCharacter(cursor_.rest());
        cursor_.skip(character.length);
        return character.valid && character.codePoint != 0xFFFE && character.codePoint != 0xFFFF;
    }

    TextCursor cursor_;
    std::ptrdiff_t depth_ = 0;
};

} // namespace

bool isPlainXml(std::string_view bytes) {
    return PlainXml(bytes).isAll();
}

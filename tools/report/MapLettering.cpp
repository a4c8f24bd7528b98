#include "tools/report/MapLettering.h"

#include <algorithm>
#include <cmath>

#include "tools/text/Utf8.h"

namespace {

constexpr double squareSize = 2.0;

bool isAmong(std::string_view letters, char32_t c) {
    return c < 0x80 && letters.find(static_cast<char>(c)) != std::string_view::npos;
}

bool isWithin(char32_t c, char32_t first, char32_t last) {
    return first <= c && c <= last;
}

/// Accents above and below letters, and signs that only steer the direction of writing.
bool takesNoRoom(char32_t c) {
    return isWithin(c, 0x300, 0x36F) || isWithin(c, 0x200B, 0x200F) ||
           isWithin(c, 0x202A, 0x202E) || isWithin(c, 0x2060, 0x206F) || c == 0xFEFF;
}

double letterWidth(char32_t c) {
    if (takesNoRoom(c))
        return 0.0;
    if (isAmong(" ',.:;Iijl|", c) || c == 0x202F) // the narrow space of numbers
        return 0.4;
    if (isAmong("!()-/[]`frt", c) || c == 0xB0) // the sign of degrees
        return 0.5;
    if (isAmong("%@MWmw", c))
        return 1.11;
    if (isWithin(c, 'a', 'z') || isWithin(c, '0', '9'))
        return 0.72;
    if (c < 0x2000) // other capitals, and alphabets
        return 0.85;
    return c < 0x1F000 ? 1.05 : 1.4; // pictures are the widest
}

std::size_t lengthOfCharacters(std::string_view text, std::size_t number) {
    std::size_t length = 0;
    for (; number > 0 && length < text.size(); --number)
        length += firstCharacter(text.substr(length)).length;
    return length;
}

} // namespace

double textWidth(std::string_view text) {
    double width = 0.0;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        width += letterWidth(character.valid ? character.codePoint : 0xFFFD);
        text.remove_prefix(character.length);
    }
    return width;
}

std::string shortened(std::string_view text, std::size_t mostCharacters) {
    if (lengthOfCharacters(text, mostCharacters) == text.size())
        return std::string(text);
    text = text.substr(0, lengthOfCharacters(text, mostCharacters - 1));
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1)) + "\u2026";
}

struct FreeRoom::Squares {
    std::size_t left;
    std::size_t top;
    std::size_t right; // one beyond the last
    std::size_t bottom;
};

FreeRoom::FreeRoom(double width, double height)
    : width_(width),
      height_(height),
      columns_(static_cast<std::size_t>(std::ceil(width / squareSize))),
      taken_(columns_ * static_cast<std::size_t>(std::ceil(height / squareSize))) {}

FreeRoom::Squares FreeRoom::squares(const Box& box) const {
    const auto number = [](double place, double end) {
        return static_cast<std::size_t>(std::clamp(place, 0.0, end) / squareSize);
    };
    const auto beyond = [](double place, double end) {
        return static_cast<std::size_t>(std::ceil(std::clamp(place, 0.0, end) / squareSize));
    };
    return {number(box.left, width_), number(box.top, height_), beyond(box.right, width_),
            beyond(box.bottom, height_)};
}

bool FreeRoom::isFree(const Box& box) const {
    if (box.left < 0.0 || box.top < 0.0 || box.right > width_ || box.bottom > height_)
        return false;
    const Squares part = squares(box);
    for (std::size_t row = part.top; row < part.bottom; ++row)
        for (std::size_t column = part.left; column < part.right; ++column) {
            if (taken_[row * columns_ + column])
                return false;
        }
    return true;
}

void FreeRoom::take(const Box& box) {
    const Squares part = squares(box);
    for (std::size_t row = part.top; row < part.bottom; ++row)
        for (std::size_t column = part.left; column < part.right; ++column)
            taken_[row * columns_ + column] = true;
}

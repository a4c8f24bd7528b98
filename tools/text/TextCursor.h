#ifndef QENXML_TOOLS_TEXT_TEXTCURSOR_H
#define QENXML_TOOLS_TEXT_TEXTCURSOR_H

#include <algorithm>
#include <cstddef>
#include <string_view>

inline bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Reads a text from its front.
class TextCursor {
public:
    explicit TextCursor(std::string_view text) : rest_(text) {}

    bool atEnd() const { return rest_.empty(); }
    char front() const { return rest_.empty() ? '\0' : rest_.front(); }
    std::string_view rest() const { return rest_; }

    void skip(std::size_t bytes) { rest_.remove_prefix(bytes); }

    bool take(std::string_view oneOf) {
        if (rest_.empty() || oneOf.find(rest_.front()) == std::string_view::npos)
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// A number of so many digits.
    bool take(std::size_t digits, int& number) {
        if (rest_.size() < digits ||
            !std::all_of(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(digits),
                         isDigit))
            return false;
        number = 0;
        for (std::size_t i = 0; i < digits; ++i)
            number = 10 * number + (rest_[i] - '0');
        rest_.remove_prefix(digits);
        return true;
    }

    /// All that a condition is true of.
    template <class Condition>
    std::string_view takeAll(Condition condition) {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), condition);
        const std::string_view taken =
            rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
        rest_.remove_prefix(taken.size());
        return taken;
    }

private:
    std::string_view rest_;
};

#endif

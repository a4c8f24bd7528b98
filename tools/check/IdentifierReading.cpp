#include "tools/check/IdentifierReading.h"

#include <fmt/format.h>

#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

/// The value of a digit; 255 for what is none.
unsigned digitValue(char c) {
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a') + 10;
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A') + 10;
    return 255;
}

class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    IdentifierReading read() {
        using Fault = IdentifierReading::Fault;
        if (text_.empty())
            return fail(Fault::Empty);
        const bool braced = skip('{');
        bool hyphens = false;
        for (std::size_t i = 0; i < result_.value.size(); ++i) {
            if (i == 4)
                hyphens = skip('-');
            const bool hyphenDue = hyphens && (i == 6 || i == 8 || i == 10);
            if (hyphenDue && !skip('-'))
                return fail(place_ < text_.size() ? Fault::HyphenMissing : Fault::TooShort);
            unsigned byte = 0;
            for (int half = 0; half < 2; ++half) {
                if (place_ == text_.size())
                    return fail(Fault::TooShort);
                byte = byte << 4U | digit();
            }
            result_.value.begin()[i] = static_cast<unsigned char>(byte);
        }
        if (braced && !skip('}'))
            return fail(Fault::BraceMissing);
        const std::string_view rest = text_.substr(place_);
        if (rest.find_first_not_of(whiteSpace) != std::string_view::npos)
            result_.ignored = text_.substr(characterStart(text_, place_));
        return result_;
    }

private:
    bool skip(char c) {
        const bool present = place_ < text_.size() && text_[place_] == c;
        place_ += present ? 1 : 0;
        return present;
    }

    unsigned digit() {
        const unsigned value = digitValue(text_[place_]);
        const bool wrong = value > 15 && characterStart(text_, place_) == place_;
        if (wrong && result_.wrongDigits++ == 0)
            result_.wrongPlace = place_;
        ++place_;
        ++result_.digits;
        return value;
    }

    IdentifierReading fail(IdentifierReading::Fault fault) {
        result_.fault = fault;
        result_.faultPlace = place_;
        return result_;
    }

    std::string_view text_;
    std::size_t place_ = 0;
    IdentifierReading result_;
};

} // namespace

IdentifierReading readIdentifier(std::string_view text) {
    return Reader(text).read();
}

std::string describeFault(const IdentifierReading& identifier, std::string_view text) {
    const std::string quoted = fmt::format("\"{}\"", escapeExcerpt(text));
    switch (identifier.fault) {
    case IdentifierReading::Fault::Empty:
        return "is empty";
    case IdentifierReading::Fault::TooShort:
        return fmt::format("{} is too short: it ends after {} of 32 digits", quoted,
                           identifier.digits);
    case IdentifierReading::Fault::HyphenMissing:
        return fmt::format("{} lacks the hyphen after its {}th digit: with one after the 8th digit "
                           "there must be four",
                           quoted, identifier.digits);
    case IdentifierReading::Fault::BraceMissing:
        return fmt::format("{} lacks the closing brace after its last digit", quoted);
    case IdentifierReading::Fault::None:
        break;
    }
    return fmt::format("{} is readable", quoted);
}

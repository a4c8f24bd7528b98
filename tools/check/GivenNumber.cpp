#include "tools/check/GivenNumber.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string_view>

#include "parser/internal/Number.h"
#include "tools/text/Words.h"

namespace {

constexpr std::string_view digits = "0123456789";

/// What one in the last digit of a decimal number is worth; 0 when the text is none.
double worthOfLastDigit(std::string_view text) {
    text.remove_prefix(!text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0);
    const std::size_t end = std::min(text.find_first_of("eE"), text.size());
    const std::string_view mantissa = text.substr(0, end);
    if (mantissa.find_first_not_of("0123456789.") != std::string_view::npos ||
        mantissa.find_first_of(digits) == std::string_view::npos)
        return 0;
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size() - 1);
    const auto decimals = static_cast<double>(mantissa.size() - 1 - point);
    const long exponent = // ended by NUL
        end < text.size() ? std::strtol(text.data() + end + 1, nullptr, 10) : 0;
    return std::pow(10.0, static_cast<double>(exponent) - decimals);
}

} // namespace

GivenNumber::GivenNumber(pugi::xml_node parent, const char* name)
    : name_(name), node_(parent.child(name)) {
    const char* const text = node_.text().as_string();
    char* end = nullptr;
    value_ = qenxml::decodeNumber(text, &end);
    lastDigit_ = end == text || !trimmed(end).empty() ? 0 : worthOfLastDigit(trimmed(text));
    given_ = lastDigit_ > 0 && std::isfinite(value_) && std::isfinite(lastDigit_);
}

double GivenNumber::least() const {
    const double least = value_ - lastDigit_ / 2;
    return value_ < 0 ? least : std::max(0.0, least);
}

#include "tools/text/NumberText.h"

#include <cmath>

#include <fmt/format.h>

std::string numberText(double number) {
    if (std::isnan(number))
        return "NaN";
    if (std::isinf(number))
        return number < 0 ? "-Infinity" : "Infinity";
    return fmt::format("{}", number);
}

#include "tools/report/GroupedNumber.h"

#include <algorithm>

#include "tools/text/NumberText.h"

std::string grouped(std::string number) {
    constexpr std::size_t group = 3;
    constexpr const char* digits = "0123456789";
    const std::size_t begin = std::min(number.find_first_of(digits), number.size());
    std::size_t end = std::min(number.find_first_not_of(digits, begin), number.size());
    for (; end > begin + group; end -= group)
        number.insert(end - group, "\u202F");
    return number;
}

std::string groupedText(double number) {
    return grouped(numberText(number));
}

std::string groupedText(std::size_t number) {
    return grouped(std::to_string(number));
}

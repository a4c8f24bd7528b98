#include "tools/report/GroupedNumber.h"

#include <utility>

#include "tools/text/NumberText.h"
#include "tools/text/Words.h"

std::string grouped(std::string number) {
    return grouped(std::move(number), "\u202F");
}

std::string groupedText(double number) {
    return grouped(numberText(number));
}

std::string groupedText(std::size_t number) {
    return grouped(std::to_string(number));
}

std::string groupedQuantity(std::size_t number, std::string_view noun) {
    return groupedText(number) + " " + plural(number, noun);
}

#include "tools/check/NameCounts.h"

#include <fmt/format.h>

std::string pathStep(std::string_view name, std::size_t number) {
    return number > 1 ? fmt::format("{}[{}]", name, number) : std::string(name);
}

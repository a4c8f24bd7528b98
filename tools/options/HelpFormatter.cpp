#include "tools/options/HelpFormatter.h"

#include <cstddef>
#include <utility>

namespace {

/// An option whose name fills its column leaves blanks behind it.
std::string withoutBlanksAtEnds(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '\n')
            result.erase(result.find_last_not_of(' ') + 1);
        result += c;
    }
    return result;
}

} // namespace

HelpFormatter::HelpFormatter(std::string examples) : examples_(std::move(examples)) {
    constexpr std::size_t columnWidth = 16;
    column_width(columnWidth);
    label("OPTIONS", "OPTION...");
    label("SUBCOMMAND", "COMMAND");
    label("Positionals", "Arguments");
}

std::string HelpFormatter::make_usage(const CLI::App* app, std::string name) const {
    for (const CLI::Option* option : app->get_options()) {
        if (option->nonpositional() && option->get_required())
            name += " " + option->get_name() + " " + option->get_option_text();
    }
    return "\n" + CLI::Formatter::make_usage(app, std::move(name));
}

std::string HelpFormatter::make_help(const CLI::App* app, std::string name,
                                     CLI::AppFormatMode mode) const {
    return withoutBlanksAtEnds("Examples:\n" + examples_ + "\n" +
                               CLI::Formatter::make_help(app, std::move(name), mode));
}

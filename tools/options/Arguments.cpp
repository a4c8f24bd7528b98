#include "tools/options/Arguments.h"

#include <algorithm>
#include <iterator>

#include <CLI/CLI.hpp>

namespace {

/// Ends an argument that the parser would take apart. No argument has such a character of its own.
constexpr char guard = '\0';

} // namespace

std::vector<std::string> guardedArguments(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {
        arguments.emplace_back(argv[i]);
        const char first = arguments.back().empty() ? ' ' : arguments.back().front();
        // "++" would end the sub-command.
        if (first == '[' || first == '{' || arguments.back() == "++")
            arguments.back() += guard;
    }
    return arguments;
}

std::string unguarded(std::string argument) {
    argument.erase(std::remove(argument.begin(), argument.end(), guard), argument.end());
    return argument;
}

CLI::Option* addName(CLI::App& parser, const std::string& option, std::string& name,
                     const std::string& description) {
    const CLI::callback_t take = [&name](const CLI::results_t& arguments) {
        name = unguarded(arguments.front());
        return true;
    };
    return parser.add_option(option, take, description);
}

CLI::Option* addNames(CLI::App& parser, const std::string& positional,
                      std::vector<std::string>& names, const std::string& description) {
    const CLI::callback_t take = [&names](const CLI::results_t& arguments) {
        names.clear();
        std::transform(arguments.begin(), arguments.end(), std::back_inserter(names), unguarded);
        return true;
    };
    return parser.add_option(positional, take, description)->expected(1, -1)->allow_extra_args();
}

CLI::Option* asGiven(CLI::Option* option) {
    const auto take = [](std::string& argument) {
        argument = unguarded(argument);
        return std::string();
    };
    return option->transform(CLI::Validator(take, ""));
}

CLI::Option* addChoice(CLI::App& parser, const std::string& option, std::string& choice,
                       const std::vector<std::string>& choices, const std::string& description) {
    return asGiven(parser.add_option(option, choice, description)
                       ->transform(CLI::IsMember(choices, CLI::ignore_case).description("")));
}

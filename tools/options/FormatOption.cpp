#include "tools/options/FormatOption.h"

#include "tools/options/Arguments.h"
#include "tools/text/Words.h"

CLI::Option* addFormatOption(CLI::App& parser, std::string& format,
                             const std::vector<std::string>& names) {
    return asGiven(parser.add_option("--format", format, joined(names, " or "))
                       ->transform(CLI::IsMember(names, CLI::ignore_case).description("")))
        ->option_text("FORMAT");
}

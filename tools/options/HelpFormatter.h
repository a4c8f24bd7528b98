#ifndef QENXML_TOOLS_OPTIONS_HELPFORMATTER_H
#define QENXML_TOOLS_OPTIONS_HELPFORMATTER_H

#include <string>

#include <CLI/CLI.hpp>

/// Writes help texts in the order: examples, usage, arguments and options, exit codes.
class HelpFormatter : public CLI::Formatter {
public:
    /// @param examples lines with examples of use
    explicit HelpFormatter(std::string examples);

    std::string make_usage(const CLI::App* app, std::string name) const override;
    std::string make_help(const CLI::App* app, std::string name,
                          CLI::AppFormatMode mode) const override;

private:
    std::string examples_;
};

#endif

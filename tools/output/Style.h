#ifndef QENXML_TOOLS_OUTPUT_STYLE_H
#define QENXML_TOOLS_OUTPUT_STYLE_H

#include <string>
#include <string_view>

/// Whether to write in colour.
///
/// @param terminal whether the output goes to a terminal
/// @param noColor  value of NO_COLOR, null when it is not set; any text but the empty one means no
/// @param term     value of TERM, null when it is not set; "dumb" means no
bool wantsColour(bool terminal, const char* noColor, const char* term);

/// How the parts of an output look. Without colour every part looks the same: plain.
class Style {
public:
    explicit Style(bool coloured = false) : coloured_(coloured) {}

    std::string kind(std::string_view text) const;       ///< What something is: "Farm".
    std::string name(std::string_view text) const;       ///< What something is called.
    std::string label(std::string_view text) const;      ///< What a value means: "area".
    std::string identifier(std::string_view text) const; ///< A UUID.
    std::string error(std::string_view text) const;      ///< What makes a package unreadable.
    std::string remark(std::string_view text) const;     ///< What the reader should not miss.

private:
    std::string styled(const char* attributes, std::string_view text) const;

    bool coloured_;
};

#endif

#ifndef QENXML_TOOLS_REPORT_HTMLTABLE_H
#define QENXML_TOOLS_REPORT_HTMLTABLE_H

#include <string>
#include <vector>

/// A table of HTML. On a narrow screen a row is shown as a block in which each cell comes with the
/// name of its column, so that nothing has to be scrolled into sight.
class HtmlTable {
public:
    struct Column {
        const char* name = ""; ///< Goes into the page as it is.
        bool isNumber = false;
    };

    /// @param columns the first one is the heading of its row
    HtmlTable(const char* caption, std::vector<Column> columns);

    /// Everything before the first row.
    std::string begin() const;

    /// @param cells in HTML, one for each column
    std::string row(const std::vector<std::string>& cells) const;

    static const char* end() { return "</tbody>\n</table>\n</div>\n"; }

private:
    const char* caption_;
    std::vector<Column> columns_;
};

#endif

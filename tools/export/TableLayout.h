#ifndef QENXML_TOOLS_EXPORT_TABLELAYOUT_H
#define QENXML_TOOLS_EXPORT_TABLELAYOUT_H

/// How a table of text is written.
struct TableLayout {
    char delimiter = ','; ///< Between cells.
    char decimal = '.';   ///< Before the decimals of a number.
    bool hasMark = true; ///< At its beginning: a byte-order mark, for without one some spreadsheets
                         ///< take the text for another encoding.
};

#endif

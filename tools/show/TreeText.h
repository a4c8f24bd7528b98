#ifndef QENXML_TOOLS_SHOW_TREETEXT_H
#define QENXML_TOOLS_SHOW_TREETEXT_H

#include <cstddef>
#include <string>

#include "model/QenGrower.h"
#include "tools/output/Style.h"
#include "tools/records/MissingNumbers.h"

/// How growers are written.
struct TreeLayout {
    Style style = Style();
    std::size_t indent = 0;    ///< Spaces before every line.
    bool showPackages = false; ///< Whether each rec says which package it comes from.
};

/// A grower with everything beneath it as indented lines. What a package does not give is left out.
std::string treeText(QenGrower& grower, const GrowerGaps& gaps, const TreeLayout& layout);

#endif

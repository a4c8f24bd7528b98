#ifndef QENXML_TOOLS_TEXT_NUMBERTEXT_H
#define QENXML_TOOLS_TEXT_NUMBERTEXT_H

#include <string>

/// The shortest text that reads back as the same number, with a decimal point; "NaN", "Infinity"
/// and "-Infinity" for those that are not finite.
std::string numberText(double number);

#endif

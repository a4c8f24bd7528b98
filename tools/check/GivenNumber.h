#ifndef QENXML_TOOLS_CHECK_GIVENNUMBER_H
#define QENXML_TOOLS_CHECK_GIVENNUMBER_H

#include <pugixml.hpp>

/// A number as far as an element gives it. Programs round what they write, or cut it off, so that
/// 2.5 stands for any number from 2.45 to 2.6.
class GivenNumber {
public:
    /// @param parent holds the element; the first one of the name counts
    GivenNumber(pugi::xml_node parent, const char* name);

    /// Whether the element is there.
    bool isThere() const { return !node_.empty(); }

    /// Whether it holds a finite decimal number and nothing else.
    bool isGiven() const { return given_; }

    double value() const { return value_; }

    /// What it stands for at least, which is not below 0 unless it is negative itself.
    double least() const;
    double most() const { return value_ + lastDigit_; }

    const char* name() const { return name_; }
    pugi::xml_node node() const { return node_; }

private:
    const char* name_;
    pugi::xml_node node_;
    bool given_ = false;
    double value_ = 0;
    double lastDigit_ = 0; ///< What one in the last digit is worth.
};

#endif

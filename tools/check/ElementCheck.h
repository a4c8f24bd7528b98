#ifndef QENXML_TOOLS_CHECK_ELEMENTCHECK_H
#define QENXML_TOOLS_CHECK_ELEMENTCHECK_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "tools/check/CheckReport.h"
#include "tools/check/PackageFormat.h"
#include "tools/check/ValueCheck.h"

/// Checks what is the same for all elements: their names, attributes, texts and values.
class ElementCheck {
public:
    explicit ElementCheck(CheckReport& report) : report_(report), values_(report) {}

    CheckReport& report() { return report_; }

    /// Finds the identifiers that an element lacks.
    void missingIdentifiers(const ElementFormat& format, pugi::xml_node node);

    /// Checks the attributes of an element.
    ///
    /// @param onKnown called before the check of each that is read
    void attributes(const std::vector<DatumFormat>& known, pugi::xml_node node,
                    const std::function<void(pugi::xml_attribute)>& onKnown = {});

    /// Walks the children of an element in their order.
    ///
    /// @param onChild called with the format and the node of every child that is read, and is no
    ///                item of the element's list
    /// @param onItem  called with every item of its list and its number among those of its name
    void children(const ElementFormat& format, pugi::xml_node node,
                  const std::function<void(const DatumFormat&, pugi::xml_node)>& onChild,
                  const std::function<void(pugi::xml_node, std::size_t)>& onItem = {});

    /// Checks a child that holds a value.
    void value(const DatumFormat& datum, pugi::xml_node node);

    /// The check of all values.
    ValueCheck& values() { return values_; }

    void strayText(const ElementFormat& format, pugi::xml_node text);

private:
    void read(const DatumFormat& datum, const char* value, Extent extent, std::string_view step,
              bool markup);
    void unknownElement(const ElementFormat& format, pugi::xml_node node, std::size_t number,
                        const std::vector<const char*>& absent, bool beforeList);
    void repeatedElement(pugi::xml_node node, std::size_t number);
    void repeatedAttribute(pugi::xml_node node, pugi::xml_attribute attribute);
    void unknownAttribute(pugi::xml_node node, pugi::xml_attribute attribute,
                          std::string_view nearest);
    void cutOffText(pugi::xml_node node);

    CheckReport& report_;
    ValueCheck values_;
};

/// Whether a node holds text of its own: text or a CDATA section.
bool isText(pugi::xml_node node);

#endif

#ifndef QENXML_TOOLS_CHECK_ELEMENTCHECK_H
#define QENXML_TOOLS_CHECK_ELEMENTCHECK_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "tools/check/CheckReport.h"
#include "tools/check/NumberReading.h"
#include "tools/check/PackageFormat.h"

/// Checks what is the same for all elements: their names, attributes, texts, identifiers and
/// numbers.
class ElementCheck {
public:
    explicit ElementCheck(CheckReport& report) : report_(report) {}

    CheckReport& report() { return report_; }

    /// Finds the identifiers that an element lacks.
    void missingIdentifiers(const ElementFormat& format, pugi::xml_node node);

    void attributes(const std::vector<DatumFormat>& known, pugi::xml_node node);

    /// Walks the children of an element in their order.
    ///
    /// @param onChild called with the format and the node of every child that is read, and is no
    ///                item of the element's list
    /// @param onItem  called with every item of its list and its number among those of its name
    template <class OnChild, class OnItem>
    void children(const ElementFormat& format, pugi::xml_node node, OnChild onChild,
                  OnItem onItem) {
        const pugi::xml_node firstItem =
            format.item == nullptr ? pugi::xml_node() : node.child(format.item->name);
        Numbering numbering(format);
        bool inList = false;
        for (const pugi::xml_node child : node.children()) {
            inList = inList || child == firstItem;
            const DatumFormat* const datum = find(format.children, child.name());
            const std::size_t number = numbering.next(child, datum);
            if (inList)
                onItem(child, number);
            else if (child.type() != pugi::node_element)
                strayText(format, child);
            else if (datum == nullptr)
                unknownElement(format, child, number, !firstItem.empty());
            else if (number > 1)
                repeatedElement(child, number);
            else
                onChild(*datum, child);
        }
    }

    /// Checks a child that holds a value.
    void value(const DatumFormat& datum, pugi::xml_node node);

    /// Says of all numbers that follow when they are read: empty for always.
    void setCondition(std::string condition) { condition_ = std::move(condition); }

    void strayText(const ElementFormat& format, pugi::xml_node text);

    /// The last step of the path to a child: "Remark[2]".
    static std::string step(const char* name, std::size_t number);

private:
    /// Numbers the children of an element among those of the same name.
    class Numbering {
    public:
        explicit Numbering(const ElementFormat& format)
            : format_(format), data_(format.children.size()) {}

        /// @param datum what the node is, null when it is no child that is there once
        std::size_t next(pugi::xml_node node, const DatumFormat* datum) {
            if (datum != nullptr)
                return ++data_[static_cast<std::size_t>(datum - format_.children.data())];
            const bool item =
                format_.item != nullptr && std::string_view(format_.item->name) == node.name();
            return item ? ++items_ : ++others_[node.name()];
        }

    private:
        const ElementFormat& format_;
        std::vector<std::size_t> data_;
        std::size_t items_ = 0;
        std::unordered_map<std::string_view, std::size_t> others_;
    };

    static const DatumFormat* find(const std::vector<DatumFormat>& formats, const char* name);
    void unknownElement(const ElementFormat& format, pugi::xml_node node, std::size_t number,
                        bool beforeList);
    void repeatedElement(pugi::xml_node node, std::size_t number);
    void unknownAttribute(const std::vector<DatumFormat>& known, pugi::xml_node node,
                          pugi::xml_attribute attribute);
    void text(pugi::xml_node node);
    void identifier(const DatumFormat& datum, std::string_view text, std::size_t offset,
                    std::string_view step);
    void number(const DatumFormat& datum, const char* text, std::size_t offset,
                std::string_view step);

    CheckReport& report_;
    std::string condition_;
};

/// A text without the white space around it.
std::string_view trimmed(std::string_view text);

/// Whether a node holds text of its own: text or a CDATA section.
bool isText(pugi::xml_node node);

#endif

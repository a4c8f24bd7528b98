#ifndef QENXML_TOOLS_ELEMENTCHECK_H
#define QENXML_TOOLS_ELEMENTCHECK_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "tools/CheckReport.h"
#include "tools/NumberText.h"
#include "tools/PackageFormat.h"

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
        Numbering numbering;
        bool inList = false;
        for (const pugi::xml_node child : node.children()) {
            inList = inList || child == firstItem;
            const std::size_t number = numbering.next(child);
            const DatumFormat* const datum = inList ? nullptr : find(format.children, child.name());
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
    /// Numbers nodes among those of the same name.
    class Numbering {
    public:
        std::size_t next(pugi::xml_node node) {
            // Mostly the same name comes again.
            const std::string_view name = node.name();
            if (last_ == nullptr || name != lastName_) {
                lastName_ = name;
                last_ = &counts_[name];
            }
            return ++*last_;
        }

    private:
        std::unordered_map<std::string_view, std::size_t> counts_;
        std::string_view lastName_;
        std::size_t* last_ = nullptr;
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

/// Whether a node holds text of its own: text or a CDATA section.
bool isText(pugi::xml_node node);

#endif

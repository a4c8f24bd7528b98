#ifndef QENXML_TOOLS_CHECK_ELEMENTCHECK_H
#define QENXML_TOOLS_CHECK_ELEMENTCHECK_H

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "tools/check/CheckReport.h"
#include "tools/check/NameCounts.h"
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
    template <class OnChild, class OnItem>
    void children(const ElementFormat& format, pugi::xml_node node, OnChild onChild,
                  OnItem onItem) {
        const pugi::xml_node firstItem =
            format.item == nullptr ? pugi::xml_node() : node.child(format.item->name);
        Numbering numbering(format);
        AbsentNames absent(format, node);
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
                unknownElement(format, child, number, absent.names(), !firstItem.empty());
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
            return item ? ++items_ : others_.next(node.name());
        }

    private:
        const ElementFormat& format_;
        std::vector<std::size_t> data_;
        std::size_t items_ = 0;
        NameCounts others_;
    };

    /// The names that a misspelt child may stand for: those of the items of the list, and those
    /// that are not there already. They are looked for once, as there may be many such children.
    class AbsentNames {
    public:
        AbsentNames(const ElementFormat& format, pugi::xml_node node)
            : format_(format), node_(node) {}

        const std::vector<const char*>& names();

    private:
        const ElementFormat& format_;
        pugi::xml_node node_;
        std::optional<std::vector<const char*>> names_;
    };

    static const DatumFormat* find(const std::vector<DatumFormat>& formats, const char* name);
    void unknownElement(const ElementFormat& format, pugi::xml_node node, std::size_t number,
                        const std::vector<const char*>& absent, bool beforeList);
    void repeatedElement(pugi::xml_node node, std::size_t number);
    void repeatedAttribute(pugi::xml_node node, pugi::xml_attribute attribute);
    void unknownAttribute(pugi::xml_node node, pugi::xml_attribute attribute,
                          std::string_view nearest);
    void cutOffText(pugi::xml_node node);
    void reading(const DatumFormat& datum, const char* text, std::size_t offset,
                 std::string_view step);
    void identifier(const DatumFormat& datum, std::string_view text, std::size_t offset,
                    std::string_view step);
    void number(const DatumFormat& datum, const char* text, std::size_t offset,
                std::string_view step);

    CheckReport& report_;
    std::string condition_;
};

/// A text as findings quote it: without the white space around it, unless there is nothing else.
std::string quotedText(std::string_view text);

/// Whether a node holds text of its own: text or a CDATA section.
bool isText(pugi::xml_node node);

#endif

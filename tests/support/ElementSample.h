/// @file
/// The data of an element as a table, and an element that holds a sample of each.

#ifndef QENXML_TESTS_SUPPORT_ELEMENTSAMPLE_H
#define QENXML_TESTS_SUPPORT_ELEMENTSAMPLE_H

#include <functional>
#include <iomanip>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "tests/support/Uuids.h"
#include "tests/support/Xml.h"

namespace test {

/// What a text is converted to.
enum class Type { Text, Integer, Number, Identifier, Season };

/// How the text is taken from the document. ChildValue and FirstText differ where a text node
/// without a value comes first: ChildValue passes over it, FirstText takes it.
enum class Access { Attribute, ChildValue, FirstText };

// Results instead of a value.
inline const std::string raises = "raises invalid uuid string";
inline const std::string noRecord = "gives no record";

inline const std::string nilText = "00000000-0000-0000-0000-000000000000";

/// One datum of an element: a row of a table.
template <class Record>
struct Datum {
    std::string path; ///< "RecName", "@RecID", "RecStats/Total", "Operation/@OpID".
    Access access;
    Type type;
    std::string sample; ///< Different for each datum of the table.
    std::string whenAbsent;
    std::string whenEmpty;
    std::function<std::string(Record&)> value;
};

inline std::string show(const std::string& value) {
    return value;
}

inline std::string show(int value) {
    return std::to_string(value);
}

inline std::string show(double value) {
    std::ostringstream text;
    text << std::setprecision(17) << value;
    return text.str();
}

inline std::string show(const boost::uuids::uuid& value) {
    return to_string(value);
}

/// The value of a getter, as text.
template <class Value, class Record>
std::function<std::string(Record&)> value(Value (Record::*getter)()) {
    return [getter](Record& record) { return show((record.*getter)()); };
}

template <class Value, class Record>
std::function<std::string(Record&)> value(Value (Record::*getter)() const) {
    return [getter](Record& record) { return show((record.*getter)()); };
}

/// Where a datum stands in an element.
class Place {
public:
    Place(pugi::xml_node element, const std::string& path) : parent_(element), name_(path) {
        const std::size_t slash = name_.find('/');
        if (slash != std::string::npos) {
            const std::string container = name_.substr(0, slash);
            name_.erase(0, slash + 1);
            parent_ = element.child(container.c_str());
            if (!parent_)
                parent_ = element.append_child(container.c_str());
        }
        isAttribute_ = name_[0] == '@';
        if (isAttribute_)
            name_.erase(0, 1);
    }

    bool isAttribute() const { return isAttribute_; }
    const std::string& name() const { return name_; }
    pugi::xml_node parent() const { return parent_; }
    pugi::xml_node child() const { return parent_.child(name_.c_str()); }

    void add(const std::string& text) {
        isAttribute_ ? addAttribute(name_, text) : addChild(name_, text);
    }

    void addAttribute(const std::string& name, const std::string& text) {
        parent_.append_attribute(name.c_str()).set_value(text.c_str());
    }

    void addChild(const std::string& name, const std::string& text) {
        pugi::xml_node child = parent_.append_child(name.c_str());
        if (!text.empty())
            child.append_child(pugi::node_pcdata).set_value(text.c_str());
    }

    void remove() {
        isAttribute_ ? parent_.remove_attribute(name_.c_str())
                     : parent_.remove_child(name_.c_str());
    }

    void replace(const std::string& text) {
        remove();
        add(text);
    }

private:
    pugi::xml_node parent_;
    std::string name_;
    bool isAttribute_ = false;
};

/// All values of an element by path, or its result under "result".
using Values = std::map<std::string, std::string>;

/// An element that holds a sample of every datum of its table.
template <class Element>
class Sample {
public:
    using Row = Datum<typename Element::Record>;

    Sample() {
        root_ = document_.append_child(Element::name);
        for (const Row& datum : Element::data())
            place(datum).add(datum.sample);
    }

    pugi::xml_node root() const { return root_; }
    Place place(const Row& datum) const { return Place(root_, datum.path); }
    Place place(const std::string& path) const { return Place(root_, path); }

    Values read() const { return read(root_); }

    /// As it is read from a file, with @p placeholder replaced by @p markup.
    Values readAsText(const std::string& placeholder, const std::string& markup) const {
        std::string text = textOf(document_);
        text.replace(text.find(placeholder), placeholder.size(), markup);
        const Xml xml(text);
        return read(xml.root());
    }

    static Values read(pugi::xml_node element) {
        try {
            const auto record = Element::read(element);
            if (!record)
                return {{"result", noRecord}};
            Values values;
            for (const Row& datum : Element::data())
                values[datum.path] = datum.value(*record);
            return values;
        } catch (const std::runtime_error& error) {
            return {{"result", std::string("raises ") + error.what()}};
        }
    }

    /// The values when the data of @p changes differ from the samples.
    static Values expected(const Values& changes) {
        Values values;
        for (const Row& datum : Element::data())
            values[datum.path] = datum.sample;
        for (const auto& [path, text] : changes) {
            if (text == raises || text == noRecord)
                return {{"result", text}};
            values[path] = text;
        }
        return values;
    }

private:
    pugi::xml_document document_;
    pugi::xml_node root_;
};

} // namespace test

#endif

/// @file
/// XML documents for tests.

#ifndef QENXML_TESTS_SUPPORT_XML_H
#define QENXML_TESTS_SUPPORT_XML_H

#include <sstream>
#include <stdexcept>
#include <string>

#include <pugixml.hpp>

namespace test {

/// A document that was loaded as the library loads package files.
class Xml {
public:
    explicit Xml(const std::string& text) {
        const pugi::xml_parse_result loaded = document_.load_string(text.c_str());
        if (!loaded)
            throw std::runtime_error(loaded.description() + (" in " + text));
    }

    /// The outermost element.
    pugi::xml_node root() const { return document_.document_element(); }

private:
    pugi::xml_document document_;
};

/// The text of a document, without any white space between its elements.
inline std::string textOf(const pugi::xml_document& document) {
    std::ostringstream text;
    document.save(text, "", pugi::format_raw | pugi::format_no_declaration);
    return text.str();
}

} // namespace test

#endif

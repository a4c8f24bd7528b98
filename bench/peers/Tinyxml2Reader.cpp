#include <memory>
#include <stdexcept>

#include <tinyxml2.h>

#include "bench/DocumentWalk.h"
#include "bench/Readers.h"

namespace {

struct Tinyxml2Element {
    const tinyxml2::XMLElement* element;

    explicit operator bool() const { return element != nullptr; }
    const char* name() const { return element->Name(); }
    const char* text() const {
        const char* const text = element->GetText();
        return text == nullptr ? "" : text;
    }
    Tinyxml2Element firstChild() const { return {element->FirstChildElement()}; }
    Tinyxml2Element nextSibling() const { return {element->NextSiblingElement()}; }

    template <class Visit>
    void forEachAttribute(Visit visit) const {
        for (const tinyxml2::XMLAttribute* attribute = element->FirstAttribute();
             attribute != nullptr; attribute = attribute->Next())
            visit(attribute->Name(), attribute->Value());
    }
};

struct DocumentAndGrowers {
    tinyxml2::XMLDocument document;
    std::vector<plain::Grower> growers;
};

} // namespace

bench::Reading bench::readByTinyxml2(const std::string& path) {
    const auto reading = std::make_shared<DocumentAndGrowers>();
    if (reading->document.LoadFile(path.c_str()) != tinyxml2::XML_SUCCESS)
        throw std::runtime_error("not XML: " + path);
    reading->growers = plain::DocumentWalk<Tinyxml2Element>(plain::packageOf(path))
                           .growers({reading->document.RootElement()});
    return {reading, &reading->growers};
}

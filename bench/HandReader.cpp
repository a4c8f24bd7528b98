#include <memory>
#include <stdexcept>

#include <pugixml.hpp>

#include "bench/DocumentWalk.h"
#include "bench/Readers.h"

namespace {

struct PugixmlElement {
    pugi::xml_node node;

    explicit operator bool() const { return !node.empty(); }
    const char* name() const { return node.name(); }
    const char* text() const { return node.child_value(); }
    PugixmlElement firstChild() const { return {node.first_child()}; }
    PugixmlElement nextSibling() const { return {node.next_sibling()}; }

    template <class Visit>
    void forEachAttribute(Visit visit) const {
        for (const pugi::xml_attribute attribute : node.attributes())
            visit(attribute.name(), attribute.value());
    }
};

struct DocumentAndGrowers {
    pugi::xml_document document;
    std::vector<plain::Grower> growers;
};

} // namespace

bench::Reading bench::readByHand(const std::string& path) {
    const auto reading = std::make_shared<DocumentAndGrowers>();
    if (!reading->document.load_file(path.c_str()))
        throw std::runtime_error("not XML: " + path);
    reading->growers = plain::DocumentWalk<PugixmlElement>(plain::packageOf(path))
                           .growers({reading->document.document_element()});
    return {reading, &reading->growers};
}

#include <stdexcept>

#include <libxml/parser.h>

#include "bench/PlainElements.h"
#include "bench/Readers.h"
#include "bench/peers/EventBuilder.h"

namespace {

using plain::EventBuilder;

const char* characters(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

void onStart(void* builder, const xmlChar* name, const xmlChar* /*prefix*/, const xmlChar* /*uri*/,
             int /*namespaces*/, const xmlChar** /*namespaceUris*/, int attributeCount,
             int /*defaulted*/, const xmlChar** attributes) {
    auto& events = *static_cast<EventBuilder*>(builder);
    events.open(characters(name));
    // Of each attribute: name, prefix, URI, begin and end of the value.
    for (int i = 0; i < attributeCount; ++i, attributes += 5) {
        const std::string value(characters(attributes[3]), characters(attributes[4]));
        events.attribute(characters(attributes[0]), value.c_str());
    }
}

void onEnd(void* builder, const xmlChar* name, const xmlChar* /*prefix*/, const xmlChar* /*uri*/) {
    static_cast<EventBuilder*>(builder)->close(characters(name));
}

void onText(void* builder, const xmlChar* text, int length) {
    static_cast<EventBuilder*>(builder)->text(characters(text), static_cast<std::size_t>(length));
}

} // namespace

bench::Reading bench::readByLibxml2(const std::string& path) {
    EventBuilder builder(plain::packageOf(path));
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = onStart;
    handler.endElementNs = onEnd;
    handler.characters = onText;
    if (xmlSAXUserParseFile(&handler, &builder, path.c_str()) != 0)
        throw std::runtime_error("not XML: " + path);
    return std::make_shared<std::vector<plain::Grower>>(builder.take());
}

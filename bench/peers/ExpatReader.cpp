#include <cstdio>
#include <memory>
#include <stdexcept>

#include <expat.h>

#include "bench/PlainElements.h"
#include "bench/Readers.h"
#include "bench/peers/EventBuilder.h"

namespace {

using plain::EventBuilder;

void onStart(void* builder, const XML_Char* name, const XML_Char** attributes) {
    auto& events = *static_cast<EventBuilder*>(builder);
    events.open(name);
    for (; attributes[0] != nullptr; attributes += 2)
        events.attribute(attributes[0], attributes[1]);
}

void onEnd(void* builder, const XML_Char* name) {
    static_cast<EventBuilder*>(builder)->close(name);
}

void onText(void* builder, const XML_Char* text, int length) {
    static_cast<EventBuilder*>(builder)->text(text, static_cast<std::size_t>(length));
}

} // namespace

bench::Reading bench::readByExpat(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                         XML_ParserFree);
    if (file == nullptr || parser == nullptr)
        throw std::runtime_error("cannot read " + path);
    EventBuilder builder(plain::packageOf(path));
    XML_SetUserData(parser.get(), &builder);
    XML_SetElementHandler(parser.get(), onStart, onEnd);
    XML_SetCharacterDataHandler(parser.get(), onText);

    constexpr int blockSize = 64 * 1024;
    bool last = false;
    while (!last) {
        void* const block = XML_GetBuffer(parser.get(), blockSize);
        if (block == nullptr)
            throw std::bad_alloc();
        const std::size_t length = std::fread(block, 1, blockSize, file.get());
        last = length < blockSize;
        if (XML_ParseBuffer(parser.get(), static_cast<int>(length), last ? 1 : 0) != XML_STATUS_OK)
            throw std::runtime_error("not XML: " + path);
    }
    return std::make_shared<std::vector<plain::Grower>>(builder.take());
}

#include "tests/tools/check/ExpatTree.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

#include <expat.h>
#include <iconv.h>

namespace test {

namespace {

/// Builds the tree from the events of a parser.
class TreeBuilder {
public:
    /// @param encoding of the bytes, whatever their declaration says; null to go by that
    explicit TreeBuilder(const char* encoding)
        : parser_(XML_ParserCreate(encoding), &XML_ParserFree) {
        XML_Parser parser = parser_.get();
        XML_SetUserData(parser, this);
        XML_SetElementHandler(parser, &begin, &end);
        XML_SetCharacterDataHandler(parser, &characters);
        XML_SetCdataSectionHandler(parser, &interrupt, &interrupt);
        XML_SetCommentHandler(parser, [](void* self, const XML_Char*) { interrupt(self); });
        XML_SetProcessingInstructionHandler(
            parser, [](void* self, const XML_Char*, const XML_Char*) { interrupt(self); });
        XML_SetSkippedEntityHandler(parser, [](void* self, const XML_Char* name, int isParameter) {
            if (isParameter == 0)
                of(self).skipped_ = name;
        });
        XML_SetExternalEntityRefHandler(parser, &external);
        XML_SetUnknownEncodingHandler(parser, &unknownEncoding, this);
    }

    XmlReading read(std::string_view bytes) {
        XML_Parser parser = parser_.get();
        if (XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE) ==
            XML_STATUS_ERROR)
            return {std::nullopt, XML_ErrorString(XML_GetErrorCode(parser)),
                    XML_GetCurrentLineNumber(parser)};
        if (!skipped_.empty())
            return {std::nullopt, "the content of the entity " + skipped_ + " is elsewhere"};
        return {std::move(root_.children.front()), ""};
    }

    /// The name of an encoding that expat does not have, if the document has one.
    const std::string& unknownEncoding() const { return unknownEncoding_; }

private:
    static TreeBuilder& of(void* self) { return *static_cast<TreeBuilder*>(self); }

    static void begin(void* self, const XML_Char* name, const XML_Char** attributes) {
        interrupt(self);
        XmlElement element;
        element.name = name;
        for (const XML_Char** next = attributes; *next != nullptr; next += 2)
            element.attributes.emplace_back(next[0], next[1]);
        of(self).open_.push_back(std::move(element));
    }

    static void end(void* self, const XML_Char* /*name*/) {
        TreeBuilder& builder = of(self);
        XmlElement element = std::move(builder.open_.back());
        builder.open_.pop_back();
        (builder.open_.empty() ? builder.root_ : builder.open_.back())
            .children.push_back(std::move(element));
        interrupt(self);
    }

    static void characters(void* self, const XML_Char* text, int length) {
        TreeBuilder& builder = of(self);
        XmlElement& element = builder.open_.back();
        element.text.append(text, static_cast<std::size_t>(length));
        element.pieces += builder.interrupted_ ? 1 : 0;
        builder.interrupted_ = false;
    }

    static void interrupt(void* self) { of(self).interrupted_ = true; }

    static int external(XML_Parser parser, const XML_Char* /*context*/, const XML_Char* /*base*/,
                        const XML_Char* systemId, const XML_Char* /*publicId*/) {
        of(XML_GetUserData(parser)).skipped_ = systemId == nullptr ? "external" : systemId;
        return XML_STATUS_OK;
    }

    static int unknownEncoding(void* self, const XML_Char* name, XML_Encoding* /*encoding*/) {
        of(self).unknownEncoding_ = name;
        return XML_STATUS_ERROR;
    }

    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser_;
    XmlElement root_; ///< Holds the root as its child.
    std::vector<XmlElement> open_;
    bool interrupted_ = true;
    std::string skipped_; ///< An entity that was not read.
    std::string unknownEncoding_;
};

/// Bytes of another encoding in UTF-8; nothing when the system does not know it, or the bytes are
/// none of it.
std::optional<std::string> inUtf8(std::string bytes, const char* encoding) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): how iconv says that it failed
    auto* const failed = reinterpret_cast<iconv_t>(-1);
    auto* const conversion = iconv_open("UTF-8", encoding);
    if (conversion == failed)
        return std::nullopt;
    std::string converted(bytes.size() * 4 + 16, '\0');
    char* from = bytes.data();
    char* to = converted.data();
    std::size_t left = bytes.size();
    std::size_t room = converted.size();
    const std::size_t result = iconv(conversion, &from, &left, &to, &room);
    iconv_close(conversion);
    if (result == static_cast<std::size_t>(-1))
        return std::nullopt;
    converted.resize(converted.size() - room);
    return converted;
}

/// The name of the encoding of four bytes per character in which a text is, if it is in one.
const char* encodingOfFourBytes(std::string_view bytes) {
    using namespace std::string_view_literals;
    const std::string_view begin = bytes.substr(0, 4);
    if (begin == "\xFF\xFE\0\0"sv || begin == "<\0\0\0"sv)
        return "UTF-32LE";
    if (begin == "\0\0\xFE\xFF"sv || begin == "\0\0\0<"sv)
        return "UTF-32BE";
    return nullptr;
}

bool isAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

XmlReading readConverted(std::string_view bytes, const char* encoding) {
    const auto converted = inUtf8(std::string(bytes), encoding);
    if (!converted)
        return {std::nullopt, std::string("the bytes are not ") + encoding};
    return TreeBuilder("UTF-8").read(*converted);
}

} // namespace

XmlReading readXml(std::string_view bytes) {
    if (const char* const encoding = encodingOfFourBytes(bytes))
        return readConverted(bytes, encoding);
    TreeBuilder builder(nullptr);
    XmlReading reading = builder.read(bytes);
    if (builder.unknownEncoding().empty())
        return reading;
    // In ASCII, letters are what they are by any name.
    if (isAscii(bytes))
        return TreeBuilder("UTF-8").read(bytes);
    return readConverted(bytes, builder.unknownEncoding().c_str());
}

} // namespace test

#include "tests/tools/check/SlipChooser.h"

#include <algorithm>

#include "tests/support/Texts.h"
#include "tests/support/Uuids.h"
#include "tests/tools/check/SlipSpellings.h"

namespace test {

namespace {

/// The code points of valid UTF-8, and bytes that are none as they are.
std::u32string characters(const std::string& text) {
    std::u32string result;
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i]);
        const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 1;
        char32_t character = length == 1 ? first : first & (0x7FU >> length);
        for (std::size_t k = 1; k < length && i + k < text.size(); ++k)
            character = character << 6U | (static_cast<unsigned char>(text[i + k]) & 0x3FU);
        result += character;
        i += length;
    }
    return result;
}

std::u32string inSurrogates(const std::u32string& text) {
    std::u32string units;
    for (const char32_t character : text) {
        if (character < 0x10000) {
            units += character;
            continue;
        }
        units += 0xD800 + ((character - 0x10000) >> 10U);
        units += 0xDC00 + ((character - 0x10000) & 0x3FFU);
    }
    return units;
}

/// One byte for each character; a question mark for those that have none.
std::string inOneByte(const std::u32string& text) {
    std::string result;
    for (const char32_t character : text)
        result += character < 0x100 ? static_cast<char>(character) : '?';
    return result;
}

} // namespace

SlipChooser::SlipChooser(std::mt19937& random)
    : random_(random), unusual_(oneIn(2)), declared_("UTF-8") {
    switch (below(5)) {
    case 0:
        inside_ = 200;
        break;
    case 1:
        inside_ = 1000;
        break;
    case 2:
        outside_ = 4;
        break;
    default: // without slips
        break;
    }
}

std::string SlipChooser::number() {
    return oneOf(slips() ? slip::oddNumbers() : slip::numbers());
}

std::string SlipChooser::integer() {
    return oneOf(slips() ? slip::oddNumbers() : slip::integers());
}

std::string SlipChooser::identifier() {
    boost::uuids::uuid id{};
    std::generate(id.begin(), id.end(), [&] { return static_cast<unsigned char>(below(256)); });
    const std::string text = to_string(id);
    if (slips())
        return oneOf({"",
                      "12",
                      text.substr(1),
                      text.substr(0, 35),
                      "{" + text,
                      text + "}",
                      "{" + text.substr(0, 20),
                      text + " and more",
                      "g" + text.substr(1),
                      " " + text,
                      text.substr(0, 35) + "O",
                      text.substr(0, 35) + "\u00E9",
                      "00000000-0000-0000-0000-000000000000",
                      "urn:uuid:" + text,
                      "(" + text + ")",
                      text.substr(0, 8) + text.substr(9),
                      text.substr(0, 13) + text.substr(14),
                      text.substr(0, 10) + "&#0;" + text.substr(10),
                      text + "&#0;",
                      text + "\u00A0",
                      text + "&x;",
                      text.substr(0, 10) + "<!-- -->" + text.substr(10),
                      "<![CDATA[" + text + "]]>",
                      "00112233-4455-6677-8899-aabbccddeeff",
                      "{" + text + "} ",
                      "\u200B" + text,
                      "<![CDATA[]]>" + text,
                      text + "<![CDATA[]]>",
                      "<b/>" + text,
                      "&#x" + text.substr(0, 2) + ";" + text.substr(2),
                      "<!---->" + text,
                      text.substr(0, 9) + "<![CDATA[" + text.substr(9) + "]]>",
                      text + "\u200B"});
    if (!isUnusual())
        return text;
    std::string other = text;
    if (oneIn(2))
        std::transform(text.begin(), text.end(), other.begin(),
                       [](char c) { return c >= 'a' && c <= 'f' ? static_cast<char>(c - 32) : c; });
    if (oneIn(2))
        other.erase(std::remove(other.begin(), other.end(), '-'), other.end());
    if (oneIn(2))
        other = "{" + other + "}";
    return oneIn(4) ? other + "\n " : other;
}

std::string SlipChooser::text() {
    return oneOf(slips() ? slip::oddTexts() : slip::texts());
}

std::string SlipChooser::between() {
    if (slips())
        return oneOf(slip::oddBetween());
    return isUnusual() ? oneOf({"\n    ", "\t", "\r\n", "<!-- c -->", "<?pi x?>", "<!---->",
                                "<!-- <Rec> & -->", "<?x <Rec> & ?>", "<?x > ?\t?>",
                                " <!-- a --> <!-- b --> "})
                       : "";
}

std::string SlipChooser::declaration() {
    std::string text =
        slipsOutside() ? oneOf(slip::oddDeclarations()) : oneOf(slip::declarations());
    const std::size_t place =
        text.find("'E'") != std::string::npos ? text.find("'E'") + 1 : text.find("\"E\"") + 1;
    if (place == 0)
        return text;
    declared_ = oneOf({"UTF-8", "utf-8", "UTF-8", "ISO-8859-1", "iso-8859-1", "UTF-16"});
    if (slipsOutside())
        declared_ = oneOf({"windows-1252", "latin1", "ISO_8859-1", "US-ASCII", "ISO-8859-15",
                           "KOI8-R", "Shift_JIS", "UTF-32", "UTF8", "UTF-16LE", "cp1252", "x-foo",
                           "IBM037", "UTF-7", "ISO-2022-JP", " UTF-8", "ISO-8859-1 ", "GB18030"});
    return text.replace(place, 1, declared_);
}

std::string SlipChooser::prolog() {
    std::string text = oneIn(3) ? "" : declaration();
    text += between();
    if (isUnusual())
        text += oneOf(slip::doctypes());
    else if (slipsOutside())
        text += oneOf(slip::oddDoctypes());
    return text + between();
}

std::string SlipChooser::epilog() {
    if (slipsOutside())
        return oneOf(slip::oddBetween()) + oneOf({"", "<RecPackage/>", "<more/>", "\n"});
    return isUnusual() ? between() + "\n" + between() : "";
}

std::string SlipChooser::attributes() {
    if (slips())
        return oneOf({" other='1'", " xml:lang='de'", "other='1'", " other", " other=1",
                      " GrowerID='1'", " xmlns:p='x' p:a='1'", " a='<'", " a='&x;'",
                      " xml:lang='1' xml:lang='2'", " xmlns='a' xmlns='b'", " xml:x='&#0;'",
                      " xmlns='&x;'", " xml:x='a<b'", " xml:x='\x01'", " xml:x='\xFF'",
                      " xmlns:p=''", " xsi:type='x'", "\u00A0"});
    return isUnusual() ? oneOf({" xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'",
                                " xml:space='preserve'", " xmlns='x'", "\n"})
                       : "";
}

std::string SlipChooser::name(const char* name) {
    std::string text = name;
    if (!slips())
        return text;
    std::string lower = text;
    std::string upper = text;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] >= 'A' && text[i] <= 'Z')
            lower[i] = static_cast<char>(text[i] + 32);
        if (text[i] >= 'a' && text[i] <= 'z')
            upper[i] = static_cast<char>(text[i] - 32);
    }
    return oneOf({lower, upper, text.substr(1), "p:" + text, text + ":", text + "s", "Rec", "Total",
                  text + "\u00E9", "1" + text, "-" + text, text + "\x01", text + "&", "\u00D7"});
}

std::string SlipChooser::bytes(const std::string& text) {
    const bool slip = slipsOutside();
    const std::string encoding =
        slip ? oneOf({"UTF-8", "UTF-16", "UTF-32", "ISO-8859-1"}) : declared_;
    const std::u32string all = (oneIn(3) ? U"\uFEFF" : U"") + characters(text);
    const bool bigEndian = oneIn(2);
    if (encoding.substr(0, 6) == "UTF-16")
        return inUnitsOf(2, bigEndian, inSurrogates(all));
    if (encoding == "UTF-32")
        return inUnitsOf(4, bigEndian, all);
    if (encoding != "UTF-8" && encoding != "utf-8" && (!slip || oneIn(2)))
        return inOneByte(characters(text));
    return isUnusual() ? "\uFEFF" + text : text;
}

} // namespace test

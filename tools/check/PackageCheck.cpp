#include "tools/check/PackageCheck.h"

#include <cstddef>
#include <locale>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include <boost/algorithm/string/predicate.hpp>
#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/check/FindingCollection.h"
#include "tools/check/FirstAid.h"
#include "tools/check/OpenElement.h"
#include "tools/check/PackageWalk.h"
#include "tools/check/PlacedFindings.h"
#include "tools/check/SecondReader.h"
#include "tools/files/OriginalName.h"
#include "tools/files/PackageUuid.h"
#include "tools/text/Encoding.h"
#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"

namespace {

/// Adds a finding that is about no element.
void add(FindingSink& sink, FindingCode code, std::string found, Consequence consequence,
         std::optional<Location> location = std::nullopt) {
    sink.offer({code, std::move(found), std::move(consequence), std::move(location)});
}

void checkName(const std::string& path, FindingSink& sink) {
    const auto original = originalName(path);
    const std::string expected =
        original ? "rename it to " + *original
                 : fmt::format("a name such as {} is expected", packageNameForm);
    if (path.size() < shortestPackagePath) {
        add(sink, FindingCode::PathTooShort,
            fmt::format("the path has {} of at least {} bytes; {}", path.size(),
                        shortestPackagePath, expected),
            NothingRead{});
        return;
    }
    const auto uuid = packageUuid(path);
    if (!uuid)
        add(sink, FindingCode::NameWithoutUuid, "the file name holds no package UUID; " + expected,
            NothingRead{});
    else if (!isNamedByUuid(path) && original != to_string(*uuid) + ".xml")
        add(sink, FindingCode::NameNotUuid, "the file is not named by a UUID; " + expected,
            ReadAs{to_string(*uuid)});
}

/// Where the first byte is that belongs to no character.
std::optional<std::size_t> firstInvalidByte(std::string_view text) {
    std::size_t offset = asciiLength(text);
    while (offset < text.size()) {
        const Utf8Character character = firstCharacter(text.substr(offset));
        if (!character.valid)
            return offset;
        offset += character.length;
        offset += asciiLength(text.substr(offset));
    }
    return std::nullopt;
}

/// That the declaration of a text names another encoding than UTF-8, in which it is read.
std::string describeDeclaration(const SourceText& source) {
    const std::string_view name = source.declaredEncoding();
    if (name.empty() || boost::algorithm::iequals(name, "UTF-8", std::locale::classic()))
        return "";
    return fmt::format(" although its declaration says \"{}\"", escapeExcerpt(name));
}

/// What is found of a text before its elements are walked: each has one place in it.
class WholeText {
public:
    WholeText(const SourceText& source, pugi::xml_encoding encoding, PlacedFindings& all)
        : source_(source),
          encoding_(encoding),
          all_(all),
          invalidByte_(firstInvalidByte(source.text())) {}

    void invalidUtf8() {
        if (!invalidByte_)
            return;
        all_.put(FindingCode::InvalidUtf8, {*invalidByte_, 1},
                 fmt::format("the byte {} is not UTF-8, in which the file is read{}",
                             escape(source_.text().substr(*invalidByte_, 1)),
                             describeDeclaration(source_)));
    }

    /// What other programs make of it.
    void second(const SecondReading& reading) {
        ignoredEncoding(reading);
        if (reading.doctype) {
            constexpr std::string_view beginning = "<!DOCTYPE";
            all_.put(FindingCode::DoctypeIgnored,
                     {source_.text().rfind(beginning, *reading.doctype), beginning.size()},
                     "a DOCTYPE declares something, or names a file that does");
        }
        if (reading.refusal)
            all_.put(FindingCode::RefusedByOthers, {reading.refusal->offset, 0},
                     reading.refusal->reason);
    }

private:
    void ignoredEncoding(const SecondReading& reading) {
        const std::string_view name = source_.declaredEncoding();
        const auto is = [&](const char* other) {
            return boost::algorithm::iequals(name, other, std::locale::classic());
        };
        // The finding about bytes that are not UTF-8 names the declaration, too.
        if (encoding_ != pugi::encoding_utf8 || name.empty() || is("UTF-8") || is("US-ASCII") ||
            invalidByte_ || asciiLength(source_.text()) == source_.text().size())
            return;
        const auto offset = static_cast<std::size_t>(name.data() - source_.text().data());
        if (reading.refusal && reading.refusal->offset == offset)
            return;
        all_.put(FindingCode::EncodingIgnored, {offset, name.size()},
                 fmt::format("the declaration says \"{}\", but the file is read as UTF-8",
                             escapeExcerpt(name)));
    }

    const SourceText& source_;
    pugi::xml_encoding encoding_;
    PlacedFindings& all_;
    std::optional<std::size_t> invalidByte_;
};

/// Why the XML library could not load a text.
std::string describeFault(const SourceText& source, std::size_t fileSize,
                          const pugi::xml_parse_result& loaded) {
    if (const auto aid = firstAid(source.text(), fileSize))
        return fmt::format("{}; {}", aid->what, aid->cure);
    std::string text = fmt::format("not well-formed: {}", loaded.description());
    if (loaded.status != pugi::status_end_element_mismatch)
        return text;
    const std::string_view before =
        source.text().substr(0, static_cast<std::size_t>(loaded.offset));
    const OpenMarkup open = openMarkup(before.substr(0, before.rfind("</")));
    if (!open.elements.empty())
        text += fmt::format("; {} of line {} has not ended here",
                            escapeExcerpt(open.elements.back().name),
                            source.position(open.elements.back().offset).line);
    return text;
}

void checkContent(std::string bytes, FindingSink& sink) {
    const std::size_t fileSize = bytes.size();
    const pugi::xml_encoding encoding = encodingOf(bytes);
    const SecondReading second = readAgain(bytes, encoding);
    const SourceText source(std::move(bytes));
    pugi::xml_document document;
    const pugi::xml_parse_result loaded = source.load(document);
    if (loaded.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    PlacedFindings all(source, sink);
    WholeText text(source, encoding, all);
    text.invalidUtf8();
    if (loaded) {
        text.second(second);
        walkPackage(document, source, all);
    } else {
        add(all, FindingCode::NotWellFormed, describeFault(source, fileSize, loaded), NothingRead{},
            source.location({static_cast<std::size_t>(loaded.offset), 0}));
    }
    all.finish();
}

} // namespace

void checkPackage(const std::string& path, FindingSink& sink) {
    checkPackage(path, readFileContent(path), sink);
}

void checkPackage(const std::string& path, FileContent content, FindingSink& sink) {
    if (!content.failure.empty()) {
        // Its name means nothing: it may be the name that is mistyped.
        add(sink, FindingCode::Unreadable, content.failure, NothingRead{});
        return;
    }
    checkName(path, sink);
    checkContent(std::move(content.bytes), sink);
}

std::vector<Finding> checkPackage(const std::string& path) {
    FindingCollection all;
    checkPackage(path, all);
    return all.kept();
}

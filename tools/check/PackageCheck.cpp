#include "tools/check/PackageCheck.h"

#include <cstddef>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/check/EncodingCheck.h"
#include "tools/check/FindingCollection.h"
#include "tools/check/FirstAid.h"
#include "tools/check/OpenElement.h"
#include "tools/check/PackageWalk.h"
#include "tools/check/PlacedFindings.h"
#include "tools/check/PlainXml.h"
#include "tools/check/SecondReader.h"
#include "tools/files/OriginalName.h"
#include "tools/files/PackageUuid.h"
#include "tools/text/Encoding.h"
#include "tools/text/Escape.h"

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

/// What other programs find in a text, or do not.
void second(const SecondReading& reading, const SourceText& source, PlacedFindings& all) {
    if (reading.doctype) {
        constexpr std::string_view beginning = "<!DOCTYPE";
        all.put(FindingCode::DoctypeIgnored,
                {source.text().rfind(beginning, *reading.doctype), beginning.size()},
                "a DOCTYPE declares something, or names a file that does");
    }
    if (reading.refusal)
        all.put(FindingCode::RefusedByOthers, {reading.refusal->offset, 0},
                reading.refusal->reason);
}

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
    const SecondReading reading = isPlainXml(bytes) ? SecondReading() : readAgain(bytes, encoding);
    const std::string letter = mistakenLetter(bytes, encoding);
    const SourceText source(std::move(bytes));
    pugi::xml_document document;
    const pugi::xml_parse_result loaded = source.load(document);
    if (loaded.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    PlacedFindings all(source, sink);
    const EncodingCheck encodings(source);
    encodings.invalidUtf8(all);
    if (loaded) {
        encodings.mistaken(letter, reading, all);
        second(reading, source, all);
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

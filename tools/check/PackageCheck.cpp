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
#include "tools/files/OriginalName.h"
#include "tools/files/PackageUuid.h"
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
    std::size_t offset = 0;
    while (offset < text.size()) {
        if (static_cast<unsigned char>(text[offset]) < 0x80) {
            ++offset;
            continue;
        }
        const Utf8Character character = firstCharacter(text.substr(offset));
        if (!character.valid)
            return offset;
        offset += character.length;
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

/// Hands on what else is found in a text, and in its place that the text is not UTF-8.
class Utf8Check : public FindingSink {
public:
    Utf8Check(const SourceText& source, FindingSink& sink)
        : source_(source), sink_(sink), offset_(firstInvalidByte(source.text())) {}

    bool wants(FindingCode code) const override { return sink_.wants(code); }
    void add(const Finding& other) override {
        if (offset_ && *offset_ < other.location->extent.offset)
            finish();
        sink_.add(other);
    }
    void addCode(FindingCode code) override { sink_.addCode(code); }
    void progress(double part) override { sink_.progress(part); }

    /// Nothing else comes.
    void finish() {
        if (const std::optional<std::size_t> offset = std::exchange(offset_, std::nullopt))
            ::add(sink_, FindingCode::InvalidUtf8,
                  fmt::format("the byte {} is not UTF-8, in which the file is read{}",
                              escape(source_.text().substr(*offset, 1)),
                              describeDeclaration(source_)),
                  Kept{}, source_.location({*offset, 1}));
    }

private:
    const SourceText& source_;
    FindingSink& sink_;
    std::optional<std::size_t> offset_; ///< Of the first byte that is not UTF-8.
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
    const SourceText source(std::move(bytes));
    pugi::xml_document document;
    const pugi::xml_parse_result loaded = source.load(document);
    if (loaded.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    Utf8Check all(source, sink);
    if (loaded)
        walkPackage(document, source, all);
    else
        add(all, FindingCode::NotWellFormed, describeFault(source, fileSize, loaded), NothingRead{},
            source.location({static_cast<std::size_t>(loaded.offset), 0}));
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

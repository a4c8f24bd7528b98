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

#include "tools/check/OpenElement.h"
#include "tools/check/PackageWalk.h"
#include "tools/files/FileContent.h"
#include "tools/files/PackageUuid.h"
#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"

namespace {

/// Keeps everything.
class FindingList : public FindingSink {
public:
    bool wants(FindingCode) override { return true; }
    void add(const Finding& finding) override { findings_.push_back(finding); }

    std::vector<Finding> take() { return std::move(findings_); }

private:
    std::vector<Finding> findings_;
};

/// Adds a finding about the file as a whole.
void addAboutFile(FindingSink& sink, FindingCode code, std::string found, std::string consequence) {
    if (!sink.wants(code))
        return;
    Finding finding;
    finding.code = kindOf(code).code;
    finding.severity = kindOf(code).severity;
    finding.found = std::move(found);
    finding.consequence = std::move(consequence);
    sink.add(finding);
}

/// A finding about a place that is in no element.
Finding findingAt(FindingCode code, const SourceText& source, std::size_t offset, std::string found,
                  std::string consequence) {
    Finding finding;
    finding.code = kindOf(code).code;
    finding.severity = kindOf(code).severity;
    finding.position = source.position(offset);
    finding.excerpt = source.excerpt(offset);
    finding.found = std::move(found);
    finding.consequence = std::move(consequence);
    return finding;
}

void checkName(const std::string& path, FindingSink& sink) {
    const std::string expected = fmt::format("a name such as {} is expected", packageNameForm);
    if (path.size() < shortestPackagePath) {
        addAboutFile(sink, FindingCode::PathTooShort,
                     fmt::format("the path has {} of at least {} bytes; {}", path.size(),
                                 shortestPackagePath, expected),
                     "nothing of the file is read when it is given by this path");
        return;
    }
    const auto uuid = packageUuid(path);
    if (!uuid)
        addAboutFile(sink, FindingCode::NameWithoutUuid,
                     "the file name holds no package UUID; " + expected,
                     "nothing of the file is read");
    else if (!isNamedByUuid(path))
        addAboutFile(sink, FindingCode::NameNotUuid, "the file is not named by a UUID; " + expected,
                     "the recs carry the package UUID " + to_string(*uuid));
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
    Utf8Check(const SourceText& source, FindingSink& sink) : sink_(sink) {
        const std::optional<std::size_t> offset = firstInvalidByte(source.text());
        if (!offset)
            return;
        finding_ = findingAt(
            FindingCode::InvalidUtf8, source, *offset,
            fmt::format("the byte {} is not UTF-8, in which the file is read{}",
                        escape(source.text().substr(*offset, 1)), describeDeclaration(source)),
            "this and the like are passed on as they are; hosts may not show them");
    }

    bool wants(FindingCode code) override { return sink_.wants(code); }
    void add(const Finding& other) override {
        if (finding_ && isBefore(*finding_->position, *other.position))
            finish();
        sink_.add(other);
    }
    void progress(double part) override { sink_.progress(part); }

    /// Nothing else comes.
    void finish() {
        if (finding_ && sink_.wants(FindingCode::InvalidUtf8))
            sink_.add(*finding_);
        finding_.reset();
    }

private:
    static bool isBefore(const Position& a, const Position& b) {
        return a.line < b.line || (a.line == b.line && a.column < b.column);
    }

    FindingSink& sink_;
    std::optional<Finding> finding_;
};

/// Why the XML library could not load a text.
std::string describeFault(const SourceText& source, const pugi::xml_parse_result& loaded) {
    if (source.text().empty())
        return "not well-formed: the file is empty";
    std::string text = fmt::format("not well-formed: {}", loaded.description());
    if (loaded.status != pugi::status_end_element_mismatch)
        return text;
    const std::string_view before =
        source.text().substr(0, static_cast<std::size_t>(loaded.offset));
    const auto open = innermostOpenElement(before.substr(0, before.rfind("</")));
    if (open)
        text += fmt::format("; {} of line {} has not ended here", escapeExcerpt(open->name),
                            source.position(open->offset).line);
    return text;
}

void checkContent(std::string bytes, FindingSink& sink) {
    const SourceText source(std::move(bytes));
    pugi::xml_document document;
    const pugi::xml_parse_result loaded = source.load(document);
    if (loaded.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    Utf8Check all(source, sink);
    if (loaded)
        walkPackage(document, source, all);
    else if (all.wants(FindingCode::NotWellFormed))
        all.add(findingAt(FindingCode::NotWellFormed, source,
                          static_cast<std::size_t>(loaded.offset), describeFault(source, loaded),
                          "nothing of the file is read"));
    all.finish();
}

} // namespace

void checkPackage(const std::string& path, FindingSink& sink) {
    FileContent content = readFileContent(path);
    if (!content.failure.empty()) {
        // Its name means nothing: it may be the name that is mistyped.
        addAboutFile(sink, FindingCode::Unreadable, content.failure, "nothing of the file is read");
        return;
    }
    checkName(path, sink);
    checkContent(std::move(content.bytes), sink);
}

std::vector<Finding> checkPackage(const std::string& path) {
    FindingList list;
    checkPackage(path, list);
    return list.take();
}

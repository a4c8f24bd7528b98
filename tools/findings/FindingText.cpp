#include "tools/findings/FindingText.h"

#include <array>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "tools/text/Words.h"

namespace {

/// Makes the sentence about each kind of consequence.
class Sentence {
public:
    /// @param own the sentence of the code; may be empty
    explicit Sentence(std::string_view own) : own_(own) {}

    std::string operator()(const Kept&) const { return about("it is kept as it is"); }
    std::string operator()(const Dropped& dropped) const {
        return about("the element is skipped with everything in it", dropped.what);
    }
    std::string operator()(const ReadAs& read) const {
        return (read.onceComplete ? "once the product is complete, " : "") +
               about("it is read as {}", read.value);
    }
    std::string operator()(const Replaces& other) const {
        return fmt::format("the {} at line {} is replaced by this one and lost{}", other.record,
                           other.line, lostWith(other));
    }
    std::string operator()(const Without& without) const {
        constexpr std::array<std::string_view, 3> sentences = {
            "the rec is kept without product data", "the rec has no operation",
            "the rec has no season"};
        std::string text(about(sentences.at(static_cast<std::size_t>(without.part))));
        if (!without.name.empty())
            text += fmt::format("; its name \"{}\" is dropped", without.name);
        if (!without.nextError.empty())
            text += "; once it is complete, reading fails because " + without.nextError;
        return text;
    }
    std::string operator()(const NothingRead&) const {
        return about("nothing of the file is read");
    }
    std::string operator()(const ReadingEnds& end) const {
        return "this grower and the rest of the file are not read; " +
               (end.growers == 0 ? "no grower is" : thoseBefore(end.growers, "grower"));
    }
    std::string operator()(const NotReached& end) const {
        if (end.sameGrower)
            return fmt::format("this grower is not read because of line {}; it is not enough to "
                               "mend that alone",
                               end.line);
        return fmt::format("reading ends before this, because of line {}; once {} mended, it ends "
                           "here",
                           end.line,
                           end.errors == 1 ? "that is" : thoseBefore(end.errors, "error"));
    }
    std::string operator()(const CheckEnds&) const { return "the check ends here"; }
    std::string operator()(const Merges& merges) const {
        std::vector<std::string> others;
        std::vector<std::string> never;
        for (std::size_t i = 1; i < merges.versions.size(); ++i)
            (merges.versions[i].canCount ? others : never).push_back(merges.versions[i].file);
        if (merges.more > 0)
            others.push_back(fmt::format("{} more", merges.more));
        std::string text = "in this order a terminal shows that of " + merges.versions.front().file;
        text +=
            others.empty() ? ", and so in any" : ", in others that of " + joined(others, " or ");
        if (!never.empty())
            text += fmt::format("; never that of {}", joined(never, " or "));
        if (merges.editedLast)
            text += fmt::format("; that of {} was edited last",
                                merges.versions.at(*merges.editedLast).file);
        return text;
    }

private:
    /// @param usual the sentence about most consequences of a kind
    std::string about(std::string_view usual, std::string_view value = {}) const {
        return fmt::format(fmt::runtime(own_.empty() ? usual : own_), value);
    }

    static std::string lostWith(const Replaces& other) {
        std::vector<std::string> lost;
        if (other.fields > 0)
            lost.push_back(quantity(other.fields, "field"));
        if (other.fields + other.recs > 0)
            lost.push_back(quantity(other.recs, "rec"));
        return lost.empty() ? "" : " with its " + joined(lost);
    }

    std::string_view own_;
};

} // namespace

std::string consequenceText(const Finding& finding) {
    return std::visit(Sentence(kindOf(finding.code).consequence), finding.consequence);
}

std::string recordsText(const Finding& finding) {
    std::vector<std::string> named;
    for (const RecordName& record : finding.records) {
        if (!record.name.empty())
            named.push_back(fmt::format("{} \"{}\"", record.kind, record.name));
    }
    return joined(named, ", ");
}

std::string countsText(const FindingCounts& counts) {
    std::vector<std::string> texts;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        if (const std::size_t number = counts.of(severity); number > 0)
            texts.push_back(quantity(number, wordFor(severity)));
    }
    return texts.empty() ? "no problems found" : joined(texts, ", ");
}

#include "tools/diff/DiffText.h"

#include <array>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/compare/RecordNames.h"
#include "tools/findings/FindingText.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"

namespace {

class DiffText : public DiffWriter {
public:
    explicit DiffText(Console& console) : console_(console), style_(console.style()) {}

    void add(const RecordDifference& difference) override {
        ++counts_.at(static_cast<std::size_t>(difference.kind));
        std::string text = title(difference);
        for (const ValueChange& change : difference.changes)
            text += fmt::format("    {} {} -> {}\n", style_.label(change.from.name),
                                style_.error(valueText(change.from)),
                                style_.remark(valueText(change.to)));
        console_.print(text);
    }

    void end(std::size_t /*unread*/) override {
        std::vector<std::string> sums;
        for (std::size_t kind = 0; kind < counts_.size(); ++kind) {
            if (counts_.at(kind) > 0)
                sums.push_back(
                    fmt::format("{} {}", quantity(counts_.at(kind), "record"), words.at(kind)));
        }
        if (!sums.empty())
            console_.print(fmt::format("\n{}\n", joined(sums, ", ")));
    }

private:
    static constexpr std::array<std::string_view, 3> words = {"removed", "changed", "added"};

    /// What became of which record, and where it stands.
    std::string title(const RecordDifference& difference) const {
        const std::string_view word = words.at(static_cast<std::size_t>(difference.kind));
        std::vector<RecordName> records = namesOf(difference.record);
        const RecordName own = records.back();
        records.pop_back();
        std::vector<std::string> around;
        around.reserve(records.size());
        for (const RecordName& record : records)
            around.push_back(fmt::format("{} \"{}\"", record.kind, record.name));
        return fmt::format(
            "{} {} {}  {}\n{}    {} {}\n",
            difference.kind == DifferenceKind::Removed ? style_.error(word) : style_.remark(word),
            style_.kind(own.kind), style_.name('"' + own.name + '"'),
            style_.identifier(to_string(*own.id)),
            around.empty() ? ""
                           : fmt::format("    {} {}\n", style_.label("of"), joined(around, ", ")),
            style_.label("in"), files(difference));
    }

    static std::string files(const RecordDifference& difference) {
        if (difference.from.empty() || difference.to.empty())
            return escape(difference.from + difference.to);
        return fmt::format("{} -> {}", escape(difference.from), escape(difference.to));
    }

    Console& console_;
    const Style& style_;
    std::array<std::size_t, 3> counts_{};
};

} // namespace

std::unique_ptr<DiffWriter> makeDiffText(Console& console) {
    return std::make_unique<DiffText>(console);
}

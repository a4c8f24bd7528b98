#ifndef QENXML_TOOLS_CHECK_CHECKREPORT_H
#define QENXML_TOOLS_CHECK_CHECKREPORT_H

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/check/Finding.h"
#include "tools/text/SourceText.h"

/// Where the check of a package is, and the way of its findings to their sink.
class CheckReport {
public:
    /// What is said of a finding. The consequence of an error is the same for all of them and left
    /// out.
    struct Details {
        std::string found;
        Consequence consequence = {};
    };
    using MakeDetails = std::function<Details()>;

    CheckReport(const SourceText& source, FindingSink& sink) : source_(source), sink_(sink) {}

    const SourceText& source() const { return source_; }

    /// Adds a finding about the element that the check is in, or about something in it. Findings
    /// come in the order of the file: they are handed on at once, as there may be more of them than
    /// fit into memory.
    ///
    /// @param extent what of the source it is about
    /// @param step   the last step of the path, such as "@RecID"; empty for the element itself
    /// @param make   called only when the details are wanted
    void add(FindingCode code, Extent extent, std::string_view step, const MakeDetails& make);

    /// As above, about a node.
    void add(FindingCode code, pugi::xml_node node, std::string_view step,
             const MakeDetails& make) {
        add(code, source_.extent(node), step, make);
    }

    /// Does several checks of one value, whose findings are put in the order of the file. There are
    /// few of them.
    void inOrder(const std::function<void()>& checks);

    /// The check comes to the next grower.
    void beginGrower() { ++grower_; }

    /// The check has come so far.
    void progress(std::size_t offset) {
        sink_.progress(static_cast<double>(offset) / static_cast<double>(source_.text().size()));
    }

    /// The line of an offset in the source.
    std::size_t line(std::size_t offset) const { return source_.position(offset).line; }

    /// Being in an element, from construction to destruction.
    class Inside {
    public:
        /// @param name   of the element, which lives longer; empty for a text
        /// @param number among its siblings of the same name, shown in the path; 0 for none
        Inside(CheckReport& report, const char* name, std::size_t number = 0) : report_(report) {
            report.path_.emplace_back(name, number);
        }
        Inside(const Inside&) = delete;
        Inside& operator=(const Inside&) = delete;
        ~Inside() { report_.path_.pop_back(); }

    private:
        CheckReport& report_;
    };

    /// Being in a record, from construction to destruction.
    class InRecord {
    public:
        /// @param kind and @p name live longer; the name is that of the package
        InRecord(CheckReport& report, const char* kind, const char* name,
                 std::optional<boost::uuids::uuid> id)
            : report_(report) {
            report.records_.push_back({kind, name, id});
        }
        InRecord(const InRecord&) = delete;
        InRecord& operator=(const InRecord&) = delete;
        ~InRecord() { report_.records_.pop_back(); }

    private:
        CheckReport& report_;
    };

private:
    /// A record that the check is in, with its name as the package has it.
    struct OpenRecord {
        const char* kind;
        const char* name;
        std::optional<boost::uuids::uuid> id;
    };

    void noteError(std::size_t offset);
    std::vector<RecordName> recordNames() const;
    Consequence errorConsequence() const;
    std::string path(std::string_view step) const;

    const SourceText& source_;
    FindingSink& sink_;
    std::vector<std::pair<const char*, std::size_t>> path_;
    std::vector<OpenRecord> records_;
    std::optional<std::vector<Finding>> held_; ///< While they are put in order.
    std::size_t grower_ = 0;                   ///< Number of the grower, from 1.
    std::size_t errors_ = 0;
    std::optional<std::size_t> firstError_;
    std::size_t growerOfFirstError_ = 0;
};

#endif

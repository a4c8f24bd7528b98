#ifndef QENXML_TOOLS_CHECK_CHECKREPORT_H
#define QENXML_TOOLS_CHECK_CHECKREPORT_H

#include <cstddef>
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
    /// What a finding says. The consequence of an error is the same for all of them and left empty.
    struct Texts {
        std::string found;
        std::string consequence;
    };

    CheckReport(const SourceText& source, FindingSink& sink) : source_(source), sink_(sink) {}

    const SourceText& source() const { return source_; }

    /// Adds a finding about the element that the check is in, or about something in it. Findings
    /// come in the order of their places: they are handed on at once, as there may be more of them
    /// than fit into memory.
    ///
    /// @param offset    where it is in the source
    /// @param step      the last step of the path, such as "@RecID"; empty for the element itself
    /// @param makeTexts returns the texts; called only when they are wanted
    template <class MakeTexts>
    void add(FindingCode code, std::size_t offset, std::string_view step, MakeTexts makeTexts) {
        const bool error = kindOf(code).severity == Severity::Error;
        if (sink_.wants(code)) {
            Texts texts = makeTexts();
            if (error)
                texts.consequence = errorConsequence();
            send(code, offset, step, std::move(texts));
        }
        if (error)
            noteError(offset);
    }

    /// The check comes to the next grower.
    void beginGrower() { ++grower_; }

    /// The check has come so far.
    void reach(std::size_t offset) {
        sink_.progress(static_cast<double>(offset) / static_cast<double>(source_.text().size()));
    }

    /// The line of a place in the source.
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
        /// @param kind what it is: "farm"
        /// @param name what it is called; lives longer
        InRecord(CheckReport& report, const char* kind, const char* name) : report_(report) {
            report.records_.emplace_back(kind, name);
        }
        InRecord(const InRecord&) = delete;
        InRecord& operator=(const InRecord&) = delete;
        ~InRecord() { report_.records_.pop_back(); }

    private:
        CheckReport& report_;
    };

private:
    void send(FindingCode code, std::size_t offset, std::string_view step, Texts texts);
    void noteError(std::size_t offset);
    std::string errorConsequence() const;
    std::string path(std::string_view step) const;
    std::string records() const;

    const SourceText& source_;
    FindingSink& sink_;
    std::vector<std::pair<const char*, std::size_t>> path_;
    std::vector<std::pair<const char*, const char*>> records_;
    std::size_t grower_ = 0; ///< Number of the grower, from 1.
    std::size_t errors_ = 0;
    std::optional<std::size_t> firstError_;
    std::size_t growerOfFirstError_ = 0;
};

#endif

#ifndef QENXML_TOOLS_FINDINGS_BASELINE_H
#define QENXML_TOOLS_FINDINGS_BASELINE_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

/// The findings of an earlier check, by their fingerprints: how many there are of each.
class Baseline {
public:
    /// Nothing is known.
    Baseline() = default;

    /// Reads what `qenxml check --format sarif` wrote.
    ///
    /// @throws std::invalid_argument with a sentence, when a file is something else
    explicit Baseline(const std::string& path);

    bool isEmpty() const { return counts_.empty(); }

    /// Whether there is one more finding with a fingerprint, which is taken out.
    bool take(std::uint64_t fingerprint);

private:
    std::map<std::uint64_t, std::size_t> counts_;
};

#endif

#include "tools/check/FindingCollection.h"

#include <numeric>

FindingCounts& FindingCounts::operator+=(const FindingCounts& other) {
    for (std::size_t i = 0; i < counts_.size(); ++i)
        counts_[i] += other.counts_[i];
    return *this;
}

std::size_t FindingCounts::of(Severity severity) const {
    std::size_t sum = 0;
    for (std::size_t i = 0; i < counts_.size(); ++i)
        sum += findingKinds[i].severity == severity ? counts_[i] : 0;
    return sum;
}

std::size_t FindingCounts::sum() const {
    return std::accumulate(counts_.begin(), counts_.end(), std::size_t{0});
}

void FindingCollection::add(const Finding& finding) {
    counts_.add(finding.code);
    kept_.push_back(finding);
}

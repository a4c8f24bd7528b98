#ifndef QENXML_TOOLS_OUTPUT_PROGRESSLINE_H
#define QENXML_TOOLS_OUTPUT_PROGRESSLINE_H

#include <chrono>
#include <cstddef>
#include <string>

#include "tools/output/Console.h"

/// Shows how far a work over many files is, once it takes long.
class ProgressLine {
public:
    using Clock = std::chrono::steady_clock;

    /// @param delay how long nothing is shown
    ProgressLine(Console& console, Clock::duration delay)
        : console_(console), next_(Clock::now() + delay) {}

    /// The work comes to the next file.
    void beginFile(const std::string& path);

    /// How much of that file is done, from 0 to 1.
    void advance(double part);

private:
    Console& console_;
    Clock::time_point next_; ///< When to show something.
    std::size_t file_ = 0;
    std::string path_;
};

#endif

#include "tools/output/ProgressLine.h"

#include <fmt/format.h>

#include "tools/text/Escape.h"
#include "tools/text/Words.h"

void ProgressLine::beginFile(const std::string& path) {
    ++file_;
    path_ = path;
    advance(0);
}

void ProgressLine::advance(double part) {
    constexpr std::chrono::milliseconds interval(100);
    constexpr double percent = 100;
    const Clock::time_point now = Clock::now();
    if (now < next_)
        return;
    next_ = now + interval;
    console_.showProgress(fmt::format("file {}, {:.0f} % of it: {}",
                                      grouped(std::to_string(file_), ","), part * percent,
                                      escapeExcerpt(path_)));
}

#include "tests/robustness/linear/ExecutedBlocks.h"

namespace {

std::size_t blocks = 0;

} // namespace

// The compiler puts a call of this function into every basic block.
extern "C" void __sanitizer_cov_trace_pc(); // NOLINT(bugprone-reserved-identifier)

void __sanitizer_cov_trace_pc() { // NOLINT(bugprone-reserved-identifier)
    ++blocks;
}

namespace test {

std::size_t executedBlocks() {
    return blocks;
}

} // namespace test

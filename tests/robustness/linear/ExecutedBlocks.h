/// @file
/// Counts the work of the library: the basic blocks of its code that are executed, among them each
/// turn of each loop. Unlike time, the count is the same in every run. The library's sources are
/// compiled for this with -fsanitize-coverage=trace-pc.

#ifndef QENXML_TESTS_ROBUSTNESS_LINEAR_EXECUTEDBLOCKS_H
#define QENXML_TESTS_ROBUSTNESS_LINEAR_EXECUTEDBLOCKS_H

#include <cstddef>

namespace test {

/// How many there ever were.
std::size_t executedBlocks();

} // namespace test

#endif

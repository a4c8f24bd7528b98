/// @file
/// How a fuzz target states what must hold.

#ifndef QENXML_FUZZ_REQUIRE_H
#define QENXML_FUZZ_REQUIRE_H

#include <cstdio>
#include <cstdlib>

/// Stops the program, as libFuzzer expects it of a finding.
inline void require(bool condition, const char* what) {
    if (condition)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

#endif

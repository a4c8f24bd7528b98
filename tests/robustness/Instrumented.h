/// @file
/// Whether this program was built with a sanitizer.

#ifndef QENXML_TESTS_ROBUSTNESS_INSTRUMENTED_H
#define QENXML_TESTS_ROBUSTNESS_INSTRUMENTED_H

#ifdef __has_feature // clang
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define QENXML_BUILT_WITH_SANITIZERS
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) // g++
#define QENXML_BUILT_WITH_SANITIZERS
#endif

namespace test {

/// Sanitizers cost time and memory several times over, so that the largest tests shrink with them.
#ifdef QENXML_BUILT_WITH_SANITIZERS
inline constexpr bool builtWithSanitizers = true;
#else
inline constexpr bool builtWithSanitizers = false;
#endif

} // namespace test

#endif

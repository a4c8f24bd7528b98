/// @file
/// What the shared library exports, and that a program fits it.

#ifndef QENXML_MODEL_QENEXPORT_H
#define QENXML_MODEL_QENEXPORT_H

#include <string> // which says in what modes the standard library is

/// @def QENXML_EXPORT
/// Marks a class that the shared library exports; everything else stays hidden.

/// @def QENXML_LOCAL
/// Hides a private member of an exported class.

#if defined(__GNUC__)
#define QENXML_EXPORT __attribute__((visibility("default")))
#define QENXML_LOCAL __attribute__((visibility("hidden")))
#else
#define QENXML_EXPORT
#define QENXML_LOCAL
#endif

/// @cond
// A program and a library that are compiled in different modes take each other's objects for
// something else. So each mode has a function, which the library defines in its own mode only and
// which the program needs in its own: linking fails, and the name of what is missing says why.

#if defined(__has_attribute)
#if __has_attribute(retain) // by linkers that leave out what nothing uses
#define QENXML_RETAIN __attribute__((used, retain))
#endif
#endif
#if !defined(QENXML_RETAIN)
#if defined(__GNUC__)
#define QENXML_RETAIN __attribute__((used))
#else
#define QENXML_RETAIN
#endif
#endif

/// Needs the function @p mode of the library. The pointer has a name for each mode: programs may
/// be put together from several.
#define QENXML_REQUIRE(mode)                                                                       \
    namespace qenxml {                                                                             \
    QENXML_EXPORT void mode();                                                                     \
    QENXML_LOCAL QENXML_RETAIN inline void (*const mode##_)() = mode;                              \
    }

#if defined(_GLIBCXX_DEBUG)
#define QENXML_CONTAINERS this_program_is_compiled_with_GLIBCXX_DEBUG_and_its_libqenxml_without
#else
#define QENXML_CONTAINERS this_program_is_compiled_without_GLIBCXX_DEBUG_and_its_libqenxml_with
#endif
QENXML_REQUIRE(QENXML_CONTAINERS)

#if defined(_GLIBCXX_USE_CXX11_ABI) && !_GLIBCXX_USE_CXX11_ABI
#define QENXML_STRINGS                                                                             \
    this_program_is_compiled_with_GLIBCXX_USE_CXX11_ABI_0_and_its_libqenxml_with_1
#else
#define QENXML_STRINGS                                                                             \
    this_program_is_compiled_with_GLIBCXX_USE_CXX11_ABI_1_and_its_libqenxml_with_0
#endif
QENXML_REQUIRE(QENXML_STRINGS)
/// @endcond

#endif

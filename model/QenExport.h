/// @file
/// What the shared library exports.

#ifndef QENXML_MODEL_QENEXPORT_H
#define QENXML_MODEL_QENEXPORT_H

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

#endif

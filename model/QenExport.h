/// @file
/// Marks what the shared library exports; everything else stays hidden.

#ifndef QENXML_MODEL_QENEXPORT_H
#define QENXML_MODEL_QENEXPORT_H

#if defined(__GNUC__)
#define QENXML_EXPORT __attribute__((visibility("default")))
#else
#define QENXML_EXPORT
#endif

#endif

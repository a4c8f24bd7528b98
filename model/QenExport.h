/// @file
/// QENXML_EXPORT marks what the shared library exports; everything else stays hidden. QENXML_LOCAL
/// hides a private member of an exported class.

#ifndef QENXML_MODEL_QENEXPORT_H
#define QENXML_MODEL_QENEXPORT_H

#if defined(__GNUC__)
#define QENXML_EXPORT __attribute__((visibility("default")))
#define QENXML_LOCAL __attribute__((visibility("hidden")))
#else
#define QENXML_EXPORT
#define QENXML_LOCAL
#endif

#endif

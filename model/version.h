/// @file
/// The version of the library: its only home. The build reads it from here.

#ifndef QENXML_MODEL_VERSION_H
#define QENXML_MODEL_VERSION_H

#define QENXML_VERSION_MAJOR 1 ///< Rises with each incompatible change.
#define QENXML_VERSION_MINOR 0 ///< Rises with each compatible extension.
#define QENXML_VERSION_PATCH 0 ///< Rises with each release that extends nothing.

/// The version as text, for example "1.0.0".
#define QENXML_VERSION "1.0.0"

#endif

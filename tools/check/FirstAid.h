#ifndef QENXML_TOOLS_CHECK_FIRSTAID_H
#define QENXML_TOOLS_CHECK_FIRSTAID_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What a file is that cannot be read as a package, in words for those who know nothing of XML.
struct FirstAid {
    std::string what; ///< "the file is a ZIP archive"
    std::string cure; ///< "unpack it and take the packages out of it"
};

/// What a file is that is not well-formed: empty, cut off, of another format ... Nothing for XML
/// with a mistake in it, of which the place says more.
///
/// @param text     of the file, in UTF-8
/// @param fileSize in bytes, as it is on the disk: another than that of the text where the file is
/// in another encoding
std::optional<FirstAid> firstAid(std::string_view text, std::size_t fileSize);

#endif

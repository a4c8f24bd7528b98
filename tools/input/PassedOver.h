#ifndef QENXML_TOOLS_INPUT_PASSEDOVER_H
#define QENXML_TOOLS_INPUT_PASSEDOVER_H

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

/// Why something in a folder is not checked.
enum class PassedOverReason : std::size_t {
    OtherName, ///< Its name does not end in ".xml".
    SideFile,  ///< macOS keeps what it knows of a file beside it, as "._NAME".
    HiddenFile,
    HiddenFolder,
    SystemFolder, ///< Waste baskets and the like.
    LinkToFolder, ///< It may lead back to where it is.
    NoFile        ///< A device, a pipe or a socket.
};

/// Why to pass over what a folder holds; none when it is a package to check or a folder to look
/// into.
std::optional<PassedOverReason> reasonToPassOver(const std::filesystem::directory_entry& entry);

/// What was passed over in a folder and its folders, in numbers.
class PassedOver {
public:
    void add(PassedOverReason reason) { ++counts_.at(static_cast<std::size_t>(reason)); }

    /// "12 files not named .xml, 1 hidden file"; empty when nothing was.
    std::string text() const;

private:
    std::array<std::size_t, static_cast<std::size_t>(PassedOverReason::NoFile) + 1> counts_{};
};

#endif

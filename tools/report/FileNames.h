#ifndef QENXML_TOOLS_REPORT_FILENAMES_H
#define QENXML_TOOLS_REPORT_FILENAMES_H

#include <string>
#include <string_view>

/// The names of files without the folder that all of them are in, which is said once.
class FileNames {
public:
    /// Takes a file into account.
    void add(std::string_view path);

    /// The folder of all files; empty when they have none in common, or it is the present one.
    std::string folder() const;

    /// The file as it is found from that folder, so that no two of them look the same.
    ///
    /// @param path one that was added
    std::string_view name(std::string_view path) const;

private:
    std::string prefix_; // of all paths, up to a slash
    bool any_ = false;
};

#endif

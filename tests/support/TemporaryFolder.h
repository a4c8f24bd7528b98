/// @file
/// A folder for the files of one test, measurement or fuzz target.

#ifndef QENXML_TESTS_SUPPORT_TEMPORARYFOLDER_H
#define QENXML_TESTS_SUPPORT_TEMPORARYFOLDER_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <unistd.h>

namespace test {

/// A new folder, deleted with everything in it at the end of its life.
class TemporaryFolder {
public:
    explicit TemporaryFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        std::string pattern = (parent / "qenxml-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder: " + pattern);
        path_ = pattern;
    }

    /// Where files are written fastest: in memory, if the system has such a folder.
    static TemporaryFolder inMemory() {
        const char* const memory = "/dev/shm";
        return access(memory, W_OK) == 0 ? TemporaryFolder(memory) : TemporaryFolder();
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string path(const std::string& name) const { return (path_ / name).string(); }

    /// Writes a file, whose path is returned.
    std::string write(const std::string& name, std::string_view content) const {
        std::ofstream file(path_ / name, std::ios::binary);
        file.write(content.data(), static_cast<std::streamsize>(content.size()));
        if (!file.flush())
            throw std::runtime_error("cannot write " + path(name));
        return path(name);
    }

    /// Writes a package file that is named by a UUID, as packages are.
    std::string
    writePackage(std::string_view content,
                 const std::string& uuid = "00112233-4455-6677-8899-aabbccddeeff") const {
        return write(uuid + ".xml", content);
    }

private:
    std::filesystem::path path_;
};

} // namespace test

#endif

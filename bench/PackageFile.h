/// @file
/// A package file for the time of a measurement.

#ifndef QENXML_BENCH_PACKAGEFILE_H
#define QENXML_BENCH_PACKAGEFILE_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace bench {

inline void writeFile(const std::filesystem::path& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    if (!file.flush())
        throw std::runtime_error("cannot write " + path.string());
}

/// Lies in a folder of its own, so that programs may run at the same time.
class PackageFile {
public:
    explicit PackageFile(const std::string& content) {
        std::string folder = std::filesystem::temp_directory_path() / "qenxml-bench-XXXXXX";
        if (mkdtemp(folder.data()) == nullptr)
            throw std::runtime_error("cannot create " + folder);
        folder_ = folder;
        writeFile(path(), content);
    }
    PackageFile(const PackageFile&) = delete;
    PackageFile& operator=(const PackageFile&) = delete;
    ~PackageFile() {
        std::error_code ignored; // Nobody is left to tell.
        std::filesystem::remove_all(folder_, ignored);
    }

    std::string path() const { return folder_ / "00112233-4455-6677-8899-aabbccddeeff.xml"; }

private:
    std::filesystem::path folder_;
};

} // namespace bench

#endif

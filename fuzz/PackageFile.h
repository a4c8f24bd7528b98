/// @file
/// The file that fuzz targets write their inputs to.

#ifndef QENXML_FUZZ_PACKAGEFILE_H
#define QENXML_FUZZ_PACKAGEFILE_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <unistd.h>

#include "fuzz/Require.h"

/// A file named as packages are; in memory where the system has such a folder.
class PackageFile {
public:
    PackageFile() {
        folder_ = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp";
        folder_ += "/qenxml-fuzz-XXXXXX";
        require(mkdtemp(folder_.data()) != nullptr, "a temporary folder");
        path_ = folder_ + "/00112233-4455-6677-8899-aabbccddeeff.xml";
    }
    PackageFile(const PackageFile&) = delete;
    PackageFile& operator=(const PackageFile&) = delete;
    ~PackageFile() {
        std::remove(path_.c_str());
        rmdir(folder_.c_str());
    }

    void write(const std::uint8_t* data, std::size_t size) const {
        std::FILE* const file = std::fopen(path_.c_str(), "wb");
        require(file != nullptr, "opening the file");
        require(size == 0 || std::fwrite(data, 1, size, file) == size, "writing the file");
        require(std::fclose(file) == 0, "closing the file");
    }

    const std::string& path() const { return path_; }

private:
    std::string folder_;
    std::string path_;
};

#endif

#ifndef QENXML_TOOLS_FILES_DESCRIPTOR_H
#define QENXML_TOOLS_FILES_DESCRIPTOR_H

#include <string>
#include <utility>

#include <unistd.h>

/// An open file as the system numbers it; closed with this object.
class Descriptor {
public:
    /// @param number negative for none
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ >= 0)
            close(number_);
    }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }

    /// Leaves closing to the caller.
    int release() { return std::exchange(number_, -1); }

    /// A path of the file, whether it has a name or not, where the system has such paths.
    std::string path() const { return path(number_); }
    static std::string path(int number) { return "/proc/self/fd/" + std::to_string(number); }

private:
    int number_;
};

#endif

#ifndef QENXML_TOOLS_TEMPORARYNAME_H
#define QENXML_TOOLS_TEMPORARYNAME_H

#include <string>

/// The name of a file or an empty folder that goes away with this object, and also when the
/// process is ended by an interrupt, a hang-up or a request to terminate.
class TemporaryName {
public:
    /// @param path of something that was made just before
    explicit TemporaryName(std::string path);
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;
    ~TemporaryName();

    const std::string& path() const { return path_; }

    /// Leaves alone what now has this name, or had it before it was renamed.
    void release();

private:
    std::string path_;
    bool owned_ = true;
};

#endif

#ifndef QENXML_TOOLS_FILES_TEMPORARYNAME_H
#define QENXML_TOOLS_FILES_TEMPORARYNAME_H

#include <functional>
#include <string>

#include <fcntl.h>

/// The name of a file or an empty folder that goes away with this object, and also when the
/// process is ended by a signal that can be handled and mostly means that: an interrupt, a quit, a
/// hang-up, a request to terminate, the end of the time that it may take.
class TemporaryName {
public:
    /// @param folder where a relative name begins; stays open as long as this object exists
    explicit TemporaryName(std::string name, int folder = AT_FDCWD);
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;
    ~TemporaryName();

    const std::string& name() const { return name_; }

    /// Has something made under the name, which @p create may change in place, and which it
    /// answers the success of. What was made is never left behind: no signal and no lack of memory
    /// comes between.
    bool make(const std::function<bool(std::string& name)>& create);

    /// Leaves alone what now has this name, or had it before it was renamed.
    void release();

    /// Removes it, as a handler of signals may.
    void remove() const;

private:
    std::string name_;
    int folder_;
    bool owned_ = false;
};

#endif

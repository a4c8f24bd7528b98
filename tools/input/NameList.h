#ifndef QENXML_TOOLS_INPUT_NAMELIST_H
#define QENXML_TOOLS_INPUT_NAMELIST_H

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

/// The names of files in a file, or on the standard input, read one by one as they come.
///
/// Names end with lines, or with zero bytes: those may hold anything that a name can. Lines may end
/// as on Windows, and the first may begin with a byte-order mark; empty ones are no names.
class NameList {
public:
    /// @param path "-" for the standard input
    /// @param ends whether names end with zero bytes
    /// @throws std::invalid_argument, with a message that is safe to print, when it cannot be
    /// opened
    NameList(const std::string& path, bool zeroEnds);

    /// @return none after the last one, and where it can be read no further
    std::optional<std::string> next();

    /// Why it could be read no further; empty when its end was reached.
    const std::string& failure() const { return failure_; }

private:
    struct Close {
        void operator()(std::FILE* stream) const;
    };

    bool readName(std::string& name);
    void mendLine(std::string& line);

    std::unique_ptr<std::FILE, Close> stream_;
    bool zeroEnds_;
    bool isFirst_ = true;
    std::string failure_;
};

#endif

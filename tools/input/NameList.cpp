#include "tools/input/NameList.h"

#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "tools/files/FileContent.h"
#include "tools/input/PackageOptions.h"
#include "tools/text/Escape.h"
#include "tools/text/Utf8.h"

void NameList::Close::operator()(std::FILE* stream) const {
    if (stream != stdin)
        std::fclose(stream);
}

NameList::NameList(const std::string& path, bool zeroEnds)
    : stream_(isStandardInput(path) ? stdin : std::fopen(path.c_str(), "re")), zeroEnds_(zeroEnds) {
    if (!stream_)
        throw std::invalid_argument(fmt::format("{}: {}", escape(path), describeFileError(errno)));
}

std::optional<std::string> NameList::next() {
    std::string name;
    while (failure_.empty() && readName(name)) {
        if (!zeroEnds_)
            mendLine(name);
        if (name.find('\0') != std::string::npos)
            failure_ = "holds a zero byte; for names that end with zero bytes give --null";
        else if (!name.empty())
            return name;
    }
    return std::nullopt;
}

bool NameList::readName(std::string& name) {
    struct Free {
        void operator()(char* memory) const { std::free(memory); } // NOLINT: getdelim() asks for it
    };
    const char end = zeroEnds_ ? '\0' : '\n';
    char* memory = nullptr;
    std::size_t size = 0;
    errno = 0;
    const ssize_t length = getdelim(&memory, &size, end, stream_.get());
    const std::unique_ptr<char, Free> owner(memory);
    if (length < 0) {
        if (std::feof(stream_.get()) == 0)
            failure_ = describeFileError(errno);
        return false;
    }
    name.assign(memory, static_cast<std::size_t>(length));
    if (!name.empty() && name.back() == end)
        name.pop_back();
    return true;
}

void NameList::mendLine(std::string& line) {
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    const std::string_view mark = byteOrderMark;
    if (std::exchange(isFirst_, false) && line.compare(0, mark.size(), mark) == 0)
        line.erase(0, mark.size());
}

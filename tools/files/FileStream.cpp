#include "tools/files/FileStream.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

#include "tools/files/FileContent.h"

FileStream::FileStream(const std::string& path) : part_(partSize) {
    OpenFile opened = openRegularFile(path);
    file_ = std::move(opened.file);
    failure_ = std::move(opened.failure);
}

FileStream::int_type FileStream::underflow() {
    if (!failure_.empty())
        return traits_type::eof();
    ssize_t count = 0;
    do {
        count = read(file_.number(), part_.data(), part_.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        failure_ = describeFileError(errno);
    if (count <= 0)
        return traits_type::eof();
    setg(part_.data(), part_.data(), part_.data() + count);
    return traits_type::to_int_type(part_.front());
}

#include "tools/files/UnnamedFile.h"

#include <fcntl.h>
#include <unistd.h>

Descriptor openUnnamedFile(int start, const std::string& folder, unsigned mode) {
    Descriptor file(openat(start, folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
    const bool hasPath = file && access(file.path().c_str(), F_OK) == 0;
    return hasPath ? std::move(file) : Descriptor();
}

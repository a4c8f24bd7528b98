#include "tools/files/TemporaryFolder.h"

#include <cstdlib>

std::string temporaryFolder() {
    const char* const folder = std::getenv("TMPDIR"); // NOLINT(concurrency-mt-unsafe): one thread
    return folder == nullptr || *folder == '\0' ? "/tmp" : folder;
}

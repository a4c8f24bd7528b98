#include "tests/support/SourceFolder.h"

std::string test::inSources(const std::string& path) {
    return QENXML_SOURCE_DIR "/" + path;
}

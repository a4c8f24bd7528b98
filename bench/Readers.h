/// @file
/// The readers onto plain structs that the library is compared with.

#ifndef QENXML_BENCH_READERS_H
#define QENXML_BENCH_READERS_H

#include <memory>
#include <string>
#include <vector>

#include "tests/support/PlainTree.h"

namespace bench {

/// What was read, together with the document if there is one: as with the library's parser, both
/// are released when the result is.
using Reading = std::shared_ptr<const std::vector<plain::Grower>>;

// Each throws std::runtime_error for a file that is not XML.

/// By pugixml, in one pass over the document, written by hand.
Reading readByHand(const std::string& path);

Reading readByExpat(const std::string& path);
Reading readByLibxml2(const std::string& path); ///< By its SAX2 interface.
Reading readByTinyxml2(const std::string& path);

struct Reader {
    const char* name;
    Reading (*read)(const std::string& path);
};

/// Those of them that were built: the XML libraries beside pugixml are optional.
const std::vector<Reader>& readers();

} // namespace bench

#endif

#include "bench/Readers.h"

namespace bench {

const std::vector<Reader>& readers() {
    static const std::vector<Reader> all = {
        {"hand", readByHand},
#ifdef QENXML_BENCH_LIBXML2
        {"libxml2", readByLibxml2},
#endif
#ifdef QENXML_BENCH_EXPAT
        {"expat", readByExpat},
#endif
#ifdef QENXML_BENCH_TINYXML2
        {"tinyxml2", readByTinyxml2},
#endif
    };
    return all;
}

} // namespace bench

#ifndef QENXML_TOOLS_REPORT_RECORDCOUNTS_H
#define QENXML_TOOLS_REPORT_RECORDCOUNTS_H

#include <cstddef>
#include <vector>

#include "model/QenGrower.h"

/// How many records there are.
struct RecordCounts {
    std::size_t growers = 0;
    std::size_t farms = 0;
    std::size_t fields = 0;
    std::size_t recs = 0;
    std::size_t recsWithoutProduct = 0;

    RecordCounts& operator+=(const RecordCounts& other);
};

RecordCounts countRecords(std::vector<QenGrower>& growers);

#endif

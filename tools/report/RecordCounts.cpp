#include "tools/report/RecordCounts.h"

RecordCounts& RecordCounts::operator+=(const RecordCounts& other) {
    growers += other.growers;
    farms += other.farms;
    fields += other.fields;
    recs += other.recs;
    recsWithoutProduct += other.recsWithoutProduct;
    return *this;
}

RecordCounts countRecords(std::vector<QenGrower>& growers) {
    RecordCounts counts;
    counts.growers = growers.size();
    for (QenGrower& grower : growers) {
        counts.farms += grower.farms().size();
        for (QenFarm& farm : grower.farms()) {
            counts.fields += farm.fields().size();
            for (QenField& field : farm.fields()) {
                counts.recs += field.recs().size();
                for (QenRec& rec : field.recs())
                    counts.recsWithoutProduct += rec.recData() == nullptr ? 1 : 0;
            }
        }
    }
    return counts;
}

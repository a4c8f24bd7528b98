#ifndef QENXML_TOOLS_REPORT_REPORTMAPS_H
#define QENXML_TOOLS_REPORT_REPORTMAPS_H

#include <cstddef>
#include <vector>

#include "tools/output/Output.h"
#include "tools/report/FarmPlaces.h"

/// The section of maps, one for each farm; or several, where its fields lie apart.
class ReportMaps {
public:
    ReportMaps(const FarmPlaces& places, const TextSink& sink) : places_(places), sink_(sink) {}

    void write();

private:
    using Parts = std::vector<std::vector<MapPoint>>;

    bool isFull() const;
    void writeMaps();
    void write(const FarmPlaces::Farm& farm);
    std::string caption(const FarmPlaces::Farm& farm, const Parts& parts, std::size_t part) const;

    const FarmPlaces& places_;
    const TextSink& sink_;
    std::size_t maps_ = 0;  // written so far
    std::size_t bytes_ = 0; // of them
};

#endif

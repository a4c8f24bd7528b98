#include "tools/report/ReportMaps.h"

#include <algorithm>
#include <string>

#include <fmt/format.h>

#include "tools/report/FieldParts.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/MapProjection.h"
#include "tools/text/Words.h"

namespace {

constexpr std::size_t mostMaps = 60;
constexpr std::size_t mostBytes = 600'000;
constexpr std::size_t mostMapsOfAFarm = 3;

std::string placeText(double latitude, double longitude) {
    constexpr int decimals = 4; // some metres
    return latitudeText(latitude, decimals) + ", " + longitudeText(longitude, decimals);
}

/// The fields that no map of their farm shows, the first ones by name.
std::string elsewhere(const std::vector<std::vector<MapPoint>>& parts) {
    constexpr std::size_t mostNames = 3;
    std::vector<std::string> names;
    std::size_t fields = 0;
    for (std::size_t i = mostMapsOfAFarm; i < parts.size(); ++i) {
        for (const MapPoint& point : parts[i]) {
            if (++fields <= mostNames)
                names.push_back(
                    fmt::format("{} ({})",
                                point.name.empty() ? "a field without a name"
                                                   : "<bdi>" + htmlOfEscaped(point.name) + "</bdi>",
                                placeText(point.centroid.latitude, point.centroid.longitude)));
        }
    }
    if (fields > mostNames)
        names.push_back(groupedText(fields - mostNames) + " more");
    return fields == 0 ? "" : "<br>Elsewhere, and not drawn: " + joined(names);
}

} // namespace

bool ReportMaps::isFull() const {
    return maps_ >= mostMaps || bytes_ >= mostBytes;
}

void ReportMaps::write() {
    sink_("<section id=\"maps\">\n<h2>Maps of the farms</h2>\n");
    if (places_.farms().empty())
        sink_("<p>No field has a centroid that could be drawn.</p>\n");
    else
        writeMaps();
    if (places_.withoutPlace() > 0)
        sink_(fmt::format("<p>On no map, because the centroid is missing or out of range: "
                          "{}.</p>\n",
                          groupedQuantity(places_.withoutPlace(), "field")));
    sink_("</section>\n");
}

void ReportMaps::writeMaps() {
    sink_("<p>Each point is the centroid of a field. North is up; the scale is that of the middle "
          "of the map.</p>\n<div class=\"maps\">\n");
    std::size_t notDrawn = places_.moreFarms();
    for (const FarmPlaces::Farm& farm : places_.farms()) {
        if (isFull())
            ++notDrawn;
        else
            write(farm);
    }
    sink_("</div>\n");
    if (notDrawn > 0)
        sink_(fmt::format("<p>Not drawn: {}; <code>qenxml export --format geojson</code> writes "
                          "all fields for programs that draw maps.</p>\n",
                          groupedQuantity(notDrawn, "more farm")));
}

void ReportMaps::write(const FarmPlaces::Farm& farm) {
    const Parts parts = fieldParts(farm.points);
    for (std::size_t i = 0; i < std::min(parts.size(), mostMapsOfAFarm); ++i) {
        const std::string map = reportMap(parts[i]);
        sink_(fmt::format("<figure>\n{}<figcaption>{}</figcaption>\n</figure>\n", map,
                          caption(farm, parts, i)));
        ++maps_;
        bytes_ += map.size();
    }
}

std::string ReportMaps::caption(const FarmPlaces::Farm& farm, const Parts& parts,
                                std::size_t part) const {
    const std::size_t maps = std::min(parts.size(), mostMapsOfAFarm);
    const MapProjection projection(parts[part]);
    return fmt::format("<strong>{}, {}</strong>{}<br>{} around {}{}",
                       htmlRecordName(farm.grower, "Grower without a name"),
                       htmlRecordName(farm.name, "farm without a name"),
                       maps == 1 ? "" : fmt::format(", map {} of {}", part + 1, maps),
                       groupedQuantity(parts[part].size(), "field"),
                       placeText(projection.latitudes().middle(), projection.longitudes().middle()),
                       part + 1 == maps ? elsewhere(parts) : "");
}

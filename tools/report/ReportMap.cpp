#include "tools/report/ReportMap.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/MapLettering.h"
#include "tools/report/MapProjection.h"
#include "tools/text/Utf8.h"

namespace {

constexpr double radius = 6.0;      // of points
constexpr double letterSize = 21.0; // can be read where the map is as narrow as a phone
constexpr double above = 0.95;      // the line of a text, in sizes of its letters
constexpr double below = 0.25;

/// Fields that would hide each other, drawn as one point.
struct PointGroup {
    double x;
    double y;
    std::string name; ///< That of the first field.
    std::size_t fields;
};

/// The smallest of 1, 2, 5, 10, 20, ... and of their fractions that is not below a number.
double roundUp(double number) {
    const double power = std::pow(10.0, std::floor(std::log10(number)));
    const double digit = number / power;
    return power * (digit <= 1.0 ? 1.0 : digit <= 2.0 ? 2.0 : digit <= 5.0 ? 5.0 : 10.0);
}

/// The largest of them that is not above a number.
double roundDown(double number) {
    const double power = std::pow(10.0, std::floor(std::log10(number)));
    const double digit = number / power;
    return power * (digit >= 5.0 ? 5.0 : digit >= 2.0 ? 2.0 : 1.0);
}

/// How many decimals a step that is rounded in this way has.
int decimalsOf(double step) {
    return std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
}

/// All multiples of a number in a range.
std::vector<double> multiples(double number, const Range& range) {
    std::vector<double> result;
    const long last = std::lround(std::floor(range.to / number));
    for (long i = std::lround(std::ceil(range.from / number)); i <= last; ++i)
        result.push_back(static_cast<double>(i) * number);
    return result;
}

/// A name within another text: the direction in which it is written ends with it.
std::string isolated(const std::string& name) {
    constexpr char32_t beginning = 0x2068;
    constexpr char32_t end = 0x2069;
    std::string text;
    appendUtf8(text, beginning);
    text += name;
    appendUtf8(text, end);
    return text;
}

std::string pointOf(const PointGroup& group) {
    const std::string others =
        group.fields == 1 ? "" : fmt::format(" and {} more", groupedText(group.fields - 1));
    return fmt::format(
        "<circle class=\"field\" cx=\"{:.1f}\" cy=\"{:.1f}\" r=\"{:.0f}\">"
        "<title>{}{}</title></circle>\n",
        group.x, group.y, radius,
        group.name.empty() ? "Field without a name" : htmlOfEscaped(isolated(group.name)), others);
}

/// Everything on the map with its texts, none of which lies over anything else.
class MapPicture {
public:
    MapPicture(const MapProjection& projection, const std::vector<PointGroup>& groups)
        : projection_(projection),
          groups_(groups),
          room_(MapProjection::width, projection.height()) {
        for (const PointGroup& group : groups)
            room_.take({group.x - radius, group.y - radius, group.x + radius, group.y + radius});
    }

    std::string text() {
        writeScale();
        writeLongitudes();
        writeLatitudes();
        std::string ground = lines_ + std::exchange(texts_, ""); // no line goes through a text
        for (const PointGroup& group : groups_) {
            ground += pointOf(group);
            writeName(group);
        }
        return ground + texts_;
    }

private:
    /// Between lines there is room for the longest of their labels.
    double step(double perDegree) const {
        constexpr double longestLabel = 7.0;
        constexpr double most = 90.0;
        return std::min(most, roundUp(longestLabel * letterSize / perDegree));
    }

    void writeScale() {
        constexpr double longest = 160.0;
        const double scale = projection_.perDegreeOfLatitude() / kilometresPerDegree;
        const double kilometres = roundDown(longest / scale);
        const double length = kilometres * scale;
        const double right = MapProjection::width - 12.0;
        const double bottom = projection_.height() - 12.0;
        const std::string label = kilometres < 1.0
                                      ? fmt::format("{:.0f} m", 1000.0 * kilometres)
                                      : grouped(fmt::format("{:.0f}", kilometres)) + " km";
        lines_ += fmt::format("<path class=\"scale\" d=\"M{0:.1f} {1:.1f}v6H{2:.1f}v-6\"/>\n",
                              right - length, bottom - 6.0, right);
        room_.take({right - length, bottom - 8.0, right, bottom});
        writeText({right, bottom - 10.0 - 0.25 * letterSize, "degrees", end}, label);
    }

    void writeLongitudes() {
        const double across = step(projection_.perDegreeOfLongitude());
        for (const double longitude : multiples(across, projection_.shownLongitudes())) {
            const double at = projection_.x(longitude);
            lines_ += fmt::format("<path class=\"grid\" d=\"M{:.1f} 0V{:.0f}\"/>\n", at,
                                  projection_.height());
            writeText({at + 4.0, letterSize + 4.0, "degrees", start},
                      longitudeText(longitude, decimalsOf(across)));
        }
    }

    void writeLatitudes() {
        const double up = step(projection_.perDegreeOfLatitude());
        for (const double latitude : multiples(up, projection_.shownLatitudes())) {
            const double at = projection_.y(latitude);
            lines_ += fmt::format("<path class=\"grid\" d=\"M0 {:.1f}H{:.0f}\"/>\n", at,
                                  MapProjection::width);
            writeText({4.0, at - 4.0, "degrees", start}, latitudeText(latitude, decimalsOf(up)));
        }
    }

    void writeName(const PointGroup& group) {
        constexpr std::size_t mostNames = 60;
        if (group.name.empty() || names_ == mostNames)
            return;
        const std::string others = group.fields == 1 ? "" : " +" + groupedText(group.fields - 1);
        // Rather a short name than none.
        for (const std::size_t most : {24U, 12U}) {
            if (writeBeside(group, isolated(shortened(group.name, most)) + others)) {
                ++names_;
                return;
            }
        }
    }

    /// To the right of a point, or else to the left, above or below.
    bool writeBeside(const PointGroup& group, const std::string& name) {
        constexpr double beside = 10.0;
        constexpr double aside = 8.0; // so that the text passes between points
        const double baseline = group.y + 0.36 * letterSize;
        return writeText({group.x + beside, baseline, "name", start}, name) ||
               writeText({group.x - beside, baseline, "name", end}, name) ||
               writeText({group.x, group.y - aside - below * letterSize, "name", middle}, name) ||
               writeText({group.x, group.y + aside + above * letterSize, "name", middle}, name);
    }

    /// Which part of a text is at its place, as a fraction of its width.
    struct Anchor {
        double before;
        const char* attribute;
    };
    static constexpr Anchor start{0.0, ""};
    static constexpr Anchor middle{0.5, " text-anchor=\"middle\""};
    static constexpr Anchor end{1.0, " text-anchor=\"end\""};

    struct TextPlace {
        double x;
        double baseline;
        const char* style;
        Anchor anchor;
    };

    /// Writes a text if there is room for it.
    bool writeText(const TextPlace& place, const std::string& text) {
        const double length = textWidth(text) * letterSize;
        const double left = place.x - place.anchor.before * length;
        const Box box{left, place.baseline - above * letterSize, left + length,
                      place.baseline + below * letterSize};
        if (!room_.isFree(box))
            return false;
        room_.take(box);
        texts_ +=
            fmt::format("<text class=\"{}\" x=\"{:.1f}\" y=\"{:.1f}\"{}>{}</text>\n", place.style,
                        place.x, place.baseline, place.anchor.attribute, htmlOfEscaped(text));
        return true;
    }

    const MapProjection& projection_;
    const std::vector<PointGroup>& groups_;
    FreeRoom room_;
    std::size_t names_ = 0;
    std::string lines_;
    std::string texts_;
};

std::vector<PointGroup> groupsOf(const std::vector<MapPoint>& points,
                                 const MapProjection& projection) {
    constexpr double cell = 8.0;
    std::map<std::pair<long, long>, PointGroup> cells;
    for (const MapPoint& point : points) {
        const double x = projection.x(projection.longitude(point));
        const double y = projection.y(point.centroid.latitude);
        const auto key = std::make_pair(std::lround(x / cell), std::lround(y / cell));
        ++cells.try_emplace(key, PointGroup{x, y, point.name, 0}).first->second.fields;
    }
    std::vector<PointGroup> groups;
    groups.reserve(cells.size());
    for (auto& [key, group] : cells)
        groups.push_back(std::move(group));
    return groups;
}

std::string beginning(const MapProjection& projection, std::size_t fields) {
    return fmt::format("<svg class=\"map\" viewBox=\"0 0 {0:.0f} {1:.0f}\" role=\"img\" "
                       "aria-label=\"Map: {2} between {3} and {4}, {5} and {6}\">\n<rect "
                       "class=\"land\" width=\"{0:.0f}\" height=\"{1:.0f}\"/>\n",
                       MapProjection::width, projection.height(), groupedQuantity(fields, "field"),
                       latitudeText(projection.latitudes().from, 3),
                       latitudeText(projection.latitudes().to, 3),
                       longitudeText(projection.longitudes().from, 3),
                       longitudeText(projection.longitudes().to, 3));
}

} // namespace

std::string reportMap(const std::vector<MapPoint>& points) {
    const MapProjection projection(points);
    const std::vector<PointGroup> groups = groupsOf(points, projection);
    return beginning(projection, points.size()) + MapPicture(projection, groups).text() +
           "</svg>\n";
}

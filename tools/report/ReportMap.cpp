#include "tools/report/ReportMap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "tools/Utf8.h"
#include "tools/report/Html.h"

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double metresPerDegree = 111195.0; // of latitude
constexpr double width = 600.0;
constexpr double leastHeight = 260.0;
constexpr double mostHeight = 520.0;
constexpr double margin = 48.0;       // above and below the points
constexpr double sideMargin = 100.0;  // where latitudes and names have room
constexpr double leastDegrees = 0.01; // what the map shows at least: a kilometre

struct Range {
    double from;
    double to;

    double span() const { return to - from; }
    double middle() const { return from + span() / 2.0; }

    void widenTo(double least) {
        const double missing = std::max(0.0, least - span());
        from -= missing / 2.0;
        to += missing / 2.0;
    }
};

/// Part of the map, for what must not overlap.
struct Box {
    double left;
    double top;
    double right;
    double bottom;

    bool overlaps(const Box& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

/// The largest of 1, 2, 5, 10, 20, ... and of their fractions that is not above a number.
double roundDown(double number) {
    const double power = std::pow(10.0, std::floor(std::log10(number)));
    const double digit = number / power;
    return power * (digit >= 5.0 ? 5.0 : digit >= 2.0 ? 2.0 : 1.0);
}

/// All multiples of a number in a range.
std::vector<double> multiples(double number, const Range& range) {
    std::vector<double> result;
    const long last = std::lround(std::floor(range.to / number));
    for (long i = std::lround(std::ceil(range.from / number)); i <= last; ++i)
        result.push_back(static_cast<double>(i) * number);
    return result;
}

template <class Value>
Range rangeOf(const std::vector<MapPoint>& points, Value value) {
    Range range{value(points.front()), value(points.front())};
    for (const MapPoint& point : points) {
        range.from = std::min(range.from, value(point));
        range.to = std::max(range.to, value(point));
    }
    return range;
}

/// The name of a point, cut to what fits beside it.
std::string shortName(std::string_view name) {
    constexpr std::size_t most = 20; // characters
    std::string result;
    for (std::size_t count = 0; !name.empty(); ++count) {
        if (count == most)
            return result + "\u2026";
        const std::size_t length = firstCharacter(name).length;
        result += name.substr(0, length);
        name.remove_prefix(length);
    }
    return result;
}

std::size_t characters(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(firstCharacter(text).length);
    return count;
}

class MapWriter {
public:
    explicit MapWriter(const std::vector<MapPoint>& points)
        : points_(points),
          latitudes_(rangeOf(points, [](const MapPoint& p) { return p.centroid.latitude; })),
          longitudes_(rangeOf(points, [](const MapPoint& p) { return p.centroid.longitude; })) {
        // Fields on both sides of the 180th meridian may be near each other.
        const Range shifted = rangeOf(points, eastward);
        if (shifted.span() < longitudes_.span()) {
            longitudes_ = shifted;
            shifted_ = true;
        }
        shrink_ = std::max(0.05, std::cos(latitudes_.middle() * pi / 180.0));
        latitudes_.widenTo(leastDegrees);
        longitudes_.widenTo(leastDegrees / shrink_);
        const double room = width - 2.0 * sideMargin;
        scale_ = room / (longitudes_.span() * shrink_);
        scale_ = std::min(scale_, (mostHeight - 2.0 * margin) / latitudes_.span());
        height_ = std::max(leastHeight, latitudes_.span() * scale_ + 2.0 * margin);
    }

    std::string write() {
        text_ += fmt::format(
            "<svg class=\"map\" viewBox=\"0 0 {} {:.0f}\" role=\"img\" "
            "aria-label=\"Map: {} between {} and {}, {} and {}. The list of fields gives the "
            "coordinates of each.\">\n"
            "<rect class=\"land\" width=\"{}\" height=\"{:.0f}\"/>\n",
            width, height_,
            points_.size() == 1 ? "one field" : fmt::format("{} fields", points_.size()),
            latitudeText(latitudes_.from, 3), latitudeText(latitudes_.to, 3),
            longitudeText(longitudes_.from, 3), longitudeText(longitudes_.to, 3), width, height_);
        writeLines();
        writeScale();
        writePoints();
        text_ += "</svg>\n";
        return std::move(text_);
    }

private:
    static double eastward(const MapPoint& point) {
        const double longitude = point.centroid.longitude;
        return longitude < 0.0 ? longitude + 360.0 : longitude;
    }

    double x(double longitude) const {
        return width / 2.0 + (longitude - longitudes_.middle()) * shrink_ * scale_;
    }

    double y(double latitude) const {
        return height_ / 2.0 - (latitude - latitudes_.middle()) * scale_;
    }

    static std::string latitudeText(double latitude, int decimals) {
        return fmt::format("{:.{}f}\u00B0 {}", std::abs(latitude), decimals,
                           latitude < 0.0 ? "S" : "N");
    }

    static std::string longitudeText(double longitude, int decimals) {
        if (longitude > 180.0)
            longitude -= 360.0;
        return fmt::format("{:.{}f}\u00B0 {}", std::abs(longitude), decimals,
                           longitude < 0.0 ? "W" : "E");
    }

    /// Lines of latitude and longitude at round numbers, with what they are at the map's edges.
    void writeLines() {
        constexpr double distance = 160.0; // about
        const double step = roundDown(distance / scale_);
        const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
        const double halfHeight = height_ / 2.0 / scale_;
        const Range shown{latitudes_.middle() - halfHeight, latitudes_.middle() + halfHeight};
        for (const double latitude : multiples(step, shown)) {
            const double at = y(latitude);
            text_ += fmt::format("<path class=\"grid\" d=\"M0 {0:.1f}H{1}\"/>\n", at, width);
            if (at > margin && at < height_ - margin)
                writeDegrees(4.0, at - 4.0, latitudeText(latitude, decimals));
        }
        const double across = roundDown(distance / scale_ / shrink_);
        const int places = std::max(0, static_cast<int>(std::ceil(-std::log10(across) - 1e-9)));
        const double halfWidth = width / 2.0 / scale_ / shrink_;
        const Range wide{longitudes_.middle() - halfWidth, longitudes_.middle() + halfWidth};
        for (const double longitude : multiples(across, wide)) {
            const double at = x(longitude);
            text_ += fmt::format("<path class=\"grid\" d=\"M{:.1f} 0V{:.0f}\"/>\n", at, height_);
            if (at < width - sideMargin)
                writeDegrees(at + 4.0, 20.0, longitudeText(longitude, places));
        }
    }

    void writeDegrees(double left, double bottom, const std::string& label) {
        constexpr double height = 18.0;
        constexpr double longest = 110.0;
        text_ += fmt::format("<text class=\"degrees\" x=\"{:.1f}\" y=\"{:.1f}\">{}</text>\n", left,
                             bottom, label);
        taken_.push_back({left, bottom - height, left + longest, bottom + 4.0});
    }

    void writeScale() {
        constexpr double longest = 160.0;
        constexpr double kilometre = 1000.0;
        const double metres = roundDown(longest / scale_ * metresPerDegree);
        const double length = metres / metresPerDegree * scale_;
        const double right = width - 12.0;
        const double bottom = height_ - 12.0;
        const std::string label = metres < kilometre ? fmt::format("{:.0f} m", metres)
                                                     : fmt::format("{:.0f} km", metres / kilometre);
        text_ += fmt::format("<path class=\"scale\" d=\"M{0:.1f} {1:.1f}v6H{2:.1f}v-6\"/>\n"
                             "<text class=\"degrees\" x=\"{2:.1f}\" y=\"{3:.1f}\" "
                             "text-anchor=\"end\">{4}</text>\n",
                             right - length, bottom - 6.0, right, bottom - 12.0, label);
        taken_.push_back({right - std::max(length, 90.0), bottom - 36.0, width, height_});
    }

    void writePoints() {
        // Points that would hide each other become one, so that any number of fields can be drawn.
        constexpr double cell = 4.0;
        std::map<std::pair<long, long>, std::vector<const MapPoint*>> cells;
        for (const MapPoint& point : points_) {
            const auto [left, top] = place(point);
            cells[{std::lround(left / cell), std::lround(top / cell)}].push_back(&point);
        }
        constexpr double radius = 6.0;
        for (const auto& [key, fields] : cells) {
            const auto [left, top] = place(*fields.front());
            taken_.push_back({left - radius, top - radius, left + radius, top + radius});
        }
        for (const auto& [key, fields] : cells)
            writePoint(*fields.front(), fields.size());
    }

    std::pair<double, double> place(const MapPoint& point) const {
        const double longitude = shifted_ ? eastward(point) : point.centroid.longitude;
        return {x(longitude), y(point.centroid.latitude)};
    }

    void writePoint(const MapPoint& point, std::size_t fields) {
        const auto [left, top] = place(point);
        const std::string others = fields == 1 ? "" : fmt::format(" and {} more", fields - 1);
        text_ += fmt::format("<circle class=\"field\" cx=\"{:.1f}\" cy=\"{:.1f}\" r=\"6\">"
                             "<title>{}{}</title></circle>\n",
                             left, top, html(point.name), others);
        writeName(left, top,
                  shortName(point.name) + (fields == 1 ? "" : fmt::format(" +{}", fields - 1)));
    }

    /// Writes a name beside a point, to the right or else to the left, if there is room for it.
    void writeName(double left, double top, const std::string& name) {
        // On a phone the letters are larger, compared with the map: they must fit there, too.
        constexpr double letterWidth = 12.0;
        constexpr double letterHeight = 22.0;
        constexpr std::size_t mostNames = 60;
        constexpr double gap = 10.0;
        const double length = static_cast<double>(characters(name)) * letterWidth;
        for (const bool rightOf : {true, false}) {
            const double begin = rightOf ? left + gap : left - gap - length;
            const Box box{begin, top - letterHeight / 2.0, begin + length,
                          top + letterHeight / 2.0};
            if (names_ == mostNames || box.left < 0.0 || box.right > width || isTaken(box))
                continue;
            taken_.push_back(box);
            ++names_;
            text_ += fmt::format("<text class=\"name\" x=\"{:.1f}\" y=\"{:.1f}\"{}>{}</text>\n",
                                 rightOf ? left + gap : left - gap, top + 5.0,
                                 rightOf ? "" : " text-anchor=\"end\"", html(name));
            return;
        }
    }

    bool isTaken(const Box& box) const {
        return std::any_of(taken_.begin(), taken_.end(),
                           [&](const Box& other) { return box.overlaps(other); });
    }

    const std::vector<MapPoint>& points_;
    Range latitudes_;
    Range longitudes_;
    bool shifted_ = false; // whether longitudes are counted from 0 to 360
    double shrink_ = 1.0;  // how much shorter a degree of longitude is
    double scale_ = 1.0;   // units of the picture per degree of latitude
    double height_ = leastHeight;
    std::vector<Box> taken_; // by points, names and the scale
    std::size_t names_ = 0;
    std::string text_;
};

} // namespace

std::string reportMap(const std::vector<MapPoint>& points) {
    return MapWriter(points).write();
}

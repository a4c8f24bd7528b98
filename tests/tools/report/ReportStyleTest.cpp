// The colours of the page, by day, by night and on paper, by the formula of the Web Content
// Accessibility Guidelines.

#include "tools/report/ReportStyle.h"

#include <cmath>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Colours = std::map<std::string, std::string>;

const std::string style = reportStyle;

/// The colours of each `:root` of the style: day, night, paper.
std::vector<Colours> themes() {
    static const std::regex colour("--(\\w+): (#[0-9a-f]{6});");
    std::vector<Colours> result;
    for (std::size_t at = 0; (at = style.find(":root {", at)) != std::string::npos; ++at) {
        const std::string rules = style.substr(at, style.find('}', at) - at);
        Colours colours;
        for (std::sregex_iterator i(rules.begin(), rules.end(), colour), end; i != end; ++i)
            colours[(*i)[1]] = (*i)[2];
        result.push_back(colours);
    }
    return result;
}

double channel(const std::string& colour, std::size_t at) {
    const double value = std::stoi(colour.substr(at, 2), nullptr, 16) / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const std::string& colour) {
    return 0.2126 * channel(colour, 1) + 0.7152 * channel(colour, 3) + 0.0722 * channel(colour, 5);
}

double contrast(const std::string& a, const std::string& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// Names of colours of which one is seen on the other.
struct Pair {
    const char* front;
    const char* back;
};

void expectContrast(const std::vector<Pair>& pairs, double least) {
    ASSERT_EQ(themes().size(), 3U);
    for (const Colours& colours : themes())
        for (const auto& [front, back] : pairs)
            EXPECT_GE(contrast(colours.at(front), colours.at(back)), least)
                << front << ' ' << colours.at(front) << " on " << back << ' ' << colours.at(back);
}

TEST(ReportStyle, ContrastIsThatOfTheGuidelines) {
    EXPECT_DOUBLE_EQ(contrast("#000000", "#ffffff"), 21.0);
    EXPECT_NEAR(contrast("#777777", "#ffffff"), 4.48, 0.005);
}

TEST(ReportStyle, LetsBarsAndTheirMarksBeSeen) {
    expectContrast({{"range", "track"},
                    {"mark", "range"},
                    {"mark", "track"},
                    {"mark", "card"},
                    {"outline", "card"}},
                   3.0);
}

TEST(ReportStyle, LetsFieldsAndTheScaleBeSeenOnTheMap) {
    expectContrast({{"accent", "land"}, {"text", "land"}}, 3.0);
}

TEST(ReportStyle, LetsTextsBeRead) {
    expectContrast({{"text", "page"},
                    {"text", "card"},
                    {"text", "land"},
                    {"quiet", "page"},
                    {"quiet", "card"},
                    {"quiet", "land"},
                    {"accent", "page"},
                    {"error", "page"},
                    {"warning", "page"},
                    {"note", "page"},
                    {"error", "card"},
                    {"warning", "card"},
                    {"note", "card"}},
                   4.5);
}

std::string partOf(const std::string& begin) {
    const std::size_t at = style.find(begin);
    return at == std::string::npos ? "" : style.substr(at, style.find("\n}", at) - at);
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(ReportStyle, KeepsHeadingsWithWhatFollowsOnPaper) {
    EXPECT_TRUE(contains(partOf("@media print"),
                         "h2, h3, h4, h5, h6, caption, .place { break-inside: avoid; "
                         "break-after: avoid; }"));
}

TEST(ReportStyle, ShowsWhereATableGoesOnBesideTheScreen) {
    const std::string scroll = partOf(".scroll {");
    EXPECT_TRUE(contains(scroll, "overflow-x: auto"));
    EXPECT_TRUE(contains(scroll, "var(--shade), transparent) right"));
}

TEST(ReportStyle, ShowsTablesInAnotherWayOnAPhone) {
    const std::string phone = partOf("@media (max-width: 37rem)");
    EXPECT_TRUE(contains(phone, "content: attr(data-column)"));
}

} // namespace

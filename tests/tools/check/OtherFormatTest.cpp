#include "tools/check/OtherFormat.h"

#include <string>

#include <gtest/gtest.h>

namespace {

std::string formatOf(const std::string& text) {
    const auto aid = otherFormat(text);
    return aid ? aid->what : "";
}

TEST(OtherFormat, IsNamedByTheRootOfXml) {
    EXPECT_EQ(formatOf("<html/>"),
              "the file is a page of the web, perhaps one that asks to sign in");
    EXPECT_EQ(formatOf("<svg xmlns='http://www.w3.org/2000/svg'/>"), "the file is a drawing (SVG)");
    EXPECT_EQ(formatOf("<?xml version='1.0'?>\n<kml>\n</kml>"), "the file is a map (KML)");
    EXPECT_EQ(formatOf("<gpx\nversion='1.1'/>"),
              "the file is tracks or points of a satellite receiver (GPX)");
    EXPECT_EQ(formatOf("<gml:FeatureCollection xmlns:gml='a'/>"), "the file is geometries (GML)");
    EXPECT_EQ(formatOf("<ISO11783_TaskData VersionMajor='4'/>"),
              "the file is a task file of a terminal (ISO 11783-10)");
}

TEST(OtherFormat, LooksBehindWhatComesBeforeTheRoot) {
    EXPECT_EQ(formatOf("\xEF\xBB\xBF<?xml version='1.0'?><!-- <svg/> --><!DOCTYPE x><kml/>"),
              "the file is a map (KML)");
    EXPECT_EQ(formatOf("<!-- <kml/>"), "");
}

TEST(OtherFormat, IsNoneOfAPackageOrAnUnknownRoot) {
    EXPECT_EQ(formatOf("<RecPackage><kml/></RecPackage>"), "");
    EXPECT_EQ(formatOf("<recpackage/>"), "");
    EXPECT_EQ(formatOf("<Package/>"), "");
    EXPECT_EQ(formatOf("html"), "");
    EXPECT_EQ(formatOf(""), "");
}

TEST(OtherFormat, SaysWhatToDo) {
    EXPECT_EQ(otherFormat("<html/>")->cure, "download the package again");
    EXPECT_EQ(otherFormat("<kml/>")->cure,
              "have a package written by the program that holds the data");
}

} // namespace

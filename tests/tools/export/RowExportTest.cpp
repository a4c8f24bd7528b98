// The formats that are tables: what their rows are, and what stands around them.

#include "tools/export/RowExport.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/PackageText.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/export/ExportCsv.h"
#include "tools/export/ExportGeoJson.h"
#include "tools/export/ExportJsonLines.h"

using json = nlohmann::json;

namespace {

const std::string place =
    "<FieldCentroid><Latitude>45.5</Latitude><Longitude>-9</Longitude></FieldCentroid>";
const std::string rates = "<RecStats><AverageRate>1.5</AverageRate><Total>inf</Total></RecStats>";

/// Two fields, of which one has two recs and the other one has none.
const std::string package = test::package(test::grower(
    1, test::farm(
           2, test::field(3, place + test::recommendations(test::rec(5, rates) + test::rec(6))) +
                  test::field(4, "<FieldName>Fallow</FieldName>"))));

class Rows : public testing::Test {
protected:
    TextSink sink() {
        return [this](std::string_view text) { text_ += text; };
    }

    /// What a format writes of packages.
    std::string written(ExportFormat& format, const std::vector<std::string>& packages) {
        text_.clear();
        format.begin(false);
        for (const std::string& content : packages) {
            PackageReading reading = readPackage(folder_.writePackage(content));
            remark_ = format.package(reading);
        }
        format.end();
        return text_;
    }

    std::vector<std::string> lines(const std::string& text) {
        std::vector<std::string> lines;
        for (std::size_t begin = 0; begin < text.size();) {
            const std::size_t end = text.find('\n', begin);
            lines.push_back(text.substr(begin, end - begin));
            begin = end + 1;
        }
        return lines;
    }

    test::TemporaryFolder folder_;
    std::string text_;
    std::string remark_;
};

TEST_F(Rows, OfJsonLinesAreOnePerRecWithItsFileFieldAndNumbers) {
    const auto format = makeJsonLinesExport(sink());
    const std::vector<std::string> rows = lines(written(*format, {package}));
    ASSERT_EQ(rows.size(), 2U);
    const json row = json::parse(rows[0]);
    EXPECT_EQ(row["rec_id"], test::uuidText(5));
    EXPECT_EQ(row["field_id"], test::uuidText(3));
    EXPECT_EQ(row["file"], folder_.path("00112233-4455-6677-8899-aabbccddeeff.xml"));
    EXPECT_EQ(row["package"], "00112233-4455-6677-8899-aabbccddeeff");
    EXPECT_EQ(row["average_rate"], 1.5);
    EXPECT_TRUE(row["total"].is_null()) << "it is not finite";
    EXPECT_TRUE(row["maximum_rate"].is_null()) << "it is not given";
    EXPECT_TRUE(row["operation"].is_null()) << "it is empty";
    EXPECT_EQ(row["latitude"], 45.5);
    EXPECT_EQ(json::parse(rows[1])["rec_id"], test::uuidText(6));
}

TEST_F(Rows, OfGeoJsonAreFeaturesAndSoAreFieldsWithoutRecs) {
    const auto format = makeGeoJsonExport(sink());
    const json document = json::parse(written(*format, {package, package}));
    EXPECT_EQ(document["type"], "FeatureCollection");
    ASSERT_EQ(document["features"].size(), 6U);
    const json rec = document["features"][0];
    EXPECT_EQ(rec["geometry"], json::parse(R"({"type":"Point","coordinates":[-9.0,45.5]})"));
    EXPECT_EQ(rec["properties"]["rec_id"], test::uuidText(5));
    const json field = document["features"][2];
    EXPECT_TRUE(field["geometry"].is_null());
    EXPECT_TRUE(field["properties"]["rec_id"].is_null());
    EXPECT_EQ(field["properties"]["field"], "Fallow");
    EXPECT_EQ(field["properties"]["package"], "00112233-4455-6677-8899-aabbccddeeff");
    EXPECT_EQ(remark_, "1 of 3 features have no point, as their centroid is missing or no place");
}

TEST_F(Rows, OfGeoJsonAreTheSameInASequence) {
    const auto collection = makeGeoJsonExport(sink());
    const json document = json::parse(written(*collection, {package}));
    const auto sequence = makeGeoJsonSequenceExport(sink());
    const std::vector<std::string> texts = lines(written(*sequence, {package}));
    ASSERT_EQ(texts.size(), 3U);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].front(), '\x1E');
        EXPECT_EQ(json::parse(texts[i].substr(1)), document["features"][i]);
    }
    EXPECT_EQ(written(*makeGeoJsonSequenceExport(sink()), {}), "");
    EXPECT_EQ(json::parse(written(*makeGeoJsonExport(sink()), {})),
              json::parse(R"({"type":"FeatureCollection","features":[]})"));
}

TEST_F(Rows, OfCsvAreAsTheLayoutSays) {
    const std::string content = test::package(test::grower(
        1, "<GrowerName>a|b</GrowerName>" +
               test::farm(2, test::field(3, place + test::recommendations(test::rec(5, rates))))));
    const auto rowOf = [&](const TableLayout& layout) {
        return lines(written(*makeCsvExport(sink(), layout), {content})).at(1);
    };
    EXPECT_NE(rowOf({}).find(",a|b,"), std::string::npos);
    EXPECT_NE(rowOf({}).find(",,1.5,,"), std::string::npos);
    EXPECT_EQ(text_.substr(0, 8), "\xEF\xBB\xBF"
                                  "file,");
    EXPECT_NE(rowOf({';', ',', true}).find(";;1,5;;"), std::string::npos);
    EXPECT_NE(rowOf({',', ',', true}).find(",,\"1,5\",,"), std::string::npos);
    EXPECT_NE(rowOf({'|', '.', true}).find("|\"a|b\"|"), std::string::npos);
    EXPECT_NE(rowOf({'\t', ',', false}).find("\t45,5\t-9\t"), std::string::npos);
    EXPECT_EQ(text_.substr(0, 5), "file\t");
}

} // namespace

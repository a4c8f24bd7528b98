#include "tests/support/BrokenPackages.h"
#include "tests/support/SourceFolder.h"

#include <ostream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace test {

namespace {

const std::string invalid = "invalid uuid string";
const std::vector<std::string> ana = {"Ana Horvat"};
const std::vector<std::string> first = {"Emil Åkesson"};
const std::vector<std::string> all = {"Emil Åkesson", "Ana Horvat", "Noor de Wit"};

} // namespace

void PrintTo(const BrokenPackage& package, std::ostream* out) {
    *out << package.folder;
}

const std::vector<BrokenPackage>& brokenPackages() {
    static const std::vector<BrokenPackage> packages = {
        {"not-well-formed",
         "false",
         {},
         "Lage Weide\n",
         "Lage Weide</FarmName>\n",
         {"Emil Åkesson", "Noor de Wit"}},
        {"no-recpackage", "false", {}, "RecommendationPackage>\n", "RecPackage>\n", first},
        {"no-grower", "true", {}, "grower", "Grower", first},
        {"path-too-short", "out of range", {}, "", "", first},
        {"name-without-uuid", invalid, {}, "", "", first},
        {"grower-id", invalid, first, "<Grower>",
         "<Grower GrowerID='950d3d06-82d2-4b41-a9fb-2f7370190bac'>", all},
        {"farm-id", invalid, first, "FarmID=\"\"", "FarmID='0e853b3d-0878-42f1-ba82-d5e02fc65f07'",
         all},
        {"field-id", invalid, first, "2078a050a8\"", "2078a050a8c6\"", all},
        {"field-geometry-id", invalid, first, "dd687ed5-ea314e4f", "dd687ed5-ea31-4e4f", all},
        {"geometry-file-id", invalid, first, "<FieldGeometry/>",
         "<FieldGeometry>4009ccc8-66ac-4e83-8d7d-2dd0cd598303</FieldGeometry>", all},
        {"rec-id", invalid, first, "<Rec ID=", "<Rec RecID=", all},
        {"rec-geometry-id", invalid, first, "</RecGeometry>", "}</RecGeometry>", all},
        {"operation-id", invalid, first, "<Operation>",
         "<Operation OpID='0d44b1cb-4228-4324-9bbb-45b98a789100'>", all},
        {"management-zone-id", invalid, first, " MgmtZoneID=\"12\"", "", all},
        {"custom-fertilizer-product-id", invalid, first, "4711",
         "e07cb579-3e7f-497b-bcc1-c0c8b0cdf20a", all},
        {"element-after-list", invalid, first, "<Remark>Please call before spreading.</Remark>", "",
         all},
        // Read, but not as they are written.
        {"other-name-in-list", "true", ana,
         "<Hof FarmID=\"5c1f5f08-5d02-4ae8-8e31-4c2a4a1b1f11\"/>", "", ana},
        {"name-not-uuid", "true", ana, "", "", ana},
        {"invalid-utf8", "true", ana,
         "proljetna \xE9"
         "etva",
         "proljetna sjetva", ana},
        {"encoding-ignored", "true", ana, "windows-1252", "UTF-8", ana},
        {"encoding-mistaken", "true", ana, "ISO-8859-1", "UTF-8", ana},
        {"doctype-ignored", "true", ana,
         " [\n  <!ATTLIST Rec MgmtZoneID CDATA \"6fa8d0c2-2ef4-4c4f-9a5a-8a1d1a3cf0e7\">\n]>", ">",
         ana},
        {"refused-by-others", "true", ana, "KAN & urea", "KAN &amp; urea", ana},
        {"item-before-list", "true", ana,
         "<field FieldID=\"5c1f5f08-5d02-4ae8-8e31-4c2a4a1b1f11\"/>", "", ana},
        {"identifier-digit", "true", ana, "RecID=\"ee508fb7-5539-4b15-a6bb-a4022bcb7aeO\"",
         "RecID=\"ee508fb7-5539-4b15-a6bb-a4022bcb7ae1\"", ana},
        {"identifier-trailing", "true", ana, "c61c040ea79c, 2025", "c61c040ea79c", ana},
        {"duplicate-grower",
         "true",
         {"Ana Horvat", "Ivan Horvat"},
         "<Grower GrowerID=\"950d3d06-82d2-4b41-a9fb-2f7370190bac\"><GrowerName>Ivan "
         "Horvat</GrowerName></Grower>",
         "",
         ana},
        {"duplicate-farm", "true", ana,
         "<Farm FarmID=\"0e853b3d-0878-42f1-ba82-d5e02fc65f07\"><FarmName>Dravski "
         "salaš</FarmName></Farm>",
         "", ana},
        {"duplicate-field", "true", ana, "{9bbbd0deed8a424ca88d2078a050a8c6}",
         "{3f6f0c2ad1c14c1f9a3b6c0a7f0d9b15}", ana},
        {"duplicate-rec", "true", ana, "EE508FB7-5539-4B15-A6BB-A4022BCB7AE1",
         "94e5fc10-6cf3-4fd5-8b2e-4bb0fd55a0a7", ana},
        {"no-product", "true", ana, "<RecData/>\n",
         "<RecData>\n"
         "              <CommercialFertilizer>\n"
         "                <ProductID>27</ProductID>\n"
         "                <ProductName>KAN 27</ProductName>\n"
         "                <UOMID>11</UOMID>\n"
         "                <UOM>kg</UOM>\n"
         "              </CommercialFertilizer>\n"
         "            </RecData>\n",
         ana},
        {"product-incomplete", "true", ana,
         "<UOMID>11</UOMID>\n"
         "              </CommercialFertilizer>",
         "<UOMID>11</UOMID>\n"
         "                <UOM>kg</UOM>\n"
         "              </CommercialFertilizer>",
         ana},
        {"product-unknown", "true", ana, "Fertiliser", "Fertilizer", ana},
        {"pesticide-mix", "true", ana,
         "<Pesticide>\n"
         "                <PesticideMixName>Korovi</PesticideMixName>\n"
         "                <UOMID>11</UOMID>\n"
         "                <UOM>kg</UOM>\n"
         "              </Pesticide>",
         "<CommercialFertilizer>\n"
         "                <ProductID>27</ProductID>\n"
         "                <ProductName>KAN 27</ProductName>\n"
         "                <UOMID>11</UOMID>\n"
         "                <UOM>kg</UOM>\n"
         "              </CommercialFertilizer>",
         ana},
        {"text-before-product", "true", ana,
         "see the label\n"
         "              <CommercialFertilizer>",
         "<CommercialFertilizer>", ana},
        {"second-product", "true", ana,
         "<Planting/>\n"
         "            </RecData>",
         "</RecData>", ana},
        {"operation-nil", "true", ana, "OpID=\"00000000-0000-0000-0000-000000000000\"",
         "OpID=\"0d44b1cb-4228-4324-9bbb-45b98a789100\"", ana},
        {"season-negative", "true", ana, "SeasonID=\"-1\"", "SeasonID=\"2026\"", ana},
        {"season-without-id", "true", ana, "<Season>", "<Season SeasonID=\"2026\">", ana},
        {"not-a-number", "true", ana, "<Total>n/a</Total>", "<Total>2276.4</Total>", ana},
        {"number-cut-off", "true", ana, "<AverageRate>135,5</AverageRate>",
         "<AverageRate>135.5</AverageRate>", ana},
        {"number-out-of-range", "true", ana, "<ProductID>4012345678901</ProductID>",
         "<ProductID>27</ProductID>", ana},
        {"number-not-finite", "true", ana, "<MaximumRate>inf</MaximumRate>",
         "<MaximumRate>180</MaximumRate>", ana},
        {"number-hexadecimal", "true", ana, "<UOMID>0x11</UOMID>", "<UOMID>11</UOMID>", ana},
        {"unknown-element", "true", ana, "<Remark>Hitno</Remark>", "", ana},
        {"misspelt-element", "true", ana, "FieldGeometryDatum>", "FieldGeometryDate>", ana},
        {"misplaced-element", "true", ana,
         "<RecDBFCol>RATE</RecDBFCol>\n"
         "        <FieldCentroid>",
         "<FieldCentroid>", ana},
        {"repeated-element", "true", ana, "<FieldName>Duga njiva 2</FieldName>", "", ana},
        {"unknown-attribute", "true", ana, " author=\"ah\"", "", ana},
        {"misspelt-attribute", "true", ana, " mgmtZoneId=", " MgmtZoneID=", ana},
        {"repeated-attribute", "true", ana, " SeasonID=\"2027\"", "", ana},
        {"stray-text", "true", ana,
         "see map\n"
         "        <Recommendations>",
         "<Recommendations>", ana},
        {"text-cut-off", "true", ana, "<RecName>KAN <b>proljeće</b></RecName>",
         "<RecName>KAN proljeće</RecName>", ana},
        {"reference-to-nul", "true", ana, "<RecName>KAN&#0; proljeće</RecName>",
         "<RecName>KAN proljeće</RecName>", ana},
        {"reference-to-no-character", "true", ana, "<RecName>KAN &#xD83C;&#xDF3E;</RecName>",
         "<RecName>KAN proljeće</RecName>", ana},
        {"reference-unknown", "true", ana, "<RecName>KAN prolje&cacute;e</RecName>",
         "<RecName>KAN proljeće</RecName>", ana},
        {"control-character", "true", ana, "<RecName>KAN&#7; proljeće</RecName>",
         "<RecName>KAN proljeće</RecName>", ana},
        {"no-recstats", "true", ana, "RecStatistics>", "RecStats>", ana},
        {"recstats-incomplete", "true", ana, "<AreaUOMID>",
         "<Area>16.8</Area>\n"
         "              <AreaUOMID>",
         ana},
        {"rate-order", "true", ana, "<MinimumRate>190</MinimumRate>",
         "<MinimumRate>90</MinimumRate>", ana},
        {"rate-without-unit", "true", ana, "<RateUOM/>",
         "<RateUOMID>12</RateUOMID>\n"
         "              <RateUOM>kg/ha</RateUOM>",
         ana},
        {"total-without-unit", "true", ana,
         "<TotalUOMID>0</TotalUOMID>\n"
         "              <TotalUOM/>",
         "<TotalUOMID>11</TotalUOMID>\n"
         "              <TotalUOM>kg</TotalUOM>",
         ana},
        {"area-without-unit", "true", ana,
         "<AreaUOMID>0</AreaUOMID>\n"
         "              <AreaUOM/>",
         "<AreaUOMID>2</AreaUOMID>\n"
         "              <AreaUOM>ha</AreaUOM>",
         ana},
        {"total-mismatch", "true", ana, "<Total>22764</Total>", "<Total>2276.4</Total>", ana},
        {"units-disagree", "true", ana, "<TotalUOM>t</TotalUOM>", "<TotalUOM>kg</TotalUOM>", ana},
        {"rates-zero", "true", ana,
         "<MinimumRate>0</MinimumRate>\n"
         "              <MaximumRate>0</MaximumRate>\n"
         "              <AverageRate>0</AverageRate>",
         "<MinimumRate>90</MinimumRate>\n"
         "              <MaximumRate>180</MaximumRate>\n"
         "              <AverageRate>135.5</AverageRate>",
         ana},
        {"unit-code", "true", ana,
         "<RateUOMID>12</RateUOMID>\n"
         "              <!-- Wrong",
         "<RateUOMID>14</RateUOMID>\n"
         "              <!-- Wrong",
         ana},
        {"centroid-range", "true", ana, "<Latitude>1869427</Latitude>",
         "<Latitude>45.55182</Latitude>", ana},
        {"centroid-zero", "true", ana, "<FieldCentroid/>",
         "<FieldCentroid>\n"
         "          <Latitude>45.55182</Latitude>\n"
         "          <Longitude>18.69427</Longitude>\n"
         "        </FieldCentroid>",
         ana},
        {"centroid-far", "true", ana, "<Longitude>-18.70932</Longitude>",
         "<Longitude>18.70932</Longitude>", ana},
        {"not-a-date", "true", ana, "2026-02-30", "2026-02-20", ana},
        {"date-order", "true", ana, "2026-01-20", "2026-02-20", ana},
        {"dbf-column", "true", ana, "TARGET_RATE", "TARGET_RAT", ana},
        {"empty-name", "true", ana, "<FarmName/>", "<FarmName>Horvatov salaš</FarmName>", ana},
        {"product-without-name", "true", ana, "<ProductName> </ProductName>",
         "<ProductName>KAN 27</ProductName>", ana},
        {"nil-identifier", "true", ana, "FarmID=\"00000000-0000-0000-0000-000000000000\"",
         "FarmID=\"0e853b3d-0878-42f1-ba82-d5e02fc65f07\"", ana},
        {"number-empty", "true", ana, "<TotalUOMID/>", "<TotalUOMID>11</TotalUOMID>", ana},
    };
    return packages;
}

fs::path brokenSample(const BrokenPackage& package) {
    const fs::path folder = fs::path(test::inSources("examples/packages/broken")) / package.folder;
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    if (files.size() != 1)
        throw std::runtime_error("not one package in " + folder.string());
    return files.front();
}

std::string mended(const BrokenPackage& package, std::string text) {
    const std::string& wrong = package.wrong;
    std::size_t at = wrong.empty() ? std::string::npos : text.find(wrong);
    for (; at != std::string::npos; at = text.find(wrong, at + package.right.size()))
        text.replace(at, wrong.size(), package.right);
    return text;
}

} // namespace test

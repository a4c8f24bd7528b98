#include "parser/QenXmlParser.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "tests/support/Describe.h"
#include "tests/support/PackageReading.h"
#include "tests/support/PackageText.h"
#include "tests/support/Xml.h"

namespace {

using test::element;
using test::uuid;
using test::Xml;

const std::string commercial =
    element("CommercialFertilizer", "<ProductID>5</ProductID><ProductName>Urea</ProductName>"
                                    "<UOMID>6</UOMID><UOM>kg</UOM>");

const std::string planting =
    element("Planting", "<CropID>1</CropID><CropName>Maize</CropName>"
                        "<CompanyID>2</CompanyID><CompanyName>Seeds</CompanyName>"
                        "<VarietyID>3</VarietyID><VarietyName>Early</VarietyName>"
                        "<UOMID>4</UOMID><UOM>seeds</UOM>");

std::string custom(const std::string& productId) {
    return element("CustomFertilizer",
                   element("ProductID", productId) +
                       "<ProductName>Blend</ProductName><UOMID>7</UOMID><UOM>l</UOM>"
                       "<SFertT_ID>8</SFertT_ID><SpGravity>1.5</SpGravity>"
                       "<Pct_N>1</Pct_N><Pct_P>2</Pct_P><Pct_K>3</Pct_K><Pct_Ca>4</Pct_Ca>"
                       "<Pct_Mg>5</Pct_Mg><Pct_S>6</Pct_S><Pct_Fe>7</Pct_Fe><Pct_Mn>8</Pct_Mn>"
                       "<Pct_Zn>9</Pct_Zn><Pct_Cu>10</Pct_Cu><Pct_B>11</Pct_B><Pct_Mo>12</Pct_Mo>"
                       "<Pct_Cl>13</Pct_Cl>");
}

const std::string pesticide =
    element("Pesticide", "<PesticideMixName>Mix</PesticideMixName><UOMID>9</UOMID><UOM>l/ha</UOM>");

/// What the product data of a rec with @p content read as, whether the document keeps the first
/// text of an element in a node of its own or, as that of a package does, in the element.
std::string dataOf(const std::string& content) {
    const auto read = [&](unsigned options) {
        pugi::xml_document document;
        EXPECT_TRUE(document.load_string(element("RecData", content).c_str(), options));
        const std::unique_ptr<QenRecData> data(
            QenXmlParser().parseRecDataNode(uuid(31), document.first_child()));
        return test::describe(data.get());
    };
    EXPECT_EQ(read(pugi::parse_default), read(pugi::parse_default | pugi::parse_embed_pcdata));
    return read(pugi::parse_default);
}

template <class Data, class... Values>
std::string described(Values... values) {
    Data data(uuid(31), values...);
    return test::describe(&data);
}

const std::string commercialRead = described<CommercialFertilizerRec>(5, "Urea", 6, "kg");
const std::string plantingRead =
    described<PlantingRec>(1, "Maize", 2, "Seeds", 3, "Early", 4, "seeds");
const std::string customRead = described<CustomFertilizerRec>(
    uuid(41), "Blend", 7, "l", 8, 1.5, 1., 2., 3., 4., 5., 6., 7., 8., 9., 10., 11., 12., 13.);

} // namespace

TEST(RecDataElement, SelectsTheReaderByTheNameOfItsFirstChild) {
    EXPECT_EQ(commercialRead, dataOf(commercial));
    EXPECT_EQ(customRead, dataOf(custom(test::uuidText(41))));
    EXPECT_EQ(plantingRead, dataOf(planting));
}

TEST(RecDataElement, WithAnyOtherFirstChildGivesNone) {
    for (const std::string name :
         {"Pesticide", "planting", "PLANTING", "Plantings", "Plant", "x:Planting",
          "CommercialFertilizerRec", "Commercial", "Customfertilizer", "Anything"}) {
        SCOPED_TRACE(name);
        pugi::xml_document document;
        pugi::xml_node data = document.append_child("RecData");
        // All children that any of the products has to have.
        for (const std::string& product : {commercial, custom(test::uuidText(41)), planting}) {
            const Xml xml(product);
            for (const pugi::xml_node child : xml.root().children())
                data.append_copy(child);
        }
        data.set_name(name.c_str());
        pugi::xml_document outer;
        outer.append_child("RecData").append_copy(data);
        const std::unique_ptr<QenRecData> read(
            QenXmlParser().parseRecDataNode(uuid(31), outer.first_child()));
        EXPECT_EQ("none", test::describe(read.get()));
        outer.first_child().first_child().set_name("Planting");
        const std::unique_ptr<QenRecData> control(
            QenXmlParser().parseRecDataNode(uuid(31), outer.first_child()));
        EXPECT_NE("none", test::describe(control.get()));
    }
}

TEST(RecDataElement, WithoutChildrenGivesNone) {
    EXPECT_EQ("none", dataOf(""));
}

TEST(RecDataElement, ThatIsAbsentGivesNone) {
    EXPECT_EQ(nullptr, QenXmlParser().parseRecDataNode(uuid(31), pugi::xml_node()));
}

TEST(RecDataElement, WithAPesticideGivesNoneAlthoughItsReaderReadsIt) {
    EXPECT_EQ("none", dataOf(pesticide));

    const Xml xml(pesticide);
    const std::unique_ptr<PesticideRec> mix(
        QenXmlParser().parsePesticideRecDataNode(uuid(31), xml.root()));
    PesticideRec expected(uuid(31), {}, {}, "Mix", 9, "l/ha");
    EXPECT_EQ(test::describe(&expected), test::describe(mix.get()));
}

TEST(RecDataElement, WithAPesticideFirstGivesNoneWhateverFollows) {
    EXPECT_EQ("none", dataOf(pesticide + planting));
}

TEST(RecDataElement, OfTwoProductsGivesTheFirst) {
    EXPECT_EQ(commercialRead, dataOf(commercial + planting));
    EXPECT_EQ(plantingRead, dataOf(planting + "text" + commercial));
}

TEST(RecDataElement, WithAnIncompleteFirstProductGivesNoneWhateverFollows) {
    EXPECT_EQ("none", dataOf("<CommercialFertilizer/>" + planting));
    EXPECT_EQ("none", dataOf("<CustomFertilizer/>" + planting));
    EXPECT_EQ("none", dataOf("<Planting/>" + commercial));
}

TEST(RecDataElement, WithATextBeforeTheProductGivesNone) {
    EXPECT_EQ("none", dataOf("text" + planting));
    EXPECT_EQ("none", dataOf("&#0;" + planting));
    EXPECT_EQ("none", dataOf("<![CDATA[text]]>" + planting));
    EXPECT_EQ("none", dataOf("<![CDATA[]]>" + planting));
}

TEST(RecDataElement, PassesOverWhatALoadedPackageDoesNotKeep) {
    EXPECT_EQ(plantingRead, dataOf("\n  " + planting));
    EXPECT_EQ(plantingRead, dataOf("<!-- comment -->" + planting));
    EXPECT_EQ(plantingRead, dataOf("<?instruction?>" + planting));
}

TEST(RecDataElement, TakesEvenACommentOfAHostsOwnDocumentForTheFirstChild) {
    const Xml xml(element("RecData", planting));
    pugi::xml_node data = xml.root();
    data.prepend_child(pugi::node_comment).set_value("comment");
    EXPECT_EQ(nullptr, QenXmlParser().parseRecDataNode(uuid(31), data));
}

TEST(RecDataElement, RaisesForAnEmptyIdentifierOfABlendOnly) {
    EXPECT_THROW(dataOf(custom("")), std::runtime_error);
    EXPECT_THROW(dataOf(custom("broken")), std::runtime_error);
    EXPECT_EQ(described<CommercialFertilizerRec>(0, "Urea", 6, "kg"),
              dataOf("<CommercialFertilizer><ProductID/><ProductName>Urea</ProductName>"
                     "<UOMID>6</UOMID><UOM>kg</UOM></CommercialFertilizer>"));
}

TEST(RecDataElement, TheChildrenOfAProductMayHaveOthersBetweenThem) {
    EXPECT_EQ(commercialRead,
              dataOf("<CommercialFertilizer>text<UOM>kg</UOM><Note>Urea</Note><UOMID>6</UOMID>"
                     "<CropName/><ProductName>Urea</ProductName><Amount/>"
                     "<ProductID>5</ProductID><Note/></CommercialFertilizer>"));
}

TEST(RecDataElement, IsReadWithTheIdentifierOfItsRecFromAFile) {
    const auto recWith = [](unsigned number, const std::string& product) {
        return test::rec(number, element("RecData", product));
    };
    const std::string recs = recWith(31, commercial) + recWith(32, custom(test::uuidText(41))) +
                             recWith(33, planting) + recWith(34, pesticide) + test::rec(35) +
                             recWith(36, "text" + planting);
    std::vector<QenGrower> growers = test::growersOf(test::packageWithRecs(recs));
    std::vector<std::string> kinds;
    for (QenRec& rec : growers.at(0).farms().at(0).fields().at(0).recs()) {
        QenRecData* data = rec.recData();
        if (data != nullptr) {
            EXPECT_EQ(rec.id(), data->recId());
        }
        kinds.push_back(data == nullptr ? "none" : std::to_string(data->recType()));
    }
    EXPECT_EQ((std::vector<std::string>{"1", "2", "3", "none", "none", "none"}), kinds);
}

// A host that reads packages includes one header. This file includes no other of the library.

#include "parser/QenXmlParser.h"

#include <memory>

#include <gtest/gtest.h>

namespace {

TEST(QenXmlParserHeader, IsEnoughToOwnAndToReadProductData) {
    pugi::xml_document document;
    document.load_string("<RecData><CommercialFertilizer><ProductID>7</ProductID><ProductName/>"
                         "<UOMID/><UOM/></CommercialFertilizer></RecData>");
    QenXmlParser parser;
    const boost::uuids::uuid recId{{1}};
    std::unique_ptr<QenRecData> data(parser.parseRecDataNode(recId, document.first_child()));
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->recType(), RecTypeCommercialFertilizer);
    EXPECT_EQ(static_cast<CommercialFertilizerRec&>(*data).productId(), 7);
    data.reset(parser.parsePlantingRecDataNode(recId, document.first_child()));
    EXPECT_EQ(data, nullptr);
}

} // namespace

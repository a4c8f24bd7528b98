#include "parser/RecDataElement.h"

#include <string_view>
#include <vector>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PesticideRec.h"
#include "model/PlantingRec.h"
#include "parser/Identifier.h"
#include "parser/QenXmlParser.h"
#include "parser/TagNames.h"
#include "parser/ValueChildren.h"

namespace tag = qenxml::tag;
using qenxml::Origin;

namespace {

std::unique_ptr<CommercialFertilizerRec>
readCommercialFertilizer(const boost::uuids::uuid& recId, pugi::xml_node node, Origin origin) {
    qenxml::ValueChildren child(node, origin);
    const int productId = child.integer(tag::ProductID);
    const char* productName = child.text(tag::ProductName);
    const int uomId = child.integer(tag::UOMID);
    const char* uom = child.text(tag::UOM);
    if (!child.complete())
        return nullptr;
    return std::make_unique<CommercialFertilizerRec>(recId, productId, productName, uomId, uom);
}

std::unique_ptr<CustomFertilizerRec> readCustomFertilizer(const boost::uuids::uuid& recId,
                                                          pugi::xml_node node, Origin origin) {
    qenxml::ValueChildren child(node, origin);
    const char* productId = child.text(tag::ProductID);
    const char* productName = child.text(tag::ProductName);
    const int uomId = child.integer(tag::UOMID);
    const char* uom = child.text(tag::UOM);
    const int sFertT_ID = child.integer(tag::SFertT_ID);
    const double spGravity = child.number(tag::SpGravity);
    const double pct_N = child.number(tag::Pct_N);
    const double pct_P = child.number(tag::Pct_P);
    const double pct_K = child.number(tag::Pct_K);
    const double pct_Ca = child.number(tag::Pct_Ca);
    const double pct_Mg = child.number(tag::Pct_Mg);
    const double pct_S = child.number(tag::Pct_S);
    const double pct_Fe = child.number(tag::Pct_Fe);
    const double pct_Mn = child.number(tag::Pct_Mn);
    const double pct_Zn = child.number(tag::Pct_Zn);
    const double pct_Cu = child.number(tag::Pct_Cu);
    const double pct_B = child.number(tag::Pct_B);
    const double pct_Mo = child.number(tag::Pct_Mo);
    const double pct_Cl = child.number(tag::Pct_Cl);
    if (!child.complete())
        return nullptr;
    // Only now, so that a missing child yields null even when the identifier is malformed.
    const boost::uuids::uuid productUuid = qenxml::uuidFromText(productId);
    return std::make_unique<CustomFertilizerRec>(
        recId, productUuid, productName, uomId, uom, sFertT_ID, spGravity, pct_N, pct_P, pct_K,
        pct_Ca, pct_Mg, pct_S, pct_Fe, pct_Mn, pct_Zn, pct_Cu, pct_B, pct_Mo, pct_Cl);
}

std::unique_ptr<PlantingRec> readPlanting(const boost::uuids::uuid& recId, pugi::xml_node node,
                                          Origin origin) {
    qenxml::ValueChildren child(node, origin);
    const int cropId = child.integer(tag::CropID);
    const char* cropName = child.text(tag::CropName);
    const int companyId = child.integer(tag::CompanyID);
    const char* companyName = child.text(tag::CompanyName);
    const int varietyId = child.integer(tag::VarietyID);
    const char* varietyName = child.text(tag::VarietyName);
    const int uomId = child.integer(tag::UOMID);
    const char* uom = child.text(tag::UOM);
    if (!child.complete())
        return nullptr;
    return std::make_unique<PlantingRec>(recId, cropId, cropName, companyId, companyName, varietyId,
                                         varietyName, uomId, uom);
}

std::unique_ptr<PesticideRec> readPesticide(const boost::uuids::uuid& recId, pugi::xml_node node,
                                            Origin origin) {
    qenxml::ValueChildren child(node, origin);
    const char* pesticideMixName = child.text(tag::PesticideMixName);
    const int uomId = child.integer(tag::UOMID);
    const char* uom = child.text(tag::UOM);
    if (!child.complete())
        return nullptr;
    return std::make_unique<PesticideRec>(recId, std::vector<PesticideByPercent>(),
                                          std::vector<PesticideByAmount>(), pesticideMixName, uomId,
                                          uom);
}

} // namespace

std::unique_ptr<QenRecData> qenxml::readRecData(const boost::uuids::uuid& recId,
                                                pugi::xml_node node, Origin origin) {
    // Only the first node counts, and it may be a text, whose name is empty.
    const pugi::xml_node product = node.first_child();
    const std::string_view kind = product.name();
    if (kind == tag::CommercialFertilizer)
        return readCommercialFertilizer(recId, product, origin);
    if (kind == tag::CustomFertilizer)
        return readCustomFertilizer(recId, product, origin);
    if (kind == tag::Planting)
        return readPlanting(recId, product, origin);
    return nullptr; // A pesticide mix is not read from packages, on purpose.
}

QenRecData* QenXmlParser::parseRecDataNode(boost::uuids::uuid recId, pugi::xml_node node) {
    return qenxml::readRecData(recId, node, Origin::Unknown).release();
}

CommercialFertilizerRec*
QenXmlParser::parseCommercialFertilizerRecDataNode(boost::uuids::uuid recId, pugi::xml_node node) {
    return readCommercialFertilizer(recId, node, Origin::Unknown).release();
}

CustomFertilizerRec* QenXmlParser::parseCustomFertilizerRecDataNode(boost::uuids::uuid recId,
                                                                    pugi::xml_node node) {
    return readCustomFertilizer(recId, node, Origin::Unknown).release();
}

PlantingRec* QenXmlParser::parsePlantingRecDataNode(boost::uuids::uuid recId, pugi::xml_node node) {
    return readPlanting(recId, node, Origin::Unknown).release();
}

PesticideRec* QenXmlParser::parsePesticideRecDataNode(boost::uuids::uuid recId,
                                                      pugi::xml_node node) {
    return readPesticide(recId, node, Origin::Unknown).release();
}

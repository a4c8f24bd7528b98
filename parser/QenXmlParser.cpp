#include "parser/QenXmlParser.h"

#include "parser/internal/Identifier.h"
#include "parser/internal/ListWalk.h"
#include "parser/internal/PackageName.h"
#include "parser/internal/PackageReader.h"

void qenxml::QENXML_DOCUMENTS() {}

// The branches not counted here and in RecDataElement.cpp are those of unwinding.
QenXmlParser::QenXmlParser() = default; // GCOVR_EXCL_BR_LINE

QenXmlParser::~QenXmlParser() = default;

bool QenXmlParser::parseFile(std::string path) {
    // The first text of an element stands in the element itself: without a node of its own for
    // nearly every value the document takes half of the memory.
    const pugi::xml_parse_result loaded = document_.load_file(
        path.c_str(), pugi::parse_default | pugi::parse_embed_pcdata, pugi::encoding_auto);
    // The name comes before the result of loading: callers rely on a failure of the name being
    // raised for any file, and on the package identifier being taken over for a broken one.
    xmlFileName_ = qenxml::uuidFromText(qenxml::packageIdentifier(path));
    if (!loaded)
        return false;

    namespace format = qenxml::format;
    const pugi::xml_node package = document_.child((names_.*format::recPackage.name).c_str());
    if (package.empty())
        return false;

    const qenxml::PackageReader reader = this->reader(package);
    qenxml::walkList(reader.read<format::recPackage>(package).firstItem(),
                     [&](pugi::xml_node node) { growers_.push_back(reader.grower(node)); });
    return true;
}

std::vector<QenGrower> QenXmlParser::getGrowers() {
    return growers_;
}

qenxml::PackageReader QenXmlParser::reader(pugi::xml_node node) const {
    const bool own = node.root() == document_;
    return {names_, own ? qenxml::Origin::File : qenxml::Origin::Unknown, xmlFileName_};
}

QenGrower QenXmlParser::parseGrowerNode(pugi::xml_node node) {
    return reader(node).grower(node);
}

QenFarm QenXmlParser::parseFarmNode(boost::uuids::uuid growerId, pugi::xml_node node) {
    return reader(node).farm(growerId, node);
}

QenField QenXmlParser::parseFieldNode(boost::uuids::uuid growerId, boost::uuids::uuid farmId,
                                      pugi::xml_node node) {
    return reader(node).field(growerId, farmId, node);
}

QenRec QenXmlParser::parseRecNode(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId,
                                  pugi::xml_node node) {
    QenRec rec;
    reader(node).readRec(rec, fieldId, fieldGeometryId, node);
    return rec;
}

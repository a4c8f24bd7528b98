// Tells what each rec prescribes, and reads a pesticide mix, which packages are not asked for.

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "parser/QenXmlParser.h"

//! [product]
// The kind says which class the product data is of, so it is asked first.
std::string product(QenRec& rec) {
    QenRecData* data = rec.recData(); // a view: the rec owns the data
    if (data == nullptr)
        return "no product data";
    switch (data->recType()) {
    case RecTypePlanting: {
        auto* planting = static_cast<PlantingRec*>(data);
        return planting->cropName() + " " + planting->varietyName() + " of " +
               planting->companyName();
    }
    case RecTypeCommercialFertilizer: {
        auto* fertilizer = static_cast<CommercialFertilizerRec*>(data);
        return fertilizer->productName() + ", product " + std::to_string(fertilizer->productId());
    }
    case RecTypeCustomFertilizer: {
        auto* blend = static_cast<CustomFertilizerRec*>(data);
        return blend->productName() + ", by " + blend->uom();
    }
    default: // pesticide mixes are not read from packages
        return "unknown";
    }
}
//! [product]

int main() {
    QenXmlParser parser;
    parser.parseFile("32833106-536e-45df-80b2-d002cc92d33d.xml");
    std::vector<QenGrower> growers = parser.getGrowers();
    for (QenField& field : growers.at(0).farms().at(0).fields())
        for (QenRec& rec : field.recs())
            std::cout << rec.name() << ": " << product(rec) << '\n';

    //! [nutrients]
    QenRec& starter = growers.at(0).farms().at(0).fields().at(1).recs().at(1);
    auto* blend = static_cast<CustomFertilizerRec*>(starter.recData());
    std::cout << "N " << blend->pct_N() << " %, P " << blend->pct_P() << " %, K " << blend->pct_K()
              << " %, specific gravity " << blend->spGravity() << '\n';
    //! [nutrients]

    //! [pesticide]
    pugi::xml_document document;
    document.load_file("f3faa8e8-79ea-4723-8ad5-cfbc1d74bd1c.xml");
    const pugi::xml_node element = document.select_node("//Pesticide").node();
    const std::unique_ptr<PesticideRec> mix(
        parser.parsePesticideRecDataNode(starter.id(), element)); // null if it is incomplete
    if (mix)
        std::cout << mix->pesticideMixName() << ", by " << mix->uom() << ", with "
                  << mix->pesticidesByAmount().size() << " lines\n";
    //! [pesticide]
}

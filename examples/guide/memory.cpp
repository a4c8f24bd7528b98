// Changes recs so that no product data is lost.

#include <iostream>
#include <vector>

#include "parser/QenXmlParser.h"

int main() {
    QenXmlParser parser;
    parser.parseFile("32833106-536e-45df-80b2-d002cc92d33d.xml");
    std::vector<QenGrower> growers = parser.getGrowers();
    QenField& field = growers.at(0).farms().at(0).fields().at(0);
    QenRec& corn = field.recs().at(0);
    QenRec& urea = field.recs().at(1);

    //! [replace]
    // Other product data for a rec: the rec owns the new object, the earlier one is ours.
    QenRecData* earlier = urea.recData();
    urea.setRecData(new CommercialFertilizerRec(urea.id(), 27, "CAN 27", 12, "lb"));
    delete earlier;
    //! [replace]
    std::cout << static_cast<CommercialFertilizerRec*>(urea.recData())->productName() << '\n';

    //! [assign]
    // Assigning copies the product data, too, and leaves the earlier object to us.
    QenRec kept = urea;
    earlier = kept.recData();
    kept = corn;
    delete earlier;
    //! [assign]
    std::cout << kept.name() << '\n';

    //! [add]
    // addRec() over a rec with the same identifier is such an assignment.
    kept.setName("Corn, later");
    earlier = corn.recData();
    field.addRec(kept);
    delete earlier;
    //! [add]
    std::cout << corn.name() << '\n';

    //! [remove]
    // Removing recs: not by erase(), which assigns one element to the other. A new list loses
    // nothing; it ends references to the recs of the old one.
    std::vector<QenRec> rest;
    for (QenRec& rec : field.recs())
        if (rec.operationName() != "Planting")
            rest.push_back(rec);
    field.recs().swap(rest);
    //! [remove]
    std::cout << field.recs().size() << " rec left: " << field.recs().at(0).name() << '\n';
}

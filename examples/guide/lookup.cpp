// Looks up boundaries and recs of a field by their identifiers.

#include <algorithm>
#include <iostream>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "parser/QenXmlParser.h"

//! [const]
// A const field gives its geometries, as copies. What is not a const member (the accessors of a
// geometry, or recs()) is called on a copy.
void printBoundaries(const QenField& field) {
    for (QenFieldGeometry& geometry : field.geometries())
        std::cout << "boundary of " << geometry.geometryDate() << '\n';
    std::cout << QenField(field).recs().size() << " recs\n";
}
//! [const]

int main() {
    QenXmlParser parser;
    parser.parseFile("32833106-536e-45df-80b2-d002cc92d33d.xml");
    std::vector<QenGrower> growers = parser.getGrowers();

    //! [boundary]
    QenField& field = growers.at(0).farms().at(0).fields().at(0);
    QenRec& rec = field.recs().at(0);

    const boost::uuids::uuid boundary = rec.fieldGeometryId();
    const LLA centroid = field.centroid(boundary);
    std::cout << rec.name() << ": boundary of " << field.geometryDate(boundary) << " around "
              << centroid.latitude << ", " << centroid.longitude << " in the file "
              << field.geometryFileName(boundary) << '\n';
    //! [boundary]

    //! [rec]
    QenRec copy = field.rec(rec.id()); // asks the product data of the recs
    std::cout << "found by its product data: " << copy.name() << '\n';

    const auto found = std::find_if(field.recs().begin(), field.recs().end(),
                                    [&](QenRec& each) { return each.id() == rec.id(); });
    std::cout << "found by its own identifier: " << found->name() << '\n';
    //! [rec]

    //! [unknown]
    const boost::uuids::uuid unknown{};
    std::cout << std::boolalpha << field.geometryFileName(unknown).empty() << ' '
              << field.geometryFileId(unknown).is_nil() << ' ' << field.rec(unknown).id().is_nil()
              << '\n';
    //! [unknown]

    printBoundaries(field);
}

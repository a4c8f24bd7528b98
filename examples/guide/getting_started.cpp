//! [program]
#include "parser/QenXmlParser.h"

#include <iostream>

int main(int, char** argv) {
    QenXmlParser parser;
    if (!parser.parseFile(argv[1])) // may throw, see below
        return 1;
    for (QenGrower& grower : parser.getGrowers())
        for (QenFarm& farm : grower.farms())
            for (QenField& field : farm.fields())
                for (QenRec& rec : field.recs())
                    std::cout << field.name() << ": " << rec.averageRate() << ' ' << rec.rateUom()
                              << '\n';
}
//! [program]

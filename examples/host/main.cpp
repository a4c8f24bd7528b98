// A host program: reads the package files given as arguments, combines what they say about the same
// grower and prints each rec with its product, its average rate and the file of its boundary.

#include <algorithm>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/CommercialFertilizerRec.h"
#include "model/CustomFertilizerRec.h"
#include "model/PlantingRec.h"
#include "parser/QenXmlParser.h"

// Reads one file. What the parser has read of other files stays, whatever happens here.
bool read(QenXmlParser& parser, const std::string& path) {
    try {
        if (parser.parseFile(path))
            return true;
        std::cerr << path << ": cannot be opened, or is no RecPackage\n";
    } catch (const std::out_of_range&) {
        std::cerr << path << ": the path is too short to hold the UUID of a package\n";
    } catch (const std::exception& error) { // a broken identifier, or no memory left
        std::cerr << path << ": " << error.what() << ", read only up to there\n";
    }
    return false;
}

// One entry per grower: the first package names the grower, the later ones are merged into it.
std::vector<QenGrower> merged(const std::vector<QenGrower>& growers) {
    std::vector<QenGrower> result;
    for (const QenGrower& grower : growers) {
        const auto present = std::find(result.begin(), result.end(), grower);
        if (present == result.end())
            result.push_back(grower);
        else
            present->merge(grower);
    }
    return result;
}

// What the rec prescribes. The rec owns the product data and deletes it: the pointer is a view that
// is valid as long as the rec is. The kind says which class it points to, so it comes first.
std::string product(QenRec& rec) {
    QenRecData* data = rec.recData();
    if (data == nullptr)
        return "no product";
    switch (data->recType()) {
    case RecTypePlanting:
        return static_cast<PlantingRec*>(data)->varietyName();
    case RecTypeCommercialFertilizer:
        return static_cast<CommercialFertilizerRec*>(data)->productName();
    case RecTypeCustomFertilizer:
        return static_cast<CustomFertilizerRec*>(data)->productName();
    default: // pesticide mixes are not read from packages
        return "unknown product";
    }
}

int main(int argc, char** argv) {
    QenXmlParser parser;
    bool complete = true;
    for (const std::string& path : std::vector<std::string>(argv + 1, argv + argc))
        complete = read(parser, path) && complete;

    // The lists are walked by reference: copying a rec would copy its product data, too.
    std::vector<QenGrower> growers = merged(parser.getGrowers());
    for (QenGrower& grower : growers)
        for (QenFarm& farm : grower.farms())
            for (QenField& field : farm.fields()) {
                std::cout << grower.name() << " / " << farm.name() << " / " << field.name() << '\n';
                for (QenRec& rec : field.recs())
                    std::cout << "  " << rec.name() << ": " << product(rec) << ", "
                              << rec.averageRate() << ' ' << rec.rateUom() << ", boundary "
                              << field.geometryFileName(rec.fieldGeometryId()) << '\n';
            }
    return complete ? 0 : 1;
}

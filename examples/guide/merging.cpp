// Merges a plan and the changes to it, which call the same grower, farm and field by other names.

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "parser/QenXmlParser.h"

//! [combine]
// One entry per grower: the first package names the grower, the later ones are merged into it.
std::vector<QenGrower> combined(const std::vector<QenGrower>& growers) {
    std::vector<QenGrower> result;
    for (const QenGrower& grower : growers) {
        const auto present = std::find(result.begin(), result.end(), grower); // the same identifier
        if (present == result.end())
            result.push_back(grower);
        else
            present->merge(grower);
    }
    return result;
}
//! [combine]

void print(const std::string& level, const std::string& plan, const std::string& changes,
           const std::string& merged) {
    std::cout << level << ": " << plan << " + " << changes << " = " << merged << '\n';
}

std::string rate(QenRec& rec) {
    return std::to_string(static_cast<int>(rec.averageRate())) + ' ' + rec.rateUom();
}

int main() {
    QenXmlParser parser;
    parser.parseFile("3ce1268c-9c80-42e3-bfec-3fee8ed2305d.xml");
    parser.parseFile("f08db22f-d293-456a-b170-fab23d90fbac.xml");
    std::vector<QenGrower> growers = parser.getGrowers();
    QenGrower& plan = growers.at(0);
    QenGrower& changes = growers.at(1);

    //! [merge]
    QenGrower merged = plan;
    merged.merge(changes); // a copy goes in: changes stays as it is
    //! [merge]

    QenFarm& planned = plan.farms().at(0);
    QenFarm& changed = changes.farms().at(0);
    QenFarm& farm = merged.farms().at(0);
    QenField& plannedField = planned.fields().at(0);
    QenField& changedField = changed.fields().at(1);
    QenField& field = farm.fields().at(1);
    print("grower", plan.name(), changes.name(), merged.name());
    print("farm", planned.name(), changed.name(), farm.name());
    print("field", plannedField.name(), changedField.name(), field.name());
    print("rec", rate(plannedField.recs().at(0)), rate(changedField.recs().at(0)),
          rate(field.recs().at(0)));

    std::cout << "fields of the merged farm:";
    for (QenField& each : farm.fields())
        std::cout << ' ' << each.name() << ',';
    std::cout << "\nrecs of the merged field:";
    for (QenRec& rec : field.recs())
        std::cout << ' ' << rec.name() << ',';
    std::cout << "\nits boundaries:";
    for (QenFieldGeometry& geometry : field.geometries())
        std::cout << ' ' << geometry.geometryDate() << ',';
    std::cout << "\ngrowers read: " << growers.size() << ", combined: " << combined(growers).size()
              << '\n';
}

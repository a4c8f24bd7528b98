#include "tests/tools/diff/PlantedPackage.h"

#include <algorithm>

#include "tests/support/PackageText.h"

namespace test {

namespace {

/// A value: what the comparison and the package call it.
struct ValueName {
    std::string name;
    std::string element;
    bool isNumber;
};

const std::vector<ValueName> recValues = {{"name", "RecName", false},
                                          {"creationDate", "CreationDate", false},
                                          {"editDate", "EditDate", false},
                                          {"recDbfCol", "RecDBFCol", false}};

const std::vector<ValueName> statistics = {{"minimumRate", "MinimumRate", true},
                                           {"averageRate", "AverageRate", true},
                                           {"maximumRate", "MaximumRate", true},
                                           {"rateUomId", "RateUOMID", true},
                                           {"rateUom", "RateUOM", false},
                                           {"total", "Total", true},
                                           {"totalUomId", "TotalUOMID", true},
                                           {"totalUom", "TotalUOM", false},
                                           {"area", "Area", true},
                                           {"areaUomId", "AreaUOMID", true},
                                           {"areaUom", "AreaUOM", false}};

const std::vector<ValueName> productValues = {{"productId", "ProductID", true},
                                              {"productName", "ProductName", false},
                                              {"uomId", "UOMID", true},
                                              {"uom", "UOM", false}};

const std::vector<ValueName> centroidValues = {{"latitude", "Latitude", true},
                                               {"longitude", "Longitude", true}};

const std::vector<ValueName> nameValue = {{"name", "", false}};
const std::vector<ValueName> boundaryValues = {{"geometryDate", "FieldGeometryDate", false},
                                               {"latitude", "Latitude", true},
                                               {"longitude", "Longitude", true}};

std::string elementsOf(const PlantedRecord& record, const std::vector<ValueName>& values) {
    std::string text;
    for (const ValueName& value : values) {
        const auto given = record.values.find(value.name);
        if (given != record.values.end())
            text += element(value.element, given->second);
    }
    return text;
}

std::vector<ValueName> valuesOf(const std::string& kind) {
    if (kind == "boundary")
        return boundaryValues;
    if (kind != "rec")
        return nameValue;
    std::vector<ValueName> all = recValues;
    all.insert(all.end(), statistics.begin(), statistics.end());
    all.insert(all.end(), productValues.begin(), productValues.end());
    return all;
}

/// Not every value can be left out: without one of its own a product is none.
bool canBeMissing(const std::string& name) {
    return std::none_of(productValues.begin(), productValues.end(),
                        [&name](const ValueName& value) { return value.name == name; });
}

class Planter {
public:
    explicit Planter(std::mt19937& random) : random_(random) {}

    unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

    PlantedRecord record(const std::string& kind) {
        PlantedRecord made{kind, ++id_, {}, {}};
        for (const ValueName& value : valuesOf(kind)) {
            if (below(8) > 0 || !canBeMissing(value.name))
                made.values[value.name] = newText(value);
        }
        return made;
    }

    PlantedRecord tree(std::size_t depth) {
        static const std::vector<std::string> kinds = {"grower", "farm", "field"};
        PlantedRecord made = record(kinds.at(depth));
        if (depth == 2)
            made.children.push_back(record("boundary"));
        for (unsigned children = 1 + below(3); children > 0; --children)
            made.children.push_back(depth == 2 ? record("rec") : tree(depth + 1));
        return made;
    }

    /// Texts are all different, so that a new one is another one.
    std::string newText(const ValueName& value) {
        ++text_;
        return value.isNumber ? std::to_string(text_) : "text " + std::to_string(text_);
    }

    void startAfter(unsigned number) { id_ = text_ = number; }

private:
    std::mt19937& random_;
    unsigned id_ = 0;
    unsigned text_ = 0;
};

std::string called(const PlantedRecord& record) {
    return record.kind + " " + std::to_string(record.id);
}

class Changer {
public:
    explicit Changer(std::mt19937& random) : planter_(random) { planter_.startAfter(100'000); }

    void change(std::vector<PlantedRecord>& siblings, bool isAllowed) {
        for (auto record = siblings.begin(); record != siblings.end();) {
            const bool isRec = isAllowed && record->kind == "rec";
            if (isRec && planter_.below(8) == 0) {
                expected_.insert("removed " + called(*record));
                record = siblings.erase(record);
                continue;
            }
            changeValues(*record);
            change(record->children, true);
            ++record;
        }
        if (!siblings.empty() && siblings.back().kind == "rec" && planter_.below(8) == 0) {
            siblings.push_back(planter_.record("rec"));
            expected_.insert("added " + called(siblings.back()));
        }
    }

    const std::set<std::string>& expected() const { return expected_; }

private:
    void changeValues(PlantedRecord& record) {
        for (const ValueName& value : valuesOf(record.kind)) {
            if (planter_.below(12) > 0)
                continue;
            const bool isThere = record.values.count(value.name) > 0;
            if (isThere && canBeMissing(value.name) && planter_.below(3) == 0)
                record.values.erase(value.name);
            else
                record.values[value.name] = planter_.newText(value);
            expected_.insert(called(record) + " " + value.name);
        }
    }

    Planter planter_;
    std::set<std::string> expected_;
};

std::string textOfRec(const PlantedRecord& record) {
    return element(
        "Rec", "RecID", record.id,
        elementsOf(record, {recValues.front()}) +
            element("RecGeometry", uuidText(5'000'000 + record.id)) +
            elementsOf(record, {recValues.begin() + 1, recValues.end()}) +
            element("RecData", element("CommercialFertilizer", elementsOf(record, productValues))) +
            element("RecStats", elementsOf(record, statistics)));
}

std::string textOfField(const PlantedRecord& record) {
    const PlantedRecord& boundary = record.children.front();
    std::string recs;
    for (auto rec = record.children.begin() + 1; rec != record.children.end(); ++rec)
        recs += textOfRec(*rec);
    return element("Field", "FieldID", record.id,
                   elementsOf(record, {{"name", "FieldName", false}}) +
                       element("FieldGeometryID", uuidText(boundary.id)) +
                       elementsOf(boundary, {boundaryValues.front()}) +
                       element("FieldGeometry", uuidText(6'000'000 + boundary.id)) +
                       element("FieldCentroid", elementsOf(boundary, centroidValues)) +
                       recommendations(recs));
}

} // namespace

PlantedPackages plantedPackages(std::mt19937& random) {
    Planter planter(random);
    PlantedPackages packages(1 + planter.below(3));
    for (std::vector<PlantedRecord>& package : packages)
        package.push_back(planter.tree(0));
    return packages;
}

std::set<std::string> plantChanges(PlantedPackages& packages, std::mt19937& random) {
    Changer changer(random);
    for (std::vector<PlantedRecord>& package : packages)
        changer.change(package, false);
    return changer.expected();
}

std::string textOf(const std::vector<PlantedRecord>& growers) {
    std::string text;
    for (const PlantedRecord& grower : growers) {
        std::string farms;
        for (const PlantedRecord& farm : grower.children) {
            std::string fields;
            for (const PlantedRecord& field : farm.children)
                fields += textOfField(field);
            farms += element("Farm", "FarmID", farm.id,
                             elementsOf(farm, {{"name", "FarmName", false}}) + fields);
        }
        text += element("Grower", "GrowerID", grower.id,
                        elementsOf(grower, {{"name", "GrowerName", false}}) + farms);
    }
    return package(text);
}

} // namespace test

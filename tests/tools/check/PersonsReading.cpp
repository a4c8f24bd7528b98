#include "tests/tools/check/PersonsReading.h"

#include <algorithm>
#include <array>

namespace test {

namespace {

/// What a person notes down while reading.
struct Notes {
    std::string doubt;
    bool inPieces = false;

    void doubtful(const std::string& what) {
        if (doubt.empty())
            doubt = what;
    }
};

/// What means something to XML itself, or to its schemas.
bool isOfXml(const std::string& attribute) {
    const auto startsWith = [&](std::string_view prefix) {
        return attribute.compare(0, prefix.size(), prefix) == 0;
    };
    return attribute == "xmlns" || startsWith("xmlns:") || startsWith("xml:") || startsWith("xsi:");
}

/// An element, of which everything has to be read in the end. What is not there is empty, 0 or nil.
class Sheet {
public:
    Sheet(const XmlElement* element, Notes& notes) : notes_(notes) {
        if (element == nullptr)
            return;
        name_ = element->name;
        there_ = true;
        for (const auto& [name, value] : element->attributes) {
            if (!isOfXml(name))
                attributes_.emplace_back(name, &value);
        }
        for (const XmlElement& child : element->children)
            children_.push_back(&child);
        if (!withoutBlanks(element->text).empty())
            notes_.doubtful("text in " + name_ + ": " + element->text);
    }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    ~Sheet() {
        for (const auto& attribute : attributes_)
            notes_.doubtful("attribute " + attribute.first + " of " + name_);
        for (const XmlElement* const child : children_)
            notes_.doubtful(child->name + " in " + name_);
    }

    bool isThere() const { return there_; }

    std::string text(const char* child) { return textOf(takeOnly(child)); }
    double number(const char* child) { return number(child, text(child)); }
    int integer(const char* child) { return integer(child, text(child)); }
    boost::uuids::uuid identifier(const char* child) { return identifier(child, text(child)); }

    int integerAttribute(const char* name) {
        const std::string* const value = takeAttribute(name);
        if (value == nullptr && there_)
            notes_.doubtful(std::string("no ") + name);
        return value == nullptr ? 0 : integer(name, *value);
    }

    boost::uuids::uuid identifierAttribute(const char* name) {
        const std::string* const value = takeAttribute(name);
        return identifier(name, value == nullptr ? "" : *value);
    }

    boost::uuids::uuid optionalIdentifierAttribute(const char* name) {
        const std::string* const value = takeAttribute(name);
        return value == nullptr || value->empty() ? boost::uuids::uuid{} : identifier(name, *value);
    }

    /// The child of a name, null when there is none.
    const XmlElement* takeOnly(const char* name) {
        const std::vector<const XmlElement*> found = takeAll(name);
        if (found.size() > 1)
            notes_.doubtful(std::string("which ") + name + " is it?");
        return found.empty() ? nullptr : found.front();
    }

    std::vector<const XmlElement*> takeAll(const char* name) {
        const auto rest =
            std::stable_partition(children_.begin(), children_.end(),
                                  [&](const XmlElement* child) { return child->name != name; });
        std::vector<const XmlElement*> found(rest, children_.end());
        children_.erase(rest, children_.end());
        return found;
    }

    /// That every one of these is there.
    void expectAll(std::initializer_list<const char*> names) {
        for (const char* const name : names) {
            if (std::none_of(children_.begin(), children_.end(),
                             [&](const XmlElement* child) { return child->name == name; }))
                notes_.doubtful(name_ + " without " + name);
        }
    }

private:
    const std::string* takeAttribute(const char* name) {
        const auto found =
            std::find_if(attributes_.begin(), attributes_.end(),
                         [&](const auto& attribute) { return attribute.first == name; });
        if (found == attributes_.end())
            return nullptr;
        const std::string* const value = found->second;
        attributes_.erase(found);
        return value;
    }

    std::string textOf(const XmlElement* element) {
        if (element == nullptr)
            return "";
        for (const auto& attribute : element->attributes) {
            if (!isOfXml(attribute.first))
                notes_.doubtful("attribute " + attribute.first + " of " + element->name);
        }
        if (!element->children.empty())
            notes_.doubtful("markup in " + element->name);
        notes_.inPieces = notes_.inPieces || element->pieces > 1;
        return element->text;
    }

    double number(const char* name, const std::string& text) {
        const auto value = withoutBlanks(text).empty() ? 0 : personsNumber(text);
        if (!value)
            notes_.doubtful(std::string(name) + " is no number: " + text);
        return value.value_or(0);
    }

    int integer(const char* name, const std::string& text) {
        const auto value = withoutBlanks(text).empty() ? 0 : personsInteger(text);
        if (!value)
            notes_.doubtful(std::string(name) + " is no whole number: " + text);
        return value.value_or(0);
    }

    boost::uuids::uuid identifier(const char* name, const std::string& text) {
        const auto value = personsIdentifier(text);
        if (!value)
            notes_.doubtful(std::string(name) + " is no identifier: " + text);
        return value.value_or(boost::uuids::uuid{});
    }

    Notes& notes_;
    std::string name_;
    bool there_ = false;
    std::vector<std::pair<std::string, const std::string*>> attributes_; ///< Not yet read.
    std::vector<const XmlElement*> children_;                            ///< Not yet read.
};

plain::Product planting(const boost::uuids::uuid& rec, const XmlElement& element, Notes& notes) {
    Sheet sheet(&element, notes);
    sheet.expectAll({"CropID", "CropName", "CompanyID", "CompanyName", "VarietyID", "VarietyName",
                     "UOMID", "UOM"});
    return plain::Planting{rec,
                           sheet.integer("CropID"),
                           sheet.text("CropName"),
                           sheet.integer("CompanyID"),
                           sheet.text("CompanyName"),
                           sheet.integer("VarietyID"),
                           sheet.text("VarietyName"),
                           sheet.integer("UOMID"),
                           sheet.text("UOM")};
}

plain::Product fertilizer(const boost::uuids::uuid& rec, const XmlElement& element, Notes& notes) {
    Sheet sheet(&element, notes);
    sheet.expectAll({"ProductID", "ProductName", "UOMID", "UOM"});
    return plain::CommercialFertilizer{rec, sheet.integer("ProductID"), sheet.text("ProductName"),
                                       sheet.integer("UOMID"), sheet.text("UOM")};
}

plain::Product blend(const boost::uuids::uuid& rec, const XmlElement& element, Notes& notes) {
    Sheet sheet(&element, notes);
    sheet.expectAll({"ProductID", "ProductName", "UOMID", "UOM", "SFertT_ID", "SpGravity", "Pct_N",
                     "Pct_P", "Pct_K", "Pct_Ca", "Pct_Mg", "Pct_S", "Pct_Fe", "Pct_Mn", "Pct_Zn",
                     "Pct_Cu", "Pct_B", "Pct_Mo", "Pct_Cl"});
    return plain::CustomFertilizer{rec,
                                   sheet.identifier("ProductID"),
                                   sheet.text("ProductName"),
                                   sheet.integer("UOMID"),
                                   sheet.text("UOM"),
                                   sheet.integer("SFertT_ID"),
                                   sheet.number("SpGravity"),
                                   sheet.number("Pct_N"),
                                   sheet.number("Pct_P"),
                                   sheet.number("Pct_K"),
                                   sheet.number("Pct_Ca"),
                                   sheet.number("Pct_Mg"),
                                   sheet.number("Pct_S"),
                                   sheet.number("Pct_Fe"),
                                   sheet.number("Pct_Mn"),
                                   sheet.number("Pct_Zn"),
                                   sheet.number("Pct_Cu"),
                                   sheet.number("Pct_B"),
                                   sheet.number("Pct_Mo"),
                                   sheet.number("Pct_Cl")};
}

plain::Product product(const boost::uuids::uuid& rec, const XmlElement* recData, Notes& notes) {
    Sheet sheet(recData, notes);
    if (const XmlElement* const found = sheet.takeOnly("Planting"))
        return planting(rec, *found, notes);
    if (const XmlElement* const found = sheet.takeOnly("CommercialFertilizer"))
        return fertilizer(rec, *found, notes);
    if (const XmlElement* const found = sheet.takeOnly("CustomFertilizer"))
        return blend(rec, *found, notes);
    return {};
}

void readOperation(plain::Rec& rec, const XmlElement* element, Notes& notes) {
    Sheet sheet(element, notes);
    if (!sheet.isThere())
        return;
    rec.operationId = sheet.identifierAttribute("OpID");
    rec.operationName = sheet.text("OpName");
}

void readSeason(plain::Rec& rec, const XmlElement* element, Notes& notes) {
    Sheet sheet(element, notes);
    if (!sheet.isThere())
        return;
    rec.seasonId = sheet.integerAttribute("SeasonID");
    rec.seasonName = sheet.text("SeasonName");
}

void readStatistics(plain::Rec& rec, const XmlElement* element, Notes& notes) {
    Sheet sheet(element, notes);
    rec.minimumRate = sheet.number("MinimumRate");
    rec.maximumRate = sheet.number("MaximumRate");
    rec.averageRate = sheet.number("AverageRate");
    rec.rateUomId = sheet.integer("RateUOMID");
    rec.rateUom = sheet.text("RateUOM");
    rec.total = sheet.number("Total");
    rec.totalUomId = sheet.integer("TotalUOMID");
    rec.totalUom = sheet.text("TotalUOM");
    rec.area = sheet.number("Area");
    rec.areaUomId = sheet.integer("AreaUOMID");
    rec.areaUom = sheet.text("AreaUOM");
}

plain::Rec readRec(const plain::Field& field, const boost::uuids::uuid& package,
                   const XmlElement& element, Notes& notes) {
    Sheet sheet(&element, notes);
    plain::Rec rec;
    rec.fieldId = field.id;
    rec.fieldGeometryId = field.geometries.front().id;
    rec.id = sheet.identifierAttribute("RecID");
    rec.zoneId = sheet.optionalIdentifierAttribute("MgmtZoneID");
    rec.name = sheet.text("RecName");
    rec.geometry = sheet.identifier("RecGeometry");
    rec.creationDate = sheet.text("CreationDate");
    rec.editDate = sheet.text("EditDate");
    rec.dbfCol = sheet.text("RecDBFCol");
    readOperation(rec, sheet.takeOnly("Operation"), notes);
    readSeason(rec, sheet.takeOnly("Season"), notes);
    rec.product = product(rec.id, sheet.takeOnly("RecData"), notes);
    readStatistics(rec, sheet.takeOnly("RecStats"), notes);
    rec.package = package;
    return rec;
}

plain::Geometry readGeometry(Sheet& field, Notes& notes) {
    plain::Geometry geometry;
    geometry.id = field.identifier("FieldGeometryID");
    geometry.date = field.text("FieldGeometryDate");
    geometry.file = field.identifier("FieldGeometry");
    Sheet centroid(field.takeOnly("FieldCentroid"), notes);
    geometry.latitude = centroid.number("Latitude");
    geometry.longitude = centroid.number("Longitude");
    return geometry;
}

plain::Field readField(const plain::Farm& farm, const boost::uuids::uuid& package,
                       const XmlElement& element, Notes& notes) {
    Sheet sheet(&element, notes);
    plain::Field field;
    field.name = sheet.text("FieldName");
    field.id = sheet.identifierAttribute("FieldID");
    field.growerId = farm.growerId;
    field.farmId = farm.id;
    field.geometries.push_back(readGeometry(sheet, notes));
    Sheet recommendations(sheet.takeOnly("Recommendations"), notes);
    for (const XmlElement* const rec : recommendations.takeAll("Rec"))
        field.recs.push_back(readRec(field, package, *rec, notes));
    return field;
}

plain::Farm readFarm(const plain::Grower& grower, const boost::uuids::uuid& package,
                     const XmlElement& element, Notes& notes) {
    Sheet sheet(&element, notes);
    plain::Farm farm;
    farm.name = sheet.text("FarmName");
    farm.id = sheet.identifierAttribute("FarmID");
    farm.growerId = grower.id;
    for (const XmlElement* const field : sheet.takeAll("Field"))
        farm.fields.push_back(readField(farm, package, *field, notes));
    return farm;
}

plain::Grower readGrower(const boost::uuids::uuid& package, const XmlElement& element,
                         Notes& notes) {
    Sheet sheet(&element, notes);
    plain::Grower grower;
    grower.name = sheet.text("GrowerName");
    grower.id = sheet.identifierAttribute("GrowerID");
    for (const XmlElement* const farm : sheet.takeAll("Farm"))
        grower.farms.push_back(readFarm(grower, package, *farm, notes));
    return grower;
}

} // namespace

PersonsReading readAsPerson(const XmlElement& root, const boost::uuids::uuid& package) {
    PersonsReading reading;
    Notes notes;
    if (root.name == "RecPackage") {
        Sheet sheet(&root, notes);
        for (const XmlElement* const grower : sheet.takeAll("Grower"))
            reading.growers.push_back(readGrower(package, *grower, notes));
    } else {
        notes.doubtful("the root is " + root.name);
    }
    reading.doubt = notes.doubt;
    reading.inPieces = notes.inPieces;
    return reading;
}

} // namespace test

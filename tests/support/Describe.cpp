#include "tests/support/Describe.h"

#include <iomanip>
#include <sstream>
#include <tuple>
#include <type_traits>

#include <boost/uuid/uuid_io.hpp>

#include "tests/support/ProductElements.h"

namespace test {

namespace {

/// Writes values one after the other, texts in quotes, numbers with all their digits.
class Line {
public:
    explicit Line(const std::string& title) { out_ << title << std::setprecision(17); }

    Line& operator<<(const std::string& text) {
        out_ << ' ' << std::quoted(text);
        return *this;
    }

    template <class Value>
    Line& operator<<(const Value& value) {
        out_ << ' ' << value;
        return *this;
    }

    std::string text() const { return out_.str() + "\n"; }

private:
    std::ostringstream out_;
};

void add(Line& line, PestProduct& product) {
    line << product.productId() << product.productName() << product.regCodeId() << product.regCode()
         << static_cast<int>(product.pesticideType()) << product.amount();
}

std::string linesOf(PesticideRec& data) {
    std::string result;
    for (PesticideByPercent& product : data.pesticidesByPercent()) {
        Line line("    percent");
        add(line, product);
        result += line.text();
    }
    for (PesticideByAmount& product : data.pesticidesByAmount()) {
        Line line("    amount");
        add(line, product);
        line << product.uomId() << product.uom();
        result += line.text();
    }
    return result;
}

template <class Element>
const std::vector<Datum<typename Element::Record>>& rowsOf() {
    static const std::vector<Datum<typename Element::Record>> rows = Element::data();
    return rows;
}

template <class... Elements>
bool makeRows(std::tuple<Elements...> /*elements*/) {
    return (!rowsOf<Elements>().empty() && ...);
}

/// They are made before the tests begin, which watch the memory that is taken.
[[maybe_unused]] const bool rowsAreMade = makeRows(ProductElements());

/// Asks the class of the object, not its kind: the library trusts the kind.
template <class Element>
void addProduct(std::string& result, QenRecData& data) {
    using Product = typename Element::Record;
    auto* const product = dynamic_cast<Product*>(&data);
    if (product == nullptr)
        return;
    Line line(Element::name);
    for (const Datum<Product>& datum : rowsOf<Element>())
        line << datum.value(*product);
    result += line.text();
    if constexpr (std::is_same_v<Product, PesticideRec>)
        result += linesOf(*product);
}

template <class... Elements>
void addProduct(std::string& result, QenRecData& data, std::tuple<Elements...> /*elements*/) {
    (addProduct<Elements>(result, data), ...);
}

} // namespace

std::string describe(QenRecData* data) {
    if (data == nullptr)
        return "none";
    std::string result =
        to_string(data->recId()) + " of kind " + std::to_string(data->recType()) + " ";
    addProduct(result, *data, ProductElements());
    return result;
}

std::string describe(QenRec rec) {
    return (Line("      rec") << rec.id() << rec.name() << rec.fieldId() << rec.fieldGeometryId()
                              << rec.recGeometry() << rec.creationDate() << rec.editDate()
                              << rec.recDbfCol())
               .text() +
           (Line("        operation") << rec.operationId() << rec.operationName()).text() +
           (Line("        season") << rec.seasonId() << rec.seasonName()).text() +
           (Line("        zone") << rec.mgmtZoneId()).text() +
           (Line("        rates") << rec.minimumRate() << rec.maximumRate() << rec.averageRate()
                                  << rec.rateUomId() << rec.rateUom())
               .text() +
           (Line("        total") << rec.total() << rec.totalUomId() << rec.totalUom()).text() +
           (Line("        area") << rec.area() << rec.areaUomId() << rec.areaUom()).text() +
           (Line("        from") << rec.xmlFileName() << (rec.isUsed() ? "used" : "not used"))
               .text() +
           "        data " + describe(rec.recData()) + "\n";
}

std::string describe(QenFieldGeometry geometry) {
    const LLA centroid = geometry.centroid();
    return (Line("      geometry")
            << geometry.geometryId() << geometry.geometryDate() << geometry.geometry()
            << centroid.latitude << centroid.longitude << centroid.altitude)
        .text();
}

std::string describe(QenField field) {
    std::string result =
        (Line("    field") << field.id() << field.name() << field.growerId() << field.farmId())
            .text();
    for (const QenFieldGeometry& geometry : field.geometries())
        result += describe(geometry);
    for (const QenRec& rec : field.recs())
        result += describe(rec);
    return result;
}

std::string describe(QenFarm farm) {
    std::string result = (Line("  farm") << farm.id() << farm.name() << farm.growerId()).text();
    for (const QenField& field : farm.fields())
        result += describe(field);
    return result;
}

std::string describe(QenGrower grower) {
    std::string result = (Line("grower") << grower.id() << grower.name()).text();
    for (const QenFarm& farm : grower.farms())
        result += describe(farm);
    return result;
}

std::string describe(std::vector<QenGrower> growers) {
    std::string result;
    for (const QenGrower& grower : growers)
        result += describe(grower);
    return result;
}

} // namespace test

#include <memory>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "parser/QenXmlParser.h"
#include "parser/internal/PackageReader.h"

namespace qenxml {

namespace {

/// A product of these values. The braces refuse a value of another type than the argument.
template <class Product>
struct Maker {
    template <class... Values>
    static std::unique_ptr<Product> make(const boost::uuids::uuid& recId, const Values&... values) {
        return std::unique_ptr<Product>(new Product{recId, values...}); // GCOVR_EXCL_BR_LINE
    }
};

/// The lines of a pesticide mix are not read.
template <>
struct Maker<PesticideRec> {
    template <class... Values>
    static std::unique_ptr<PesticideRec> make(const boost::uuids::uuid& recId,
                                              const Values&... values) {
        return std::unique_ptr<PesticideRec>(            // GCOVR_EXCL_BR_LINE
            new PesticideRec{recId, {}, {}, values...}); // GCOVR_EXCL_BR_LINE
    }
};

} // namespace

template <const auto& format>
auto PackageReader::product(const boost::uuids::uuid& recId, pugi::xml_node node) const {
    using Product = typename std::remove_reference_t<decltype(format)>::Product;
    auto element = read<format>(node);
    const auto values = element.unconverted();
    if (!element.complete())
        return std::unique_ptr<Product>();
    // Only now, so that a missing child yields null even when an identifier is malformed.
    return std::apply(
        [&](const auto&... value) { return Maker<Product>::make(recId, converted(value)...); },
        values);
}

template <const auto&... formats>
std::unique_ptr<QenRecData> PackageReader::productOf(format::Elements<formats...> /*products*/,
                                                     const boost::uuids::uuid& recId,
                                                     pugi::xml_node node) const {
    const std::string_view kind = node.name();
    std::unique_ptr<QenRecData> data;
    const auto isOf = [&](TagName name) { return kind == names_.*name; };
    static_cast<void>(
        ((isOf(formats.name) && (data = product<formats>(recId, node), true)) || ...));
    return data;
}

std::unique_ptr<QenRecData> PackageReader::recData(const boost::uuids::uuid& recId,
                                                   pugi::xml_node node) const {
    // Only the first node counts, and it may be a text: in a document of the parser's own the
    // element itself holds it, elsewhere it is a node whose name is empty. All else is null,
    // pesticide mixes included, on purpose.
    const bool beginsWithText = node.text().data() == node;
    return productOf(format::recData.parts, recId,
                     beginsWithText ? pugi::xml_node() : node.first_child());
}

} // namespace qenxml

// What a host reads itself, it owns.

QenRecData* QenXmlParser::parseRecDataNode(boost::uuids::uuid recId, pugi::xml_node node) {
    return reader(node).recData(recId, node).release();
}

CommercialFertilizerRec*
QenXmlParser::parseCommercialFertilizerRecDataNode(boost::uuids::uuid recId, pugi::xml_node node) {
    return reader(node).product<qenxml::format::commercialFertilizer>(recId, node).release();
}

CustomFertilizerRec* QenXmlParser::parseCustomFertilizerRecDataNode(boost::uuids::uuid recId,
                                                                    pugi::xml_node node) {
    return reader(node).product<qenxml::format::customFertilizer>(recId, node).release();
}

PlantingRec* QenXmlParser::parsePlantingRecDataNode(boost::uuids::uuid recId, pugi::xml_node node) {
    return reader(node).product<qenxml::format::planting>(recId, node).release();
}

PesticideRec* QenXmlParser::parsePesticideRecDataNode(boost::uuids::uuid recId,
                                                      pugi::xml_node node) {
    return reader(node).product<qenxml::format::pesticide>(recId, node).release();
}

#include "tools/check/RecDataCheck.h"

#include <string>
#include <vector>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/IdentifierReading.h"
#include "tools/check/NameCounts.h"
#include "tools/text/Escape.h"
#include "tools/text/NameSuggestion.h"
#include "tools/text/Words.h"

namespace tag = qenxml::tag;

namespace {

using Details = CheckReport::Details;

std::vector<std::string> missingChildren(const ElementFormat& format, pugi::xml_node node) {
    std::vector<std::string> missing;
    for (const DatumFormat& datum : format.children) {
        if (!node.child(datum.name))
            missing.emplace_back(datum.name);
    }
    return missing;
}

/// What is wrong with the identifier of a product that is incomplete: it matters once it is not.
std::string unreadIdentifier(const ElementFormat& format, pugi::xml_node node) {
    for (const DatumFormat& datum : format.children) {
        const char* const text = node.child(datum.name).text().as_string();
        if (datum.kind != qenxml::format::Kind::Identifier || !node.child(datum.name))
            continue;
        const IdentifierReading identifier = readIdentifier(text);
        if (identifier.fault != IdentifierReading::Fault::None)
            return fmt::format("{} {}", datum.name, describeFault(identifier, text));
    }
    return "";
}

/// Finds that nothing says to people what a product is.
void productName(CheckReport& report, const ElementFormat& format, pugi::xml_node node) {
    std::vector<std::string> blank;
    for (const char* const name : {tag::ProductName, tag::CropName, tag::VarietyName}) {
        const pugi::xml_node child = node.child(name);
        if (child && !isBlank(child.text().as_string()))
            return;
        if (child)
            blank.emplace_back(name);
    }
    report.add(FindingCode::ProductWithoutName, node, "", [&] {
        return Details{fmt::format("{} of {} {} blank", joined(blank), format.name,
                                   blank.size() == 1 ? "is" : "are"),
                       Kept{}};
    });
}

void checkProduct(ElementCheck& check, const ElementFormat& format, pugi::xml_node node) {
    CheckReport& report = check.report();
    const CheckReport::Inside inside(report, node.name());
    const std::vector<std::string> missing = missingChildren(format, node);
    if (!missing.empty()) {
        report.add(FindingCode::ProductIncomplete, node, "", [&] {
            return Details{fmt::format("{} has no {}", format.name, joined(missing)),
                           Without{RecPart::Product, "", unreadIdentifier(format, node)}};
        });
    } else {
        productName(report, format, node);
    }
    check.values().setIncomplete(!missing.empty());
    check.attributes(format.attributes, node);
    check.children(format, node, [&](DatumFormat datum, pugi::xml_node child) {
        // Not read at all, and so no error, while anything is missing.
        if (datum.kind == qenxml::format::Kind::Identifier && missing.empty())
            datum.fault = FindingCode::BlendId;
        check.value(datum, child);
    });
    check.values().setIncomplete(false);
}

void unknownProduct(CheckReport& report, pugi::xml_node node) {
    if (std::string_view(node.name()) == tag::Pesticide) {
        report.add(FindingCode::PesticideMix, node, node.name(), [&] {
            return Details{"the product is a pesticide mix, which is never read",
                           Without{RecPart::Product}};
        });
        return;
    }
    report.add(FindingCode::ProductUnknown, node, node.name(), [&] {
        std::vector<const char*> names;
        for (const DatumFormat& product : format::recData().children) {
            if (!node.parent().child(product.name))
                names.push_back(product.name);
        }
        const std::string_view nearest = nearestName(node.name(), names);
        return Details{fmt::format("\"{}\" is no product{}", escapeExcerpt(node.name()),
                                   nearest.empty() ? "" : fmt::format("; is {} meant?", nearest)),
                       Without{RecPart::Product}};
    });
}

void checkFirst(ElementCheck& check, pugi::xml_node first) {
    CheckReport& report = check.report();
    if (isText(first)) {
        report.add(FindingCode::TextBeforeProduct, first, "text()", [&] {
            return Details{fmt::format("the text {} stands where the product has to be",
                                       quotedText(first.value())),
                           Without{RecPart::Product}};
        });
        return;
    }
    for (const DatumFormat& product : format::recData().children) {
        if (std::string_view(product.name) == first.name())
            return checkProduct(check, *product.element, first);
    }
    unknownProduct(report, first);
}

void secondProduct(CheckReport& report, pugi::xml_node product, pugi::xml_node second,
                   std::size_t number) {
    report.add(FindingCode::SecondProduct, second, pathStep(second.name(), number), [&] {
        const std::string name = escapeExcerpt(second.name());
        return Details{fmt::format("{} follows {}; a rec has one product", name,
                                   escapeExcerpt(product.name())),
                       Dropped{name}};
    });
}

} // namespace

void checkRecData(ElementCheck& check, pugi::xml_node node) {
    CheckReport& report = check.report();
    const CheckReport::Inside inside(report, node.name());
    const pugi::xml_node first = node.first_child();
    if (!first)
        report.add(FindingCode::NoProduct, node, "", [] {
            return Details{"RecData is empty", Without{RecPart::Product}};
        });
    check.attributes(format::recData().attributes, node);
    NameCounts names;
    pugi::xml_node product; // the first element
    for (const pugi::xml_node child : node.children()) {
        const std::size_t number = names.next(child.name());
        if (child == first)
            checkFirst(check, first);
        else if (isText(child))
            check.strayText(format::recData(), child);
        else if (product)
            secondProduct(report, product, child, number);
        if (!product && !isText(child))
            product = child;
    }
}

#include "tools/check/RecDataCheck.h"

#include <string>
#include <vector>

#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/IdentifierReading.h"
#include "tools/text/Escape.h"
#include "tools/text/NameSuggestion.h"

namespace tag = qenxml::tag;

namespace {

using Texts = CheckReport::Texts;

constexpr const char* withoutProduct = "the rec is kept without product data";

std::string join(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i)
        text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    return text;
}

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
            return fmt::format("; once it is complete, reading fails because {} {}", datum.name,
                               describeFault(identifier, text));
    }
    return "";
}

void checkProduct(ElementCheck& check, const ElementFormat& format, pugi::xml_node node) {
    CheckReport& report = check.report();
    const CheckReport::Inside inside(report, node.name());
    const std::vector<std::string> missing = missingChildren(format, node);
    if (!missing.empty()) {
        report.add(FindingCode::ProductIncomplete, report.source().offset(node), "", [&] {
            return Texts{fmt::format("{} has no {}", format.name, join(missing)),
                         withoutProduct + unreadIdentifier(format, node)};
        });
        check.setCondition("once the product is complete, ");
    }
    check.attributes(format.attributes, node);
    check.children(
        format, node,
        [&](DatumFormat datum, pugi::xml_node child) {
            // Not read at all, and so no error, while anything is missing.
            if (datum.kind == qenxml::format::Kind::Identifier && missing.empty())
                datum.fault = FindingCode::BlendId;
            check.value(datum, child);
        },
        [](pugi::xml_node, std::size_t) {});
    check.setCondition("");
}

void unknownProduct(CheckReport& report, pugi::xml_node node) {
    if (std::string_view(node.name()) == tag::Pesticide) {
        report.add(FindingCode::PesticideMix, report.source().offset(node), node.name(), [&] {
            return Texts{"the product is a pesticide mix, which is never read", withoutProduct};
        });
        return;
    }
    report.add(FindingCode::ProductUnknown, report.source().offset(node), node.name(), [&] {
        std::vector<const char*> names;
        for (const DatumFormat& product : format::recData().children) {
            if (!node.parent().child(product.name))
                names.push_back(product.name);
        }
        const std::string_view nearest = nearestName(node.name(), names);
        return Texts{fmt::format("\"{}\" is no product{}", escapeExcerpt(node.name()),
                                 nearest.empty() ? "" : fmt::format("; is {} meant?", nearest)),
                     withoutProduct};
    });
}

void checkFirst(ElementCheck& check, pugi::xml_node first) {
    CheckReport& report = check.report();
    if (isText(first)) {
        report.add(FindingCode::TextBeforeProduct, report.source().offset(first), "text()", [&] {
            return Texts{fmt::format("the text {} stands where the product has to be",
                                     quotedText(first.value())),
                         withoutProduct};
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
    report.add(FindingCode::SecondProduct, report.source().offset(second),
               pathStep(second.name(), number), [&] {
                   return Texts{fmt::format("{} follows {}; a rec has one product",
                                            escapeExcerpt(second.name()),
                                            escapeExcerpt(product.name())),
                                fmt::format("{} is ignored", escapeExcerpt(second.name()))};
               });
}

} // namespace

void checkRecData(ElementCheck& check, pugi::xml_node node) {
    CheckReport& report = check.report();
    const CheckReport::Inside inside(report, node.name());
    const pugi::xml_node first = node.first_child();
    if (!first)
        report.add(FindingCode::NoProduct, report.source().offset(node), "", [] {
            return Texts{"RecData is empty", withoutProduct};
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

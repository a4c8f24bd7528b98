#include "tools/check/PackageWalk.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/CheckReport.h"
#include "tools/check/ElementCheck.h"
#include "tools/check/IdentifierReading.h"
#include "tools/check/NameCounts.h"
#include "tools/check/OtherFormat.h"
#include "tools/check/PlausibilityCheck.h"
#include "tools/check/RecDataCheck.h"
#include "tools/text/Escape.h"
#include "tools/text/Words.h"

namespace tag = qenxml::tag;

namespace {

using Details = CheckReport::Details;

/// How many records a record holds, as the library keeps them: one per identifier.
struct Contents {
    std::size_t fields = 0;
    std::size_t recs = 0;
};

/// A record that was walked before others of its list.
struct Earlier {
    std::size_t offset;
    Contents contents;
};

using RecordsById = std::map<boost::uuids::uuid, Earlier>;

/// The code of two records with one identifier in a list.
FindingCode duplicateOf(const ElementFormat& format) {
    return &format == &format::grower()  ? FindingCode::DuplicateGrower
           : &format == &format::farm()  ? FindingCode::DuplicateFarm
           : &format == &format::field() ? FindingCode::DuplicateField
                                         : FindingCode::DuplicateRec;
}

class PackageWalk {
public:
    explicit PackageWalk(CheckReport& report)
        : report_(report), check_(report), plausibility_(report) {}

    void walk(const pugi::xml_document& document) {
        const pugi::xml_node package = document.child(tag::RecPackage);
        if (!package) {
            noPackage(document);
            return;
        }
        // XML allows one root element, but the XML library allows more.
        NameCounts roots;
        for (const pugi::xml_node root : document.children()) {
            if (root.type() != pugi::node_element)
                continue;
            const std::size_t number = roots.next(root.name());
            if (root == package)
                packageElement(root);
            else
                otherRoot(root, number);
        }
    }

private:
    void noPackage(const pugi::xml_document& document) {
        const pugi::xml_node root = document.document_element();
        report_.add(FindingCode::NoRecPackage, root, root.name(), [&] {
            const auto aid = otherFormat(report_.source().text());
            return Details{fmt::format("the root element is \"{}\" instead of {}{}",
                                       escapeExcerpt(root.name()), tag::RecPackage,
                                       aid ? fmt::format("; {}; {}", aid->what, aid->cure) : "")};
        });
    }

    void packageElement(pugi::xml_node package) {
        const CheckReport::Inside inside(report_, package.name());
        if (!package.child(tag::Grower))
            report_.add(FindingCode::NoGrower, package, "", [] {
                return Details{"RecPackage holds no Grower", NothingRead{}};
            });
        check_.attributes(format::recPackage().attributes, package);
        list(format::recPackage(), package);
    }

    void otherRoot(pugi::xml_node root, std::size_t number) {
        report_.add(FindingCode::UnknownElement, root, pathStep(root.name(), number), [&] {
            const std::string name = escapeExcerpt(root.name());
            return Details{fmt::format("\"{}\" stands beside {}", name, tag::RecPackage),
                           Dropped{name}};
        });
    }

    /// Walks the children of an element that has a list.
    Contents list(const ElementFormat& format, pugi::xml_node node) {
        const pugi::xml_node name = nameOf(format, node);
        RecordsById records;
        check_.children(
            format, node,
            [&](const DatumFormat& datum, pugi::xml_node child) {
                emptyName(child, name);
                check_.value(datum, child);
            },
            [&](pugi::xml_node item, std::size_t number) {
                emptyName(item, name); // which is lost among the items, but read
                record(*format.item, item, number, records);
            });
        Contents sum;
        for (const auto& [id, record] : records) {
            sum.fields += record.contents.fields;
            sum.recs += record.contents.recs;
        }
        if (format.item == &format::field())
            sum.fields = records.size();
        if (format.item == &format::rec())
            sum.recs = records.size();
        return sum;
    }

    void record(const ElementFormat& format, pugi::xml_node node, std::size_t number,
                RecordsById& earlier) {
        const std::size_t offset = report_.source().extent(node).offset;
        report_.progress(offset);
        if (&format == &format::grower())
            report_.beginGrower();
        else if (&format == &format::farm())
            plausibility_.beginFarm(node);
        const CheckReport::Inside inside(report_, node.name(), number);
        const char* const idName = format.attributes.front().name;
        const IdentifierReading id = readIdentifier(node.attribute(idName).as_string());
        const bool readable = id.fault == IdentifierReading::Fault::None;
        if (std::string_view(node.name()) != format.name) {
            foreignItem(format, node, readable);
            if (!readable)
                return;
        }

        const DatumFormat& name = format.children.front();
        const CheckReport::InRecord inRecord(report_, format.record,
                                             node.child(name.name).child_value(),
                                             readable ? std::optional(id.value) : std::nullopt);
        noName(name, node);
        check_.missingIdentifiers(format, node);
        missingParts(format, node);
        check_.attributes(format.attributes, node, [&](pugi::xml_attribute attribute) {
            if (readable && std::string_view(attribute.name()) == idName)
                duplicate(format, node, id.value, earlier);
        });
        const Contents contents = format.item != nullptr ? list(format, node) : parts(format, node);
        if (readable)
            earlier.insert_or_assign(id.value, Earlier{offset, contents});
    }

    /// A node that is read as an item of a list because it follows one.
    void foreignItem(const ElementFormat& format, pugi::xml_node node, bool readable) {
        const std::string what = node.type() == pugi::node_element
                                     ? quoted(node.name())
                                     : fmt::format("the text {}", quotedText(node.value()));
        const std::string found = fmt::format(
            "{} follows the first {} and is read as one too, {} {}", what, format.name,
            readable ? "because it has a" : "but has no readable", format.attributes.front().name);
        if (readable)
            report_.add(FindingCode::OtherNameInList, node, "", [&] {
                return Details{found, ReadAs{format.name}};
            });
        else
            report_.add(FindingCode::AfterList, node, "", [&] { return Details{found}; });
    }

    void duplicate(const ElementFormat& format, pugi::xml_node node, const boost::uuids::uuid& id,
                   const RecordsById& earlier) {
        const auto same = earlier.find(id);
        if (same == earlier.end())
            return;
        const pugi::xml_attribute attribute = node.attribute(format.attributes.front().name);
        report_.add(duplicateOf(format), report_.source().extent(node, attribute),
                    fmt::format("@{}", attribute.name()), [&] {
                        const std::size_t line = report_.line(same->second.offset);
                        const Contents& lost = same->second.contents;
                        return Details{fmt::format("{} is that of the {} at line {}",
                                                   attribute.name(), format.record, line),
                                       &format == &format::grower()
                                           ? Consequence(Kept{})
                                           : Replaces{format.record, line, lost.fields, lost.recs}};
                    });
    }

    void noName(const DatumFormat& name, pugi::xml_node record) {
        if (record.child(name.name))
            return;
        report_.add(FindingCode::EmptyName, record, "", [&] {
            return Details{fmt::format("{} is missing", name.name), Kept{}};
        });
    }

    /// The child that says what a record is called.
    static pugi::xml_node nameOf(const ElementFormat& format, pugi::xml_node node) {
        return format.record == nullptr ? pugi::xml_node()
                                        : node.child(format.children.front().name);
    }

    /// @param name what nameOf() says of the record
    void emptyName(pugi::xml_node child, pugi::xml_node name) {
        const char* const text = child.child_value();
        if (child != name || !isBlank(text))
            return;
        report_.add(FindingCode::EmptyName, child, child.name(), [&] {
            return Details{*text == '\0'
                               ? fmt::format("{} is empty", child.name())
                               : fmt::format("{} {} shows nothing", child.name(), quoted(text)),
                           Kept{}};
        });
    }

    /// Finds that parts are missing without which a record is worth little.
    void missingParts(const ElementFormat& format, pugi::xml_node node) {
        if (&format == &format::field() && !node.child(tag::FieldCentroid))
            report_.add(FindingCode::CentroidZero, node, "", [] {
                return Details{"FieldCentroid is missing", ReadAs{"(0, 0)"}};
            });
        if (&format == &format::rec() && !node.child(tag::RecData))
            report_.add(FindingCode::NoProduct, node, "", [] {
                return Details{"the rec has no RecData", Without{RecPart::Product}};
            });
        if (&format == &format::rec() && !node.child(tag::RecStats))
            report_.add(FindingCode::NoStatistics, node, "", [] {
                return Details{"the rec has no RecStats", ReadAs{"0"}};
            });
    }

    /// Walks the children of an element without a list.
    Contents parts(const ElementFormat& format, pugi::xml_node node) {
        const pugi::xml_node name = nameOf(format, node);
        Contents contents;
        check_.children(format, node, [&](const DatumFormat& datum, pugi::xml_node child) {
            if (datum.element == &format::recommendations())
                contents = recommendations(child);
            else if (datum.element != nullptr)
                part(*datum.element, child);
            else
                partValue(format, datum, child, name);
        });
        return contents;
    }

    void partValue(const ElementFormat& format, const DatumFormat& datum, pugi::xml_node child,
                   pugi::xml_node name) {
        emptyName(child, name);
        plausibility_.value(format, datum, child);
        check_.value(datum, child);
    }

    Contents recommendations(pugi::xml_node node) {
        const CheckReport::Inside inside(report_, node.name());
        check_.attributes(format::recommendations().attributes, node);
        return list(format::recommendations(), node);
    }

    void part(const ElementFormat& format, pugi::xml_node node) {
        if (&format == &format::recData()) {
            checkRecData(check_, node);
            return;
        }
        const CheckReport::Inside inside(report_, node.name());
        check_.missingIdentifiers(format, node);
        if (&format == &format::season())
            seasonWithoutId(node);
        else if (&format == &format::recStats())
            incompleteStatistics(node);
        plausibility_.element(format, node);
        check_.attributes(format.attributes, node, [&](pugi::xml_attribute id) {
            if (&format == &format::season())
                negativeSeason(node, id);
            else if (&format == &format::operation())
                nilOperation(node, id);
        });
        parts(format, node);
    }

    void nilOperation(pugi::xml_node node, pugi::xml_attribute attribute) {
        const IdentifierReading id = readIdentifier(attribute.as_string());
        if (id.fault != IdentifierReading::Fault::None || !id.value.is_nil())
            return;
        report_.add(
            FindingCode::OperationNil, report_.source().extent(node, attribute), "@OpID", [&] {
                return Details{"OpID is nil",
                               Without{RecPart::Operation, nameIn(node.child(tag::OpName))}};
            });
    }

    void seasonWithoutId(pugi::xml_node node) {
        if (node.attribute(tag::SeasonID))
            return;
        report_.add(FindingCode::SeasonWithoutId, node, "", [] {
            return Details{"Season has no attribute SeasonID", ReadAs{"0"}};
        });
    }

    void negativeSeason(pugi::xml_node node, pugi::xml_attribute id) {
        if (id.as_int() >= 0)
            return;
        report_.add(
            FindingCode::SeasonNegative, report_.source().extent(node, id), "@SeasonID", [&] {
                return Details{fmt::format("SeasonID {} is negative", id.as_int()),
                               Without{RecPart::Season, nameIn(node.child(tag::SeasonName))}};
            });
    }

    static std::string nameIn(pugi::xml_node element) {
        return escapeExcerpt(element.text().as_string());
    }

    void incompleteStatistics(pugi::xml_node node) {
        std::vector<std::string> missing;
        for (const DatumFormat& datum : format::recStats().children) {
            if (datum.kind == qenxml::format::Kind::Number && !node.child(datum.name))
                missing.emplace_back(datum.name);
        }
        if (missing.empty())
            return;
        report_.add(FindingCode::StatisticsIncomplete, node, "", [&] {
            return Details{"RecStats has no " + joined(missing, ", "), ReadAs{"0"}};
        });
    }

    CheckReport& report_;
    ElementCheck check_;
    PlausibilityCheck plausibility_;
};

} // namespace

void walkPackage(const pugi::xml_document& document, const SourceText& source, FindingSink& sink) {
    CheckReport report(source, sink);
    PackageWalk(report).walk(document);
}

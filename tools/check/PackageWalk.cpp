#include "tools/check/PackageWalk.h"

#include <map>
#include <optional>
#include <string>

#include <boost/uuid/uuid.hpp>
#include <fmt/format.h>

#include "parser/internal/TagConstants.h"
#include "tools/check/CheckReport.h"
#include "tools/check/ElementCheck.h"
#include "tools/check/IdentifierReading.h"
#include "tools/check/PlausibilityCheck.h"
#include "tools/check/RecDataCheck.h"
#include "tools/text/Escape.h"
#include "tools/text/NameSuggestion.h"

namespace tag = qenxml::tag;

namespace {

using Texts = CheckReport::Texts;

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

std::string count(std::size_t number, const char* what) {
    return fmt::format("{} {}{}", number, what, number == 1 ? "" : "s");
}

/// What is lost with a record that is replaced, to follow "replaced".
std::string lost(const ElementFormat& format, const Contents& contents) {
    if (&format == &format::farm() && contents.fields > 0)
        return fmt::format(" and lost with its {} and {}", count(contents.fields, "field"),
                           count(contents.recs, "rec"));
    if (&format == &format::field() && contents.recs > 0)
        return fmt::format(" and lost with its {}", count(contents.recs, "rec"));
    return " and lost";
}

class PackageWalk {
public:
    explicit PackageWalk(CheckReport& report) : report_(report), check_(report) {}

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
        report_.add(FindingCode::NoRecPackage, report_.source().offset(root), root.name(), [&] {
            return Texts{fmt::format("the root element is \"{}\" instead of {}",
                                     escapeExcerpt(root.name()), tag::RecPackage),
                         ""};
        });
    }

    void packageElement(pugi::xml_node package) {
        const CheckReport::Inside inside(report_, package.name());
        if (!package.child(tag::Grower))
            report_.add(FindingCode::NoGrower, report_.source().offset(package), "", [] {
                return Texts{"RecPackage holds no Grower", "nothing is read from the package"};
            });
        check_.attributes(format::recPackage().attributes, package);
        list(format::recPackage(), package);
    }

    void otherRoot(pugi::xml_node root, std::size_t number) {
        report_.add(FindingCode::UnknownElement, report_.source().offset(root),
                    pathStep(root.name(), number), [&] {
                        return Texts{fmt::format("\"{}\" stands beside {}",
                                                 escapeExcerpt(root.name()), tag::RecPackage),
                                     "the element is skipped with everything in it"};
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
        const std::size_t offset = report_.source().offset(node);
        report_.reach(offset);
        if (&format == &format::grower())
            report_.beginGrower();
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
                                             node.child(name.name).child_value());
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
                                     ? fmt::format("\"{}\"", escapeExcerpt(node.name()))
                                     : fmt::format("the text {}", quotedText(node.value()));
        const std::string found =
            fmt::format("{} follows the first {} and is read as one too", what, format.name);
        if (readable) {
            report_.add(FindingCode::OtherNameInList, report_.source().offset(node), "", [&] {
                return Texts{found, fmt::format("it counts as a {}, because it has a {}",
                                                format.name, format.attributes.front().name)};
            });
            return;
        }
        report_.add(FindingCode::AfterList, report_.source().offset(node), "", [&] {
            return Texts{
                fmt::format("{}, but has no readable {}", found, format.attributes.front().name),
                ""};
        });
    }

    void duplicate(const ElementFormat& format, pugi::xml_node node, const boost::uuids::uuid& id,
                   const RecordsById& earlier) {
        const auto same = earlier.find(id);
        if (same == earlier.end())
            return;
        const pugi::xml_attribute attribute = node.attribute(format.attributes.front().name);
        report_.add(
            duplicateOf(format), valueOffset(node, attribute), fmt::format("@{}", attribute.name()),
            [&] {
                const std::string other = fmt::format("the {} at line {}", format.record,
                                                      report_.line(same->second.offset));
                const std::string consequence =
                    &format == &format::grower()
                        ? "both are kept, as two growers"
                        : fmt::format("{} is replaced by this one{}", other,
                                      lost(format, same->second.contents));
                return Texts{fmt::format("{} is that of {}", attribute.name(), other), consequence};
            });
    }

    void noName(const DatumFormat& name, pugi::xml_node record) {
        if (record.child(name.name))
            return;
        report_.add(FindingCode::EmptyName, report_.source().offset(record), "", [&] {
            return Texts{fmt::format("{} is missing", name.name), "hosts can show no name"};
        });
    }

    /// The child that says what a record is called.
    static pugi::xml_node nameOf(const ElementFormat& format, pugi::xml_node node) {
        return format.record == nullptr ? pugi::xml_node()
                                        : node.child(format.children.front().name);
    }

    /// @param name what nameOf() says of the record
    void emptyName(pugi::xml_node child, pugi::xml_node name) {
        if (child != name || *child.child_value() != '\0')
            return;
        report_.add(FindingCode::EmptyName, report_.source().offset(child), child.name(), [&] {
            return Texts{fmt::format("{} is empty", child.name()), "hosts can show no name"};
        });
    }

    /// Finds that parts are missing without which a record is worth little.
    void missingParts(const ElementFormat& format, pugi::xml_node node) {
        const std::size_t offset = report_.source().offset(node);
        if (&format == &format::field() && !node.child(tag::FieldCentroid))
            report_.add(FindingCode::CentroidZero, offset, "", [] {
                return Texts{"FieldCentroid is missing", "the centroid is read as (0, 0)"};
            });
        if (&format == &format::rec() && !node.child(tag::RecData))
            report_.add(FindingCode::NoProduct, offset, "", [] {
                return Texts{"the rec has no RecData", "the rec is kept without product data"};
            });
        if (&format == &format::rec() && !node.child(tag::RecStats))
            report_.add(FindingCode::NoStatistics, offset, "", [] {
                return Texts{"the rec has no RecStats", "its rates, total and area are read as 0"};
            });
    }

    /// Walks the children of an element without a list.
    Contents parts(const ElementFormat& format, pugi::xml_node node) {
        const pugi::xml_node name = nameOf(format, node);
        Contents contents;
        check_.children(
            format, node,
            [&](const DatumFormat& datum, pugi::xml_node child) {
                if (datum.element == &format::recommendations())
                    contents = recommendations(child);
                else if (datum.element != nullptr)
                    part(*datum.element, child);
                else
                    partValue(format, datum, child, name);
            },
            [](pugi::xml_node, std::size_t) {});
        return contents;
    }

    void partValue(const ElementFormat& format, const DatumFormat& datum, pugi::xml_node child,
                   pugi::xml_node name) {
        emptyName(child, name);
        if (&format == &format::recStats())
            checkRate(report_, child);
        else if (&format == &format::fieldCentroid())
            checkCoordinate(report_, child);
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
        else if (&format == &format::fieldCentroid())
            checkCentroid(report_, node);
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
        report_.add(FindingCode::OperationNil, valueOffset(node, attribute), "@OpID", [&] {
            return Texts{"OpID is nil",
                         "the rec has no operation" + dropped(node.child(tag::OpName))};
        });
    }

    void seasonWithoutId(pugi::xml_node node) {
        if (node.attribute(tag::SeasonID))
            return;
        report_.add(FindingCode::SeasonWithoutId, report_.source().offset(node), "", [] {
            return Texts{"Season has no attribute SeasonID",
                         "the number of the season is read as 0"};
        });
    }

    void negativeSeason(pugi::xml_node node, pugi::xml_attribute id) {
        if (id.as_int() >= 0)
            return;
        report_.add(FindingCode::SeasonNegative, valueOffset(node, id), "@SeasonID", [&] {
            return Texts{fmt::format("SeasonID {} is negative", id.as_int()),
                         "the rec has no season" + dropped(node.child(tag::SeasonName))};
        });
    }

    /// What becomes of a name that is not read.
    static std::string dropped(pugi::xml_node name) {
        const char* const text = name.text().as_string();
        return *text == '\0' ? ""
                             : fmt::format("; its name \"{}\" is dropped", escapeExcerpt(text));
    }

    void incompleteStatistics(pugi::xml_node node) {
        std::string missing;
        for (const DatumFormat& datum : format::recStats().children) {
            if (datum.kind == qenxml::format::Kind::Number && !node.child(datum.name))
                missing += (missing.empty() ? "" : ", ") + std::string(datum.name);
        }
        if (missing.empty())
            return;
        report_.add(FindingCode::StatisticsIncomplete, report_.source().offset(node), "", [&] {
            return Texts{"RecStats has no " + missing, "what is missing is read as 0"};
        });
    }

    CheckReport& report_;
    ElementCheck check_;
};

} // namespace

void walkPackage(const pugi::xml_document& document, const SourceText& source, FindingSink& sink) {
    CheckReport report(source, sink);
    PackageWalk(report).walk(document);
}

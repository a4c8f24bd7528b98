/// @file
/// One pass over a loaded document onto plain structs.

#ifndef QENXML_BENCH_DOCUMENTWALK_H
#define QENXML_BENCH_DOCUMENTWALK_H

#include <array>
#include <cstddef>
#include <cstring>
#include <vector>

#include "bench/PlainElements.h"

namespace plain {

/// @tparam Element what an XML library's element looks like to the walk: name(), text(),
///         forEachAttribute(visit(name, value)), firstChild() and nextSibling(), which are false
///         when there is none
template <class Element>
class DocumentWalk {
public:
    explicit DocumentWalk(const boost::uuids::uuid& package) : package_(package) {}

    std::vector<Grower> growers(Element package) const {
        std::vector<Grower> growers;
        for (Element child = package.firstChild(); child; child = child.nextSibling())
            readGrower(child, growers.emplace_back());
        return growers;
    }

private:
    static bool is(Element element, const char* name) {
        // Most names differ in the first letter.
        return *element.name() == *name && std::strcmp(element.name(), name) == 0;
    }

    template <class Record, std::size_t N>
    static void readAttributes(Element element, const std::array<Member<Record>, N>& attributes,
                               Record& record) {
        std::size_t next = 0;
        element.forEachAttribute([&](const char* name, const char* value) {
            readMember(attributes, next, record, name, value);
        });
    }

    template <class Record, std::size_t N>
    static void readChildren(Element element, const std::array<Member<Record>, N>& children,
                             Record& record) {
        std::size_t next = 0;
        for (Element child = element.firstChild(); child; child = child.nextSibling())
            readMember(children, next, record, child.name(), child.text());
    }

    void readGrower(Element element, Grower& grower) const {
        readAttributes(element, growerAttributes, grower);
        std::size_t next = 0;
        for (Element child = element.firstChild(); child; child = child.nextSibling()) {
            if (is(child, tag::Farm))
                readFarm(child, newFarm(grower));
            else
                readMember(growerChildren, next, grower, child.name(), child.text());
        }
    }

    void readFarm(Element element, Farm& farm) const {
        readAttributes(element, farmAttributes, farm);
        std::size_t next = 0;
        for (Element child = element.firstChild(); child; child = child.nextSibling()) {
            if (is(child, tag::Field))
                readField(child, newField(farm));
            else
                readMember(farmChildren, next, farm, child.name(), child.text());
        }
    }

    void readField(Element element, Field& field) const {
        readAttributes(element, fieldAttributes, field);
        std::size_t next = 0;
        for (Element child = element.firstChild(); child; child = child.nextSibling()) {
            if (is(child, tag::FieldCentroid))
                readChildren(child, centroidChildren, field);
            else if (is(child, tag::Recommendations))
                readRecs(child, field);
            else
                readMember(fieldChildren, next, field, child.name(), child.text());
        }
    }

    void readRecs(Element element, Field& field) const {
        for (Element child = element.firstChild(); child; child = child.nextSibling())
            readRec(child, newRec(field, package_));
    }

    static void readRec(Element element, Rec& rec) {
        readAttributes(element, recAttributes, rec);
        std::size_t next = 0;
        for (Element child = element.firstChild(); child; child = child.nextSibling()) {
            // Most children of a rec hold a text; only these hold elements.
            if (is(child, tag::RecStats)) {
                readChildren(child, statisticsChildren, rec);
            } else if (is(child, tag::RecData)) {
                readProduct(child.firstChild(), rec);
            } else if (is(child, tag::Operation)) {
                readAttributes(child, operationAttributes, rec);
                readChildren(child, operationChildren, rec);
            } else if (is(child, tag::Season)) {
                readAttributes(child, seasonAttributes, rec);
                readChildren(child, seasonChildren, rec);
            } else {
                readMember(recChildren, next, rec, child.name(), child.text());
            }
        }
    }

    static void readProduct(Element element, Rec& rec) {
        if (is(element, tag::CommercialFertilizer))
            readChildren(element, commercialFertilizerChildren,
                         newProduct<CommercialFertilizer>(rec));
        else if (is(element, tag::CustomFertilizer))
            readChildren(element, customFertilizerChildren, newProduct<CustomFertilizer>(rec));
        else if (is(element, tag::Planting))
            readChildren(element, plantingChildren, newProduct<Planting>(rec));
    }

    boost::uuids::uuid package_;
};

} // namespace plain

#endif

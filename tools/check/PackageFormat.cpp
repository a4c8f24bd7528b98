#include "tools/check/PackageFormat.h"

#include <array>
#include <map>
#include <stdexcept>
#include <utility>

#include <fmt/format.h>

#include "parser/internal/PackageElements.h"

namespace table = qenxml::format;
using qenxml::TagName;
using qenxml::TagNames;
using qenxml::format::Datum;
using qenxml::format::Element;
using qenxml::format::Kind;
using qenxml::format::Need;
using qenxml::format::Record;

namespace {

const char* nameOf(TagName name) {
    static const TagNames names;
    return (names.*name).c_str();
}

/// What it means when a mandatory identifier cannot be read.
FindingCode faultOf(TagName identifier) {
    constexpr std::array faults = {
        std::pair(&TagNames::GrowerID_, FindingCode::GrowerId),
        std::pair(&TagNames::FarmID_, FindingCode::FarmId),
        std::pair(&TagNames::FieldID_, FindingCode::FieldId),
        std::pair(&TagNames::FieldGeometryID_, FindingCode::FieldGeometryId),
        std::pair(&TagNames::FieldGeometry_, FindingCode::GeometryFileId),
        std::pair(&TagNames::RecID_, FindingCode::RecId),
        std::pair(&TagNames::MgmtZoneID_, FindingCode::ManagementZoneId),
        std::pair(&TagNames::RecGeometry_, FindingCode::RecGeometryId),
        std::pair(&TagNames::OpID_, FindingCode::OperationId)};
    for (const auto& [name, fault] : faults) {
        if (name == identifier)
            return fault;
    }
    throw std::logic_error(fmt::format("no finding for {}", nameOf(identifier)));
}

DatumFormat formatOf(const Element& parent, const Datum& datum) {
    DatumFormat format;
    format.name = nameOf(datum.name);
    format.kind = datum.kind;
    // The library converts the identifier of a product only when all of the product is there.
    if (datum.kind == Kind::Identifier && !parent.isProduct)
        format.fault = faultOf(datum.name);
    format.mayBeEmpty = datum.kind == Kind::Identifier && datum.need == Need::Optional;
    return format;
}

const char* wordFor(Record record) {
    switch (record) {
    case Record::None:
        break;
    case Record::Grower:
        return "grower";
    case Record::Farm:
        return "farm";
    case Record::Field:
        return "field";
    case Record::Rec:
        return "rec";
    }
    return nullptr;
}

/// The formats by the elements of the library's table, with all beneath them.
class Formats {
public:
    explicit Formats(const Element& root) { add(root); }

    const ElementFormat& of(const Element& element) const { return formats_.at(&element); }

    /// All of them, each behind the one that it stands in.
    const std::vector<const ElementFormat*>& all() const { return all_; }

private:
    const ElementFormat* add(const Element& element) {
        ElementFormat& format = formats_[&element];
        all_.push_back(&format);
        format.name = nameOf(element.name);
        format.record = wordFor(element.record);
        for (const Datum& datum : element.attributes)
            format.attributes.push_back(formatOf(element, datum));
        for (const Datum& datum : element.values)
            format.children.push_back(formatOf(element, datum));
        for (const Element* part : element.parts) {
            DatumFormat child;
            child.name = nameOf(part->name);
            child.element = add(*part);
            format.children.push_back(child);
        }
        if (element.item != nullptr)
            format.item = add(*element.item);
        return &format;
    }

    std::map<const Element*, ElementFormat> formats_;
    std::vector<const ElementFormat*> all_;
};

const Formats& formats() {
    static const Formats formats(table::elementOf<table::recPackage>);
    return formats;
}

} // namespace

const ElementFormat& formatOf(const Element& element) {
    return formats().of(element);
}

namespace format {

const std::vector<const ElementFormat*>& all() {
    return formats().all();
}

} // namespace format

std::string locationsOf(std::string_view name) {
    std::string places;
    const auto add = [&](const char* how, const ElementFormat& format) {
        places += places.empty() ? "" : " or ";
        places += fmt::format("{} {}", how, format.name);
    };
    for (const ElementFormat* format : format::all()) {
        for (const DatumFormat& attribute : format->attributes)
            if (name == attribute.name)
                add("as an attribute of", *format);
        for (const DatumFormat& child : format->children)
            if (name == child.name)
                add("in", *format);
        if (format->item != nullptr && name == format->item->name)
            add("in", *format);
    }
    return places;
}

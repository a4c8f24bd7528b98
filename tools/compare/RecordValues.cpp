#include "tools/compare/RecordValues.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/records/ProductText.h"
#include "tools/text/Escape.h"
#include "tools/text/Fnv1a.h"
#include "tools/text/NumberText.h"

namespace {

// What identifies a record or says where it stands, which the comparison knows otherwise; what
// every package leaves to the host; and what says the same as another value.
constexpr std::array<std::string_view, 9> leftOut = {
    "xmlFileName", "id", "growerId", "farmId", "recId", "fieldId", "isUsed", "recType", "altitude"};

/// What holds the values of a record of the owner: its parts, such as the product of a rec.
bool isPart(Owner part, Owner owner) {
    return part == owner || (part == Owner::Centroid && owner == Owner::Geometry) ||
           (part == Owner::Product && owner == Owner::Rec);
}

std::vector<const OutputField*> fieldsOf(Owner owner) {
    std::vector<const OutputField*> fields;
    for (const OutputField& field : outputFields()) {
        if (isPart(field.owner, owner) && field.names.key != nullptr &&
            std::find(leftOut.begin(), leftOut.end(), field.names.key) == leftOut.end())
            fields.push_back(&field);
    }
    return fields;
}

/// The fields that are compared of the records of an owner.
const std::vector<const OutputField*>& comparedFields(Owner owner) {
    static const std::map<Owner, std::vector<const OutputField*>> fields = [] {
        std::map<Owner, std::vector<const OutputField*>> byOwner;
        for (const Owner each :
             {Owner::Grower, Owner::Farm, Owner::Field, Owner::Geometry, Owner::Rec})
            byOwner[each] = fieldsOf(each);
        return byOwner;
    }();
    return fields.at(owner);
}

const char* parentName(Owner owner) {
    return owner == Owner::Farm ? "growerId" : owner == Owner::Field ? "farmId" : "fieldId";
}

/// The value of the field with a key.
OutputValue valueNamed(const std::string& key, Owner owner, const OutputContext& context) {
    for (const OutputField& field : outputFields()) {
        if (field.owner == owner && field.names.key == key)
            return field.value(context).value_or(OutputValue());
    }
    return {};
}

std::string unitOf(const OutputField& field, const OutputContext& context) {
    if (field.unit == nullptr || std::string_view(field.unit) == "%")
        return field.unit == nullptr ? "" : field.unit;
    const OutputValue text = valueNamed(field.unit, field.owner, context);
    const OutputValue code = valueNamed(field.unit + std::string("Id"), field.owner, context);
    const int* const number = std::get_if<int>(&code);
    const std::string* const words = std::get_if<std::string>(&text);
    return textOrCode(words == nullptr ? "" : *words, number == nullptr ? 0 : *number);
}

/// A text that is the same for the same values only.
struct PlainText {
    std::string operator()(std::monostate /*none*/) const { return ""; }
    std::string operator()(const std::string& text) const { return '"' + text; }
    std::string operator()(double number) const { return numberText(number); }
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
};

std::string plainText(const OutputValue& value) {
    return std::visit(PlainText(), value);
}

} // namespace

std::vector<RecordValue> comparedValues(const RecordView& record) {
    std::vector<RecordValue> values;
    if (record.owner != Owner::Grower)
        values.push_back({parentName(record.owner), to_string(record.parentId()), ""});
    for (const OutputField* const field : comparedFields(record.owner))
        values.push_back({field->names.key, field->value(record.context).value_or(OutputValue()),
                          unitOf(*field, record.context)});
    return values;
}

std::uint64_t contentHash(const RecordView& record) {
    Fnv1a hash;
    for (const std::uint8_t byte : record.parentId())
        hash.add(static_cast<char>(byte));
    for (const OutputField* const field : comparedFields(record.owner))
        hash.add(plainText(field->value(record.context).value_or(OutputValue())));
    return hash.value();
}

std::vector<ValueChange> changesBetween(const RecordView& from, const RecordView& to) {
    const std::vector<RecordValue> before = comparedValues(from);
    const std::vector<RecordValue> after = comparedValues(to);
    std::vector<ValueChange> changes;
    for (std::size_t i = 0; i < before.size() && i < after.size(); ++i) {
        if (plainText(before[i].value) != plainText(after[i].value))
            changes.push_back({before[i], after[i]});
    }
    return changes;
}

std::string valueText(const RecordValue& value) {
    if (std::holds_alternative<std::monostate>(value.value))
        return "none";
    if (const auto* const text = std::get_if<std::string>(&value.value))
        return fmt::format("\"{}\"", escape(*text));
    const std::string number = plainText(value.value);
    return value.unit.empty()  ? number
           : value.unit == "%" ? number + "%"
                               : fmt::format("{} {}", number, escape(value.unit));
}

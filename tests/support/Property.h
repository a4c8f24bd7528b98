/// @file
/// A value of a record with its getter and its setter, for tests that go through all of them.

#ifndef QENXML_TESTS_SUPPORT_PROPERTY_H
#define QENXML_TESTS_SUPPORT_PROPERTY_H

#include <functional>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include <boost/uuid/uuid_io.hpp>

namespace test {

template <class Value>
std::string toText(const Value& value) {
    std::ostringstream out;
    out << std::setprecision(17) << value;
    return out.str();
}

/// A named value of a @p Record. Values are compared as texts, so that one table holds all types.
template <class Record>
struct Property {
    std::string name;
    std::function<std::string(Record&)> get;
    std::function<void(Record&)> set; ///< Sets one certain value, that of newValue.
    std::string newValue;
    std::string initialValue; ///< Of a record constructed by default.
    std::string builtValue;   ///< Of the record that the tests build whole.
};

template <class Record, class GetterOfRecord, class SetterOfRecord, class Value>
Property<Record> property(const std::string& name, GetterOfRecord getter, SetterOfRecord setter,
                          const Value& initialValue, const Value& builtValue,
                          const Value& newValue) {
    return {name,
            [getter](Record& record) { return toText((record.*getter)()); },
            [setter, newValue](Record& record) { (record.*setter)(newValue); },
            toText(newValue),
            toText(initialValue),
            toText(builtValue)};
}

/// All values of a record, each with its name.
template <class Record>
std::vector<std::string> values(const std::vector<Property<Record>>& properties, Record& record) {
    std::vector<std::string> result;
    for (const Property<Record>& property : properties)
        result.push_back(property.name + " " + property.get(record));
    return result;
}

/// Those of a column of the table, as values() has them.
template <class Record>
std::vector<std::string> values(const std::vector<Property<Record>>& properties,
                                std::string Property<Record>::*column) {
    std::vector<std::string> result;
    for (const Property<Record>& property : properties)
        result.push_back(property.name + " " + property.*column);
    return result;
}

/// The values that a record has after one property was set in it.
template <class Record>
std::vector<std::string> valuesWith(const Property<Record>& changed,
                                    const std::vector<Property<Record>>& properties,
                                    Record& unchanged) {
    std::vector<std::string> result = values(properties, unchanged);
    for (std::size_t i = 0; i < properties.size(); ++i) {
        if (properties[i].name == changed.name)
            result[i] = changed.name + " " + changed.newValue;
    }
    return result;
}

} // namespace test

#endif

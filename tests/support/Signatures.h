/// @file
/// Types of member functions, for assertions that pin the signatures of the public interface.

#ifndef QENXML_TESTS_SUPPORT_SIGNATURES_H
#define QENXML_TESTS_SUPPORT_SIGNATURES_H

#include <type_traits>
#include <utility>

namespace test {

template <class Class, class Result>
using Getter = Result (Class::*)();

template <class Class, class Result>
using ConstGetter = Result (Class::*)() const;

/// @p Argument is the parameter's exact type: a value and a const reference are told apart.
template <class Class, class Argument>
using Setter = void (Class::*)(Argument);

/// What a getter gives, whose result has exactly the type @p Value.
template <class Value, class Record, class Class>
Value valueOf(Record& record, Getter<Class, Value> getter) {
    return (record.*getter)();
}

template <class Class>
using Comparison = bool (Class::*)(const Class&) const;

/// True when a member function has exactly the type @p Expected, constness included.
template <class Expected, class Actual>
constexpr bool hasType(Actual) {
    return std::is_same_v<Expected, Actual>;
}

// Calls of an operator != by its name, as a member or not.
template <class Type>
auto notEqual(const Type& a, int) -> decltype(a.operator!=(a));
template <class Type>
auto notEqual(const Type& a, long) -> decltype(operator!=(a, a));

/// True when a class has an operator != of its own; since C++20, a != b makes do with operator ==.
template <class Type, class = void>
constexpr bool hasNotEqual = false;

template <class Type>
constexpr bool hasNotEqual<Type, std::void_t<decltype(notEqual(std::declval<const Type&>(), 0))>> =
    true;

} // namespace test

#endif

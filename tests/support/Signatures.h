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

template <class Class>
using Comparison = bool (Class::*)(const Class&) const;

/// True when a member function has exactly the type @p Expected, constness included.
template <class Expected, class Actual>
constexpr bool hasType(Actual) {
    return std::is_same_v<Expected, Actual>;
}

template <class Type, class = void>
constexpr bool hasNotEqual = false;

template <class Type>
constexpr bool hasNotEqual<
    Type, std::void_t<decltype(std::declval<const Type&>() != std::declval<const Type&>())>> = true;

} // namespace test

#endif

/// @file
/// UUIDs for tests.

#ifndef QENXML_TESTS_SUPPORT_UUIDS_H
#define QENXML_TESTS_SUPPORT_UUIDS_H

#include <string>

#include <boost/uuid/string_generator.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp> // for GoogleTest to print them

namespace test {

/// The UUID that a canonical text spells, converted by Boost and not by the library.
inline boost::uuids::uuid uuid(const std::string& text) {
    return boost::uuids::string_generator()(text);
}

/// A UUID that is easy to tell apart: its last four bytes are @p number, the others zero.
inline boost::uuids::uuid uuid(unsigned number) {
    boost::uuids::uuid result{};
    for (unsigned i = 0; i < 4; ++i)
        result.begin()[12 + i] = static_cast<unsigned char>(number >> (8 * (3 - i)));
    return result;
}

} // namespace test

#endif

/// @file
/// How a call of parseFile() ends, as a text.

#ifndef QENXML_TESTS_ROBUSTNESS_OUTCOME_H
#define QENXML_TESTS_ROBUSTNESS_OUTCOME_H

#include <new>
#include <stdexcept>
#include <string>

#include "parser/QenXmlParser.h"

namespace test {

/// Everything that parseFile() may do.
namespace outcome {
inline const std::string read = "true";
inline const std::string refused = "false";
inline const std::string invalid = "invalid uuid string";
inline const std::string tooShort = "path too short";
inline const std::string outOfMemory = "out of memory";
} // namespace outcome

/// Any other exception comes out and fails the test.
inline std::string outcomeOf(QenXmlParser& parser, const std::string& path) {
    try {
        return parser.parseFile(path) ? outcome::read : outcome::refused;
    } catch (const std::out_of_range&) {
        return outcome::tooShort;
    } catch (const std::bad_alloc&) {
        return outcome::outOfMemory;
    } catch (const std::runtime_error& error) {
        if (error.what() == outcome::invalid)
            return outcome::invalid;
        throw;
    }
}

} // namespace test

#endif

#ifndef QENXML_TOOLS_CHECK_NUMBERREADING_H
#define QENXML_TOOLS_CHECK_NUMBERREADING_H

#include <cstddef>
#include <string>

/// What the library makes of the text of a number, and what is odd about it.
struct NumberReading {
    enum class Fault {
        None,
        Empty,
        NotANumber,
        CutOff,      ///< Something follows the number.
        OutOfRange,  ///< Too large or too small for the type of the number.
        NotFinite,   ///< Infinity, or "nan", is written.
        Hexadecimal, ///< Begins with "0x".
    };

    Fault fault = Fault::None;
    double value = 0;       ///< What is read.
    std::size_t offset = 0; ///< Where in the text the fault is.

    /// What is read, as a text.
    std::string read() const;
};

/// Whether a text is a number as most are, "12" or "-9.3", of which nothing is odd. Others may be
/// without a fault, too.
///
/// @param whole without a fraction
bool isPlainNumber(const char* text, bool whole);

/// A number with a fraction.
NumberReading readNumber(const char* text);

/// A whole number.
NumberReading readInteger(const char* text);

#endif

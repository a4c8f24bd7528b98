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
    std::string read;       ///< What is read, as a text.
    std::size_t offset = 0; ///< Where in the text the fault is.
};

/// A number with a fraction.
NumberReading readNumber(const char* text);

/// A whole number.
NumberReading readInteger(const char* text);

#endif

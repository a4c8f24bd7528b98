/// @file
/// How values and markup of packages may be spelt, in order and out of it.

#ifndef QENXML_TESTS_TOOLS_CHECK_SLIPSPELLINGS_H
#define QENXML_TESTS_TOOLS_CHECK_SLIPSPELLINGS_H

#include <string>
#include <vector>

/// Lists of spellings.
namespace test::slip {

using Texts = std::vector<std::string>;

const Texts& numbers();     ///< Numbers with a fraction.
const Texts& integers();    ///< Whole numbers.
const Texts& oddNumbers();  ///< Texts in the place of a number, as few or nobody should write them.
const Texts& texts();       ///< Texts, as a person sees all of them.
const Texts& oddTexts();    ///< Texts of which something may be lost.
const Texts& oddBetween();  ///< What may stand between two elements, and mostly should not.
const Texts& doctypes();    ///< Document types that say nothing about what is read.
const Texts& oddDoctypes(); ///< Document types that do, or that are none.
const Texts& declarations();    ///< Declarations, in which E stands for the name of the encoding.
const Texts& oddDeclarations(); ///< Declarations that XML does not know.

} // namespace test::slip

#endif

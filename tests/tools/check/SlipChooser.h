/// @file
/// Choices by chance of how the parts of a package are written.

#ifndef QENXML_TESTS_TOOLS_CHECK_SLIPCHOOSER_H
#define QENXML_TESTS_TOOLS_CHECK_SLIPCHOOSER_H

#include <cstddef>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace test {

/// Chooses spellings, with a few slips in some packages. One is made for each package.
class SlipChooser {
public:
    explicit SlipChooser(std::mt19937& random);

    std::string number();
    std::string integer();
    std::string identifier(); ///< Another one each time.
    std::string text();
    std::string between();              ///< What stands between two elements.
    std::string prolog();               ///< What stands before the root element.
    std::string epilog();               ///< What stands after the root element.
    std::string attributes();           ///< Further attributes of an element.
    std::string name(const char* name); ///< A name as it is, or one like it.

    /// The bytes of a package whose text is given in UTF-8.
    std::string bytes(const std::string& text);

    std::size_t below(std::size_t limit) { return random_() % limit; }
    bool oneIn(std::size_t chance) { return below(chance) == 0; }

    /// Whether there is a slip here.
    bool slips() { return inside_ > 0 && oneIn(inside_); }

    /// Whether there is one outside the root element, or in the encoding.
    bool slipsOutside() { return outside_ > 0 && oneIn(outside_); }

    /// Whether something is written in an unusual way here, which loses nothing.
    bool isUnusual() { return unusual_ && oneIn(8); }

    const char* quote() { return isUnusual() ? "\"" : "'"; }

private:
    const std::string& oneOf(const std::vector<std::string>& texts) {
        return texts[below(texts.size())];
    }
    std::string oneOf(std::initializer_list<std::string> texts) {
        return *(texts.begin() + below(texts.size()));
    }
    std::string declaration();

    std::mt19937& random_;
    std::size_t inside_ = 0;  ///< Of how many places one has a slip; 0 where none has.
    std::size_t outside_ = 0; ///< As well, outside the root element.
    bool unusual_;
    std::string declared_; ///< The encoding that the declaration names.
};

} // namespace test

#endif

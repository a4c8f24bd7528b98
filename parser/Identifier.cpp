#include "parser/Identifier.h"

#include <cstddef>
#include <stdexcept>

#include <boost/throw_exception.hpp>

namespace qenxml {

namespace {

[[noreturn]] void throwInvalid() {
    boost::throw_exception(std::runtime_error("invalid uuid string"));
}

unsigned digitValue(char c) {
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a') + 10U;
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A') + 10U;
    return 255U;
}

/// Goes through a text character by character; asking beyond its end is a failure.
class Characters {
public:
    explicit Characters(std::string_view text) : text_(text) {}

    char next() {
        if (text_.empty())
            throwInvalid();
        const char c = text_.front();
        text_.remove_prefix(1);
        return c;
    }

    bool skip(char c) {
        if (text_.empty() || text_.front() != c)
            return false;
        text_.remove_prefix(1);
        return true;
    }

    void require(char c) {
        if (!skip(c))
            throwInvalid();
    }

private:
    std::string_view text_;
};

} // namespace

boost::uuids::uuid uuidFromText(std::string_view text) {
    Characters characters(text);
    const bool braced = characters.skip('{');
    bool hyphened = false;
    boost::uuids::uuid uuid{};
    for (std::size_t i = 0; i < uuid.size(); ++i) {
        if (i == 4)
            hyphened = characters.skip('-');
        else if (hyphened && (i == 6 || i == 8 || i == 10))
            characters.require('-');
        const unsigned high = digitValue(characters.next());
        const unsigned low = digitValue(characters.next());
        uuid.begin()[i] = static_cast<unsigned char>(high << 4U | low);
    }
    if (braced)
        characters.require('}');
    return uuid;
}

} // namespace qenxml

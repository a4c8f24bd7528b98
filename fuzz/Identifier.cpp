// Converts any bytes to an identifier, in the fast way and in the one that can explain, and
// compares both.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string_view>

#include <boost/uuid/uuid.hpp>

#include "fuzz/Require.h"
#include "parser/internal/Identifier.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::optional<boost::uuids::uuid> converted;
    try {
        converted = qenxml::uuidFromText(text);
    } catch (const std::runtime_error& error) {
        require(std::string_view(error.what()) == "invalid uuid string", "the text of the error");
    }
    std::size_t last = 0;
    const auto checkOffset = [&](std::size_t offset) {
        require(offset >= last && offset < text.size(), "wrong digits are found in their order");
        last = offset;
    };
    const qenxml::ExplainedIdentifier explained = qenxml::explainIdentifier(text, checkOffset);
    const bool good = explained.fault == qenxml::ExplainedIdentifier::Fault::None;
    require(good == converted.has_value(), "both ways refuse the same texts");
    require(!good || explained.value == *converted, "both ways give the same UUID");
    require(explained.end <= text.size(), "what was read is in the text");
    return 0;
}

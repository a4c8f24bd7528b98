// Reads any bytes as a package, walks everything that was read, copies it, merges it with itself
// and with a second reading.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Require.h"
#include "parser/QenXmlParser.h"
#include "tests/support/Describe.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// What a reading ended with: true, false or the exception.
std::string read(QenXmlParser& parser, const std::string& path) {
    try {
        return parser.parseFile(path) ? "read" : "not read";
    } catch (const std::runtime_error& error) {
        require(std::string_view(error.what()) == "invalid uuid string", "the text of the error");
        return error.what();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto folder = test::TemporaryFolder::inMemory();
    const std::string path = folder.writePackage({reinterpret_cast<const char*>(data), size});

    QenXmlParser parser;
    const std::string outcome = read(parser, path);
    std::vector<QenGrower> growers = parser.getGrowers();
    const std::string content = test::describe(growers);
    require(outcome != "not read" || growers.empty(), "nothing comes from a file that is not read");

    require(test::describe(std::vector<QenGrower>(growers)) == content, "a copy is equal");
    for (const QenGrower& grower : growers) {
        QenGrower merged = grower;
        merged.merge(grower);
        require(test::describe(merged) == test::describe(grower), "merging with itself");
    }

    require(read(parser, path) == outcome, "a second reading ends as the first");
    std::vector<QenGrower> both = parser.getGrowers();
    require(both.size() == 2 * growers.size(), "the second reading adds as many growers");
    for (std::size_t i = 0; i < growers.size(); ++i) {
        QenGrower& second = both[growers.size() + i];
        require(test::describe(second) == test::describe(growers[i]), "it reads the same");
        growers[i].merge(second);
    }
    require(test::describe(growers) == content, "merging with the second reading");
    return 0;
}

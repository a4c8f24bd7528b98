// Reads package files, good and broken ones, and tells what became of each.

#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "parser/QenXmlParser.h"

//! [read]
// Reads one file. What the parser has read of other files stays, however this ends.
std::string read(QenXmlParser& parser, const std::string& path) {
    try {
        if (parser.parseFile(path))
            return "read";
        return "cannot be loaded as XML, or has no RecPackage";
    } catch (const std::out_of_range&) {
        return "the path is too short to hold the UUID of a package";
    } catch (const std::runtime_error& error) { // an identifier that is absent, empty or malformed
        return std::string(error.what()) + ", in the path or after the growers that are read";
    }
}
//! [read]

int main() {
    //! [files]
    const std::vector<std::string> paths = {
        "32833106-536e-45df-80b2-d002cc92d33d.xml",
        "broken/rec-id/5ee118ce-09bf-4cfe-ad36-a8f803f97869.xml",
        "broken/name-without-uuid/planting-recommendations-spring-2026.xml",
        "00112233-4455-6677-8899-aabbccddeeff.xml", // there is no such file
        "a.xml",
    };
    QenXmlParser parser;
    for (const std::string& path : paths)
        std::cout << path << ": " << read(parser, path) << '\n';
    //! [files]

    //! [walk]
    std::vector<QenGrower> growers = parser.getGrowers(); // once: it copies everything
    for (QenGrower& grower : growers)
        for (QenFarm& farm : grower.farms())
            for (QenField& field : farm.fields())
                std::cout << grower.name() << " / " << farm.name() << " / " << field.name() << ": "
                          << field.recs().size() << " recs\n";
    //! [walk]
}

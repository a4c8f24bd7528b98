// Reads several packages at the same time.

#include <future>
#include <iostream>
#include <string>
#include <vector>

#include "parser/QenXmlParser.h"

//! [threads]
// Runs on a thread of its own, with a parser of its own. What it throws comes out of get().
std::vector<QenGrower> growersOf(const std::string& path) {
    QenXmlParser parser;
    parser.parseFile(path);
    return parser.getGrowers();
}

int main() {
    std::vector<std::future<std::vector<QenGrower>>> readings;
    for (const char* path :
         {"32833106-536e-45df-80b2-d002cc92d33d.xml", "f3faa8e8-79ea-4723-8ad5-cfbc1d74bd1c.xml"})
        readings.push_back(std::async(std::launch::async, growersOf, path));
    for (std::future<std::vector<QenGrower>>& reading : readings)
        for (const QenGrower& grower : reading.get())
            std::cout << grower.name() << '\n';
}
//! [threads]

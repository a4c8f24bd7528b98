#include "bench/Operations.h"

#include <algorithm>
#include <stdexcept>

#include <pugixml.hpp>
#include <time.h> // NOLINT(modernize-deprecated-headers): clock_gettime() is POSIX

#include "bench/Readers.h"
#include "parser/QenXmlParser.h"

namespace bench {

namespace {

void require(bool done, const std::string& path) {
    if (!done)
        throw std::runtime_error("cannot read " + path);
}

Result load(const std::string& path) {
    const auto document = std::make_shared<pugi::xml_document>();
    require(document->load_file(path.c_str()), path);
    return document;
}

Result parse(const std::string& path) {
    const auto parser = std::make_shared<QenXmlParser>();
    require(parser->parseFile(path), path);
    return parser;
}

Result parseAndCopy(const std::string& path) {
    struct ParserAndGrowers {
        QenXmlParser parser;
        std::vector<QenGrower> growers;
    };
    const auto result = std::make_shared<ParserAndGrowers>();
    require(result->parser.parseFile(path), path);
    result->growers = result->parser.getGrowers();
    return result;
}

using Trees = std::vector<std::vector<QenGrower>>;

std::shared_ptr<Trees> treesOf(const std::vector<std::string>& files) {
    auto trees = std::make_shared<Trees>();
    for (const std::string& file : files)
        trees->push_back(growersOf(file));
    return trees;
}

Operation preparedCopy(const std::vector<std::string>& files) {
    return [trees = treesOf(files)] { return std::make_shared<Trees>(*trees); };
}

Operation preparedMerge(const std::vector<std::string>& files) {
    if (files.size() != 2)
        throw std::runtime_error("merge takes two files");
    // To be done once: afterwards the first tree is the merged one.
    return [trees = treesOf(files)]() -> Result {
        merge(trees->at(0), trees->at(1));
        return trees;
    };
}

} // namespace

Operation operationNamed(const std::string& name, const std::vector<std::string>& files) {
    const std::string& path = files.at(0);
    if (name == "load")
        return [path] { return load(path); };
    if (name == "parse")
        return [path] { return parse(path); };
    if (name == "parse+copy")
        return [path] { return parseAndCopy(path); };
    if (name == "copy")
        return preparedCopy(files);
    if (name == "merge")
        return preparedMerge(files);
    for (const Reader& reader : readers()) {
        if (name == reader.name)
            return [path, reader] { return reader.read(path); };
    }
    throw std::runtime_error("unknown operation: " + name);
}

double processorSeconds() {
    timespec time{};
    if (clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time) != 0)
        throw std::runtime_error("no processor time");
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double secondsOf(const Operation& operation) {
    const double start = processorSeconds();
    const Result result = operation();
    return processorSeconds() - start;
}

std::vector<QenGrower> growersOf(const std::string& path) {
    QenXmlParser parser;
    require(parser.parseFile(path), path);
    return parser.getGrowers();
}

void merge(std::vector<QenGrower>& growers, const std::vector<QenGrower>& others) {
    for (const QenGrower& other : others) {
        const auto present = std::find(growers.begin(), growers.end(), other);
        if (present != growers.end())
            present->merge(other);
        else
            growers.push_back(other);
    }
}

std::size_t recsIn(std::vector<QenGrower>& growers) {
    std::size_t count = 0;
    for (QenGrower& grower : growers)
        for (QenFarm& farm : grower.farms())
            for (QenField& field : farm.fields())
                count += field.recs().size();
    return count;
}

} // namespace bench

#include "tools/Show.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "tools/Escape.h"
#include "tools/PackageReading.h"
#include "tools/PackageUuid.h"
#include "tools/TreeText.h"

namespace {

constexpr const char* examples =
    "  qenxml show 00112233-4455-6677-8899-aabbccddeeff.xml\n"
    "  qenxml show --merge season/*.xml      one tree of all packages in a folder\n"
    "  qenxml show packages/*.xml | less     page by page\n";

struct ShowOptions {
    bool merge = false;
    std::vector<std::string> files;
};

/// Reads a file. When that fails, says so, and what has been printed before comes before it.
PackageReading readAndComplain(const std::string& path, Console& console) {
    PackageReading reading = readPackage(path);
    if (reading.failure)
        console.complain(failureMessage(reading));
    else if (!isNamedByUuid(path))
        console.complain(oddNameMessage(reading));
    return reading;
}

/// Nothing of it is worth showing: it failed before its first grower.
bool isLost(const PackageReading& reading) {
    return reading.failure && reading.growers.empty();
}

void printHeading(const PackageReading& reading, Console& console) {
    const Style& style = console.style();
    const std::string uuid = reading.uuid ? to_string(*reading.uuid) : "";
    console.print(fmt::format("{} {}  {}{}\n", style.kind("Package"), style.identifier(uuid),
                              style.name(escape(reading.path)),
                              reading.failure ? style.remark("  (incomplete)") : ""));
}

void printGrowers(std::vector<QenGrower>& growers, const TreeLayout& layout, Console& console) {
    if (growers.empty())
        console.print(fmt::format("{:{}}{}\n", "", layout.indent, "no growers"));
    for (QenGrower& grower : growers)
        console.print(treeText(grower, layout));
}

ExitCode showOneByOne(const std::vector<std::string>& files, Console& console) {
    constexpr std::size_t indent = 2;
    const TreeLayout layout{console.style(), indent, false};
    ExitCode result = ExitCode::Success;
    bool first = true;
    for (const std::string& file : files) {
        PackageReading reading = readAndComplain(file, console);
        if (reading.failure)
            result = ExitCode::Failure;
        if (isLost(reading))
            continue;
        if (!std::exchange(first, false))
            console.print("\n");
        printHeading(reading, console);
        printGrowers(reading.growers, layout, console);
    }
    return result;
}

/// Growers of equal id become one, in the place of the first.
class MergedGrowers {
public:
    void add(std::vector<QenGrower> growers) {
        for (QenGrower& grower : growers) {
            const auto [place, isNew] = places_.try_emplace(grower.id(), growers_.size());
            if (isNew)
                growers_.push_back(std::move(grower));
            else
                growers_[place->second].merge(std::move(grower));
        }
    }

    std::vector<QenGrower>& growers() { return growers_; }

private:
    std::vector<QenGrower> growers_;
    std::map<boost::uuids::uuid, std::size_t> places_;
};

ExitCode showMerged(const std::vector<std::string>& files, Console& console) {
    const TreeLayout layout{console.style(), 0, true};
    ExitCode result = ExitCode::Success;
    bool any = false;
    MergedGrowers merged;
    for (const std::string& file : files) {
        PackageReading reading = readAndComplain(file, console);
        if (reading.failure)
            result = ExitCode::Failure;
        if (isLost(reading))
            continue;
        any = true;
        printHeading(reading, console);
        merged.add(std::move(reading.growers));
    }
    if (any) {
        console.print("\n");
        printGrowers(merged.growers(), layout, console);
    }
    return result;
}

} // namespace

Command addShow(CLI::App& application) {
    CLI::App* parser =
        application.add_subcommand("show", "Print what packages hold")->group("Commands");
    const auto options = std::make_shared<ShowOptions>();
    parser->formatter(std::make_shared<HelpFormatter>(examples));
    parser->footer(exitCodeHelp);
    parser->add_flag("--merge", options->merge,
                     "Print one tree of all packages; each rec names its package");
    parser->add_option("FILE", options->files, "Package files, named UUID.xml")
        ->required()
        ->option_text(" ");
    return {parser, [options](Console& console) {
                return options->merge ? showMerged(options->files, console)
                                      : showOneByOne(options->files, console);
            }};
}

#include "tools/commands/CommandLine.h"

#include <array>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "model/version.h"
#include "tools/commands/Check.h"
#include "tools/commands/Command.h"
#include "tools/commands/Diff.h"
#include "tools/commands/Explain.h"
#include "tools/commands/Export.h"
#include "tools/commands/Report.h"
#include "tools/commands/Show.h"
#include "tools/options/Arguments.h"
#include "tools/options/HelpFormatter.h"
#include "tools/text/Escape.h"
#include "tools/text/NameSuggestion.h"

namespace {

constexpr const char* examples = "  qenxml show 00112233-4455-6677-8899-aabbccddeeff.xml\n"
                                 "  qenxml show --merge season/*.xml\n"
                                 "  qenxml check outgoing/\n"
                                 "  qenxml diff yesterday/ today/\n"
                                 "  qenxml export --format csv -o recs.csv season/*.xml\n"
                                 "  qenxml report -o report.html season/*.xml\n"
                                 "  qenxml show --help\n";

/// The names that may stand where an argument was not understood.
std::vector<std::string> knownNames(const CLI::App& application) {
    std::vector<std::string> names;
    const std::vector<CLI::App*> chosen = application.get_subcommands();
    const CLI::App& context = chosen.empty() ? application : *chosen.front();
    for (const CLI::Option* option : context.get_options()) {
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    }
    for (const CLI::App* command : context.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(command->get_name());
    return names;
}

std::string describeUnknown(const CLI::App& application, const std::string& argument) {
    const std::vector<std::string> names = knownNames(application);
    std::vector<const char*> pointers;
    pointers.reserve(names.size());
    for (const std::string& name : names)
        pointers.push_back(name.c_str());
    const std::string_view nearest = nearestName(argument.substr(0, argument.find('=')), pointers);
    const bool isCommand = application.get_subcommands().empty() && argument.substr(0, 1) != "-";
    return fmt::format("\"{}\" is {}{}", escape(argument),
                       isCommand ? "no command" : "not understood here",
                       nearest.empty() ? "" : fmt::format("; is {} meant?", nearest));
}

/// What is wrong with the arguments. The parser itself tells of what is missing first, although an
/// argument that it did not understand is mostly the reason.
std::string describe(const CLI::App& application, const CLI::ParseError& error) {
    for (const std::string& argument : application.remaining(true)) {
        if (argument != "--")
            return describeUnknown(application, unguarded(argument));
    }
    if (application.get_subcommands().empty())
        return "a command is required";
    return escape(error.what());
}

ExitCode refuse(const CLI::App& application, const CLI::ParseError& error, Console& console) {
    std::string command = application.get_name();
    for (const CLI::App* subcommand : application.get_subcommands())
        command += " " + subcommand->get_name();
    const std::string message = describe(application, error);
    console.complain(
        fmt::format("{}{} try \"{} --help\"", message, message.back() == '?' ? "" : ";", command));
    return ExitCode::WrongUsage;
}

/// @param failure out: what the command ends with when it throws
ExitCode parseAndRun(int argc, const char* const* argv, Console& console, ExitCode& failure) {
    CLI::App application("Reads prescription packages for farm machinery.", "qenxml");
    application.formatter(std::make_shared<HelpFormatter>(examples));
    application.footer(exitCodeHelp);
    application.set_help_flag("-h,--help", "Print this help");
    application.set_version_flag("--version", "qenxml " QENXML_VERSION, "Print the version");
    application.require_subcommand(1);
    const std::array commands = {addShow(application),    addCheck(application),
                                 addExplain(application), addDiff(application),
                                 addExport(application),  addReport(application)};

    try {
        application.parse(guardedArguments(argc, argv));
        for (const Command& command : commands) {
            if (!command.parser->parsed())
                continue;
            failure = command.failure;
            return command.run(console);
        }
    } catch (const CLI::CallForHelp&) {
        console.print(application.help());
        return ExitCode::Success;
    } catch (const CLI::CallForVersion& version) {
        console.print(fmt::format("{}\n", version.what()));
        return ExitCode::Success;
    } catch (const CLI::ParseError& error) {
        return refuse(application, error, console);
    }
    return ExitCode::WrongUsage; // not reached: a sub-command is required
}

} // namespace

ExitCode runCommandLine(int argc, const char* const* argv, Console& console) {
    ExitCode failure = ExitCode::Failure;
    try {
        const ExitCode result = parseAndRun(argc, argv, console, failure);
        console.flush();
        return result;
    } catch (const OutputError& error) {
        if (error.code() == std::errc::broken_pipe) // Its reader has seen enough: "| head".
            return failure;
        console.complainAtOnce(
            fmt::format("the output could not be written: {}", error.code().message()));
    } catch (const std::bad_alloc&) {
        console.complainAtOnce("not enough memory");
    } catch (const std::exception& error) {
        console.complainAtOnce(escape(error.what()));
    }
    return failure;
}

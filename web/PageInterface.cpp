/// @file
/// What the page in this folder calls. Arguments come from a file of its own file system, results
/// go to others, so that nothing but a number has to be handed over between languages.

#include <cstdio>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "tools/commands/CommandLine.h"
#include "tools/commands/Export.h"
#include "tools/files/FileContent.h"
#include "tools/findings/FindingJson.h"
#include "tools/text/Escape.h"

namespace {

constexpr const char* argumentsFile = "/run/arguments"; ///< Each ends with a zero byte.
constexpr const char* outputFile = "/run/output";
constexpr const char* messagesFile = "/run/messages";

/// A stream, closed with this object.
class Stream {
public:
    explicit Stream(const char* path) : file_(std::fopen(path, "w")) {}
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;
    ~Stream() {
        if (file_ != nullptr)
            std::fclose(file_);
    }

    std::FILE* file() const { return file_; }

private:
    std::FILE* file_;
};

std::vector<std::string> givenArguments() {
    const std::string bytes = readFileContent(argumentsFile).bytes;
    std::vector<std::string> arguments;
    for (std::size_t begin = 0; begin < bytes.size(); begin += arguments.back().size() + 1)
        arguments.emplace_back(bytes.c_str() + begin);
    return arguments;
}

void writeOutput(const std::string& text) {
    const Stream output(outputFile);
    std::fwrite(text.data(), 1, text.size(), output.file());
}

} // namespace

extern "C" {

/// Does what the command does with these arguments.
///
/// @return its exit code
int qenxmlRun() {
    const std::vector<std::string> arguments = givenArguments();
    std::vector<const char*> pointers = {"qenxml"};
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    const int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);
    const Stream output(outputFile);
    const Stream messages(messagesFile);
    Console console(output.file(), messages.file(), Style(), true); // The page shows progress.
    return static_cast<int>(runCommandLine(count, pointers.data(), console));
}

/// Writes the arguments as outputs of the command show them: a list of JSON.
void qenxmlEscape() {
    std::string list;
    for (const std::string& argument : givenArguments())
        list += (list.empty() ? "[" : ",") + toJson(escape(argument));
    writeOutput(list.empty() ? "[]" : list + "]");
}

/// Writes the formats of `qenxml export`: a list of JSON.
void qenxmlFormats() {
    std::string list;
    for (const ExportFormatName& format : exportFormats())
        list += fmt::format(R"({}{{"name":{},"title":{}}})", list.empty() ? "[" : ",",
                            toJson(format.name), toJson(format.title));
    writeOutput(list + "]");
}
}

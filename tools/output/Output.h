#ifndef QENXML_TOOLS_OUTPUT_OUTPUT_H
#define QENXML_TOOLS_OUTPUT_OUTPUT_H

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "tools/output/Console.h"
#include "tools/output/OutputFile.h"

/// Takes a text piece by piece.
using TextSink = std::function<void(std::string_view)>;

/// The result of a command: the standard output, or the file of the option `-o`.
class Output {
public:
    /// @param path of the file; empty or "-" for the standard output
    /// @throws OutputFileError
    Output(const std::string& path, Console& console);

    /// @throws OutputError, OutputFileError
    void write(std::string_view text);

    /// Says that all is written. Without it no file is left.
    ///
    /// @param anyRead whether any package could be read. If not, a file stays as it was: to lose
    ///                it for nothing is what nobody wants whose stick is not mounted.
    /// @throws OutputError, OutputFileError
    void finish(bool anyRead);

private:
    void finishFile();

    std::string path_;
    Console& console_;
    std::optional<OutputFile> file_;
};

#endif

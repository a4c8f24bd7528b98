#include "tools/Output.h"

void addOutputOption(CLI::App& parser, std::string& path) {
    parser
        .add_option("-o,--output", path,
                    "Write to this file, which is replaced only by a whole one")
        ->option_text("OUT");
}

Output::Output(const std::string& path, Console& console) : console_(console) {
    if (!path.empty() && path != "-")
        file_.emplace(path);
}

void Output::write(std::string_view text) {
    if (file_)
        file_->write(text);
    else
        console_.print(text);
}

void Output::finish() {
    if (file_)
        file_->commit();
    else
        console_.flush();
}

#include "tools/output/Output.h"

#include <fmt/format.h>

#include "tools/text/Escape.h"

Output::Output(const std::string& path, Console& console) : path_(path), console_(console) {
    if (!path.empty() && path != "-")
        file_.emplace(path);
}

void Output::write(std::string_view text) {
    if (file_)
        file_->write(text);
    else if (console_.isTerminal())
        console_.print(escapeDocument(text)); // What a file may hold may drive a terminal.
    else
        console_.print(text);
}

void Output::finish(bool anyRead) {
    if (!file_)
        console_.flush();
    else if (anyRead || file_->isDirect())
        finishFile();
    else
        console_.complain(fmt::format(
            "{}: not written, as no package could be read; a file that is there has not changed",
            escape(path_)));
}

void Output::finishFile() {
    file_->commit();
    if (!file_->remark().empty())
        console_.complain(fmt::format("{}: {}", escape(path_), file_->remark()));
}

#include "tools/workbook/Workbook.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <variant>

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include "tools/files/Descriptor.h"
#include "tools/files/TemporaryFolder.h"
#include "tools/text/NumberText.h"
#include "tools/text/Utf8.h"
#include "tools/workbook/CellDate.h"

namespace {

/// Every workbook says when it was made. The same packages shall give the same file, so it says the
/// first second that its archive can hold.
constexpr time_t made = 315'532'800; // 1980-01-01

[[noreturn]] void fail(const std::string& reason) {
    throw std::runtime_error("the workbook cannot be made: " + reason);
}

/// @param error that of the system
[[noreturn]] void failIn(const std::string& folder, int error) {
    fail(fmt::format("its parts cannot be written in {}: {}; TMPDIR can name another folder",
                     folder, std::generic_category().message(error)));
}

/// libxlsxwriter goes on where it finds no memory or no room, and leaves out what it could not
/// keep. The system's last error tells: it has to be 0 before what is expected to be whole.
void expectNothingLost(const std::string& folder) {
    const int error = errno;
    if (error == ENOMEM)
        throw std::bad_alloc();
    for (const int loss : {ENOSPC, EDQUOT, EFBIG, EIO, EROFS}) {
        if (error == loss)
            failIn(folder, error);
    }
}

/// Expects that a cell or the workbook was not refused.
void expectTaken(lxw_error error) {
    if (error == LXW_ERROR_MEMORY_MALLOC_FAILED)
        throw std::bad_alloc();
    if (error != LXW_NO_ERROR)
        fail(lxw_strerror(error));
}

/// Closing a workbook copies each sheet and packs the copies, and says nothing of one that found no
/// room. So it begins only when there is room for all of them.
void expectRoom(const std::string& file, std::size_t size, const std::string& folder) {
    constexpr std::size_t memory = 1U << 20U; // more than packing takes
    constexpr std::size_t frames = 1U << 17U; // what is around the rows, and what is no sheet
    const std::vector<char> whole(memory);
    const Descriptor descriptor(open(file.c_str(), O_WRONLY | O_CLOEXEC));
    errno = posix_fallocate(descriptor.number(), 0, static_cast<off_t>(size + frames));
    expectNothingLost(folder);
    if (ftruncate(descriptor.number(), 0) != 0)
        failIn(folder, errno);
}

/// Makes a file of another name than all others have.
bool makeFile(std::string& name) {
    return static_cast<bool>(Descriptor(mkstemp(name.data())));
}

bool isOfXml(const Utf8Character& character) {
    const char32_t c = character.codePoint;
    const bool isControl = (c < 0x20 && c != '\t' && c != '\n') || (c >= 0x7F && c <= 0x9F);
    return character.valid && !isControl && (c & 0xFFFEU) != 0xFFFE;
}

/// Whether a text begins with what spreadsheets take for a character: "_x0041_".
bool beginsAsEscape(std::string_view text) {
    constexpr std::size_t length = 7;
    const auto isDigit = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
    };
    return text.size() >= length && text.substr(0, 2) == "_x" && text[length - 1] == '_' &&
           std::all_of(text.begin() + 2, text.begin() + length - 1, isDigit);
}

/// Writes a cell.
struct WriteCell {
    lxw_worksheet* sheet;
    lxw_row_t row;
    lxw_col_t column;
    lxw_format* day; ///< Null for a text that says no date.
    lxw_format* time;

    void operator()(std::monostate /*none*/) const {}
    void operator()(bool value) const {
        expectTaken(worksheet_write_boolean(sheet, row, column, value ? 1 : 0, nullptr));
    }
    void operator()(int number) const {
        expectTaken(worksheet_write_number(sheet, row, column, number, nullptr));
    }
    void operator()(double number) const {
        if (std::isfinite(number))
            expectTaken(worksheet_write_number(sheet, row, column, number, nullptr));
        else
            (*this)(numberText(number));
    }
    void operator()(const std::string& text) const {
        const std::optional<CellDate> date = day == nullptr ? std::nullopt : cellDate(text);
        if (!date) {
            expectTaken(
                worksheet_write_string(sheet, row, column, workbookText(text).c_str(), nullptr));
            return;
        }
        lxw_datetime value{date->day.year, date->day.month, date->day.day,
                           date->hour,     date->minute,    static_cast<double>(date->second)};
        expectTaken(
            worksheet_write_datetime(sheet, row, column, &value, date->hasTime ? time : day));
    }
};

} // namespace

void Workbook::Close::operator()(lxw_workbook* workbook) const {
    lxw_workbook_free(workbook);
}

Workbook::Workbook(std::size_t rowsPerSheet)
    : file_(temporaryFolder() + "/qenxml-XXXXXX"),
      rowsPerSheet_(rowsPerSheet),
      folder_(temporaryFolder()) {
    if (!file_.make(makeFile))
        failIn(folder_, errno);
    errno = 0;
    lxw_workbook_options options = {};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = folder_.data();
    workbook_.reset(workbook_new_opt(file_.name().c_str(), &options));
    if (!workbook_)
        throw std::bad_alloc();
    lxw_doc_properties properties = {};
    properties.created = made;
    workbook_set_properties(workbook_.get(), &properties);
    title_ = workbook_add_format(workbook_.get());
    format_set_bold(title_);
    day_ = workbook_add_format(workbook_.get());
    format_set_num_format(day_, "yyyy-mm-dd");
    time_ = workbook_add_format(workbook_.get());
    format_set_num_format(time_, "yyyy-mm-dd hh:mm:ss");
    expectNothingLost(folder_);
}

std::size_t Workbook::addTable(std::string name, std::vector<std::string> titles) {
    tables_.push_back({std::move(name), std::move(titles)});
    errno = 0;
    addSheet(tables_.back());
    expectNothingLost(folder_);
    return tables_.size() - 1;
}

void Workbook::addRow(std::size_t table, const std::vector<WorkbookCell>& cells) {
    Table& rows = tables_.at(table);
    errno = 0;
    if (rows.row == rowsPerSheet_) {
        endSheet(rows);
        addSheet(rows);
    }
    lxw_col_t column = 0;
    for (const WorkbookCell& cell : cells)
        std::visit(WriteCell{rows.sheet, static_cast<lxw_row_t>(rows.row), column++,
                             cell.isDate ? day_ : nullptr, time_},
                   cell.value);
    expectNothingLost(folder_);
    ++rows.row;
}

void Workbook::addSheet(Table& table) {
    ++table.sheets;
    const std::string name =
        table.name + (table.sheets == 1 ? "" : " " + std::to_string(table.sheets));
    table.sheet = workbook_add_worksheet(workbook_.get(), name.c_str());
    if (table.sheet == nullptr)
        throw std::bad_alloc();
    worksheet_freeze_panes(table.sheet, 1, 0);
    constexpr double width = 14; // characters
    worksheet_set_column(table.sheet, 0, static_cast<lxw_col_t>(table.titles.size() - 1), width,
                         nullptr);
    lxw_col_t column = 0;
    for (const std::string& title : table.titles)
        expectTaken(worksheet_write_string(table.sheet, 0, column++, title.c_str(), title_));
    table.row = 1;
}

void Workbook::endSheet(Table& table) {
    lxw_worksheet_write_single_row(table.sheet); // the last one
    std::fflush(table.sheet->optimize_tmpfile);
    bytes_ += static_cast<std::size_t>(std::max(ftello(table.sheet->optimize_tmpfile), off_t{0}));
    worksheet_autofilter(table.sheet, 0, 0, static_cast<lxw_row_t>(table.row - 1),
                         static_cast<lxw_col_t>(table.titles.size() - 1));
}

void Workbook::finish(const TextSink& sink) {
    errno = 0;
    for (Table& table : tables_)
        endSheet(table);
    expectNothingLost(folder_);
    expectRoom(file_.name(), bytes_, folder_);
    errno = 0;
    const lxw_error error = workbook_close(workbook_.release());
    expectNothingLost(folder_);
    expectTaken(error);
    struct CloseFile {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };
    const std::unique_ptr<std::FILE, CloseFile> stream(std::fopen(file_.name().c_str(), "re"));
    if (!stream)
        failIn(folder_, errno);
    constexpr std::size_t blockSize = 65536;
    std::array<char, blockSize> block{};
    while (const std::size_t size = std::fread(block.data(), 1, block.size(), stream.get()))
        sink({block.data(), size});
    if (std::ferror(stream.get()) != 0)
        failIn(folder_, errno);
}

std::string workbookText(std::string_view text) {
    constexpr std::size_t mostUnits = 32'767; // of UTF-16
    constexpr char32_t firstOfPairs = 0x10000;
    std::string result;
    std::size_t units = 0;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const std::string_view escape = beginsAsEscape(text) ? "_x005F" : "";
        units += escape.size() + (character.codePoint < firstOfPairs ? 1 : 2);
        if (units > mostUnits)
            break;
        result += escape;
        if (isOfXml(character))
            result += text.substr(0, character.length);
        else
            appendUtf8(result, 0xFFFD);
        text.remove_prefix(character.length);
    }
    return result;
}

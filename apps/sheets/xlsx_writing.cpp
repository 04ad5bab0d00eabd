// The only file that knows the workbook library. It writes to a file by name, so the bytes are
// taken from one in memory and written where they belong like every other file.
#include <sys/mman.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <iterator>
#include <unordered_map>

#include "core_api/drawing/canvas.h"
#include "platform/clock.h"
#include "platform/encodings.h"
#include "platform/files.h"
#include "platform/window/bitmap.h"
#include "sheets/sheet_writing.h"

namespace sheets {

namespace {

using formula::Value;

/// Functions younger than the file format carry a prefix in it: those with a dot in their name but
/// for four, and these.
bool needsPrefix(std::string_view name) {
    static constexpr std::array<std::string_view, 4> dottedOld = {
        "ERROR.TYPE", "ISO.CEILING", "NETWORKDAYS.INTL", "WORKDAY.INTL"};
    static constexpr std::array<std::string_view, 47> young = {
        "ACOT",      "ACOTH",        "AGGREGATE", "ARABIC",      "ARRAYTOTEXT", "BASE",
        "BITAND",    "BITLSHIFT",    "BITOR",     "BITRSHIFT",   "BITXOR",      "COMBINA",
        "CONCAT",    "COT",          "COTH",      "CSC",         "CSCH",        "DAYS",
        "DECIMAL",   "FORMULATEXT",  "GAMMA",     "GAUSS",       "IFNA",        "IFS",
        "ISFORMULA", "ISOWEEKNUM",   "MAXIFS",    "MINIFS",      "MUNIT",       "NUMBERVALUE",
        "PDURATION", "PERMUTATIONA", "PHI",       "RRI",         "SEC",         "SECH",
        "SHEET",     "SHEETS",       "SWITCH",    "TEXTAFTER",   "TEXTBEFORE",  "TEXTJOIN",
        "TEXTSPLIT", "UNICHAR",      "UNICODE",   "VALUETOTEXT", "XOR"};
    static constexpr std::array<std::string_view, 2> lookups = {"XLOOKUP", "XMATCH"};
    const auto isIn = [&](const auto& names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    if (name.find('.') != name.npos) return !isIn(dottedOld);
    return isIn(young) || isIn(lookups);
}

/// The formula as the file format writes it, "=" in front, UTF-8.
std::string fileFormula(std::string_view text) {
    std::string result = "=";
    std::string word;
    bool inText = false;
    const auto endWord = [&](char next) {
        if (next == '(' && needsPrefix(encodings::uppered(word))) result += "_xlfn.";
        result += word;
        word.clear();
    };
    for (const char c : text) {
        if (c == '"') inText = !inText;
        if (!inText && (std::isalnum(static_cast<unsigned char>(c)) || c == '.' || c == '_')) {
            word += c;
            continue;
        }
        endWord(c);
        result += c;
    }
    endWord('\0');
    return encodings::toUtf8(result);
}

lxw_color_t fileColour(control::Colour colour) {
    return (colour & 0xFFU) << 16 | (colour & 0xFF00U) | (colour >> 16 & 0xFFU);
}

void setFont(lxw_format* format, const control::Look& look) {
    const control::Font& font = look.font;
    format_set_font_name(format, encodings::toUtf8(font.name).c_str());
    format_set_font_size(format, font.height * 0.75);  // pixels at 96 to the inch, in points
    if (font.weight >= 600) format_set_bold(format);
    if (font.italic) format_set_italic(format);
    if (font.underlined) format_set_underline(format, LXW_UNDERLINE_SINGLE);
    if (look.textColour != control::automatic)
        format_set_font_color(format, fileColour(look.textColour));
}

void setBorders(lxw_format* format, const control::Look& look) {
    if (look.borderStyle == 0) return;
    const auto has = [&](control::BorderSide side) { return (look.borderSides & side) != 0; };
    if (has(control::borderLeft)) format_set_left(format, LXW_BORDER_THIN);
    if (has(control::borderRight)) format_set_right(format, LXW_BORDER_THIN);
    if (has(control::borderTop)) format_set_top(format, LXW_BORDER_THIN);
    if (has(control::borderBottom)) format_set_bottom(format, LXW_BORDER_THIN);
    if (look.borderColour != control::automatic)
        format_set_border_color(format, fileColour(look.borderColour));
}

void setNumberFormat(lxw_format* format, const control::CellType& type) {
    if (type.isNumber()) {
        const std::string decimals(type.decimals, '0');
        format_set_num_format(format, decimals.empty() ? "0" : ("0." + decimals).c_str());
    } else if (type.keepsText()) {
        format_set_num_format(format, "@");
    }
}

constexpr int pictureMark = 251;  // bitmap resource

/// The arrow from a row to its picture, as the screen draws the resource.
const std::string& markBitmap() {
    static const std::string bytes = [] {
        constexpr CBitmap::Pixel ink = 0x44525F;
        drawing::Canvas canvas(18, 18);
        const drawing::Point line[] = {{4, 3}, {4, 12}, {13, 12}};
        canvas.stroke(line, 1.6, ink);
        const drawing::Contour head[] = {{{10, 8.5}, {14, 12}, {10, 15.5}}};
        canvas.fill(head, ink);
        return encodeBitmap(canvas.bitmap());
    }();
    return bytes;
}

/// One workbook being filled from a grid.
class Workbook {
  public:
    Workbook(const control::Grid& grid, const std::string& path)
        : m_grid(grid), m_book(workbook_new(path.c_str())) {
        if (m_book) m_page = workbook_add_worksheet(m_book, nullptr);
    }
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;
    ~Workbook() {
        if (m_book) workbook_close(m_book);
    }

    /// Of the clock only where it is fixed: the same sheet gives the same bytes.
    void setCreated() {
        if (!m_book) return;
        constexpr std::int64_t firstOfArchives = 315532800;  // 1980, as its files are dated
        lxw_doc_properties properties{};
        properties.created =
            static_cast<std::time_t>(platform::fixedTime().value_or(firstOfArchives));
        note(workbook_set_properties(m_book, &properties), {});
    }

    void keepFirstRowInSight() {
        if (!m_page) return;
        worksheet_freeze_panes(m_page, 1, 0);
        worksheet_repeat_rows(m_page, 0, 0);
    }

    bool write(std::string& error) {
        if (!m_page) {
            error = "there is not enough memory for a workbook";
            return false;
        }
        writeSizes();
        writeSpans();
        if (!m_error.empty()) {
            error = m_error;
            return false;
        }
        const auto [cols, rows] = usedArea(m_grid);
        const formula::Area all{1, std::max(rows, 1), 1, static_cast<uint16_t>(std::max(cols, 1))};
        m_grid.sheet().cells().each(
            all, [&](int row, int col, const control::Cell& cell) { writeCell(col, row, cell); });
        writeNotes();
        writePictures();
        note(workbook_close(std::exchange(m_book, nullptr)), {});
        error = m_error;
        return m_error.empty();
    }

  private:
    static lxw_row_t rowOf(int row) { return static_cast<lxw_row_t>(row - 1); }
    static lxw_col_t colOf(int col) { return static_cast<lxw_col_t>(col - 1); }

    void note(lxw_error result, const std::string& where) {
        if (result != LXW_NO_ERROR && m_error.empty())
            m_error = where + std::string(where.empty() ? "" : ": ") + lxw_strerror(result);
    }

    lxw_format* formatOf(control::LookIndex index) {
        auto& format = m_formats[index];
        if (format) return format;
        const control::Look& look = m_grid.looks()[index];
        format = workbook_add_format(m_book);
        setNumberFormat(format, look.type);
        setFont(format, look);
        setBorders(format, look);
        if (look.background != control::automatic) {
            format_set_pattern(format, LXW_PATTERN_SOLID);
            format_set_bg_color(format, fileColour(look.background));
        }
        static constexpr uint8_t alignments[] = {LXW_ALIGN_NONE, LXW_ALIGN_LEFT, LXW_ALIGN_RIGHT,
                                                 LXW_ALIGN_CENTER};
        if (look.alignment < std::size(alignments))
            format_set_align(format, alignments[look.alignment]);
        return format;
    }

    void writeSizes() {
        const control::SideTables& sides = m_grid.sides();
        for (const auto& [row, pixels] : sides.rows.sizes)
            if (row >= 1) worksheet_set_row_pixels(m_page, rowOf(row), pixelsOf(pixels), nullptr);
        const int cols = std::max(usedArea(m_grid).cols, lastSized(sides.cols));
        for (int col = 1; col <= cols; ++col) {
            lxw_row_col_options options{};
            options.hidden = sides.cols.hidden.contains(col);
            const auto size = sides.cols.sizes.find(col);
            const auto look = sides.columnLook(col);
            if (size == sides.cols.sizes.end() && !options.hidden && look == control::inheritedLook)
                continue;
            const int pixels = size == sides.cols.sizes.end() ? m_grid.colWidth(col) : size->second;
            worksheet_set_column_pixels_opt(
                m_page, colOf(col), colOf(col), pixelsOf(pixels),
                look == control::inheritedLook ? nullptr : formatOf(look), &options);
        }
    }
    static uint32_t pixelsOf(int pixels) { return static_cast<uint32_t>(std::max(pixels, 0)); }
    static int lastSized(const control::Band& band) {
        const int sized = band.sizes.empty() ? 0 : band.sizes.rbegin()->first;
        return std::max(sized, band.hidden.empty() ? 0 : *band.hidden.rbegin());
    }

    void writeSpans() {
        // The library writes every cell of a span.
        constexpr long long mostCells = 2'000'000;
        long long cells = 0;
        for (const auto& span : m_grid.sides().spans.all()) {
            if (span.col < 1 || span.row < 1 || (span.cols < 2 && span.rows < 2)) continue;
            cells += static_cast<long long>(span.cols) * span.rows;
            if (cells > mostCells) m_error = "the spans hold too many cells for a workbook";
            if (!m_error.empty()) return;
            note(worksheet_merge_range(m_page, rowOf(span.row), colOf(span.col),
                                       rowOf(span.row + span.rows - 1),
                                       colOf(span.col + span.cols - 1), "",
                                       formatOf(m_grid.lookIndex(span.col, span.row))),
                 "the span at " + cellName({span.col, span.row}));
        }
    }

    void writeNotes() {
        for (const auto& [key, text] : m_grid.sides().notes) {
            const int col = control::keyCol(key), row = control::keyRow(key);
            if (col < 1 || row < 1) continue;
            note(worksheet_write_comment(m_page, rowOf(row), colOf(col),
                                         encodings::toUtf8(text).c_str()),
                 "the note of " + cellName({col, row}));
        }
    }

    void writePictures() {
        const auto [cols, rows] = usedArea(m_grid);
        const formula::Area all{1, std::max(rows, 1), 1, static_cast<uint16_t>(std::max(cols, 1))};
        m_grid.sheet().cells().each(all, [&](int row, int col, const control::Cell&) {
            const control::Look& look = m_grid.look(col, row);
            if (look.type.kind == control::CellKind::picture)
                writePicture(col, row, look.type.text);
            if (look.type.kind == control::CellKind::pictureHandle &&
                look.type.picture == pictureMark)
                insertPicture(col, row, markBitmap());
        });
    }

    // Other programs show bitmaps of 24 bits a pixel for sure; a picture that cannot be read is
    // left out, as it is on the screen.
    void writePicture(int col, int row, const std::string& name) {
        std::string error;
        std::optional<std::string> file;
        const std::string* kept = m_grid.keptPicture(name);
        if (!kept) file = files::readWhole(name, error);
        if (!kept && !file) return;
        std::string bytes = kept ? *kept : std::move(*file);
        if (const auto bitmap = decodeBitmap(bytes, error)) bytes = encodeBitmap(*bitmap);
        insertPicture(col, row, bytes);
    }

    void insertPicture(int col, int row, const std::string& bytes) {
        lxw_image_options options{};
        options.object_position = LXW_OBJECT_MOVE_DONT_SIZE;
        const lxw_error result = worksheet_insert_image_buffer_opt(
            m_page, rowOf(row), colOf(col), reinterpret_cast<const unsigned char*>(bytes.data()),
            bytes.size(), &options);
        if (result != LXW_ERROR_IMAGE_DIMENSIONS)
            note(result, "the picture in " + cellName({col, row}));
    }

    void writeCell(int col, int row, const control::Cell& cell) {
        lxw_format* format = formatOf(m_grid.lookIndex(col, row));
        const auto text = m_grid.sheet().formula(col, row);
        note(text ? writeFormula(col, row, *text, cell.value(), format)
                  : writeValue(col, row, cell.value(), format),
             "cell " + cellName({col, row}));
    }

    lxw_error writeValue(int col, int row, const Value& value, lxw_format* format) {
        switch (value.type()) {
            case formula::ValueType::number:
                return worksheet_write_number(m_page, rowOf(row), colOf(col), value.number(),
                                              format);
            case formula::ValueType::boolean:
                return worksheet_write_boolean(m_page, rowOf(row), colOf(col), value.truth(),
                                               format);
            case formula::ValueType::text:
                return worksheet_write_string(m_page, rowOf(row), colOf(col),
                                              encodings::toUtf8(value.text()).c_str(), format);
            case formula::ValueType::error: {
                // A plain error value can only be written as the formula that gives it.
                const std::string error(formula::errorText(value.error()));
                return worksheet_write_formula_str(m_page, rowOf(row), colOf(col),
                                                   ("=" + error).c_str(), format, error.c_str());
            }
            default:
                return worksheet_write_blank(m_page, rowOf(row), colOf(col), format);
        }
    }

    lxw_error writeFormula(int col, int row, std::string_view text, const Value& result,
                           lxw_format* format) {
        std::string converted;
        if (m_grid.sheet().referenceStyle() == formula::ReferenceStyle::r1c1) {
            converted = formula::convertStyle(text, formula::ReferenceStyle::r1c1,
                                              formula::ReferenceStyle::a1, col, row)
                            .value_or(std::string(text));
            text = converted;
        }
        const std::string formula = fileFormula(text);
        const double number = result.isNumber() ? result.number() : 0;
        if (m_grid.sheet().isArrayFormula(col, row))
            return worksheet_write_array_formula_num(m_page, rowOf(row), colOf(col), rowOf(row),
                                                     colOf(col), formula.c_str(), format, number);
        if (result.isNumber())
            return worksheet_write_formula_num(m_page, rowOf(row), colOf(col), formula.c_str(),
                                               format, number);
        std::string shown;
        if (result.isText()) shown = encodings::toUtf8(result.text());
        if (result.isBoolean()) shown = result.truth() ? "TRUE" : "FALSE";
        if (result.isError()) shown = formula::errorText(result.error());
        return worksheet_write_formula_str(m_page, rowOf(row), colOf(col), formula.c_str(), format,
                                           shown.c_str());
    }

    const control::Grid& m_grid;
    lxw_workbook* m_book;
    lxw_worksheet* m_page = nullptr;
    std::unordered_map<control::LookIndex, lxw_format*> m_formats;
    std::string m_error;
};

/// A file in memory, which nothing can leave behind.
class MemoryFile {
  public:
    MemoryFile() : m_descriptor(::memfd_create("workbook", MFD_CLOEXEC)) {}
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() {
        if (m_descriptor >= 0) ::close(m_descriptor);
    }
    bool exists() const { return m_descriptor >= 0; }
    std::string path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

  private:
    int m_descriptor;
};

}  // namespace

std::optional<std::string> sheetAsXlsx(const control::Grid& sheet, std::string& error) {
    const MemoryFile file;
    const auto withHeader = withHeaderRow(sheet);
    const control::Grid& grid = withHeader ? *withHeader : sheet;
    if (!file.exists()) {
        error = "there is not enough memory for a workbook";
        return std::nullopt;
    }
    Workbook workbook(grid, file.path());
    workbook.setCreated();
    if (withHeader) workbook.keepFirstRowInSight();
    if (!workbook.write(error)) return std::nullopt;
    std::ifstream stream(file.path(), std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(stream), {});
    if (!bytes.empty()) return bytes;
    error = "the workbook was not written";
    return std::nullopt;
}

}  // namespace sheets

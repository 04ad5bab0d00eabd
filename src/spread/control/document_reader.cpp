#include "spread/control/document_reader.h"

#include <algorithm>

#include "platform/base64.h"
#include "spread/control/document_formats.h"
#include "spread/control/document_text.h"

namespace control {
namespace {

using formula::Value;

constexpr std::string_view firstWord = "vormant-sheet ";
constexpr int newestVersion = 1;
constexpr int widest = 10000;

std::string quoted(std::string_view text) {
    std::string shown = "\"";
    for (const char c : text.substr(0, 40)) shown += c >= ' ' && c < 0x7F ? c : '?';
    return shown + (text.size() > 40 ? "\x85\"" : "\"");  // Windows-1252, an ellipsis
}

// Splits at the first blank.
std::string_view takeWord(std::string_view& text) {
    const size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

std::optional<int> takeWhole(std::string_view& text, int least, int most) {
    const std::optional<int> number = readWhole(takeWord(text));
    if (!number || *number < least || *number > most) return std::nullopt;
    return number;
}

}  // namespace

const DocumentReader::LineKind DocumentReader::lineKinds[] = {
    {"size", &DocumentReader::readSize},
    {"option", &DocumentReader::readOption},
    {"look", &DocumentReader::readFormatLine},
    {"colwidth", &DocumentReader::readColWidth},
    {"rowheight", &DocumentReader::readRowHeight},
    {"hidecol", &DocumentReader::readHiddenCol},
    {"hiderow", &DocumentReader::readHiddenRow},
    {"collook", &DocumentReader::readColFormat},
    {"headerlook", &DocumentReader::readHeaderFormat},
    {"rowheaderlook", &DocumentReader::readRowHeaderFormat},
    {"header", &DocumentReader::readHeader},
    {"rowheader", &DocumentReader::readRowHeader},
    {"corner", &DocumentReader::readCorner},
    {"span", &DocumentReader::readSpan},
    {"tag", &DocumentReader::readTag},
    {"note", &DocumentReader::readNote},
    {"picture", &DocumentReader::readPicture},
};

std::shared_ptr<Document> DocumentReader::read() {
    m_document = std::make_shared<Document>();
    m_sides = &m_document->m_sides.change();
    if (!readFirstLine() || !hasNoZeroByte() || !readProperties() || !readCells() || !setFormulas())
        return nullptr;
    return std::move(m_document);
}

bool DocumentReader::fail(std::string_view what, std::string_view advice) {
    if (m_error.empty()) {
        m_error = std::string(m_name) + ':' + std::to_string(m_line) + ": ";
        m_error.append(what).append(": ").append(advice);
    }
    return false;
}

bool DocumentReader::takeLine(std::string_view& line) {
    if (m_text.empty()) return false;
    ++m_line;
    const size_t end = std::min(m_text.find('\n'), m_text.size());
    line = m_text.substr(0, end);
    m_text.remove_prefix(std::min(end + 1, m_text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return true;
}

bool DocumentReader::readFirstLine() {
    if (m_text.starts_with("\xEF\xBB\xBF")) m_text.remove_prefix(3);
    std::string_view line;
    if (!takeLine(line)) {
        m_line = 1;
        return fail("the file is empty", "choose a sheet document");
    }
    if (!line.starts_with(firstWord))
        return fail("this is no sheet document", "choose a file that was saved as one");
    const std::optional<int> version = readWhole(line.substr(firstWord.size()));
    if (version && *version > newestVersion)
        return fail("the document was written by a newer version of this program",
                    "open it with that version");
    if (version != newestVersion) return failHere("unknown version of the document");
    return true;
}

bool DocumentReader::hasNoZeroByte() {
    const size_t at = m_text.find('\0');
    if (at == std::string_view::npos) return true;
    m_line += static_cast<int>(std::count(m_text.begin(),
                                          m_text.begin() + static_cast<std::ptrdiff_t>(at), '\n')) +
              1;
    return fail("a zero byte", "the document is damaged; take a backup");
}

// --- properties ---------------------------------------------------------------------------------

bool DocumentReader::readProperties() {
    std::string_view line;
    while (takeLine(line)) {
        if (line == "cells") return m_hasSize || failHere("no line before gave the size");
        if (!readProperty(line)) return false;
    }
    return fail("the document ends before its cells", "it was cut off; take a backup");
}

bool DocumentReader::readProperty(std::string_view line) {
    const std::string_view word = takeWord(line);
    for (const LineKind& kind : lineKinds) {
        if (kind.word != word) continue;
        if (!m_hasSize && word != "size") return failHere("the size has to come first");
        return (this->*kind.read)(line) || failHere("bad " + std::string(word) + " line");
    }
    return failHere("unknown line " + quoted(word));
}

bool DocumentReader::readSize(std::string_view rest) {
    if (m_hasSize) return failHere("the size is given twice");
    const std::string_view cols = takeWord(rest);
    const std::optional<int> colCount = readWhole(cols), rowCount = readWhole(rest);
    if (!colCount || !rowCount || *colCount < 0 || *rowCount < 0 || *colCount > formula::maxCols ||
        *rowCount > formula::maxRows)
        return failHere("the size is none, or more than 16384 columns and 1048576 rows");
    m_document->m_cols = *colCount;
    m_document->m_rows = *rowCount;
    m_hasSize = true;
    return true;
}

bool DocumentReader::readOption(std::string_view rest) {
    const std::string_view name = takeWord(rest);
    const std::optional<double> value = readNumber(rest);
    if (!value || *value < 0 || *value > 0xFFFFFFFFU) return false;
    const auto number = static_cast<uint32_t>(*value);
    const bool isSmall = number <= 100;
    if (name == "refstyle" && number <= 2) {
        m_sides->referenceStyle = static_cast<int>(number);
        m_document->m_sheet->setReferenceStyle(number == 2 ? formula::ReferenceStyle::r1c1
                                                           : formula::ReferenceStyle::a1);
    } else if (name == "columnheaders" && number <= 1) {
        m_sides->columnHeaders = number == 1;
    } else if (name == "rowheaders" && number <= 1) {
        m_sides->rowHeaders = number == 1;
    } else if (name == "gridtype" && isSmall) {
        m_sides->gridType = static_cast<int>(number);
    } else if (name == "gridcolour") {
        m_sides->gridColour = number;
    } else if (name == "greyarea") {
        m_sides->greyArea = number;
    } else if (name == "lockedcolour") {
        m_sides->lockedColour = number;
    } else if (name == "selectionbackground") {
        m_sides->selectionBackground = number;
    } else if (name == "selectiontext") {
        m_sides->selectionText = number;
    } else {
        return failHere("unknown option " + quoted(name) + " or value " + quoted(rest));
    }
    return true;
}

bool DocumentReader::readFormatLine(std::string_view rest) {
    const std::optional<int> number = takeWhole(rest, 1, 65535);
    if (!number) return false;
    std::string why;
    const std::optional<CellFormat> format = readFormat(rest, why);
    if (!format) return failHere(why);
    const auto index = static_cast<size_t>(*number);
    if (index >= m_formats.size()) m_formats.resize(index + 1, inheritedFormat);
    if (m_formats[index] != inheritedFormat) return failHere("this look is given twice");
    m_formats[index] = m_document->m_formats.intern(*format);
    return true;
}

bool DocumentReader::readPicture(std::string_view rest) {
    const std::string_view name = takeWord(rest);
    if (!isPictureName(name)) return false;
    std::optional<std::string> bytes = fromBase64(rest);
    if (!bytes) return failHere("the bytes of the picture are no base64");
    EmbeddedImage picture{std::make_shared<const std::string>(std::move(*bytes))};
    const bool isNew = m_sides->pictures.emplace(name, std::move(picture)).second;
    return isNew || failHere("this picture is given twice");
}

std::optional<int> DocumentReader::takeCol(std::string_view& rest) {
    const int col = takeColumn(rest);
    if (col < 1 || col > m_document->cols()) return std::nullopt;
    if (!rest.empty() && rest[0] != ' ') return std::nullopt;
    rest.remove_prefix(std::min(size_t{1}, rest.size()));
    return col;
}

std::optional<int> DocumentReader::takeRow(std::string_view& rest) {
    return takeWhole(rest, 1, m_document->rows());
}

bool DocumentReader::takeFormat(std::string_view& rest, FormatIndex& format) {
    if (!rest.starts_with('@')) return false;
    const std::optional<int> number = readWhole(takeWord(rest).substr(1));
    const auto index = static_cast<size_t>(number.value_or(0));
    if (!number || *number < 1 || index >= m_formats.size() || m_formats[index] == inheritedFormat)
        return failHere("a look that no line before gave");
    format = m_formats[index];
    return true;
}

bool DocumentReader::takeText(std::string_view rest, std::string& text) {
    if (!rest.starts_with('"')) return false;
    std::string why;
    const auto plain = unescaped(rest.substr(1), m_buffer, why);
    if (!plain) return fail(why, "replace the character");
    text = *plain;
    return true;
}

bool DocumentReader::takeCell(std::string_view& rest, CellAddress& cell) {
    const std::optional<CellAddress> address = takeAddress(rest);
    if (!address || !rest.starts_with(' ')) return false;
    rest.remove_prefix(1);
    cell = *address;
    return (cell.col <= m_document->cols() && cell.row <= m_document->rows()) ||
           failHere("the cell lies outside the sheet");
}

bool DocumentReader::readSizeOf(std::string_view rest, bool isCol) {
    Band& band = isCol ? m_sides->cols : m_sides->rows;
    Band& across = isCol ? m_sides->rows : m_sides->cols;
    int* size = nullptr;
    if (rest.starts_with("all ")) {
        size = &band.defaultSize;
        takeWord(rest);
    } else if (rest.starts_with("header ")) {
        size = &across.headerSize;
        takeWord(rest);
    } else if (const auto index = isCol ? takeCol(rest) : takeRow(rest)) {
        size = &band.sizes[*index];
    }
    const std::optional<int> pixels = readWhole(rest);
    if (!size || !pixels || *pixels < 0 || *pixels > widest) return false;
    *size = *pixels;
    return true;
}

bool DocumentReader::readColWidth(std::string_view rest) {
    return readSizeOf(rest, true);
}
bool DocumentReader::readRowHeight(std::string_view rest) {
    return readSizeOf(rest, false);
}

bool DocumentReader::readHiddenCol(std::string_view rest) {
    const std::optional<int> col = takeCol(rest);
    return col && rest.empty() && m_sides->cols.hidden.insert(*col).second;
}

bool DocumentReader::readHiddenRow(std::string_view rest) {
    const std::optional<int> row = takeRow(rest);
    return row && rest.empty() && m_sides->rows.hidden.insert(*row).second;
}

bool DocumentReader::readColFormat(std::string_view rest) {
    const std::optional<int> col = takeCol(rest);
    FormatIndex format = inheritedFormat;
    if (!col || !takeFormat(rest, format) || !rest.empty()) return false;
    const auto index = static_cast<size_t>(*col);
    if (index >= m_sides->columnFormats.size())
        m_sides->columnFormats.resize(index + 1, inheritedFormat);
    m_sides->columnFormats[index] = format;
    return true;
}

bool DocumentReader::readBandFormat(std::string_view rest, Band& band, bool isCol) {
    FormatIndex format = inheritedFormat;
    FormatIndex* place = &band.format;
    if (rest.starts_with("all "))
        takeWord(rest);
    else if (const auto index = isCol ? takeCol(rest) : takeRow(rest))
        place = &band.formats[*index];
    else
        return false;
    if (!takeFormat(rest, format) || !rest.empty()) return false;
    *place = format;
    return true;
}

bool DocumentReader::readHeaderFormat(std::string_view rest) {
    return readBandFormat(rest, m_sides->cols, true);
}

bool DocumentReader::readRowHeaderFormat(std::string_view rest) {
    return readBandFormat(rest, m_sides->rows, false);
}

bool DocumentReader::readHeader(std::string_view rest) {
    const std::optional<int> col = takeCol(rest);
    return col && takeText(rest, m_sides->cols.texts[*col]);
}

bool DocumentReader::readRowHeader(std::string_view rest) {
    const std::optional<int> row = takeRow(rest);
    return row && takeText(rest, m_sides->rows.texts[*row]);
}

bool DocumentReader::readCorner(std::string_view rest) {
    return takeText(rest, m_sides->cornerText);
}

bool DocumentReader::readSpan(std::string_view rest) {
    CellAddress anchor;
    if (!takeCell(rest, anchor)) return false;
    Span span{anchor.col, anchor.row, 1, 1};
    const int mostCols = anchor.col == 0 ? 1 : m_document->cols() - anchor.col + 1;
    const int mostRows = anchor.row == 0 ? 1 : m_document->rows() - anchor.row + 1;
    const std::optional<int> cols = takeWhole(rest, 1, mostCols);
    const std::optional<int> rows = takeWhole(rest, 1, mostRows);
    if (!cols || !rows || !rest.empty()) return false;
    span.cols = *cols;
    span.rows = *rows;
    m_sides->spans.add(span);
    return true;
}

bool DocumentReader::readTag(std::string_view rest) {
    CellAddress cell;
    return takeCell(rest, cell) && takeText(rest, m_sides->tags[cellKey(cell.col, cell.row)]);
}

bool DocumentReader::readNote(std::string_view rest) {
    CellAddress cell;
    return takeCell(rest, cell) && takeText(rest, m_sides->notes[cellKey(cell.col, cell.row)]);
}

// --- cells --------------------------------------------------------------------------------------

bool DocumentReader::readCells() {
    m_blocks.assign(static_cast<size_t>(m_document->cols()) + 1, 0);
    std::string_view line;
    while (takeLine(line)) {
        if (line.starts_with("end ")) return readEnd(line.substr(4));
        if (!readCell(line)) return failHere("bad cell line " + quoted(line));
    }
    return fail("the document ends without its last line", "it was cut off; take a backup");
}

bool DocumentReader::readEnd(std::string_view count) {
    if (readWhole(count) != m_cellCount)
        return fail("the last line counts " + std::string(count.substr(0, 20)) + " cells, but " +
                        std::to_string(m_cellCount) + " stand here",
                    "lines were lost; take a backup");
    if (m_text.find_first_not_of("\r\n") == std::string_view::npos) return true;
    ++m_line;
    return fail("text after the last line", "remove it");
}

bool DocumentReader::readCell(std::string_view line) {
    const std::optional<CellAddress> at = takeAddress(line);
    if (!at || !line.starts_with(' ')) return false;
    line.remove_prefix(1);
    if (!claimCell(at->col, at->row)) return false;
    ++m_cellCount;
    FormatIndex format = inheritedFormat;
    if (line.starts_with('@') && !takeFormat(line, format)) return false;
    if (format == inheritedFormat && line.empty()) return false;
    if (!line.empty() && !readContent(line, at->col, at->row)) return false;
    if (format != inheritedFormat) m_document->m_sheet->setFormat(at->col, at->row, format);
    return true;
}

// Sees to it that the cell lies in the sheet, comes once, and that memory stays in bounds: a short
// line can reach for a whole block of cells.
bool DocumentReader::claimCell(int col, int row) {
    if (col < 1 || row < 1 || col > m_document->cols() || row > m_document->rows())
        return failHere("the cell lies outside the sheet");
    const Cell* cell = m_document->m_sheet->find(col, row);
    if (!cell) {
        int& blocks = m_blocks[static_cast<size_t>(col)];
        const int reached = ((row - 1) >> CellStore::blockShift) + 1;
        m_bytes += sizeof(CellStore::Block);
        if (reached > blocks) {
            m_bytes += static_cast<size_t>(reached - blocks) * sizeof(void*);
            blocks = reached;
        }
        if (m_bytes > mostCellBytes)
            return fail("the cells need more memory than a sheet may take", "split the sheet");
    }
    const int64_t key = cellKey(col, row);
    if (key > m_greatest) {
        m_greatest = key;
        return true;
    }
    return !cell || cell->isBlank() || failHere("the cell is given twice");
}

std::optional<Value> DocumentReader::readValue(std::string_view text) {
    if (text.starts_with('"')) {
        std::string why;
        const auto plain = unescaped(text.substr(1), m_buffer, why);
        if (!plain) {
            fail(why, "replace the character");
            return std::nullopt;
        }
        return Value::borrowedText(*plain);
    }
    if (const auto number = readNumber(text)) return Value(*number);
    if (text == "TRUE" || text == "FALSE") return Value::boolean(text == "TRUE");
    if (const auto error = formula::errorFromText(text)) return Value(*error);
    return std::nullopt;
}

bool DocumentReader::readContent(std::string_view content, int col, int row) {
    if (content.starts_with('=')) {
        m_formulas.push_back({col, row, m_line, content.substr(1)});
        m_document->m_sheet->setValue(col, row, Value(ErrorCode::null));  // the cell is taken
        return true;
    }
    const std::optional<Value> value = readValue(content);
    if (!value) return false;
    m_document->m_sheet->setValue(col, row, *value);
    return true;
}

bool DocumentReader::setFormulas() {
    for (const Formula& formula : m_formulas) {
        m_line = formula.line;
        if (!readFormula(formula.content, formula.col, formula.row))
            return failHere("bad formula line");
    }
    return true;
}

bool DocumentReader::readFormula(std::string_view content, int col, int row) {
    const size_t tab = std::min(content.find('\t'), content.size());
    std::string_view text = content.substr(0, tab);
    const bool isArray = text.starts_with("{=") && text.ends_with('}');
    if (isArray) text = text.substr(2, text.size() - 3);
    if (text.empty()) return false;
    std::string buffer, why;
    const auto plain = unescaped(text, buffer, why);
    if (!plain) return fail(why, "replace the character");
    std::optional<Value> cached = Value();
    if (tab < content.size()) cached = readValue(content.substr(tab + 1));
    if (!cached) return false;
    m_document->m_sheet->loadFormula(col, row, *plain, *cached, isArray);
    return true;
}

std::shared_ptr<Document> readDocument(std::string_view text, std::string_view name,
                                       std::string& error) {
    DocumentReader reader(text, name);
    std::shared_ptr<Document> document = reader.read();
    error = reader.error();
    return document;
}

}  // namespace control

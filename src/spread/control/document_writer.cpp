// From a grid to its document's text.
#include <array>
#include <set>
#include <vector>

#include "platform/base64.h"
#include "platform/files.h"
#include "spread/control/document.h"
#include "spread/control/document_formats.h"
#include "spread/control/document_text.h"
#include "spread/control/grid.h"

namespace control {
namespace {

class DocumentWriter {
  public:
    explicit DocumentWriter(const Grid& grid)
        : m_grid(grid), m_sides(grid.sides()), m_numbers(grid.formats().size(), 0) {}

    std::string write() {
        m_out << "vormant-sheet 1\nsize " << m_grid.cols() << ' ' << m_grid.rows() << '\n';
        writeOptions();
        writeFormats();
        writePictures();
        writeBand(m_sides.cols, "col", "header");
        writeBand(m_sides.rows, "row", "rowheader");
        writeSpansAndTexts();
        m_out << "cells\n";
        eachCell([this](int col, int row, const Cell& cell) { writeCell(col, row, cell); });
        m_out << "end " << m_cellCount << '\n';
        return m_out.take();
    }

  private:
    // Calls visit(col, row, cell) row by row. The store lies by columns, so that a stripe of rows
    // is sorted into its rows first; costs what is stored, not what the sheet spans.
    template <class Visit>
    void eachCell(Visit&& visit) {
        const CellStore& cells = m_grid.sheet().cells();
        const int lastRow = m_usedCols.empty() ? 0 : cells.lastRow();
        std::array<std::vector<std::pair<int, const Cell*>>, CellStore::blockRows> stripe;
        for (int first = 1; first <= lastRow; first += CellStore::blockRows) {
            const int last = std::min(first + CellStore::blockRows - 1, lastRow);
            for (const uint16_t used : m_usedCols)
                cells.each(Area{first, last, used, used}, [&](int row, int col, const Cell& cell) {
                    stripe[static_cast<size_t>(row - first)].emplace_back(col, &cell);
                });
            for (int row = first; row <= last; ++row) {
                auto& line = stripe[static_cast<size_t>(row - first)];
                for (const auto& [col, cell] : line) visit(col, row, *cell);
                line.clear();
            }
        }
    }

    void writeOption(std::string_view name, int value) {
        m_out << "option " << name << ' ' << value << '\n';
    }
    void writeColour(std::string_view name, Colour colour) {
        if (colour == automatic) return;
        m_out << "option " << name << ' ' << static_cast<double>(colour) << '\n';
    }

    void writeOptions() {
        if (m_sides.referenceStyle != 0) writeOption("refstyle", m_sides.referenceStyle);
        if (!m_sides.columnHeaders) writeOption("columnheaders", 0);
        if (!m_sides.rowHeaders) writeOption("rowheaders", 0);
        if (m_sides.gridType != 0) writeOption("gridtype", m_sides.gridType);
        writeColour("gridcolour", m_sides.gridColour);
        writeColour("greyarea", m_sides.greyArea);
        writeColour("lockedcolour", m_sides.lockedColour);
        writeColour("selectionbackground", m_sides.selectionBackground);
        writeColour("selectiontext", m_sides.selectionText);
    }

    // Also notes which columns hold anything.
    void writeFormats() {
        const auto use = [this](FormatIndex format) { m_numbers[format] = 1; };
        use(m_sides.cols.format);
        use(m_sides.rows.format);
        for (const auto& [index, format] : m_sides.cols.formats) use(format);
        for (const auto& [index, format] : m_sides.rows.formats) use(format);
        for (const FormatIndex format : m_sides.columnFormats) use(format);
        m_grid.sheet().cells().each(Area{1, formula::maxRows, 1, formula::maxCols},
                                    [&](int, int col, const Cell& cell) {
                                        use(cell.format);
                                        if (m_usedCols.empty() || m_usedCols.back() != col)
                                            m_usedCols.push_back(static_cast<uint16_t>(col));
                                    });
        m_numbers[inheritedFormat] = 0;
        int number = 0;
        for (size_t format = 0; format < m_numbers.size(); ++format) {
            if (m_numbers[format] == 0) continue;
            m_numbers[format] = ++number;
            m_out << "look " << number << ' ';
            writeFormat(m_out, m_grid.formats()[static_cast<FormatIndex>(format)]);
            m_out << '\n';
        }
    }

    // Those that a cell shows.
    void writePictures() {
        if (m_sides.pictures.empty()) return;
        std::set<std::string_view> used;
        for (size_t format = 0; format < m_numbers.size(); ++format) {
            const CellType& type = m_grid.formats()[static_cast<FormatIndex>(format)].type;
            if (m_numbers[format] != 0 && type.kind == CellKind::picture) used.insert(type.text);
        }
        for (const auto& [name, picture] : m_sides.pictures)
            if (used.contains(name))
                m_out << "picture " << name << ' ' << toBase64(*picture.bytes) << '\n';
    }

    void writeName(bool isCol, int index) {
        if (isCol)
            m_out.column(index);
        else
            m_out << index;
    }

    void writeBand(const Band& band, std::string_view what, std::string_view header) {
        const bool isCol = what == "col";
        const std::string_view size = isCol ? "colwidth " : "rowheight ";
        const SideTables standard;
        const Band& usual = isCol ? standard.cols : standard.rows;
        if (band.defaultSize != usual.defaultSize)
            m_out << size << "all " << band.defaultSize << '\n';
        // The size across: the header column's width lies with the rows' band.
        if (band.headerSize != usual.headerSize)
            m_out << (isCol ? "rowheight " : "colwidth ") << "header " << band.headerSize << '\n';
        for (const auto& [index, pixels] : band.sizes) {
            m_out << size;
            writeName(isCol, index);
            m_out << ' ' << pixels << '\n';
        }
        for (const int index : band.hidden) {
            m_out << "hide" << what << ' ';
            writeName(isCol, index);
            m_out << '\n';
        }
        if (band.format != inheritedFormat)
            m_out << header << "look all @" << m_numbers[band.format] << '\n';
        for (const auto& [index, format] : band.formats) {
            m_out << header << "look ";
            writeName(isCol, index);
            m_out << " @" << m_numbers[format] << '\n';
        }
        for (const auto& [index, text] : band.texts) {
            m_out << header << ' ';
            writeName(isCol, index);
            m_out << " \"";
            m_out.escaped(text);
            m_out << '\n';
        }
    }

    void writeTexts(std::string_view what, const CellTexts& texts) {
        for (const auto& [key, text] : texts) {
            m_out << what << ' ';
            m_out.address(keyCol(key), keyRow(key));
            m_out << " \"";
            m_out.escaped(text);
            m_out << '\n';
        }
    }

    void writeSpansAndTexts() {
        for (size_t col = 1; col < m_sides.columnFormats.size(); ++col) {
            if (m_sides.columnFormats[col] == inheritedFormat) continue;
            m_out << "collook ";
            m_out.column(static_cast<int>(col));
            m_out << " @" << m_numbers[m_sides.columnFormats[col]] << '\n';
        }
        if (!m_sides.cornerText.empty()) {
            m_out << "corner \"";
            m_out.escaped(m_sides.cornerText);
            m_out << '\n';
        }
        for (const Span& span : m_sides.spans.all()) {
            m_out << "span ";
            m_out.address(span.col, span.row);
            m_out << ' ' << span.cols << ' ' << span.rows << '\n';
        }
        writeTexts("tag", m_sides.tags);
        writeTexts("note", m_sides.notes);
    }

    void writeValue(const Cell& cell) {
        switch (cell.type) {
            case ValueType::number:
                m_out << cell.number;
                break;
            case ValueType::text:
                m_out << '"';
                m_out.escaped(cell.text->view());
                break;
            case ValueType::boolean:
                m_out << (cell.truth ? "TRUE" : "FALSE");
                break;
            case ValueType::error:
                m_out << formula::errorText(cell.error);
                break;
            default:
                break;
        }
    }

    void writeCell(int col, int row, const Cell& cell) {
        ++m_cellCount;
        m_out.address(col, row);
        if (cell.format != inheritedFormat) m_out << " @" << m_numbers[cell.format];
        if (cell.formula != 0) {
            const bool isArray = m_grid.sheet().isArrayFormula(col, row);
            m_out << (isArray ? " ={=" : " =");
            m_out.escaped(m_grid.sheet().formula(col, row).value_or(""));
            if (isArray) m_out << '}';
            // A result that is older than what it was made from is left for the next calculation.
            if (cell.type != ValueType::empty && !cell.dirty) {
                m_out << '\t';
                writeValue(cell);
            }
        } else if (cell.type != ValueType::empty) {
            m_out << ' ';
            writeValue(cell);
        }
        m_out << '\n';
    }

    const Grid& m_grid;
    const SideTables& m_sides;
    DocumentOutput m_out;
    std::vector<int> m_numbers;  // by format: its number in the document
    std::vector<uint16_t> m_usedCols;
    int m_cellCount = 0;
};

}  // namespace

std::string writeDocument(const Grid& grid) {
    grid.propagate();
    return DocumentWriter(grid).write();
}

namespace {

/// What the cells take in memory, as the reader counts.
size_t cellBytes(const Grid& grid) {
    size_t bytes = 0;
    int col = 0, blocks = 0;
    const Area everything{1, formula::maxRows, 1, formula::maxCols};
    grid.sheet().cells().eachRun(everything, [&](const CellStore::Run& run) {
        if (run.col != col) blocks = 0;
        col = run.col;
        const int reached = ((run.row - 1) >> CellStore::blockShift) + 1;
        bytes += sizeof(CellStore::Block) + static_cast<size_t>(reached - blocks) * sizeof(void*);
        blocks = reached;
    });
    return bytes;
}

}  // namespace

// A document that could not be read again is no use to anybody.
bool saveDocument(const Grid& grid, std::string_view path, std::string& error) {
    const auto refuse = [&](const std::string& what) {
        error = std::string(path) + ": " + what + ": split the sheet or shorten its texts";
        return false;
    };
    if (cellBytes(grid) > mostCellBytes)
        return refuse("the cells need more memory than a document that is read may take");
    const std::string text = writeDocument(grid);
    if (text.size() > files::usualSizeLimit)
        return refuse("the document would have " + std::to_string(text.size() >> 20) +
                      " MB, and at most " + std::to_string(files::usualSizeLimit >> 20) +
                      " MB are read");
    return files::writeWhole(path, text, error);
}

}  // namespace control

// From a document's text to a document. Lines are read straight from the text; what a line means
// is found in a table, one function a kind of line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "spread/control/document.h"

namespace control {

class DocumentReader {
  public:
    DocumentReader(std::string_view text, std::string_view name) : m_text(text), m_name(name) {}

    /// Null with error() when the text is no whole and sound document.
    std::shared_ptr<Document> read();
    const std::string& error() const { return m_error; }

  private:
    using ReadLine = bool (DocumentReader::*)(std::string_view rest);
    struct LineKind {
        std::string_view word;
        ReadLine read;
    };
    static const LineKind lineKinds[];

    bool fail(std::string_view what, std::string_view advice);
    bool failHere(std::string_view what) { return fail(what, "correct this line"); }
    bool takeLine(std::string_view& line);

    bool readFirstLine();
    bool hasNoZeroByte();
    bool readProperties();
    bool readProperty(std::string_view line);
    bool readSize(std::string_view rest);
    bool readOption(std::string_view rest);
    bool readFormatLine(std::string_view rest);
    bool readColWidth(std::string_view rest);
    bool readRowHeight(std::string_view rest);
    bool readHiddenCol(std::string_view rest);
    bool readHiddenRow(std::string_view rest);
    bool readColFormat(std::string_view rest);
    bool readHeaderFormat(std::string_view rest);
    bool readRowHeaderFormat(std::string_view rest);
    bool readHeader(std::string_view rest);
    bool readRowHeader(std::string_view rest);
    bool readCorner(std::string_view rest);
    bool readSpan(std::string_view rest);
    bool readTag(std::string_view rest);
    bool readNote(std::string_view rest);
    bool readPicture(std::string_view rest);

    bool readCells();
    bool readCell(std::string_view line);
    bool claimCell(int col, int row);
    bool readContent(std::string_view content, int col, int row);
    bool readFormula(std::string_view content, int col, int row);
    bool setFormulas();
    bool readEnd(std::string_view line);

    // Parts of lines. Each takes its piece from the start of `rest`.
    std::optional<int> takeCol(std::string_view& rest);
    std::optional<int> takeRow(std::string_view& rest);
    bool takeFormat(std::string_view& rest, FormatIndex& format);
    bool takeText(std::string_view rest, std::string& text);
    bool takeCell(std::string_view& rest, CellAddress& cell);
    bool readSizeOf(std::string_view rest, bool isCol);
    bool readBandFormat(std::string_view rest, Band& band, bool isCol);
    std::optional<formula::Value> readValue(std::string_view text);

    std::string_view m_text;
    std::string_view m_name;
    std::string m_error;
    int m_line = 0;

    std::shared_ptr<Document> m_document;
    SideTables* m_sides = nullptr;
    bool m_hasSize = false;
    std::vector<FormatIndex> m_formats;  // by number in the document; 0 where there is none

    struct Formula {
        int col, row, line;
        std::string_view content;
    };
    std::vector<Formula> m_formulas;  // set last: they would have to follow every later cell
    std::vector<int> m_blocks;        // by column: how many blocks of rows were reached
    size_t m_bytes = 0;               // that the cells' blocks take
    int64_t m_greatest = 0;           // key of the greatest cell so far
    int m_cellCount = 0;
    std::string m_buffer;
};

}  // namespace control

// A workbook is made in memory from its first byte to its last, so that it is whole or not there:
// no temporary file can be cut off, and memory that runs out ends in std::bad_alloc like everywhere
// else. The same sheet gives the same bytes in every locale and at every time.
#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_map>

#include "drawing/canvas.h"
#include "exchange/file_formula.h"
#include "exchange/sheet_writing.h"
#include "exchange/workbook_drawings.h"
#include "exchange/workbook_styles.h"
#include "exchange/xml_text.h"
#include "exchange/zip_archive.h"
#include "platform/encodings.h"
#include "platform/files.h"
#include "platform/window/bitmap.h"

namespace exchange {

namespace {

using formula::Value;

constexpr const char* mainNamespace = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
const std::string relationsOf =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

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

/// Texts that cells refer to by number, from 0.
class SharedTexts {
  public:
    int numberOf(std::string_view text) {
        ++m_uses;
        const auto [found, isNew] =
            m_numbers.try_emplace(std::string(text), static_cast<int>(m_numbers.size()));
        if (isNew) {
            m_items += "<si>" + xmlTextElement(text) + "</si>";
        }
        return found->second;
    }
    std::string xml() const {
        return xmlPart(std::string("<sst xmlns=\"") + mainNamespace + "\" count=\"" +
                       std::to_string(m_uses) + "\" uniqueCount=\"" +
                       std::to_string(m_numbers.size()) + "\">" + m_items + "</sst>");
    }

  private:
    std::unordered_map<std::string, int> m_numbers;
    std::string m_items;
    long long m_uses = 0;
};

/// One workbook being made from a grid.
class Workbook {
  public:
    Workbook(const control::Grid& grid, bool hasHeaderRow)
        : m_grid(grid), m_hasHeaderRow(hasHeaderRow), m_used(usedArea(grid)) {}

    std::optional<std::string> bytes(std::string& error) {
        collectCells();
        if (m_error.empty()) writeRows();
        if (m_error.empty()) writeOverCells();
        if (m_error.empty()) {
            ZipArchive archive;
            addParts(archive);
            if (archive.fits()) return std::move(archive).finish();
            m_error = "there is more in the sheet than a workbook can hold";
        }
        error = m_error;
        return std::nullopt;
    }

  private:
    struct Place {
        int row = 0;
        int col = 0;
        const control::Cell* cell = nullptr;  ///< null for one that only has a format
    };

    void fail(const std::string& where, const char* what) {
        if (m_error.empty()) m_error = where + ": " + what;
    }

    /// All that the rows hold, row by row. Those inside spans have the anchor's format, which draws
    /// its border.
    void collectCells() {
        const formula::Area all{1, std::max(m_used.rows, 1), 1,
                                static_cast<uint16_t>(std::max(m_used.cols, 1))};
        m_grid.sheet().cells().each(all, [&](int row, int col, const control::Cell& cell) {
            m_places.push_back({row, col, &cell});
        });
        constexpr long long mostSpanCells = 2'000'000;
        long long cells = 0;
        for (const auto& span : m_grid.sides().spans.all()) {
            if (span.col < 1 || span.row < 1 || (span.cols < 2 && span.rows < 2)) continue;
            cells += static_cast<long long>(span.cols) * span.rows;
            if (cells > mostSpanCells) {
                m_error = "the spans hold too many cells for a workbook";
                return;
            }
            const int lastRow = span.row + span.rows - 1, lastCol = span.col + span.cols - 1;
            m_spans += "<mergeCell ref=\"" + cellName({span.col, span.row}) + ":" +
                       cellName({lastCol, lastRow}) + "\"/>";
            ++m_spanCount;
            for (int row = span.row; row <= lastRow; ++row)
                for (int col = span.col; col <= lastCol; ++col)
                    m_places.push_back({row, col, nullptr});
        }
        const auto isBefore = [](const Place& a, const Place& b) {
            return a.row != b.row ? a.row < b.row : a.col < b.col;
        };
        std::stable_sort(m_places.begin(), m_places.end(), isBefore);
    }

    int formatOf(control::FormatIndex index, bool isFormula = false) {
        const auto [found, isNew] = m_formats.try_emplace({index, isFormula});
        if (isNew) found->second = m_styles.numberOf(m_grid.formats()[index], isFormula);
        return found->second;
    }

    static std::string widthXml(int pixels) {
        constexpr double pixelsOfDigit = 7, mostDigits = 255;
        const double digits = std::min(pixels / pixelsOfDigit, mostDigits);
        return xmlNumber(std::max(std::floor(digits * 256) / 256, 0.0));
    }
    static std::string heightXml(int pixels) {
        constexpr double pointsOfPixel = 0.75, mostPoints = 409.5;
        return xmlNumber(std::min(pixels * pointsOfPixel, mostPoints));
    }
    /// Width and height of those that have none of their own, where they are not the usual ones.
    std::string sizesXml() const {
        constexpr int usualWidth = 64, usualHeight = 20;
        const int width = m_grid.sides().cols.defaultSize, height = m_grid.sides().rows.defaultSize;
        std::string xml = "<sheetFormatPr";
        if (width != usualWidth) xml += " defaultColWidth=\"" + widthXml(width) + "\"";
        xml += " defaultRowHeight=\"" + heightXml(height) + "\"";
        return xml + (height != usualHeight ? " customHeight=\"1\"/>" : "/>");
    }

    std::string columnsXml() {
        const control::SideTables& sides = m_grid.sides();
        const int cols = std::max(m_used.cols, lastOf(sides.cols));
        std::string xml;
        for (int col = 1; col <= cols; ++col) {
            const bool isHidden = sides.cols.hidden.contains(col);
            const auto size = sides.cols.sizes.find(col);
            const bool isSized = size != sides.cols.sizes.end();
            const auto cellFormat = sides.columnFormat(col);
            if (!isSized && !isHidden && cellFormat == control::inheritedFormat) continue;
            // A hidden one has its width too, for when it is shown again.
            const int pixels = isSized ? size->second : sides.cols.defaultSize;
            const std::string number = std::to_string(col);
            xml += "<col min=\"" + number + "\" max=\"" + number + "\" width=\"" +
                   widthXml(pixels) + "\"";
            if (cellFormat != control::inheritedFormat)
                xml += " style=\"" + std::to_string(formatOf(cellFormat)) + "\"";
            xml += isHidden ? " hidden=\"1\" customWidth=\"1\"/>" : " customWidth=\"1\"/>";
        }
        return xml.empty() ? xml : "<cols>" + xml + "</cols>";
    }
    static int lastOf(const control::Band& band) {
        const int sized = band.sizes.empty() ? 0 : band.sizes.rbegin()->first;
        return std::max(sized, band.hidden.empty() ? 0 : *band.hidden.rbegin());
    }

    void writeRows() {
        const control::Band& band = m_grid.sides().rows;
        auto sized = band.sizes.lower_bound(1);
        auto hidden = band.hidden.lower_bound(1);
        auto place = m_places.cbegin();
        constexpr int none = formula::maxRows + 1;
        while (true) {
            const int row = std::min({place == m_places.cend() ? none : place->row,
                                      sized == band.sizes.end() ? none : sized->first,
                                      hidden == band.hidden.end() ? none : *hidden});
            if (row == none) break;
            beginRow(row, sized != band.sizes.end() && sized->first == row ? sized->second : -1,
                     hidden != band.hidden.end() && *hidden == row);
            for (int lastCol = 0; place != m_places.cend() && place->row == row; ++place) {
                if (place->col != lastCol) writeCell(*place);
                lastCol = place->col;
            }
            m_rows += "</row>";
            if (sized != band.sizes.end() && sized->first == row) ++sized;
            if (hidden != band.hidden.end() && *hidden == row) ++hidden;
        }
    }
    /// `pixels` below 0 for the usual height.
    void beginRow(int row, int pixels, bool isHidden) {
        m_rows += "<row r=\"" + std::to_string(row) + "\"";
        if (pixels >= 0) {
            m_rows += " ht=\"" + heightXml(pixels) + "\" customHeight=\"1\"";
        }
        m_rows += isHidden || pixels == 0 ? " hidden=\"1\">" : ">";
    }

    void writeCell(const Place& place) {
        const std::string name = cellName({place.col, place.row});
        m_rows += "<c r=\"" + name + "\"";
        const auto formula =
            place.cell ? m_grid.sheet().formula(place.col, place.row) : std::nullopt;
        const int format = formatOf(m_grid.formatIndex(place.col, place.row), formula.has_value());
        if (format != 0) m_rows += " s=\"" + std::to_string(format) + "\"";
        if (!place.cell)
            m_rows += "/>";
        else if (formula)
            writeFormula(place, *formula, name);
        else
            writeValue(place.cell->value(), name);
    }

    void checkLength(std::string_view text, std::size_t most, const std::string& cell,
                     const char* what) {
        if (text.size() > most) fail("cell " + cell, what);
    }
    void checkText(std::string_view text, const std::string& cell) {
        checkLength(text, 32767, cell,
                    "its text is longer than 32767 characters, the most that a workbook holds");
    }

    void writeValue(const Value& value, const std::string& name) {
        if (!value.isText()) return writeResult(value, {});
        checkText(value.text(), name);
        m_rows += " t=\"s\"><v>" + std::to_string(m_texts.numberOf(value.text())) + "</v></c>";
    }

    void writeFormula(const Place& place, std::string_view text, const std::string& name) {
        std::string converted;
        if (m_grid.sheet().referenceStyle() == formula::ReferenceStyle::r1c1) {
            converted = formula::convertStyle(text, formula::ReferenceStyle::r1c1,
                                              formula::ReferenceStyle::a1, place.col, place.row)
                            .value_or(std::string(text));
            text = converted;
        }
        const std::string formula = fileFormula(text);
        checkLength(formula, 8192, name,
                    "its formula is longer than 8192 characters, the most that a workbook holds");
        std::string xml = "<f>";
        if (m_grid.sheet().isArrayFormula(place.col, place.row))
            xml = "<f t=\"array\" ref=\"" + name + "\">";
        appendXmlText(xml, formula);
        xml += "</f>";
        const Value result = place.cell->value();
        if (result.isText()) checkText(result.text(), name);
        writeResult(result, xml);
    }

    /// The rest of a cell: the type and the value, with `formula` in front of it.
    void writeResult(const Value& value, const std::string& formula) {
        if (value.isBoolean()) {
            m_rows += " t=\"b\">" + formula + (value.truth() ? "<v>1</v></c>" : "<v>0</v></c>");
        } else if (value.isNumber() && std::isfinite(value.number())) {
            m_rows += ">" + formula + "<v>";
            appendXmlNumber(m_rows, value.number());
            m_rows += "</v></c>";
        } else if (value.isNumber()) {
            writeResult(formula::ErrorCode::num, formula);
        } else if (value.isError()) {
            // A circle is an error that the file format does not know.
            m_rows += value.error() == formula::ErrorCode::circ ? " t=\"str\">" : " t=\"e\">";
            m_rows += formula + "<v>";
            appendXmlText(m_rows, formula::errorText(value.error()));
            m_rows += "</v></c>";
        } else if (value.isText()) {
            m_rows += " t=\"str\">" + formula + "<v>";
            appendXmlText(m_rows, value.text());
            m_rows += "</v></c>";
        } else {
            m_rows += formula.empty() ? "/>" : ">" + formula + "</c>";
        }
    }

    void writeOverCells() {
        for (const auto& [key, text] : m_grid.sides().notes) {
            const control::CellAddress cell{control::keyCol(key), control::keyRow(key)};
            if (cell.col < 1 || cell.row < 1) continue;
            checkText(text, cellName(cell));
            m_notes.add(cell, text);
        }
        for (const Place& place : m_places) {
            const control::CellFormat& cellFormat = m_grid.format(place.col, place.row);
            if (place.cell && cellFormat.type.kind == control::CellKind::picture)
                addPicture({place.col, place.row}, cellFormat.type.text);
            if (place.cell && cellFormat.type.kind == control::CellKind::pictureHandle &&
                cellFormat.type.picture == pictureMark)
                m_pictures.add({place.col, place.row}, markBitmap());
        }
    }

    // Other programs show bitmaps of 24 bits a pixel for sure; a picture that cannot be read is
    // left out, as it is on the screen.
    void addPicture(control::CellAddress cell, const std::string& name) {
        std::string ignored;
        std::optional<std::string> file;
        const std::string* kept = m_grid.embeddedImage(name);
        if (!kept) file = files::readWhole(name, ignored);
        if (!kept && !file) return;
        std::string bytes = kept ? *kept : std::move(*file);
        if (const auto bitmap = decodeBitmap(bytes, ignored)) bytes = encodeBitmap(*bitmap);
        m_pictures.add(cell, bytes);
    }

    std::string sheetXml() {
        const std::string columns = columnsXml();
        std::string xml = std::string("<worksheet xmlns=\"") + mainNamespace + "\" xmlns:r=\"" +
                          relationsOf + "\"><dimension ref=\"A1";
        if (m_used.cols > 1 || m_used.rows > 1)
            xml += ":" + cellName({std::max(m_used.cols, 1), std::max(m_used.rows, 1)});
        xml += "\"/><sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"";
        xml += m_hasHeaderRow ? "><pane ySplit=\"1\" topLeftCell=\"A2\" activePane=\"bottomLeft\" "
                                "state=\"frozen\"/><selection pane=\"bottomLeft\"/></sheetView>"
                              : "/>";
        xml += "</sheetViews>" + sizesXml() + columns + "<sheetData>" + m_rows + "</sheetData>";
        if (m_spanCount > 0)
            xml += "<mergeCells count=\"" + std::to_string(m_spanCount) + "\">" + m_spans +
                   "</mergeCells>";
        xml +=
            "<pageMargins left=\"0.7\" right=\"0.7\" top=\"0.75\" bottom=\"0.75\" "
            "header=\"0.3\" footer=\"0.3\"/>";
        if (!m_pictures.isEmpty()) xml += "<drawing r:id=\"rId1\"/>";
        if (!m_notes.isEmpty()) xml += "<legacyDrawing r:id=\"rId2\"/>";
        return xmlPart(xml + "</worksheet>");
    }

    static std::string relation(const char* id, const std::string& type, const char* target) {
        return std::string("<Relationship Id=\"") + id + "\" Type=\"" + relationsOf + "/" + type +
               "\" Target=\"" + target + "\"/>";
    }
    static std::string relations(const std::string& all) {
        return xmlPart(
            "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/"
            "relationships\">" +
            all + "</Relationships>");
    }

    std::string contentTypes() const {
        const std::string office = "application/vnd.openxmlformats-officedocument.";
        const auto part = [&](const char* name, const std::string& type) {
            return std::string("<Override PartName=\"/xl/") + name + "\" ContentType=\"" + office +
                   type + "+xml\"/>";
        };
        std::string xml =
            "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">";
        for (const auto& [extension, type] :
             std::initializer_list<std::pair<const char*, std::string>>{
                 {"rels", "application/vnd.openxmlformats-package.relationships+xml"},
                 {"xml", "application/xml"},
                 {"vml", office + "vmlDrawing"},
                 {"bmp", "image/bmp"},
                 {"png", "image/png"},
                 {"jpeg", "image/jpeg"},
                 {"gif", "image/gif"}})
            xml += std::string("<Default Extension=\"") + extension + "\" ContentType=\"" + type +
                   "\"/>";
        xml += part("workbook.xml", "spreadsheetml.sheet.main") +
               part("worksheets/sheet1.xml", "spreadsheetml.worksheet") +
               part("styles.xml", "spreadsheetml.styles") +
               part("sharedStrings.xml", "spreadsheetml.sharedStrings");
        if (!m_pictures.isEmpty()) xml += part("drawings/drawing1.xml", "drawing");
        if (!m_notes.isEmpty()) xml += part("comments1.xml", "spreadsheetml.comments");
        return xmlPart(xml + "</Types>");
    }

    std::string workbookXml() const {
        std::string xml = std::string("<workbook xmlns=\"") + mainNamespace + "\" xmlns:r=\"" +
                          relationsOf +
                          "\"><bookViews><workbookView/></bookViews><sheets><sheet name=\"Sheet1\" "
                          "sheetId=\"1\" r:id=\"rId1\"/></sheets>";
        if (m_hasHeaderRow)
            xml +=
                "<definedNames><definedName name=\"_xlnm.Print_Titles\" localSheetId=\"0\">"
                "Sheet1!$1:$1</definedName></definedNames>";
        return xmlPart(xml + "<calcPr calcId=\"124519\" fullCalcOnLoad=\"1\"/></workbook>");
    }

    void addParts(ZipArchive& archive) {
        const std::string sheet = sheetXml();
        archive.add("[Content_Types].xml", contentTypes());
        archive.add("_rels/.rels",
                    relations(relation("rId1", "officeDocument", "xl/workbook.xml")));
        archive.add("xl/workbook.xml", workbookXml());
        archive.add("xl/_rels/workbook.xml.rels",
                    relations(relation("rId1", "worksheet", "worksheets/sheet1.xml") +
                              relation("rId2", "styles", "styles.xml") +
                              relation("rId3", "sharedStrings", "sharedStrings.xml")));
        archive.add("xl/worksheets/sheet1.xml", sheet);
        archive.add("xl/styles.xml", m_styles.xml());
        archive.add("xl/sharedStrings.xml", m_texts.xml());
        std::string over;
        if (!m_pictures.isEmpty()) over += relation("rId1", "drawing", "../drawings/drawing1.xml");
        if (!m_notes.isEmpty())
            over += relation("rId2", "vmlDrawing", "../drawings/vmlDrawing1.vml") +
                    relation("rId3", "comments", "../comments1.xml");
        if (!over.empty()) archive.add("xl/worksheets/_rels/sheet1.xml.rels", relations(over));
        if (!m_pictures.isEmpty()) m_pictures.addTo(archive);
        if (!m_notes.isEmpty()) m_notes.addTo(archive);
    }

    const control::Grid& m_grid;
    bool m_hasHeaderRow;
    UsedArea m_used;
    std::vector<Place> m_places;
    std::string m_rows;
    std::string m_spans;
    int m_spanCount = 0;
    SharedTexts m_texts;
    WorkbookStyles m_styles;
    std::map<std::pair<control::FormatIndex, bool>, int> m_formats;
    WorkbookPictures m_pictures;
    WorkbookNotes m_notes;
    std::string m_error;
};

}  // namespace

std::optional<std::string> sheetAsXlsx(const control::Grid& sheet, std::string& error) {
    const auto withHeader = withHeaderRow(sheet);
    return Workbook(withHeader ? *withHeader : sheet, withHeader != nullptr).bytes(error);
}

}  // namespace exchange

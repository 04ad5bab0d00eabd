#include "spread/printing/print_job.h"

#include <algorithm>
#include <functional>

#include "core_api/library_names.h"
#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "platform/files.h"
#include "spread/control/formula/lexer.h"
#include "spread/control/text_overflow.h"

namespace printing {

using control::CellFormat;
using control::CellKind;
using control::Grid;
using control::headerIndex;
using control::Reading;
using control::Span;
using control::ValueType;

namespace {

/// Where the lines of a page begin, in pixels, with the end behind the last.
std::vector<int> starts(const std::vector<int>& lines, int first,
                        const std::function<int(int)>& sizeOf) {
    std::vector<int> all{first};
    for (const int line : lines) all.push_back(all.back() + sizeOf(line));
    return all;
}

// Puts the cells of some rows and columns onto paper.
class CellPlacer {
  public:
    CellPlacer(const Grid& grid, const Page& page, double left, double top, double pixel,
               int headWidth, int headHeight)
        : m_grid(grid),
          m_page(page),
          m_left(left),
          m_top(top),
          m_pixel(pixel),
          m_headWidth(headWidth),
          m_headHeight(headHeight),
          m_x(starts(page.cols, headWidth, [&](int col) { return grid.colWidth(col); })),
          m_y(starts(page.rows, headHeight, [&](int row) { return grid.rowHeight(row); })) {}

    void placeHeadings(std::vector<PrintedCell>& cells) const {
        if (m_headWidth > 0 && m_headHeight > 0)
            cells.push_back(heading(headerIndex, headerIndex, 0, 0, m_headWidth, m_headHeight));
        for (size_t i = 0; m_headHeight > 0 && i < m_page.cols.size(); ++i)
            cells.push_back(
                heading(m_page.cols[i], headerIndex, m_x[i], 0, m_x[i + 1], m_headHeight));
        for (size_t i = 0; m_headWidth > 0 && i < m_page.rows.size(); ++i)
            cells.push_back(
                heading(headerIndex, m_page.rows[i], 0, m_y[i], m_headWidth, m_y[i + 1]));
    }

    void placeCells(std::vector<PrintedCell>& cells) const {
        for (size_t r = 0; r < m_page.rows.size(); ++r)
            for (size_t c = 0; c < m_page.cols.size(); ++c) placeCell(c, r, cells);
    }

    Rect frame() const { return rect(0, 0, m_x.back(), m_y.back()); }

  private:
    Rect rect(int left, int top, int right, int bottom) const {
        return {m_left + left * m_pixel, m_top + top * m_pixel, (right - left) * m_pixel,
                (bottom - top) * m_pixel};
    }

    PrintedCell printed(const Rect& place, control::CellAddress cell, CellFormat format) const {
        PrintedCell made;
        made.place = made.room = place;
        made.text = m_grid.text(cell.col, cell.row, Reading::data);
        made.format = std::move(format);
        made.pixel = m_pixel;
        return made;
    }

    PrintedCell heading(int col, int row, int left, int top, int right, int bottom) const {
        PrintedCell cell =
            printed(rect(left, top, right, bottom), {col, row}, m_grid.format(col, row));
        cell.isHeading = true;
        if (!cell.text.empty()) return cell;
        if (row != headerIndex)
            cell.text = std::to_string(row);
        else if (col != headerIndex)
            cell.text = formula::columnLetters(col);
        return cell;
    }

    // What its value decides on a screen is decided here, as only texts are printed.
    CellFormat alignedFormat(int col, int row) const {
        CellFormat format = m_grid.format(col, row);
        if (format.alignment != 0) return format;
        switch (m_grid.sheet().value(col, row).type()) {
            case ValueType::number:
                format.alignment = 2;
                break;
            case ValueType::boolean:
            case ValueType::error:
                format.alignment = 3;
                break;
            default:
                break;
        }
        return format;
    }

    // A merged cell is placed once, at the first of its cells that the page shows.
    void placeCell(size_t c, size_t r, std::vector<PrintedCell>& cells) const {
        int col = m_page.cols[c], row = m_page.rows[r];
        size_t lastCol = c, lastRow = r;
        if (const Span* span = m_grid.spanAt(col, row)) {
            const bool isFirst = (c == 0 || !span->contains(m_page.cols[c - 1], row)) &&
                                 (r == 0 || !span->contains(col, m_page.rows[r - 1]));
            if (!isFirst) return;
            while (lastCol + 1 < m_page.cols.size() &&
                   span->contains(m_page.cols[lastCol + 1], row))
                ++lastCol;
            while (lastRow + 1 < m_page.rows.size() &&
                   span->contains(col, m_page.rows[lastRow + 1]))
                ++lastRow;
            col = span->col;
            row = span->row;
        }
        PrintedCell cell = printed(rect(m_x[c], m_y[r], m_x[lastCol + 1], m_y[lastRow + 1]),
                                   {col, row}, alignedFormat(col, row));
        cell.isNumber = m_grid.sheet().value(col, row).type() == ValueType::number;
        const int last = lastColumnForText(m_grid, {col, row});
        if (last > col) cell.room = roomUpTo(last, c, r);
        cells.push_back(std::move(cell));
        if (c == 0) placeRest({col, row}, r, cells);
    }

    // From column `c` of the page to the last of the page up to `lastCol` of the sheet.
    Rect roomUpTo(int lastCol, size_t c, size_t r) const {
        size_t last = c;
        while (last + 1 < m_page.cols.size() && m_page.cols[last + 1] <= lastCol) ++last;
        return rect(m_x[c], m_y[r], m_x[last + 1], m_y[r + 1]);
    }

    // A text of the page before that reaches over the edge goes on here.
    void placeRest(control::CellAddress first, size_t r, std::vector<PrintedCell>& cells) const {
        if (!isRoomForText(m_grid, first.col, first.row)) return;
        const auto from = overflowingInto(m_grid, first);
        if (!from) return;
        int before = 0;
        for (int col = from->col; col < first.col; ++col) before += m_grid.colWidth(col);
        const int left = m_x[0] - before;
        PrintedCell rest =
            printed(rect(left, m_y[r], left + m_grid.colWidth(from->col), m_y[r + 1]), *from,
                    alignedFormat(from->col, from->row));
        rest.room = roomUpTo(lastColumnForText(m_grid, *from), 0, r);
        rest.isRest = true;
        cells.push_back(std::move(rest));
    }

    const Grid& m_grid;
    const Page& m_page;
    double m_left, m_top, m_pixel;
    int m_headWidth, m_headHeight;
    std::vector<int> m_x, m_y;
};

}  // namespace

/// A page header or footer.
struct PrintJob::Band {
    Grid grid;
    Vor_String folder;
    Page page;
    int width = 0, height = 0;  // pixels
};

PrintJob::PrintJob(const Grid& grid, const TwSheetSettings& settings, Paper paper,
                   const Vor_String& home)
    : m_grid(grid),
      m_settings(settings),
      m_header(loadBand(settings.headerFile, home)),
      m_footer(loadBand(settings.footerFile, home)) {
    const auto height = [](const auto& band) {
        return band ? band->height * millimetresPerPixel : 0.0;
    };
    m_layout = layOutPages(grid, settings, paper, height(m_header), height(m_footer));
}

PrintJob::~PrintJob() = default;

/// A sheet keeps the reference it had when copies were put beside it: they serve where that leads
/// out of the library, as on the machine of somebody who was sent the sheet.
std::unique_ptr<PrintJob::Band> PrintJob::loadBand(const Vor_String& named,
                                                   const Vor_String& home) {
    if (named.isEmpty()) return nullptr;
    Vor_String file = named;
    if (const auto refusal = files::exists(file) ? outsideRefusal(file, home) : std::nullopt) {
        file = ensureEndBSlash(home) + getFileName(named);
        if (home.isEmpty() || !files::exists(file) || outsideRefusal(file, home)) {
            m_problems.push_back(refusal->str());
            return nullptr;
        }
    }
    auto band = std::make_unique<Band>();
    if (!band->grid.load(file)) {
        m_problems.push_back(band->grid.lastError());
        return nullptr;
    }
    band->folder = getPath(file);
    const Grid& grid = band->grid;
    for (int col = 1; col <= grid.cols(); ++col)
        if (const int width = grid.colWidth(col)) {
            band->page.cols.push_back(col);
            band->width += width;
        }
    for (int row = 1; row <= grid.rows(); ++row)
        if (const int height = grid.rowHeight(row)) {
            band->page.rows.push_back(row);
            band->height += height;
        }
    return band;
}

std::string PrintJob::withVariables(std::string_view text, int page) const {
    const auto valueOf = [&](std::string_view name) -> std::optional<std::string> {
        if (encodings::equalFolded(name, "Page")) return std::to_string(page + 1);
        if (encodings::equalFolded(name, "Pages")) return std::to_string(pageCount());
        const int index = m_settings.varNames.find(name);
        if (index < 0 || index >= m_settings.varValues.length()) return std::nullopt;
        return m_settings.varValues[index].str();
    };
    std::string replaced;
    for (size_t open; (open = text.find('{')) != std::string_view::npos;) {
        const size_t close = text.find('}', open);
        if (close == std::string_view::npos) break;
        const auto value = valueOf(text.substr(open + 1, close - open - 1));
        // Without a variable only the brace is passed: another one may begin behind it.
        replaced += text.substr(0, open);
        replaced += value ? *value : "{";
        text.remove_prefix(value ? close + 1 : open + 1);
    }
    return replaced += text;
}

std::vector<PrintedCell> PrintJob::bandCells(const Band& band, double top, int page) const {
    const double pixel =
        std::min(1.0, m_layout.body.width / std::max(band.width * millimetresPerPixel, 1.0)) *
        millimetresPerPixel;
    std::vector<PrintedCell> cells;
    CellPlacer(band.grid, band.page, m_layout.body.left, top, pixel, 0, 0).placeCells(cells);
    for (PrintedCell& cell : cells) {
        cell.text = withVariables(cell.text, page);
        finish(cell, band.grid);
        if (cell.embeddedImage) continue;
        // The picture may have been copied along with the file that shows it.
        const std::string beside = (band.folder + getFileName(cell.picture)).str();
        if (!cell.picture.empty() && !files::exists(cell.picture)) cell.picture = beside;
    }
    return cells;
}

void PrintJob::finish(PrintedCell& cell, const Grid& grid) const {
    if (cell.format.type.kind == CellKind::picture) {
        cell.picture = cell.format.type.text;
        cell.embeddedImage = grid.embeddedImage(cell.picture);
        cell.text.clear();
    }
    if (m_settings.colors) return;
    cell.format.textColour = cell.format.background = cell.format.borderColour = control::automatic;
}

PrintedPage PrintJob::page(int index) const {
    const Page& page = m_layout.pages[static_cast<size_t>(index)];
    PrintedPage printed;
    printed.cellSeparators = m_settings.cellSeperators;
    const CellPlacer placer(m_grid, page, m_layout.body.left, m_layout.body.top,
                            m_layout.millimetres(1),
                            m_settings.rowHeader ? m_grid.colWidth(headerIndex) : 0,
                            m_settings.colHeader ? m_grid.rowHeight(headerIndex) : 0);
    placer.placeHeadings(printed.body);
    placer.placeCells(printed.body);
    for (PrintedCell& cell : printed.body) finish(cell, m_grid);
    if (m_settings.border) printed.frame = placer.frame();
    if (m_header) printed.header = bandCells(*m_header, m_settings.marginTop, index);
    if (m_footer) printed.footer = bandCells(*m_footer, m_layout.body.bottom(), index);
    return printed;
}

}  // namespace printing

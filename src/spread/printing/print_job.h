// A sheet on paper: its pages with their headers and footers, as a list of cells that a painter
// draws one after another.
//
// Headers and footers are documents of the control, named by the sheet's settings. In their texts
// "{Name}" stands for a variable of the settings, "{Page}" and "{Pages}" for the number of the page
// and their count; other names stay as they are.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "spread/printing/page_layout.h"

namespace printing {

struct PrintedCell {
    Rect place;  ///< millimetres from the paper's top left
    Rect room;   ///< what its text may take: the place, and the empty cells that it reaches over
    std::string text;
    control::CellFormat format;          ///< without colours when the settings print none
    double pixel = millimetresPerPixel;  ///< millimetres that a pixel of the format's font takes
    bool isHeading = false;              ///< of a row or column of the sheet
    bool isNumber = false;
    /// Only the rest of the text, of a cell on the page before this one; perhaps it ends there.
    bool isRest = false;
    std::string picture;  ///< what a picture cell shows: a file's path or a name
    /// The bytes of the picture, borrowed from its sheet; null when it has to be read from its
    /// file.
    const std::string* embeddedImage = nullptr;
};

struct PrintedPage {
    std::vector<PrintedCell> header;
    std::vector<PrintedCell> body;
    std::vector<PrintedCell> footer;
    bool cellSeparators = true;  ///< thin lines between the cells of the body
    Rect frame;                  ///< round the cells of the body; empty for none
};

class VORMANT_API PrintJob {
  public:
    /// `grid` is borrowed for as long as pages are asked for. `home` is the folder of the sheet's
    /// own file, where its header and footer may lie as they may in the library
    /// (core_api/library_names); empty for none.
    PrintJob(const control::Grid& grid, const TwSheetSettings& settings, Paper paper,
             const Vor_String& home = {});
    ~PrintJob();

    /// Header or footer files that cannot or may not be read: "file:line: what: what to do". The
    /// pages come without them.
    const std::vector<std::string>& problems() const { return m_problems; }
    const PageLayout& layout() const { return m_layout; }
    int pageCount() const { return static_cast<int>(m_layout.pages.size()); }
    /// `index` from 0 to pageCount() - 1.
    PrintedPage page(int index) const;

  private:
    struct Band;
    std::unique_ptr<Band> loadBand(const Vor_String& named, const Vor_String& home);
    std::vector<PrintedCell> bandCells(const Band& band, double top, int page) const;
    std::string withVariables(std::string_view text, int page) const;
    void finish(PrintedCell& cell, const control::Grid& grid) const;

    const control::Grid& m_grid;
    TwSheetSettings m_settings;
    std::vector<std::string> m_problems;
    std::unique_ptr<Band> m_header, m_footer;
    PageLayout m_layout;
};

}  // namespace printing

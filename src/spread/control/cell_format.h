// What a cell is (its type: text, number, check box …) and how it looks: font, colours, border and
// lock. Formats are values; a grid interns them in a FormatTable and a cell holds only the index,
// so that a hundred thousand rows share a handful of formats.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/export.h"

namespace control {

/// The numbers are the type codes that the control reports.
enum class CellKind : uint8_t {
    general = 0,        ///< takes any value; a text that is a number's own writing is that number
    edit = 1,           ///< keeps what is written as text
    staticText = 5,     ///< text that a user cannot change
    button = 7,         ///< shows its own text
    picture = 8,        ///< shows the picture `text`: a file, or one that the sheet keeps
    pictureHandle = 9,  ///< shows the module's picture resource `picture`
    checkBox = 10,      ///< "1" or "0"
    wholeNumber = 12,   ///< code reported for a number cell without decimals
    comboBox = 13,      ///< one of the items in `text`, which are separated by tabs
    number = 14,        ///< takes numbers, nothing and error texts alone
};

struct CellType {
    CellKind kind = CellKind::general;
    uint8_t decimals = 0;      ///< number: 0 to 15
    bool editable = false;     ///< combo box: other texts than the items may be typed
    bool isIcon = false;       ///< picture handle: an icon, else a bitmap
    int32_t maxLength = 0;     ///< edit: characters a user may type; 0 is no limit
    uint32_t style = 0;        ///< display style, handed to views as it is
    int32_t picture = 0;       ///< picture handle, check box (checked): number of the resource
    int32_t otherPicture = 0;  ///< check box (unchecked)
    double least = 0;          ///< number: range of what may be written; both 0 is no limit
    double most = 0;
    std::string text;  ///< combo items, button text or picture file

    bool operator==(const CellType&) const = default;

    bool isNumber() const { return kind == CellKind::number; }
    /// Whether a number lies in the range.
    bool takes(double value) const {
        const bool isLimited = least != 0 || most != 0;
        return !isLimited || (value >= least && value <= most);
    }
    /// Cells of this type keep a written text as text, whatever it reads like.
    bool keepsText() const {
        return kind != CellKind::general && kind != CellKind::number && kind != CellKind::checkBox;
    }
};

VORMANT_API CellType numberType(int decimals, uint32_t style = 0, double least = 0,
                                double most = 0);
VORMANT_API CellType editType(int maxLength, uint32_t style = 0);

struct Font {
    std::string name = "Tahoma";
    int height = 15;   ///< pixels
    int weight = 400;  ///< 400 plain, 700 bold
    bool italic = false;
    bool underlined = false;

    bool operator==(const Font&) const = default;
};

/// A colour as 0x00BBGGRR; `automatic` leaves it to the view.
using Colour = uint32_t;
inline constexpr Colour automatic = 0xFFFFFFFFU;
constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) {
    return red | green << 8 | blue << 16;
}

/// Sides of a cell as the border calls give them; they add up.
enum BorderSide : uint8_t {
    borderLeft = 1,
    borderRight = 2,
    borderTop = 4,
    borderBottom = 8,
    borderOutline = 16,  ///< the outer sides of a block of cells
};

struct CellFormat {
    CellType type;
    Font font;
    Colour textColour = automatic;
    Colour background = automatic;
    Colour borderColour = automatic;
    uint8_t borderSides = 0;  ///< left, right, top, bottom added up
    uint8_t borderStyle = 0;
    uint8_t alignment = 0;  ///< 0 by the value, 1 left, 2 right, 3 centred
    bool locked = false;    ///< a user cannot change the cell

    bool operator==(const CellFormat&) const = default;
};

/// Index of a format in its table.
using FormatIndex = uint16_t;
/// What a cell has that was never given a format: that of its column, else the default format.
inline constexpr FormatIndex inheritedFormat = 0;
/// The default format, given to a cell outright.
inline constexpr FormatIndex plainFormat = 1;

class VORMANT_API FormatTable {
  public:
    FormatTable();

    const CellFormat& operator[](FormatIndex index) const { return m_formats[index]; }
    size_t size() const { return m_formats.size(); }

    /// The index of `format`, which is added when it is new. A full table (65,536 formats) gives
    /// plainFormat: the cell keeps its value and loses its decoration.
    FormatIndex intern(const CellFormat& format);
    /// As interning the format `base` with another type, remembering the answer: a standards run
    /// asks this for every equation.
    FormatIndex withType(FormatIndex base, const CellType& type);

  private:
    struct Remembered {
        FormatIndex base = inheritedFormat;
        FormatIndex result = plainFormat;
        CellType type;
    };

    std::deque<CellFormat> m_formats;  // formats stay where they are
    std::unordered_multimap<size_t, FormatIndex> m_index;
    std::array<Remembered, 8> m_remembered;
    size_t m_nextRemembered = 0;
};

}  // namespace control

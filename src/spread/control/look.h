// What a cell is (its type: text, number, check box …) and how it looks: font, colours, border and
// lock. Looks are values; a grid interns them in a LookTable and a cell holds only the index, so
// that a hundred thousand rows share a handful of looks.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

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

CellType numberType(int decimals, uint32_t style = 0, double least = 0, double most = 0);
CellType editType(int maxLength, uint32_t style = 0);

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

struct Look {
    CellType type;
    Font font;
    Colour textColour = automatic;
    Colour background = automatic;
    Colour borderColour = automatic;
    uint8_t borderSides = 0;  ///< left, right, top, bottom added up
    uint8_t borderStyle = 0;
    uint8_t alignment = 0;  ///< 0 by the value, 1 left, 2 right, 3 centred
    bool locked = false;    ///< a user cannot change the cell

    bool operator==(const Look&) const = default;
};

/// Index of a look in its table.
using LookIndex = uint16_t;
/// What a cell has that was never given a look: that of its column, else the default look.
inline constexpr LookIndex inheritedLook = 0;
/// The default look, given to a cell outright.
inline constexpr LookIndex plainLook = 1;

class LookTable {
  public:
    LookTable();

    const Look& operator[](LookIndex index) const { return m_looks[index]; }
    size_t size() const { return m_looks.size(); }

    /// The index of `look`, which is added when it is new. A full table (65,536 looks) gives
    /// plainLook: the cell keeps its value and loses its decoration.
    LookIndex intern(const Look& look);
    /// As interning the look `base` with another type, remembering the answer: a standards run
    /// asks this for every equation.
    LookIndex withType(LookIndex base, const CellType& type);

  private:
    struct Remembered {
        LookIndex base = inheritedLook;
        LookIndex result = plainLook;
        CellType type;
    };

    std::deque<Look> m_looks;  // looks stay where they are
    std::unordered_multimap<size_t, LookIndex> m_index;
    std::array<Remembered, 8> m_remembered;
    size_t m_nextRemembered = 0;
};

}  // namespace control

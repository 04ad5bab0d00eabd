// What cells are: texts, numbers, check boxes, pictures; and which of them are locked.
#include "core_api/text/text_helpers.h"
#include "platform/files.h"
#include "platform/window/bitmap.h"
#include "spread/picture_size.h"
#include "spread/vor_spread.h"

using control::Block;
using control::CellType;

namespace {

constexpr int checkedPicture = 8134;
constexpr int uncheckedPicture = 8136;
constexpr int frameStyle = 6;
constexpr int frameSides = control::borderRight;
constexpr int pictureNeighbourSides = control::borderOutline | control::borderRight;
constexpr size_t largestEmbeddedImage = size_t{16} << 20;  // bytes

/// A bitmap file in as few bytes as it takes; other files as they are.
std::string packed(std::string bytes) {
    std::string error;
    const std::optional<CBitmap> bitmap = decodeBitmap(bytes, error);
    if (!bitmap) return bytes;
    std::string smaller = packBitmap(*bitmap);
    return smaller.size() < bytes.size() ? smaller : bytes;
}

CellType numberCell(int decimals, unsigned style) {
    return control::numberType(decimals, style, -Vor_Spread::largestNumber,
                               Vor_Spread::largestNumber);
}

CellType checkBoxCell() {
    CellType type;
    SSSetTypeCheckBox(nullptr, type, 0, checkedPicture, uncheckedPicture);
    return type;
}

}  // namespace

bool Vor_Spread::setTextCell(const Block& block, int maxLength, unsigned style) {
    return isAttached() && grid().setType(block, control::editType(maxLength, style));
}

bool Vor_Spread::setTextCell(int col, int row, int maxLength, unsigned style) {
    return isAttached() && grid().setType(col, row, control::editType(maxLength, style));
}

bool Vor_Spread::setNumberCell(const Block& block, int decimals, unsigned style) {
    return isAttached() && grid().setType(block, numberCell(decimals, style));
}

bool Vor_Spread::setNumberCell(int col, int row, int decimals, unsigned style) {
    return isAttached() && grid().setType(col, row, numberCell(decimals, style));
}

bool Vor_Spread::setStaticCell(const Block& block) {
    CellType type;
    SSSetTypeStaticText(handle(), type, 0);
    return isAttached() && setCellType(block, type);
}

bool Vor_Spread::setCheckBoxCell(const Block& block) {
    return isAttached() && setCellType(block, checkBoxCell());
}

bool Vor_Spread::setComboCell(const Block& block, const Vor_StringArray& items, bool editable) {
    CellType type;
    SSSetTypeComboBox(handle(), type, arrToStr(items, "\t").c_str(), editable);
    return isAttached() && setCellType(block, type);
}

bool Vor_Spread::setButtonCell(const Block& block, const Vor_String& text) {
    CellType type;
    SSSetTypeButton(handle(), type, text.c_str(), 0);
    return isAttached() && setCellType(block, type);
}

bool Vor_Spread::setPictureCell(int col, int row, const Vor_String& file) {
    if (!isAttached() || !grid().isInside(col, row) || !files::exists(file)) return false;
    std::string error, shown = file.str();
    if (auto bytes = files::readWhole(file, error, largestEmbeddedImage)) {
        if (const auto size = pictureSizeOf(*bytes)) {
            setRowHeightInPixels(row, size->height);
            shown = grid().keepPicture(packed(std::move(*bytes)));
        }
    }
    addCellSpan({col, row, nrCols() - col + 1, 1});
    if (col > 1) setBorder({col - 1, row, col - 1, row}, pictureNeighbourSides, frameStyle);
    CellType type;
    SSSetTypePicture(handle(), type, shown.c_str(), 0);
    return setCellType({col, row, col, row}, type);
}

bool Vor_Spread::setIconCell(int col, int row, int resourceId, bool isIcon) {
    CellType type;
    SSSetTypePictureHandle(handle(), type, resourceId, isIcon);
    return isAttached() && setCellType({col, row, col, row}, type);
}

bool Vor_Spread::setCheckBoxColumn(int col, bool border, bool spanHeader) {
    const Block cells{col, 1, col, nrRows()};
    if (!isAttached() || !setCheckBoxCell(cells)) return false;
    if (border) setBorder(cells, frameSides, frameStyle);
    if (spanHeader) addCellSpan({col, headerIndex, 2, 1});
    return true;
}

bool Vor_Spread::setButtonColumn(int col, const Vor_String& text, bool spanHeader) {
    if (!isAttached() || !setButtonCell({col, 1, col, nrRows()}, text)) return false;
    if (spanHeader && col > 1) addCellSpan({col - 1, headerIndex, 2, 1});
    return true;
}

bool Vor_Spread::setLock(int col, int row, bool locked) {
    return isAttached() && SSSetLock(handle(), col, row, locked);
}

bool Vor_Spread::setLockRange(const Block& b, bool locked) {
    return isAttached() && SSSetLockRange(handle(), b.col1, b.row1, b.col2, b.row2, locked);
}

bool Vor_Spread::isLocked(int col, int row) const {
    return isAttached() && SSGetLock(handle(), col, row);
}

// Creation, fonts, size, files and formulas.
#include "spread/vor_spread.h"

#include <algorithm>

#include "platform/window/message_scope.h"
#include "spread/find_replace_dlg.h"

using control::Block;

namespace {

constexpr int boldWeight = 700;
constexpr int plainWeight = 400;
constexpr int dialogLeft = 5;  // what a dialog's frame and title take
constexpr int dialogTop = 20;
constexpr control::Colour buttonFace = control::rgb(240, 240, 240);

struct OptionSetting {
    int option;
    bool on;
};

/// Null for the last.
const CWnd* siblingAfter(const CWnd& window) {
    const std::vector<CWnd*>& order = window.parent()->children();
    const auto found = std::find(order.begin(), order.end(), &window);
    return found == order.end() || found + 1 == order.end() ? nullptr : *(found + 1);
}

}  // namespace

Vor_Spread::Vor_Spread() = default;

Vor_Spread::~Vor_Spread() {
    destroyNow();
}

void Vor_Spread::onDestroy() {
    if (!m_findDialog) return;
    m_findDialog->forgetSpread();
    retire(std::move(m_findDialog));
}

bool Vor_Spread::attach(CWnd* parent, int ctrlId, bool exactRect) {
    CWnd* placeholder = parent ? parent->item(ctrlId) : nullptr;
    if (!placeholder || isCreated()) return false;
    CRect rect = placeholder->rect();
    if (!exactRect) rect = rect.movedBy(-dialogLeft, -dialogTop);
    const CWnd* next = siblingAfter(*placeholder);
    placeholder->destroy();
    if (!create({gridClassName, {}, rect, 0, ctrlId, true}, parent)) return false;
    comeBefore(next);  // Tab reaches it where the item stood
    setMaxRows(0);
    setMaxCols(0);
    grid().view().appearance = 1;
    for (const auto action :
         {control::KeyAction::copy, control::KeyAction::cut, control::KeyAction::paste})
        grid().setActionKey(action, {});
    return true;
}

bool Vor_Spread::attachHidden() {
    return create({gridClassName, {}, {}, 0, 0, false}, nullptr);
}

bool Vor_Spread::setStandardLook(int mode) {
    if (!isAttached() || mode < 0 || mode > 1) return false;
    constexpr OptionSetting common[] = {{8, false},  {12, false}, {7, false}, {21, true},
                                        {26, false}, {34, true},  {32, true}, {18, false},
                                        {21, true},  {22, true},  {21, true}};
    for (const auto& [option, on] : common) setBool(option, on);
    control::ViewSettings& view = grid().view();
    view.cursorType = 1;
    view.cursorStyle = -1;
    control::SideTables& sides = grid().changeSides();
    sides.greyArea = buttonFace;
    sides.selectionBackground = control::rgb(10, 36, 106);
    sides.selectionText = control::rgb(255, 255, 255);
    for (const int option : {11, 3, 4, 18}) setBool(option, true);
    sides.lockedColour = control::rgb(230, 230, 230);
    setBool(13, mode == 1);
    setBool(10, mode == 0);
    view.editEnterAction = mode == 1 ? 0 : 5;
    return setBool(8, true);
}

void Vor_Spread::setFontName(const Vor_String& name) {
    m_fontName = name;
}

void Vor_Spread::setFontHeight(int height) {
    m_fontHeight = height;
}

bool Vor_Spread::setFonts() {
    if (!isAttached()) return false;
    setFont({-1, headerIndex, -1, headerIndex}, m_fontName, m_fontHeight, boldWeight);
    setFont({headerIndex, -1, headerIndex, -1}, m_fontName, m_fontHeight, boldWeight);
    setFont({-1, -1, -1, -1}, m_fontName, m_fontHeight, plainWeight);
    return true;
}

int Vor_Spread::clientWidth() const {
    return std::max(rect().width() - scrollBarWidth, 0);
}

int Vor_Spread::nrRows() const {
    return isAttached() ? grid().rows() : 0;
}
int Vor_Spread::nrCols() const {
    return isAttached() ? grid().cols() : 0;
}

// New rows look like the last one before them.
bool Vor_Spread::changeRowCount(int count) {
    const int before = nrRows();
    if (!setMaxRows(count)) return false;
    if (before > 0)
        for (int row = before + 1; row <= count; ++row) grid().copyRowFormats(before, row);
    return true;
}

bool Vor_Spread::setNrRows(int count) {
    return isAttached() && changeRowCount(count) && setFonts();
}

bool Vor_Spread::setNrCols(int count, bool copyFormat) {
    if (!isAttached()) return false;
    const int before = nrCols();
    if (!setMaxCols(count)) return false;
    if (copyFormat && before > 0)
        for (int col = before + 1; col <= count; ++col) grid().copyColFormats(before, col);
    return setFonts();
}

bool Vor_Spread::loadFromFile(const Vor_String& path) {
    if (!isAttached() || SSLoadFromFile(handle(), path.c_str()) != 1) return false;
    m_file = path;
    return true;
}

bool Vor_Spread::saveToFile(const Vor_String& path) {
    if (!isAttached() || SSSaveToFile(handle(), path.c_str(), false) == 0) return false;
    m_file = path;
    return true;
}

bool Vor_Spread::setFormula(int col, int row, const Vor_String& text) {
    return isAttached() && grid().setFormula(col, row, text);
}

bool Vor_Spread::reCalcCell(int col, int row) {
    return isAttached() && SSReCalcCell(handle(), col, row);
}

bool Vor_Spread::reCalcAll() {
    return isAttached() && SSReCalc(handle());
}

bool Vor_Spread::addCustomFunction(const char* name, int minArgs, int maxArgs,
                                   SSCustomFunction callback, int flags) {
    return isAttached() &&
           SSAddCustomFunctionExt(handle(), name, minArgs, maxArgs, callback, flags);
}

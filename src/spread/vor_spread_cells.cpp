// Typed cells, whole columns and whole rows.
#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "spread/vor_spread.h"

namespace {

constexpr int decimalsOfDoubles = 2;

Vor_String textOf(int number) {
    return Vor_String(std::to_string(number));
}
Vor_String textOf(double number) {
    return Vor_String(number, decimalsOfDoubles);
}
Vor_String textOf(bool checked) {
    return checked ? "1" : "0";
}

bool takeFrom(const Vor_String& text, int& number) {
    number = textToInt(text);
    return true;
}
bool takeFrom(const Vor_String& text, double& number) {
    number = textToDouble(text);
    return true;
}
bool takeFrom(const Vor_String& text, bool& checked) {
    if (!text.equal("1") && !text.equal("0")) return false;
    checked = text.equal("1");
    return true;
}

template <class T>
Vor_StringArray textsOf(const Vor_Array<T>& items) {
    Vor_StringArray texts;
    texts.reserve(items.length());
    for (const T item : items) texts.append(textOf(item));
    return texts;
}

template <class T>
bool takeAll(const Vor_StringArray& texts, Vor_Array<T>& items) {
    Vor_Array<T> taken;
    taken.reserve(texts.length());
    for (const Vor_String& text : texts) {
        T item{};
        if (!takeFrom(text, item)) return false;
        taken.append(item);
    }
    items = std::move(taken);
    return true;
}

template <class T>
bool takeCell(const Vor_Spread& spread, int col, int row, T& item) {
    Vor_String text;
    return spread.getCellText(col, row, text, control::Reading::value) && takeFrom(text, item);
}

}  // namespace

bool Vor_Spread::getCellText(int col, int row, Vor_String& text, Reading kind) const {
    text.clear();
    if (!isAttached() || col > nrCols() || row > nrRows()) return false;
    std::string buffer;
    text.append(grid().text(col, row, kind, buffer));
    return true;
}

bool Vor_Spread::getCellInt(int col, int row, int& number) const {
    return takeCell(*this, col, row, number);
}

bool Vor_Spread::setCellInt(int col, int row, int number) {
    return isAttached() && setData(col, row, textOf(number));
}

bool Vor_Spread::getCellDouble(int col, int row, double& number) const {
    return takeCell(*this, col, row, number);
}

bool Vor_Spread::setCellDouble(int col, int row, double number) {
    return isAttached() && setData(col, row, textOf(number));
}

bool Vor_Spread::getCheck(int col, int row, bool& checked) const {
    return takeCell(*this, col, row, checked);
}

bool Vor_Spread::setCheck(int col, int row, bool checked) {
    return isAttached() && setData(col, row, textOf(checked));
}

bool Vor_Spread::setColumn(int col, const Vor_StringArray& texts, bool asValue) {
    if (!isAttached() || col > nrCols()) return false;
    const int count = std::min(texts.length(), nrRows());
    bool taken = true;
    for (int row = 1; row <= count; ++row) {
        const Vor_String& text = texts[row - 1];
        taken = (asValue ? setValue(col, row, text) : setData(col, row, text)) && taken;
    }
    return taken;
}

bool Vor_Spread::getColumn(int col, Vor_StringArray& texts, Reading kind) const {
    texts.clear();
    if (!isAttached() || col > nrCols()) return false;
    texts.setLength(nrRows());
    for (int row = 1; row <= nrRows(); ++row) getCellText(col, row, texts[row - 1], kind);
    return true;
}

bool Vor_Spread::setRow(int row, const Vor_StringArray& texts, bool asValue) {
    if (!isAttached() || row > nrRows()) return false;
    const int count = std::min(texts.length(), nrCols());
    bool taken = true;
    for (int col = 1; col <= count; ++col) {
        const Vor_String& text = texts[col - 1];
        taken = (asValue ? setValue(col, row, text) : setData(col, row, text)) && taken;
    }
    return taken;
}

bool Vor_Spread::getRow(int row, Vor_StringArray& texts, Reading kind) const {
    texts.clear();
    if (!isAttached() || row > nrRows()) return false;
    texts.setLength(nrCols());
    for (int col = 1; col <= nrCols(); ++col) getCellText(col, row, texts[col - 1], kind);
    return true;
}

bool Vor_Spread::setColumn(int col, const Vor_Array<int>& numbers) {
    return setColumn(col, textsOf(numbers));
}
bool Vor_Spread::setColumn(int col, const Vor_Array<double>& numbers) {
    return setColumn(col, textsOf(numbers));
}
bool Vor_Spread::setColumn(int col, const Vor_Array<bool>& checks) {
    return setColumn(col, textsOf(checks));
}
bool Vor_Spread::setRow(int row, const Vor_Array<int>& numbers) {
    return setRow(row, textsOf(numbers));
}
bool Vor_Spread::setRow(int row, const Vor_Array<double>& numbers) {
    return setRow(row, textsOf(numbers));
}
bool Vor_Spread::setRow(int row, const Vor_Array<bool>& checks) {
    return setRow(row, textsOf(checks));
}

bool Vor_Spread::getColumn(int col, Vor_Array<int>& numbers) const {
    Vor_StringArray texts;
    return getColumn(col, texts, Reading::value) && takeAll(texts, numbers);
}
bool Vor_Spread::getColumn(int col, Vor_Array<double>& numbers) const {
    Vor_StringArray texts;
    return getColumn(col, texts, Reading::value) && takeAll(texts, numbers);
}
bool Vor_Spread::getColumn(int col, Vor_Array<bool>& checks) const {
    Vor_StringArray texts;
    return getColumn(col, texts, Reading::value) && takeAll(texts, checks);
}
bool Vor_Spread::getRow(int row, Vor_Array<int>& numbers) const {
    Vor_StringArray texts;
    return getRow(row, texts, Reading::value) && takeAll(texts, numbers);
}
bool Vor_Spread::getRow(int row, Vor_Array<double>& numbers) const {
    Vor_StringArray texts;
    return getRow(row, texts, Reading::value) && takeAll(texts, numbers);
}
bool Vor_Spread::getRow(int row, Vor_Array<bool>& checks) const {
    Vor_StringArray texts;
    return getRow(row, texts, Reading::value) && takeAll(texts, checks);
}

bool Vor_Spread::clearRow(int row) {
    return clearRows(row, row);
}

bool Vor_Spread::clearRows(int from, int to) {
    if (!isAttached() || from < 1 || to < from || to > nrRows()) return false;
    grid().clearCells({1, from, -1, to});
    return true;
}

bool Vor_Spread::getAllRows(Vor_Array<Vor_StringArray>& rows) const {
    rows.clear();
    if (!isAttached()) return false;
    rows.setLength(nrRows());
    for (int row = 1; row <= nrRows(); ++row) getRow(row, rows[row - 1]);
    return true;
}

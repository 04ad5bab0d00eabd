#include "frame/editor/named_values_dialog.h"

#include "core_api/dialog_state.h"
#include "core_api/text/text_helpers.h"

namespace {

constexpr int nameText = 87, valueText = 86, cannotBeUsedText = 21001, needsNumberText = 21002,
              refusedText = 21003;
constexpr int namePercent = 50;
constexpr int tableFormat = 1;  // one that is typed into
constexpr int plainWeight = 400, boldWeight = 700;

control::Block cell(int row) {
    return {namedValuesValueColumn, row, namedValuesValueColumn, row};
}

}  // namespace

NamedValuesDialog::NamedValuesDialog(const EditorKind& kind, CWnd* parent)
    : CDialog(kind.resource, parent), m_kind(kind) {}

void NamedValuesDialog::onInit() {
    if (!m_title.isEmpty()) setText(m_title);
    m_isChanged = false;
    m_grid.attach(this, namedValuesGrid, true);
    m_grid.setStandardLook(tableFormat);
    m_grid.setBool(static_cast<int>(control::Option::rowHeaders), false);
    m_grid.setNrCols(2, false);
    m_grid.setData(namedValuesNameColumn, Vor_Spread::headerIndex, dialString(nameText));
    m_grid.setData(namedValuesValueColumn, Vor_Spread::headerIndex, dialString(valueText));
    showRows();
    m_grid.setAutoSize(3, 1, namePercent);
    ChangeDlgSize(*this, m_kind.sizeName);
    m_grid.autoSize();
    m_grid.setActiveCell(namedValuesValueColumn, firstValueRow());
    m_grid.setListener([this](const GridNotice& notice) { onNotice(notice); });
    showWhatCanBeDone();
}

/// Not a heading, unless there is nothing else.
int NamedValuesDialog::firstValueRow() const {
    const bool isHeading = !m_values.empty() && m_values[0].kind == NamedValue::Kind::heading;
    return isHeading && m_grid.nrRows() > 1 ? 2 : 1;
}

void NamedValuesDialog::showRows() {
    m_values = describeData();
    m_shown.clear();
    m_grid.setNrRows(static_cast<int>(m_values.size()));
    for (int row = 1; row <= m_grid.nrRows(); ++row)
        showRow(row, m_values[static_cast<size_t>(row - 1)]);
}

void NamedValuesDialog::onNotice(const GridNotice& notice) {
    using What = GridNotice::What;
    if (notice.what == What::moved) return showWhatCanBeDone();
    if (notice.what != What::changed && notice.what != What::checked) return;
    m_isChanged = true;
    const auto row = static_cast<size_t>(notice.row);
    if (row < 1 || row > m_values.size() || !m_values[row - 1].reshapes) return;
    if (!takeValues()) return;
    showRows();
    m_grid.setActiveCell(namedValuesValueColumn, notice.row);
}

void NamedValuesDialog::showRow(int row, const NamedValue& value) {
    m_grid.setData(namedValuesNameColumn, row, value.name);
    const bool isHeading = value.kind == NamedValue::Kind::heading;
    m_grid.setLock(namedValuesNameColumn, row, true);
    m_grid.setLock(namedValuesValueColumn, row, isHeading);
    m_grid.setFont({namedValuesNameColumn, row, namedValuesNameColumn, row}, m_grid.fontName(),
                   m_grid.fontHeight(), isHeading ? boldWeight : plainWeight);
    switch (value.kind) {
        case NamedValue::Kind::text:
            m_grid.setTextCell(cell(row));
            break;
        case NamedValue::Kind::number:
            m_grid.setNumberCell(cell(row), value.decimals);
            break;
        case NamedValue::Kind::yesNo:
            m_grid.setCheckBoxCell(cell(row));
            break;
        case NamedValue::Kind::choice:
            m_grid.setComboCell(cell(row), value.choices, false);
            break;
        case NamedValue::Kind::heading:
            m_grid.setStaticCell(cell(row));
            break;
    }
    m_grid.setValue(namedValuesValueColumn, row, value.read());
    m_shown.append(textOf(row));
}

Vor_String NamedValuesDialog::textOf(int row) const {
    Vor_String text;
    m_grid.getCellText(namedValuesValueColumn, row, text, Vor_Spread::Reading::value);
    return text;
}

bool NamedValuesDialog::isRowChanged(int row) const {
    return textOf(row) != m_shown[row - 1];
}

bool NamedValuesDialog::refuse(int row, const Vor_String& why) {
    m_grid.setActiveCell(namedValuesValueColumn, row);
    showWarning(dialString(cannotBeUsedText), why);
    m_grid.focus();
    return false;
}

bool NamedValuesDialog::isNumberGood(int row) {
    const NamedValue& value = m_values[static_cast<size_t>(row - 1)];
    if (value.kind != NamedValue::Kind::number) return true;
    const Vor_String text = textOf(row);
    const double number = textToDouble(text);
    if (isNumber(text) && number >= value.least && number <= value.most) return true;
    Vor_String why = dialString(needsNumberText);
    why.replaceSubString("%2", Vor_String(value.least, value.decimals));
    why.replaceSubString("%3", Vor_String(value.most, value.decimals));
    why.replaceSubString("%1", value.name);
    return refuse(row, why);
}

bool NamedValuesDialog::takeValues() {
    for (int row = 1; row <= m_grid.nrRows(); ++row)
        if (isRowChanged(row) && !isNumberGood(row)) return false;
    rememberData();
    for (int row = 1; row <= m_grid.nrRows(); ++row) {
        const NamedValue& value = m_values[static_cast<size_t>(row - 1)];
        if (!isRowChanged(row) || value.write(textOf(row))) continue;
        Vor_String why = dialString(refusedText);
        why.replaceSubString("%2", textOf(row));
        why.replaceSubString("%1", value.name);
        putDataBack();
        m_values = describeData();  // the rows referred to what was put back
        return refuse(row, why);
    }
    return true;
}

void NamedValuesDialog::onOK() {
    if (!takeValues()) return;
    onTaken();
    CDialog::onOK();
}

void NamedValuesDialog::onDestroy() {
    WriteDlgSize(*this, m_kind.sizeName);
}

void NamedValuesDialog::onSize(CSize before) {
    CDialog::onSize(before);
    m_grid.autoSize();
}

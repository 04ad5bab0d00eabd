#include "sections/dialogs/size_dialog.h"

#include <algorithm>
#include <array>

#include "core_api/text/text_helpers.h"
#include "core_api/texts/dial_text.h"
#include "platform/host/host.h"
#include "platform/window/message_box.h"
#include "sections/dialogs/section_dialog_words.h"
#include "sections/dialogs/section_picture_control.h"
#include "sections/section_types.h"

namespace {

using Dlg = SizeDialog;

constexpr int valuesTop = 7, valueHeight = 17;

constexpr auto makeControls() {
    std::array<ControlTemplate, 2 * Dlg::mostValues + 10> made{};
    size_t at = 0;
    for (int i = 0; i < Dlg::mostValues; ++i) {
        const int top = valuesTop + i * valueHeight;
        made[at++] = {Control::label, Dlg::firstValueLabel + i, {}, {7, top + 2, 118, 10}};
        made[at++] = {Control::edit, Dlg::firstValueField + i, {}, {130, top, 60, 13}};
    }
    made[at++] = {Control::picture, Dlg::sectionPictureItem, {}, {200, 7, 184, 120}};
    made[at++] = {Control::group, Dlg::nameFrame, dialText(wordSizeName), {200, 130, 184, 61}};
    made[at++] = {Control::radioButton,
                  Dlg::fromValues,
                  dialText(wordNameFromValues),
                  {208, 142, 168, 10},
                  styleNewGroup};
    made[at++] = {Control::radioButton, Dlg::ownName, dialText(wordOwnName), {208, 156, 168, 10}};
    made[at++] = {Control::label, Dlg::nameLabel, {}, {208, 173, 40, 10}};
    made[at++] = {Control::edit, Dlg::nameField, {}, {252, 171, 124, 13}};
    made[at++] = {Control::label, Dlg::formLabel, {}, {200, 195, 184, 22}};
    made[at++] = {Control::label, Dlg::furtherLabel, {}, {7, 198, 186, 22}};
    made[at++] = {Control::button, IDOK, dialText(wordOk), {258, 222, 60, 14}, styleDefault};
    made[at++] = {Control::button, IDCANCEL, dialText(wordCancel), {324, 222, 60, 14}};
    return made;
}
constexpr auto controls = makeControls();
constexpr DialogResource resource{
    Dlg::resourceNumber, dialText(wordNewSize), {0, 0, 391, 243}, controls};

}  // namespace

SizeDialog::SizeDialog() : CDialog(resource, Host::current().mainWindow()) {}

void SizeDialog::onInit() {
    m_naming = findSizeNaming(m_data.table, m_data.row);
    item(nameLabel)->setText(dialString(wordSizeName) + ":");
    const bool hasNaming = !m_naming.values.isEmpty();
    itemAs<CButton>(hasNaming ? fromValues : ownName)->setCheck(1);
    item(fromValues)->enable(hasNaming);
    item(nameField)->enable(!hasNaming);
    showSectionPicture(*itemAs<CStatic>(sectionPictureItem), m_data.table.drawnAs, m_section,
                       PictureSize::big);
    showValues();
    showFurtherValues();
    showOtherForm();
    const Vor_StringArray row = pattern();
    const int column = currentNameColumn();
    if (row.isIndex(column)) item(nameField)->setText(row[column]);
}

// --- the pattern --------------------------------------------------------------------------------

Vor_StringArray SizeDialog::pattern() const {
    Vor_StringArray row;
    m_data.table.getRow(m_data.row, row);
    return row;
}

/// Of the values that the pattern has, those that the form has room for.
int SizeDialog::shownValues() const {
    return std::clamp(pattern().length() - m_data.table.firstValueColumn(), 0, mostValues);
}

int SizeDialog::currentNameColumn() const {
    return m_data.table.columnNames.find(gMacroLangs.GetCurLanguage());
}

void SizeDialog::showValues() {
    const Vor_StringArray row = pattern();
    m_shown.setLength(shownValues());
    for (int i = 0; i < mostValues; ++i) {
        const bool isThere = i < shownValues();
        item(firstValueLabel + i)->show(isThere);
        item(firstValueField + i)->show(isThere);
        if (!isThere) continue;
        item(firstValueLabel + i)->setText(labelOf(i) + ":");
        m_shown[i] = row[m_data.table.firstValueColumn() + i];
        item(firstValueField + i)->setText(m_shown[i]);
    }
}

Vor_String SizeDialog::labelOf(int value) const {
    const Vor_ProfValuesTable& table = m_data.table;
    const int column = table.firstValueColumn() + value;
    Vor_String name = table.columnNames.isIndex(column) ? table.columnNames[column] : "";
    if (!isDrawnTemplate(table.drawnAs)) name = gMacroLangs.GetString("Prof", name);
    return getAlfabet(value + 1) + ". " + name;
}

/// The values that the type draws.
int SizeDialog::dimensionCount() const {
    return sectionTypeColumns(sectionTypeNumber(m_data.table.drawnAs)).length();
}

/// An empty field asks for what can be calculated.
bool SizeDialog::isTyped(int value) const {
    const Vor_String text = item(firstValueField + value)->text();
    return !text.isEmpty() && text != m_shown[value];
}

/// What follows from the shape goes along with the dimensions until somebody types it.
void SizeDialog::showShapeValues() {
    for (const ShapeValue& each : shapeValues(m_data.table, m_data.row, typedValues())) {
        if (each.value >= shownValues()) break;
        const bool isCalculated =
            each.isCalculated && !isTyped(each.value) && !isDrawnTemplate(m_data.table.drawnAs);
        Vor_String label = isCalculated ? dialString(wordCalculated) : Vor_String("%1");
        label.replaceSubString("%1", labelOf(each.value));
        item(firstValueLabel + each.value)->setText(label + ":");
        if (isTyped(each.value) || each.text == m_shown[each.value]) continue;
        m_shown[each.value] = each.text;
        item(firstValueField + each.value)->setText(each.text);
    }
    showFurtherValues();
}

/// A table may have more values than the form; the new size then has those of the pattern, or what
/// follows from its shape.
void SizeDialog::showFurtherValues() {
    const Vor_StringArray row = pattern();
    const int further = row.length() - m_data.table.firstValueColumn() - mostValues;
    if (further <= 0) return;
    const auto calculated = std::ranges::count_if(
        shapeValues(m_data.table, m_data.row, typedValues()),
        [](const ShapeValue& each) { return each.isCalculated && each.value >= mostValues; });
    const auto copied = further - static_cast<int>(calculated);
    Vor_String text = dialString(calculated == 0 ? wordFurtherValues
                                 : copied == 0   ? wordFurtherCalculated
                                                 : wordFurtherMixed);
    text.replaceSubString("%1", std::to_string(further));
    text.replaceSubString("%2", m_data.table.tableName + "-" + row[0]);
    text.replaceSubString("%3", std::to_string(calculated));
    item(furtherLabel)->setText(text);
}

/// Some names have more to them than values, as HE 200 A has: what is made from values loses it.
void SizeDialog::showOtherForm() {
    const Vor_StringArray row = pattern();
    const int column = currentNameColumn();
    if (m_naming.values.isEmpty() || !row.isIndex(column)) return;
    const Vor_String made = nameFromValues(typedValues());
    if (made == row[column]) return;
    Vor_String text = dialString(wordOtherForm);
    text.replaceSubString("%1", row[column]);
    text.replaceSubString("%2", made);
    item(formLabel)->setText(text);
}

// --- what is typed ------------------------------------------------------------------------------

bool SizeDialog::isNamedByValues() const {
    return itemAs<CButton>(fromValues)->isChecked();
}

Vor_StringArray SizeDialog::typedValues() const {
    Vor_StringArray values;
    for (int i = 0; i < shownValues(); ++i) values.append(item(firstValueField + i)->text());
    return values;
}

/// In the working language.
Vor_String SizeDialog::nameFromValues(const Vor_StringArray& values) const {
    const int language = currentNameColumn() - Vor_ProfValuesTable::firstNameColumn;
    const Vor_String prefix =
        m_naming.prefixes.isIndex(language) ? m_naming.prefixes[language] : Vor_String();
    return prefix + m_naming.nameOf(values);
}

void SizeDialog::showName() {
    if (isNamedByValues()) item(nameField)->setText(nameFromValues(typedValues()));
}

NewSize SizeDialog::typedSize() const {
    NewSize size{m_data.row, item(nameField)->text(), {}, typedValues(), {}};
    for (int i = 0; i < size.values.length(); ++i)
        if (isTyped(i)) size.typed.append(i);
    for (const ShapeValue& each : shapeValues(m_data.table, m_data.row, size.values))
        if (size.values.isIndex(each.value) && !size.typed.contains(each.value))
            size.values[each.value] = each.text;
    if (isNamedByValues()) size.name = m_naming.nameOf(size.values);
    for (int i = 0; i < m_data.table.getNrLanguages(); ++i) {
        const bool hasPrefix = isNamedByValues() && m_naming.prefixes.isIndex(i);
        size.userNames.append((hasPrefix ? m_naming.prefixes[i] : Vor_String()) + size.name);
    }
    return size;
}

void SizeDialog::onCommand(int id, int code) {
    const bool isValue = id >= firstValueField && id < firstValueField + mostValues;
    if (isValue && code == textChanged) {
        showShapeValues();
        return showName();
    }
    if ((id == fromValues || id == ownName) && code == clicked) {
        item(nameField)->enable(!isNamedByValues());
        return showName();
    }
    CDialog::onCommand(id, code);
}

// --- adding it ----------------------------------------------------------------------------------

bool SizeDialog::refuse(int text, const Vor_String& what, int field) {
    Vor_String message = dialString(text);
    message.replaceSubString("%1", what);
    showWarning(dialString(wordNewSize), message);
    if (CWnd* wrong = item(field)) wrong->focus();
    return false;
}

/// Where the pattern has a number, the new size has one.
bool SizeDialog::isGood(const NewSize& size) {
    const Vor_StringArray row = pattern();
    for (int i = 0; i < size.values.length(); ++i) {
        if (!isNumber(row[m_data.table.firstValueColumn() + i]) || isNumber(size.values[i]))
            continue;
        const bool lacksShape = size.values[i].isEmpty() && i >= dimensionCount();
        const int noShape = isDrawnTemplate(m_data.table.drawnAs) ? wordNoFigure : wordNoShape;
        return lacksShape ? refuse(noShape, labelOf(i), firstValueField + i)
                          : refuse(wordNoNumber, size.values[i], firstValueField + i);
    }
    if (trimmed(size.name).empty()) return refuse(wordNoSizeName, {}, nameField);
    int taken = -1;
    if (m_data.table.findSysName(size.name, taken))
        return refuse(wordSizeTaken, size.name, isNamedByValues() ? firstValueField : nameField);
    return true;
}

void SizeDialog::onOK() {
    const NewSize size = typedSize();
    if (!isWholeRow(m_data.table, m_data.row))
        refuse(wordIncomplete, {}, 0);
    else if (!isGood(size))
        return;
    m_data.row = addSize(m_data.table, size);
    CDialog::onOK();
}

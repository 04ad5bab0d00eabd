// The lower grid: the variables of one spreadsheet and the objects they stand for.
#include "core_api/files.h"
#include "core_api/texts/texts.h"
#include "mapping/mapping_file.h"
#include "mapping_dialog/mapping_dialog.h"
#include "standards/declarations.h"

namespace {

constexpr int boldWeight = 700;

const char* typeWord(TwValueType type) {
    switch (type) {
        case TwValueType::Int:
            return "Getal";
        case TwValueType::Double:
            return "Decim";
        case TwValueType::String:
            break;
    }
    return "Tekst";
}

Vor_String missingLabel(const TwObjectMap& object) {
    return objectLabel(object) + " (" + dialString(21532) + ")";
}

}  // namespace

ErrorStatus TwMappingDlg::selectRow(int row) {
    AttachedSheet& sheet = m_sheets[row - 1];
    if (sheet.group || sheet.name.isEmpty()) {
        clearObjects();
        return Acad::eOk;
    }
    if (sheet.id == m_shownId) return Acad::eOk;
    if (!sheet.choices && loadChoices(sheet) != Acad::eOk) return Acad::eInvalidInput;
    showObjects(sheet);
    return Acad::eOk;
}

ErrorStatus TwMappingDlg::loadChoices(AttachedSheet& sheet) {
    Vor_String failure;
    const auto declared = listDeclarations(standardsFolder() + sheet.name + ".tws", failure);
    if (!declared) {
        if (m_reportedFailed.insert(sheet.name.str()).second) warn(21538, failure);
        return Acad::eInvalidInput;
    }
    Vor_String unreadable;
    const auto lines = readMappingLines(sheet.name, &unreadable);
    if (!lines && ObjectExportFileExists(mappingFilePath(sheet.name))) warn(21540, unreadable);
    if (lines) (void)m_stored.getMappingFromLines(*lines, sheet.key);
    sheet.choices.emplace(*declared, m_stored, m_all);
    return Acad::eOk;
}

AttachedSheet* TwMappingDlg::shownSheet() {
    for (AttachedSheet& sheet : m_sheets)
        if (sheet.id == m_shownId) return &sheet;
    return nullptr;
}

void TwMappingDlg::clearObjects() {
    m_shownId = 0;
    m_variableOfRow.clear();
    m_objectsGrid.setNrRows(0);
    item(shownLabel)->setText({});
}

void TwMappingDlg::showObjects(const AttachedSheet& sheet) {
    clearObjects();
    m_shownId = sheet.id;
    item(shownLabel)->setText(sheet.name);
    const auto& variables = sheet.choices->variables();
    constexpr int headings = 2;
    m_objectsGrid.setNrRows(static_cast<int>(variables.size()) + headings);
    int row = 1;
    size_t next = 0;
    for (const bool isInput : {true, false}) {
        showHeading(row++, isInput ? "Input" : "Output");
        m_variableOfRow.push_back(-1);
        for (; next < variables.size() && variables[next].isInput == isInput; ++next) {
            showVariable(row++, variables[next]);
            m_variableOfRow.push_back(static_cast<int>(next));
        }
    }
    m_objectsGrid.autoSize();
}

void TwMappingDlg::showHeading(int row, const char* word) {
    m_objectsGrid.setStaticCell({typeColumn, row, objectColumn, row});
    m_objectsGrid.setFont({typeColumn, row, objectColumn, row}, m_objectsGrid.fontName(),
                          m_objectsGrid.fontHeight(), boldWeight);
    m_objectsGrid.setData(typeColumn, row, word);
}

void TwMappingDlg::showVariable(int row, const VariableChoice& variable) {
    m_objectsGrid.setStaticCell({typeColumn, row, objectColumn, row});
    m_objectsGrid.setData(typeColumn, row, typeWord(variable.type));
    m_objectsGrid.setData(nameColumn, row, variable.name);
    if (!variable.canBeMapped()) {
        m_objectsGrid.setData(objectColumn, row, dialString(21533));
        return;
    }
    const ObjectList& objects = objectsFor(variable.type);
    Vor_String chosen;
    if (variable.object)
        chosen = objects.labelOf(*variable.object).value_or(missingLabel(*variable.object));
    Vor_StringArray items{""};  // for not mapping it
    for (const Vor_String& label : objects.labels()) items.append(label);
    if (!items.contains(chosen)) items.append(chosen);
    m_objectsGrid.setComboCell({objectColumn, row, objectColumn, row}, items, false);
    m_objectsGrid.setData(objectColumn, row, chosen);
}

void TwMappingDlg::onObjectEntered(int row) {
    AttachedSheet* sheet = shownSheet();
    if (!sheet || !sheet->choices || row < 1 || row > static_cast<int>(m_variableOfRow.size()))
        return;
    const int index = m_variableOfRow[static_cast<size_t>(row - 1)];
    if (index < 0) return;
    Vor_String label;
    m_objectsGrid.getData(objectColumn, row, label);
    const VariableChoice& variable = sheet->choices->variables()[static_cast<size_t>(index)];
    const bool isAsBefore = variable.isMissing && label.equal(missingLabel(*variable.object));
    if (isAsBefore) return;
    sheet->choices->choose(static_cast<size_t>(index), objectsFor(variable.type).find(label));
    if (variable.isOfOtherType()) warn(21536, variable.name);
}

#include "sections/vor_prof_values_table.h"

#include "core_api/text/digits.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"

// --- cells --------------------------------------------------------------------------------------

bool Vor_ProfValuesTable::getRow(const int& idx, Vor_StringArray& row) const {
    if (!rows.isIndex(idx)) return false;
    row = rows[idx];
    return true;
}

bool Vor_ProfValuesTable::getColumn(Vor_StringArray& out, const int& col) const {
    if (rows.isEmpty() || !rows[0].isIndex(col)) return false;
    out.clear();
    out.reserve(rows.length());
    for (const Vor_StringArray& row : rows) out.append(row.isIndex(col) ? row[col] : Vor_String());
    return true;
}

bool Vor_ProfValuesTable::getColumn(Vor_StringArray& out, const Vor_String& name) const {
    return getColumn(out, getColumnIdx(name));
}

int Vor_ProfValuesTable::getColumnIdx(const Vor_String& name) const {
    return columnNames.find(name);
}

int Vor_ProfValuesTable::getNrLanguages() const {
    constexpr int fifth = firstNameColumn + languageCount;
    const bool hasFifth = columnNames.length() > fifth && columnNames[fifth].equal("Korean");
    return hasFifth ? languageCount + 1 : languageCount;
}

// --- names --------------------------------------------------------------------------------------

bool Vor_ProfValuesTable::hasFlag(int row, std::string_view flag) const {
    return rows[row].isIndex(activeColumn) && rows[row][activeColumn].view() == flag;
}

void Vor_ProfValuesTable::getSysNames(Vor_StringArray& out) const {
    out.clear();
    Vor_StringArray names, flags;
    if (!getColumn(names, systemNameColumn) || !getColumn(flags, activeColumn)) return;
    for (const Vor_String& name : names) out.append(tableName + "-" + name);
}

void Vor_ProfValuesTable::getFilteredSysNames(Vor_StringArray& out) const {
    Vor_StringArray all;
    getSysNames(all);
    out.clear();
    for (int row = 0; row < all.length(); ++row)
        if (!hasFlag(row, "0")) out.append(all[row]);
}

bool Vor_ProfValuesTable::findSysName(const Vor_String& systemName, int& idx) const {
    Vor_StringArray names;
    if (!getColumn(names, systemNameColumn)) return false;
    const int found = names.find(systemName);
    if (found >= 0) idx = found;
    return found >= 0;
}

Vor_String Vor_ProfValuesTable::findUnusedSysName(const Vor_String& candidate) const {
    Vor_StringArray names;
    getColumn(names, systemNameColumn);
    return findNonExistingString(names, candidate);
}

int Vor_ProfValuesTable::getfilteredIdx(const int& idx) const {
    Vor_StringArray flags;
    getColumn(flags, activeColumn);
    if (!flags.isIndex(idx)) return -1;
    int place = idx;
    for (int row = 0; row < idx; ++row)
        if (!hasFlag(row, "1")) --place;
    return place;
}

// --- changes ------------------------------------------------------------------------------------

bool Vor_ProfValuesTable::deleteRow(const int& idx) {
    return rows.isIndex(idx) && rows.removeAt(idx);
}

/// What the name of a copy begins with: the row's user name up to its size, else the table's name.
Vor_String Vor_ProfValuesTable::seriesOf(const Vor_StringArray& row, int nameColumn) const {
    if (!row.isIndex(nameColumn)) return tableName;
    const Vor_String& name = row[nameColumn];
    const Vor_String series = name.getSubStringAt(0, findFirstNumbers(name));
    return series.isEmpty() ? tableName : series;
}

bool Vor_ProfValuesTable::insertRow(const int& idx) {
    const int after = idx + 1;
    if (!rows.isIndex(after)) return false;
    Vor_StringArray made;
    made.setLength(columnNames.length());
    if (rows.isIndex(idx)) made = rows[idx];
    if (made.isEmpty()) return rows.insertAt(after, made);
    const int nameColumn = columnNames.find(gMacroLangs.GetCurLanguage());
    const Vor_String series = seriesOf(made, nameColumn);
    Vor_String& systemName = made[systemNameColumn];
    systemName = findUnusedSysName(systemName.isEmpty() ? Vor_String("1") : systemName);
    if (made.isIndex(nameColumn)) made[nameColumn] = series + systemName;
    return rows.insertAt(after, made);
}

ErrorStatus Vor_ProfValuesTable::insertRow(const int& idx, const Vor_String& systemName,
                                           const Vor_String& userName) {
    if (!insertRow(idx)) return Acad::eInvalidInput;
    const ErrorStatus status = setSysName(idx, systemName);
    return status == Acad::eOk ? setUserNames(idx, userName) : status;
}

ErrorStatus Vor_ProfValuesTable::setSysName(const int& idx, const Vor_String& name) {
    if (!rows.isIndex(idx) || rows[idx].isEmpty()) return Acad::eInvalidInput;
    rows[idx][systemNameColumn] = name;
    return Acad::eOk;
}

ErrorStatus Vor_ProfValuesTable::setUserNames(const int& idx, const Vor_String& name) {
    const int end = firstValueColumn();
    if (!rows.isIndex(idx) || rows[idx].length() < end) return Acad::eInvalidInput;
    for (int col = firstNameColumn; col < end; ++col) rows[idx][col] = name;
    return Acad::eOk;
}

ErrorStatus Vor_ProfValuesTable::setValues(const int& idx, const AcArray<double>& values) {
    const int first = firstValueColumn();
    if (!rows.isIndex(idx) || rows[idx].length() - first != values.length())
        return Acad::eInvalidInput;
    for (int i = 0; i < values.length(); ++i)
        rows[idx][first + i] = Vor_String(values[i], 1, false);
    return Acad::eOk;
}

void Vor_ProfValuesTable::removeInactiveEntries() {
    Vor_Array<Vor_StringArray> kept;
    for (int row = 0; row < rows.length(); ++row)
        if (!hasFlag(row, "0")) kept.append(std::move(rows[row]));
    rows = std::move(kept);
}

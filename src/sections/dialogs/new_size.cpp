#include "sections/dialogs/new_size.h"

#include <algorithm>
#include <optional>

#include "core_api/text/digits.h"
#include "core_api/text/text_helpers.h"
#include "sections/section_figures.h"
#include "sections/section_types.h"

namespace {

constexpr char separator = 'x';
constexpr int mostRows = 9999;

Vor_StringArray partsOf(const Vor_String& name) {
    return splitStringAtSymbol(name, separator, false);
}

bool isSame(const Vor_String& part, const Vor_String& value) {
    if (!isNumber(part)) return part == value;
    return isNumber(value) && textToDouble(part) == textToDouble(value);
}

Vor_StringArray cellsFrom(const Vor_StringArray& row, int first) {
    Vor_StringArray cells;
    for (int i = first; i < row.length(); ++i) cells.append(row[i]);
    return cells;
}

/// The values that the parts are, each used once; nothing unless all parts are values.
std::optional<Vor_Array<int>> match(const Vor_StringArray& parts, const Vor_StringArray& values) {
    Vor_Array<int> matched;
    for (const Vor_String& part : parts) {
        int at = 0;
        while (at < values.length() && (matched.contains(at) || !isSame(part, values[at]))) ++at;
        if (at == values.length()) return std::nullopt;
        matched.append(at);
    }
    return matched;
}

Vor_StringArray prefixesOf(const Vor_ProfValuesTable& table, const Vor_StringArray& row) {
    Vor_StringArray prefixes;
    for (int col = Vor_ProfValuesTable::firstNameColumn; col < table.firstValueColumn(); ++col) {
        const Vor_String name = row.isIndex(col) ? row[col] : Vor_String();
        prefixes.append(name.getSubStringAt(0, findFirstNumbers(name)));
    }
    return prefixes;
}

/// "50x50x4": the same number first and second.
bool isEqualSided(const Vor_String& name) {
    const Vor_StringArray parts = partsOf(name);
    return parts.length() >= 2 && parts[0] == parts[1];
}

/// Names of equal-sided sizes stand among themselves, in tables that have others too.
int placeAmongEqualSided(const Vor_StringArray& all, const Vor_String& name) {
    Vor_StringArray names;
    for (const Vor_String& each : all)
        if (isEqualSided(each)) names.append(each);
    const int place = ObjectExportAddToSorted(names, name);
    const int neighbour = place > 0 ? place - 1 : 1;  // the first of those that were there
    const int row = names.isIndex(neighbour) ? all.find(names[neighbour]) : -1;
    return row >= 0 ? row + 1 : 1;
}

int placeOf(const Vor_ProfValuesTable& table, const Vor_String& name) {
    Vor_StringArray names;
    table.getColumn(names, Vor_ProfValuesTable::systemNameColumn);
    const int place = isEqualSided(name) ? placeAmongEqualSided(names, name)
                                         : ObjectExportAddToSorted(names, name);
    return std::min(place, table.rows.length());
}

void put(Vor_StringArray& row, int first, const Vor_StringArray& texts) {
    for (int i = 0; i < texts.length() && row.isIndex(first + i); ++i) row[first + i] = texts[i];
}

/// The dimensions that its type draws.
bool hasShapeOf(const Vor_ProfValuesTable& table, const Vor_StringArray& row,
                const Vor_StringArray& pattern) {
    const int first = table.firstValueColumn();
    const int dimensions = sectionTypeColumns(sectionTypeNumber(table.drawnAs)).length();
    for (int i = first; i < first + dimensions && row.isIndex(i); ++i)
        if (!isSame(row[i], pattern[i])) return false;
    return true;
}

std::optional<SectionFigures> figuresOf(const Vor_ProfValuesTable& table,
                                        const Vor_StringArray& row) {
    std::vector<std::string_view> values;
    for (int i = table.firstValueColumn(); i < row.length(); ++i) values.push_back(row[i]);
    return SectionFigures::of(table.drawnAs, values);
}

/// Of sections that a drawing shows nothing is calculated: their figures are those of the pattern
/// for as long as all other values are, and else somebody types them.
std::vector<ShapeValue> figuresOfTemplate(const Vor_ProfValuesTable& table,
                                          const Vor_StringArray& row,
                                          const Vor_StringArray& pattern) {
    std::vector<ShapeValue> found;
    const int first = table.firstValueColumn();
    bool isOther = false;
    for (int col = first; col < table.columnNames.length(); ++col) {
        if (namesFigure(table.columnNames[col]))
            found.push_back({col - first, false, pattern[col]});
        else if (!isSame(row[col], pattern[col]))
            isOther = true;
    }
    for (ShapeValue& each : found)
        if (isOther) each = {each.value, true, {}};
    return found;
}

}  // namespace

Vor_String SizeNaming::nameOf(const Vor_StringArray& given) const {
    Vor_StringArray parts;
    for (const int value : values)
        if (given.isIndex(value)) parts.append(given[value]);
    return arrToStr(parts, std::string_view(&separator, 1));
}

SizeNaming findSizeNaming(const Vor_ProfValuesTable& table, int row) {
    const int first = std::max(row, 0);
    const int end = std::min(table.rows.length() - first, mostRows) + first;
    for (int at = first; at < end; ++at) {
        const Vor_StringArray& cells = table.rows[at];
        if (cells.isEmpty() || cells[0].isEmpty()) continue;
        if (auto values = match(partsOf(cells[0]), cellsFrom(cells, table.firstValueColumn())))
            return {std::move(*values), prefixesOf(table, cells)};
    }
    return {};
}

bool isWholeRow(const Vor_ProfValuesTable& table, int row) {
    const int columns = std::max(table.columnNames.length(), table.firstValueColumn());
    return table.rows.isIndex(row) && table.rows[row].length() >= columns;
}

std::vector<ShapeValue> shapeValues(const Vor_ProfValuesTable& table, int pattern,
                                    const Vor_StringArray& values) {
    std::vector<ShapeValue> found;
    if (!isWholeRow(table, pattern)) return found;
    const int first = table.firstValueColumn();
    const Vor_StringArray& before = table.rows[pattern];
    Vor_StringArray row = before;
    put(row, first, values);
    if (isDrawnTemplate(table.drawnAs)) return figuresOfTemplate(table, row, before);
    const auto figures = figuresOf(table, row);
    const auto known = figuresOf(table, before);
    const bool isCalculated = !hasShapeOf(table, row, before);
    const int dimensions = sectionTypeColumns(sectionTypeNumber(table.drawnAs)).length();
    for (int col = first + dimensions; col < table.columnNames.length(); ++col) {
        const Vor_String& name = table.columnNames[col];
        const bool follows = (known && known->valueOf(name)) || (figures && figures->valueOf(name));
        if (!follows) continue;
        const Vor_String text = !isCalculated ? before[col]
                                : figures     ? figures->textOf(name)
                                              : Vor_String();
        found.push_back({col - first, isCalculated, text});
    }
    return found;
}

int addSize(Vor_ProfValuesTable& table, const NewSize& size) {
    if (!isWholeRow(table, size.pattern)) return -1;
    Vor_StringArray row = table.rows[size.pattern];
    row[Vor_ProfValuesTable::systemNameColumn] = size.name;
    row[Vor_ProfValuesTable::activeColumn] = "1";
    put(row, Vor_ProfValuesTable::firstNameColumn, size.userNames);
    const int firstValue = table.firstValueColumn();
    put(row, firstValue, size.values);
    for (const ShapeValue& each : shapeValues(table, size.pattern, size.values))
        if (!size.typed.contains(each.value)) row[firstValue + each.value] = each.text;
    const int place = placeOf(table, size.name);
    table.rows.insertAt(place, std::move(row));
    return table.getfilteredIdx(place);
}

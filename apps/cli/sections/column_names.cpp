#include "cli/sections/column_names.h"

#include <algorithm>

#include "platform/encodings.h"
#include "sections/section_types.h"

namespace cli {

namespace {

struct ShortName {
    std::string_view name;
    std::string_view column;  ///< of a type, in English
};

// The first one of a column is shown.
constexpr ShortName shortNames[] = {
    {"h", "Height"},
    {"b", "Width"},
    {"b1", "Width1"},
    {"b2", "Width2"},
    {"tw", "Web thickness"},
    {"tf", "Flange thickness"},
    {"t", "Thickness"},
    {"r", "Radius"},
    {"r1", "Root radius"},
    {"r", "Root radius"},
    {"r2", "Toe radius"},
    {"slope", "Flange slope"},
    {"at", "Slope position"},
    {"d", "Diameter"},
    {"c", "Lip height"},
    {"c", "Lip"},
    {"c1", "Lip1"},
    {"c2", "Lip2"},
    {"b1", "Flange width1"},
    {"b2", "Flange width2"},
    {"b1", "Flange1"},
    {"b2", "Flange2"},
    {"f", "Foot"},
    {"l", "Leg"},
    {"angle", "Edge angle"},
    {"e", "Edge length"},
    {"e1", "Edge length1"},
    {"e2", "Edge length2"},
    {"h1", "Web part1"},
    {"h2", "Web part2"},
    {"wd", "Web depth"},
};

bool isShortName(std::string_view name, std::string_view column) {
    return std::ranges::any_of(shortNames, [&](const ShortName& each) {
        return each.column == column && encodings::equalFolded(each.name, name);
    });
}

std::string withoutUnit(const std::string& name) {
    return name.substr(0, name.rfind(' '));
}

}  // namespace

ColumnNames::ColumnNames(const Vor_ProfValuesTable& table) {
    const int type = sectionTypeNumber(table.drawnAs);
    const Vor_StringArray ofType = sectionTypeColumns(type, Language::english);
    const int first = table.firstValueColumn();
    for (int i = 0; first + i < table.columnNames.length(); ++i) {
        Column column;
        column.own = table.columnNames[first + i].str();
        if (ofType.isIndex(i))
            column.inEnglish = ofType[i].str();
        else
            column.withoutUnit = withoutUnit(column.own);
        m_columns.push_back(std::move(column));
    }
}

int ColumnNames::find(std::string_view name) const {
    const auto indexWhere = [&](auto&& fits) {
        const auto found = std::ranges::find_if(m_columns, fits);
        return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
    };
    const auto equal = [&](std::string Column::*which) {
        return [&, which](const Column& column) {
            return encodings::equalFolded(column.*which, name);
        };
    };
    int found = indexWhere(equal(&Column::own));
    if (found < 0) found = indexWhere(equal(&Column::inEnglish));
    if (found < 0)
        found = indexWhere([&](const Column& c) { return isShortName(name, c.inEnglish); });
    return found < 0 ? indexWhere(equal(&Column::withoutUnit)) : found;
}

std::string_view ColumnNames::shown(int column) const {
    const Column& each = m_columns[static_cast<size_t>(column)];
    const auto found = std::ranges::find(shortNames, each.inEnglish, &ShortName::column);
    return found == std::end(shortNames) ? std::string_view(each.own) : found->name;
}

std::vector<std::string> ColumnNames::allNames() const {
    std::vector<std::string> names;
    for (const Column& column : m_columns) {
        names.push_back(column.own);
        if (!column.inEnglish.empty()) names.push_back(column.inEnglish);
        for (const ShortName& each : shortNames)
            if (each.column == column.inEnglish) names.emplace_back(each.name);
        if (!column.withoutUnit.empty()) names.push_back(column.withoutUnit);
    }
    return names;
}

}  // namespace cli

#include "cli/sections/table_search.h"

#include <algorithm>

#include "cli/io/console.h"
#include "cli/io/typed_paths.h"
#include "core_api/files.h"
#include "core_api/record_reader.h"
#include "core_api/text/number_text.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/files.h"
#include "sections/section_area.h"
#include "sections/section_types.h"

namespace cli {

namespace {

using Table = Vor_ProfValuesTable;
using Fields = std::vector<std::string_view>;

std::optional<double> numberIn(std::string_view text) {
    const auto number = takeNumber(text);
    return text.empty() ? number : std::nullopt;
}

/// Calculated figures are compared as they are shown.
std::optional<double> shown(std::optional<double> calculated) {
    return calculated ? std::optional(exchange::asShown(*calculated)) : std::nullopt;
}

/// The two records before the sizes. False when they are not there.
bool readHead(RecordReader& reader, Fields& fields, Table& table, RecordReader::ReadResult& got) {
    if ((got = reader.next(fields)) != RecordReader::ReadResult::record) return false;
    table.drawnAs = fields[0];
    if ((got = reader.next(fields)) != RecordReader::ReadResult::record) return false;
    for (const std::string_view field : fields) table.columnNames.append(field);
    return true;
}

}  // namespace

/// A size where it lies, with what its table says of it.
struct TableSearch::Size {
    const Table& table;
    const Fields& columns;  ///< the value columns
    const Fields& cells;
    size_t firstValue;

    std::span<const std::string_view> values() const {
        return std::span(cells).subspan(std::min(firstValue, cells.size()));
    }
    std::optional<double> value(int column) const {
        const auto all = values();
        const auto at = static_cast<size_t>(column);
        return column >= 0 && at < all.size() ? numberIn(all[at]) : std::nullopt;
    }
    std::optional<double> areaInCm2() const {
        const auto area = sectionArea(table.drawnAs, values());
        return area ? std::optional(*area / mm2PerCm2) : std::nullopt;
    }
    bool hasName(const SectionCondition& condition) const {
        if (condition.holds(table.tableName.str() + "-" + std::string(cells[0]))) return true;
        for (size_t i = Table::firstNameColumn; i < std::min(firstValue, cells.size()); ++i)
            if (!cells[i].empty() && condition.holds(cells[i])) return true;
        return false;
    }
};

TableSearch::TableSearch(std::span<const SectionCondition> conditions, std::string sortColumn,
                         bool inactive)
    : m_conditions(conditions), m_inactive(inactive) {
    for (const SectionCondition& condition : conditions) {
        m_wanted.push_back({condition.column()});
        m_wanted.back().isKnown = condition.isText();
    }
    m_sort.name = std::move(sortColumn);
    m_sort.isKnown = m_sort.name.empty();
}

// A table's own column counts before what can be calculated: areas are published too.
void TableSearch::bind(Wanted& wanted, const ColumnNames& columns) {
    wanted.column = columns.find(wanted.name);
    wanted.special = wanted.name == "mass"                        ? Special::mass
                     : wanted.name == "type"                      ? Special::type
                     : wanted.name == "area" && wanted.column < 0 ? Special::area
                                                                  : Special::no;
    if (wanted.column >= 0 || wanted.special != Special::no) wanted.isKnown = true;
}

void TableSearch::bindAll(const ColumnNames& columns) {
    for (std::string& name : columns.allNames())
        if (std::ranges::find(m_names, name) == m_names.end()) m_names.push_back(std::move(name));
    for (Wanted& wanted : m_wanted) bind(wanted, columns);
    if (!m_sort.name.empty()) bind(m_sort, columns);
}

std::optional<double> TableSearch::valueOf(const Wanted& wanted, const Size& size) const {
    switch (wanted.special) {
        case Special::mass:
            return shown(sectionMass(size.table.drawnAs, size.columns, size.values()));
        case Special::area:
            return shown(size.areaInCm2());
        case Special::type:
            return sectionTypeNumber(size.table.drawnAs);
        default:
            return size.value(wanted.column);
    }
}

bool TableSearch::holds(const Size& size) const {
    for (size_t i = 0; i < m_conditions.size(); ++i) {
        const SectionCondition& condition = m_conditions[i];
        if (condition.column() == "table") continue;  // see leavesOut
        if (condition.isText()) {
            if (!size.hasName(condition)) return false;
            continue;
        }
        const auto value = valueOf(m_wanted[i], size);
        if (!value || !condition.holds(*value)) return false;
    }
    return true;
}

bool TableSearch::leavesOut(const TableFile& file) const {
    return std::ranges::any_of(m_conditions, [&](const SectionCondition& condition) {
        return condition.column() == "table" && !condition.holds(file.name);
    });
}

bool TableSearch::run(const TableFile& file,
                      const std::function<void(const FoundSection&)>& found) {
    if (leavesOut(file)) {
        m_leftOut.push_back(file);
        return true;
    }
    std::string error;
    const auto text = files::readWhole(file.path, error, textFileLimit);
    if (!text) {
        complainText(error);
        return false;
    }
    RecordReader reader(*text);
    Fields cells;
    auto got = RecordReader::ReadResult::record;
    Table table;
    table.tableName = file.name;
    if (readHead(reader, cells, table, got)) {
        const ColumnNames columns(table);
        bindAll(columns);
        const auto firstValue = static_cast<size_t>(table.firstValueColumn());
        Fields valueColumns;
        for (size_t i = firstValue; i < static_cast<size_t>(table.columnNames.length()); ++i)
            valueColumns.push_back(table.columnNames[static_cast<int>(i)]);
        while ((got = reader.next(cells)) == RecordReader::ReadResult::record) {
            const Size size{table, valueColumns, cells, firstValue};
            const bool isInactive = cells.size() > 1 && cells[Table::activeColumn] == "0";
            if ((isInactive && !m_inactive) || !holds(size)) continue;
            Vor_StringArray copy;
            for (const std::string_view cell : cells) copy.append(cell);
            table.rows = {std::move(copy)};
            found({table, columns, m_sort.name.empty() ? std::nullopt : valueOf(m_sort, size)});
        }
    } else if (got == RecordReader::ReadResult::end) {
        complainAt(shownPath(file.path), reader.line() + 1,
                   "the section table has no column names; restore the file");
        return false;
    }
    if (got == RecordReader::ReadResult::end) return true;
    complainAt(shownPath(file.path), reader.line(), RecordReader::damage);
    return false;
}

// What cannot be read was not asked for; 'sections check' tells of it.
void TableSearch::readColumnsOf(const TableFile& file) {
    std::string error;
    const auto text = files::readWhole(file.path, error, textFileLimit);
    if (!text) return;
    RecordReader reader(*text);
    Fields fields;
    auto got = RecordReader::ReadResult::record;
    Table table;
    if (readHead(reader, fields, table, got)) bindAll(ColumnNames(table));
}

std::vector<std::string> TableSearch::unboundColumns() const {
    std::vector<std::string> unknown;
    for (const Wanted& wanted : m_wanted)
        if (!wanted.isKnown) unknown.push_back(wanted.name);
    if (!m_sort.isKnown) unknown.push_back(m_sort.name);
    return unknown;
}

std::vector<std::string> TableSearch::unknownColumns() {
    if (!unboundColumns().empty())
        for (const TableFile& file : m_leftOut) readColumnsOf(file);
    return unboundColumns();
}

}  // namespace cli

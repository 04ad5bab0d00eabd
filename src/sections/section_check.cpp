#include "sections/section_check.h"

#include <algorithm>
#include <optional>
#include <string>

#include "core_api/text/text_helpers.h"
#include "core_api/text/text_index.h"
#include "core_api/texts/texts.h"
#include "sections/section_figures.h"
#include "sections/section_types.h"
#include "sections/value_rules.h"
#include "sections/vor_prof_values_table.h"

namespace {

constexpr int templateLine = 1, headerLine = 2, firstSizeLine = 3;
using Table = Vor_ProfValuesTable;

std::string quoted(const Vor_String& text) {
    return "\"" + text.str() + "\"";
}

/// One reading of a table. Rows and columns of findings are lines and fields of its file.
class SectionCheck {
  public:
    SectionCheck(const Table& table, std::span<const int> lines)
        : m_table(table),
          m_lines(lines),
          m_type(sectionTypeNumber(table.drawnAs)),
          m_columns(sectionTypeColumns(m_type, Language::english)),
          m_firstValue(table.firstValueColumn()) {}

    std::vector<Finding> run() {
        checkTable();
        checkHeader();
        checkNames();
        for (int row = 0; row < m_table.rows.length(); ++row) checkRow(row);
        std::ranges::stable_sort(m_findings, {}, [](const Finding& finding) {
            return std::pair(finding.row, finding.column);
        });
        return std::move(m_findings);
    }

  private:
    using Severity = Finding::Severity;

    /// `column` counts from 0; -1 speaks of the whole row.
    void add(Severity severity, int line, int column, std::string message) {
        const int place = placeOf(line);
        m_findings.push_back({place, place > 0 ? column + 1 : 0, severity, std::move(message)});
    }
    /// Where a line of the table's own file came from.
    int placeOf(int line) const {
        return m_lines.empty() || line < 1 ? line : m_lines[static_cast<size_t>(line - 1)];
    }
    void error(int line, int column, std::string message) {
        add(Severity::error, line, column, std::move(message));
    }
    void warn(int line, int column, std::string message) {
        add(Severity::warning, line, column, std::move(message));
    }

    void checkTable() {
        if (m_table.tableName.findFirstFrom("-", 0) >= 0)
            error(0, -1,
                  "a table's name ends at its first hyphen where sections are asked for; call the "
                  "file otherwise");
        if (m_table.drawnAs.isEmpty())
            warn(templateLine, 0,
                 "nothing says how the sections are drawn; name a type from 1 to " +
                     std::to_string(sectionTypeCount));
        else if (m_type < 0 && !isDrawnTemplate(m_table.drawnAs))
            error(templateLine, 0,
                  quoted(m_table.drawnAs) + " is no type from 1 to " +
                      std::to_string(sectionTypeCount) + " and no .dwg file");
        if (m_table.rows.isEmpty()) warn(0, -1, "the table has no sizes");
    }

    void checkHeader() {
        const Vor_StringArray& header = m_table.columnNames;
        Vor_StringArray expected{"SysName", "I/O"};
        expected.appendAll(gMacroLangs.GetAllLanguages());
        for (int i = 0; i < std::min(header.length(), expected.length()); ++i)
            if (!header[i].equal(expected[i]))
                warn(headerLine, i,
                     quoted(header[i]) + " stands where " + expected[i].str() + " is expected");
        const int wanted = m_firstValue + m_columns.length();
        if (header.length() < wanted)
            error(headerLine, -1,
                  "there are " + std::to_string(header.length()) + " columns; the type needs " +
                      std::to_string(wanted));
        for (int i = 0; i < m_columns.length() && header.isIndex(m_firstValue + i); ++i)
            checkValueColumn(i, header[m_firstValue + i]);
        for (const int index : getDuplicateIndexes(header))
            warn(headerLine, index, "there is a column " + quoted(header[index]) + " before");
    }

    /// It may be called in any language.
    void checkValueColumn(int index, const Vor_String& name) {
        for (int language = 0; language < languageCount; ++language)
            if (sectionTypeColumns(m_type, static_cast<Language>(language))[index].equal(name))
                return;
        warn(headerLine, m_firstValue + index,
             quoted(name) + " stands where the type has " + m_columns[index].str());
    }

    // System names are asked for below the table's, user names of all languages in one index; the
    // first of equal ones is found.
    void checkNames() {
        const int cells = m_table.rows.length() * m_table.getNrLanguages();
        TextIndex systemNames(m_table.rows.length()), userNames(cells);
        for (int row = 0; row < m_table.rows.length(); ++row) {
            const Vor_StringArray& size = m_table.rows[row];
            if (size.isEmpty() || size[Table::systemNameColumn].isEmpty()) {
                error(row + firstSizeLine, Table::systemNameColumn, "the size has no system name");
            } else {
                const Vor_String& name = size[Table::systemNameColumn];
                const int first = systemNames.add(name, row);
                if (first >= 0)
                    error(row + firstSizeLine, Table::systemNameColumn,
                          quoted(name) + " is the system name of line " +
                              std::to_string(placeOf(first + firstSizeLine)) + " already");
            }
            checkUserNames(row, userNames);
        }
    }

    void checkUserNames(int row, TextIndex& userNames) {
        const Vor_StringArray& size = m_table.rows[row];
        const int end = std::min(m_firstValue, size.length());
        bool hasName = false;
        for (int col = Table::firstNameColumn; col < end; ++col) {
            if (size[col].isEmpty()) continue;
            hasName = true;
            const int first = userNames.add(size[col], row);
            if (first >= 0 && first != row)
                return warn(row + firstSizeLine, col,
                            quoted(size[col]) + " names the size of line " +
                                std::to_string(placeOf(first + firstSizeLine)) +
                                ", which is found first");
        }
        if (!hasName)
            warn(row + firstSizeLine, Table::firstNameColumn, "the size has no user name");
    }

    void checkRow(int row) {
        const Vor_StringArray& size = m_table.rows[row];
        const int line = row + firstSizeLine, columns = m_table.columnNames.length();
        if (size.length() != columns)
            error(line, -1,
                  "the size has " + std::to_string(size.length()) + " cells; the header has " +
                      std::to_string(columns));
        if (size.isIndex(Table::activeColumn) && size[Table::activeColumn].view() != "1" &&
            size[Table::activeColumn].view() != "0")
            warn(line, Table::activeColumn,
                 quoted(size[Table::activeColumn]) + " is neither 1 (in use) nor 0");
        checkValues(size, line);
    }

    void checkValues(const Vor_StringArray& size, int line) {
        std::vector<double> values;
        for (int i = 0; i < m_columns.length() && size.isIndex(m_firstValue + i); ++i)
            if (const auto value = valueOf(size[m_firstValue + i], line, i))
                values.push_back(*value);
        if (values.empty() || static_cast<int>(values.size()) != m_columns.length()) return;
        if (const BrokenRule* broken = brokenRule(m_type, values))
            error(line, m_firstValue + broken->value, std::string(broken->message));
        else if (const auto figures = SectionFigures::of(m_type, values))
            checkFigures(*figures, size, line);
    }

    // A size made from another one has its figures until somebody types them.
    void checkFigures(const SectionFigures& figures, const Vor_StringArray& size, int line) {
        const Vor_StringArray& names = m_table.columnNames;
        const int columns = std::min(size.length(), names.length());
        for (int col = m_firstValue + m_columns.length(); col < columns; ++col)
            if (!figures.allows(names[col], size[col]))
                warn(line, col,
                     names[col].str() + " is " + quoted(size[col]) + "; the values give " +
                         figures.textOf(names[col]).str());
    }

    /// Nothing, after telling why, when it cannot be a value of the type.
    std::optional<double> valueOf(const Vor_String& text, int line, int index) {
        const std::string what = m_columns[index].str() + " is " + quoted(text) + ", ";
        const int column = m_firstValue + index;
        if (!isNumber(text)) {
            error(line, column, what + "which is no number");
            return std::nullopt;
        }
        const double value = textToDouble(text);
        if (value > 0 || (value == 0 && mayBeZero(m_columns[index]))) return value;
        error(line, column, what + "which has to be above 0");
        return std::nullopt;
    }

    const Table& m_table;
    std::span<const int> m_lines;
    int m_type;
    Vor_StringArray m_columns;  // of the type, in English
    int m_firstValue;
    std::vector<Finding> m_findings;
};

}  // namespace

std::vector<Finding> checkSectionTable(const Vor_ProfValuesTable& table,
                                       std::span<const int> lines) {
    return SectionCheck(table, lines).run();
}

std::vector<Finding> checkSectionFile(const Vor_String& path) {
    Table table;
    Vor_String message;
    if (!table.readFromPath(path, &message)) return {{0, 0, Finding::Severity::error, message}};
    if (table.columnNames.isEmpty())
        return {{table.rows.length() + 1, 0, Finding::Severity::error,
                 "the section table has no column names; restore the file"}};
    return checkSectionTable(table);
}

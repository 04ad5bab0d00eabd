#include "bill/bill_from_table.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <unordered_map>

#include "bill/column_sums.h"
#include "core_api/text/natural_order.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/bill_text_numbers.h"
#include "core_api/texts/texts.h"

namespace {

constexpr double largestNumber = 99999999999999.0;  // that a number cell of a bill takes
constexpr std::array<std::string_view, 3> totalWords = {"total", "totaal", "gesamt"};

struct TableColumn {
    int index = 0;  ///< in the table
    Vor_String name;
    std::optional<BillField> field;
    BillColumnKind kind = BillColumnKind::text;

    bool isNumber() const { return kind != BillColumnKind::text; }
    bool isSummed() const {
        if (!isNumber()) return false;
        const auto isIn = [&](std::string_view word) { return name.hasSubString(word); };
        return field == BillField::count || field == BillField::totalMass ||
               std::any_of(totalWords.begin(), totalWords.end(), isIn);
    }
};

const Vor_String& cellOf(const Vor_StringArray& row, int index) {
    static const Vor_String none;
    return row.isIndex(index) ? row[index] : none;
}

bool isPlainNumber(std::string_view text) {
    text = trimmed(text);
    const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
    const bool isPadded = digits.size() > 1 && digits[0] == '0' && digits[1] != '.';
    return isNumber(text) && !isPadded && std::abs(textToDouble(text)) <= largestNumber;
}

BillColumnKind kindOf(const Vor_Array<Vor_StringArray>& rows, int index) {
    bool hasNumber = false, isWhole = true;
    for (const Vor_StringArray& row : rows) {
        const Vor_String& cell = cellOf(row, index);
        if (trimmed(cell).empty()) continue;
        if (!isPlainNumber(cell)) return BillColumnKind::text;
        hasNumber = true;
        const double number = textToDouble(cell);
        isWhole = isWhole && number == std::floor(number);
    }
    if (!hasNumber) return BillColumnKind::text;
    return isWhole ? BillColumnKind::whole : BillColumnKind::decimal;
}

class TableBill {
  public:
    TableBill(const Vor_StringArray& header, Vor_Array<Vor_StringArray> rows,
              const TableBillOptions& options)
        : m_rows(std::move(rows)), m_options(options) {
        for (int i = 0; i < header.length(); ++i)
            m_table.push_back({i, header[i], billFieldOfHeading(header[i]), kindOf(m_rows, i)});
    }

    std::optional<Vor_Bill> make(std::string& error) {
        if (!chooseColumns(error)) return std::nullopt;
        if (m_options.countTogether) countTogether();
        order();
        m_bill.title = m_options.title;
        for (const TableColumn* column : m_shown)
            m_bill.columns.push_back({column->name, column->kind});
        addRows();
        return std::move(m_bill);
    }

  private:
    const TableColumn* find(const Vor_String& wanted, std::string& error) const {
        for (const TableColumn& column : m_table)
            if (column.name.equal(wanted)) return &column;
        if (const auto field = billFieldOfHeading(wanted))
            for (const TableColumn& column : m_table)
                if (column.field == field) return &column;
        error = "there is no column \"" + wanted.str() + "\"; the columns are ";
        for (size_t i = 0; i < m_table.size(); ++i)
            error += (i > 0 ? ", " : "") + m_table[i].name.str();
        return nullptr;
    }

    bool chooseColumns(std::string& error) {
        if (m_table.empty()) error = "there is no header with the names of the columns";
        if (m_options.columns.isEmpty())
            for (const TableColumn& column : m_table) m_shown.push_back(&column);
        for (const Vor_String& wanted : m_options.columns) {
            m_shown.push_back(find(wanted, error));
            if (!m_shown.back()) return false;
        }
        if (!m_options.groupBy.isEmpty()) {
            m_group = find(m_options.groupBy, error);
            if (!m_group) return false;
        }
        return !m_table.empty();
    }

    // --- rows -----------------------------------------------------------------------------------

    void countTogether() {
        const bool hasCount = std::any_of(m_table.begin(), m_table.end(), [](const auto& column) {
            return column.field == BillField::count && column.isSummed();
        });
        if (!hasCount) return;
        Vor_Array<Vor_StringArray> counted;
        std::unordered_map<std::string, int> places;
        for (Vor_StringArray& row : m_rows) {
            const auto [place, isNew] = places.emplace(keyOf(row), counted.length());
            if (isNew)
                counted.append(std::move(row));
            else
                addUp(counted[place->second], row);
        }
        m_rows = std::move(counted);
    }

    /// Everything but what is summed up.
    std::string keyOf(const Vor_StringArray& row) const {
        std::string key;
        const int length = std::max(row.length(), static_cast<int>(m_table.size()));
        for (int i = 0; i < length; ++i) {
            const bool isSummed = static_cast<size_t>(i) < m_table.size() &&
                                  m_table[static_cast<size_t>(i)].isSummed();
            if (!isSummed) key.append(cellOf(row, i).view());
            key += '\n';
        }
        return key;
    }

    void addUp(Vor_StringArray& row, const Vor_StringArray& other) const {
        for (const TableColumn& column : m_table) {
            if (!column.isSummed() || trimmed(cellOf(other, column.index)).empty()) continue;
            if (!row.isIndex(column.index)) row.setLength(column.index + 1);
            row[column.index] =
                billNumber(textToDouble(row[column.index]) + textToDouble(other[column.index]));
        }
    }

    void order() {
        m_order.resize(static_cast<size_t>(m_rows.length()));
        std::iota(m_order.begin(), m_order.end(), 0);
        if (m_group)
            std::stable_sort(m_order.begin(), m_order.end(), [&](int a, int b) {
                return compareNames(groupOf(m_rows[a]), groupOf(m_rows[b])) < 0;
            });
    }
    const Vor_String& groupOf(const Vor_StringArray& row) const {
        return cellOf(row, m_group->index);
    }

    void addRows() {
        std::vector<bool> summed;
        for (const TableColumn* column : m_shown) summed.push_back(column->isSummed());
        ColumnSums groupSums(summed), sums(summed);
        const auto endGroup = [&] {
            if (m_bill.groups.empty()) return;
            BillGroup& group = m_bill.groups.back();
            group.rowCount = static_cast<int>(m_bill.rows.size()) - group.firstRow;
            if (sums.hasAny())
                group.subtotals = groupSums.cells(m_bill.columns, subtotalLabel(group.name));
            groupSums.clear();
        };
        m_bill.rows.reserve(m_order.size());
        for (const int index : m_order) {
            const Vor_StringArray& row = m_rows[index];
            if (m_group &&
                (m_bill.groups.empty() || !m_bill.groups.back().name.equal(groupOf(row)))) {
                endGroup();
                m_bill.groups.push_back(
                    {groupOf(row), static_cast<int>(m_bill.rows.size()), 0, {}});
            }
            for (size_t i = 0; i < m_shown.size(); ++i) {
                const Vor_String& cell = cellOf(row, m_shown[i]->index);
                if (!sums.isSummed(i) || trimmed(cell).empty()) continue;
                sums.add(i, textToDouble(cell));
                groupSums.add(i, textToDouble(cell));
            }
            m_bill.rows.push_back({shownCells(row), pieceOf(row)});
        }
        endGroup();
        if (sums.hasAny() && !m_bill.rows.empty())
            m_bill.totals = sums.cells(m_bill.columns, dialString(texts::billTotal));
    }

    Vor_StringArray shownCells(const Vor_StringArray& row) const {
        Vor_StringArray cells;
        cells.reserve(row.length());
        for (const TableColumn* column : m_shown) {
            const Vor_String& cell = cellOf(row, column->index);
            cells.append(column->isNumber() ? Vor_String(trimmed(cell)) : cell);
        }
        // What lies beyond the header is kept where all columns are.
        if (m_options.columns.isEmpty())
            for (int i = cells.length(); i < row.length(); ++i) cells.append(row[i]);
        return cells;
    }

    std::optional<Vor_BillPart> pieceOf(const Vor_StringArray& row) const {
        Vor_BillPart piece;
        const auto size = [&](const Vor_String& cell) { return std::max(textToDouble(cell), 0.0); };
        for (const TableColumn& column : m_table) {
            const Vor_String& cell = cellOf(row, column.index);
            if (column.field == BillField::name) piece.name = cell;
            if (column.field == BillField::section) piece.section = trimmed(cell);
            if (column.field == BillField::length) piece.length = size(cell);
            if (column.field == BillField::width) piece.width = size(cell);
            if (column.field == BillField::thickness) piece.thickness = size(cell);
        }
        return knownPiece(std::move(piece));
    }

    /// By its section: "M20" is a bolt, "PL 10" a plate, as is what has a thickness; all else is a
    /// profile. Nothing without a section and sizes.
    static std::optional<Vor_BillPart> knownPiece(Vor_BillPart piece) {
        const std::string_view section = piece.section;
        const auto numberBehind = [&](std::string_view letters) {
            const bool begins = piece.section.beginsWith(letters);
            const std::string_view rest = begins ? trimmed(section.substr(letters.size())) : "";
            return isNumber(rest) ? textToDouble(rest) : 0.0;
        };
        if (const double diameter = numberBehind("M"); diameter > 0) {
            piece.kind = BillPartKind::bolt;
            piece.diameter = diameter;
            return piece;
        }
        if (piece.thickness == 0) piece.thickness = numberBehind("PL");
        if (piece.thickness > 0 || section.empty()) {
            piece.kind = BillPartKind::plate;
            if (piece.length > 0 && piece.width > 0) return piece;
            return std::nullopt;
        }
        piece.kind = BillPartKind::profile;
        return piece;
    }

    Vor_Array<Vor_StringArray> m_rows;
    const TableBillOptions& m_options;
    std::vector<TableColumn> m_table;
    std::vector<const TableColumn*> m_shown;
    const TableColumn* m_group = nullptr;
    std::vector<int> m_order;
    Vor_Bill m_bill;
};

}  // namespace

std::optional<Vor_Bill> billFromTable(const Vor_StringArray& header,
                                      Vor_Array<Vor_StringArray> rows,
                                      const TableBillOptions& options, std::string& error) {
    return TableBill(header, std::move(rows), options).make(error);
}

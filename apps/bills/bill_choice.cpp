#include "bills/bill_choice.h"

#include <algorithm>
#include <filesystem>

#include "bill/bill_from_table.h"
#include "bill/macro_parts.h"
#include "bills/bill_table.h"
#include "core_api/macros/macro_file.h"
#include "core_api/text/text_helpers.h"
#include "platform/paths.h"
#include "sections/section_area.h"
#include "sections/section_figures.h"

namespace bills {

namespace {

std::string codesOf(int count, std::string_view (*codeOf)(BillField)) {
    std::string codes;
    for (int i = 0; i < count; ++i)
        codes.append(i > 0 ? ", " : "").append(codeOf(static_cast<BillField>(i)));
    return codes;
}

std::optional<double> massOf(std::string_view section) {
    return sectionMass(section);
}

class BillMaker {
  public:
    BillMaker(const BillChoice& choice, std::string& error) : m_choice(choice), m_error(error) {}

    std::optional<Vor_Bill> make() { return m_choice.isTable() ? fromTable() : fromMacros(); }
    bool isWrongCall() const { return m_isWrongCall; }

  private:
    std::optional<Vor_Bill> fromTable() {
        const std::optional<BillTable> table = readBillTable(m_choice.table, m_error);
        if (!table) return std::nullopt;
        TableBillOptions options;
        options.title = m_choice.title;
        options.columns = m_choice.columns;
        if (!m_choice.group.equal("none")) options.groupBy = m_choice.group;
        options.countTogether = !options.groupBy.isEmpty();
        std::string why;
        auto bill = billFromTable(table->header, table->rows, options, why);
        if (!bill) m_error = m_choice.table.str() + ": " + why;
        m_isWrongCall = !bill;  // the table has a header: a column that was named is none of it
        return bill;
    }

    std::optional<Vor_Bill> fromMacros() {
        PartBillOptions options;
        options.title = m_choice.title;
        if (!takeFields(options) || !takeGrouping(options)) {
            m_isWrongCall = true;
            return std::nullopt;
        }
        std::vector<Vor_BillPart> parts;
        for (int i = 0; i < m_choice.macros.length(); ++i)
            if (m_choice.macros.find(m_choice.macros[i]) == i &&
                !addMacro(m_choice.macros[i], parts))
                return std::nullopt;
        return billFromParts(std::move(parts), options);
    }

    bool addMacro(const Vor_String& path, std::vector<Vor_BillPart>& parts) {
        Vor_DbMacro macro;
        Vor_String why;
        const Vor_DbMacro* open = m_choice.openMacro ? m_choice.openMacro(path) : nullptr;
        if (open) macro = *open;
        if (!open && loadMacro(path, macro, why) != Acad::eOk) {
            m_error = why.str();
            return false;
        }
        long long times = 0;
        for (const Vor_String& each : m_choice.macros) times += each == path;
        for (Vor_BillPart& part : partsOfMacro(macro, massOf)) {
            part.count *= times;
            parts.push_back(std::move(part));
        }
        return true;
    }

    bool takeFields(PartBillOptions& options) {
        if (m_choice.columns.isEmpty()) return true;
        options.fields.clear();
        for (const Vor_String& column : m_choice.columns) {
            const auto field = billFieldOfHeading(column);
            if (!field) {
                m_error = "there is no column \"" + column.str() + "\"; the columns are " +
                          codesOf(billFieldCount, billFieldCode);
                return false;
            }
            options.fields.push_back(*field);
        }
        return true;
    }

    bool takeGrouping(PartBillOptions& options) {
        if (m_choice.group.isEmpty()) return true;
        const auto grouping = billGroupingOfCode(m_choice.group);
        if (grouping) options.grouping = *grouping;
        if (!grouping)
            m_error = "macros are not grouped by \"" + m_choice.group.str() +
                      "\"; choose none, kind, section or material";
        return grouping.has_value();
    }

    const BillChoice& m_choice;
    std::string& m_error;
    bool m_isWrongCall = false;
};

/// -1 when the bill has none.
int columnOf(const Vor_Bill& bill, BillField field) {
    const Vor_String name = billFieldName(field);
    int column = -1;
    for (int i = 0; i < static_cast<int>(bill.columns.size()); ++i)
        if (bill.columns[static_cast<size_t>(i)].name.equal(name)) column = i;
    return column;
}

}  // namespace

std::optional<Vor_Bill> makeBill(const BillChoice& choice, std::string& error, bool* isWrongCall) {
    BillMaker maker(choice, error);
    auto bill = maker.make();
    if (isWrongCall) *isWrongCall = maker.isWrongCall();
    return bill;
}

bool isSource(const BillChoice& choice, const Vor_String& target) {
    const auto isTarget = [&](const Vor_String& file) { return isSameFile(file, target); };
    return (choice.isTable() && isTarget(choice.table)) ||
           std::any_of(choice.macros.begin(), choice.macros.end(), isTarget);
}

bool isSameFile(const Vor_String& a, const Vor_String& b) {
    std::error_code error;  // one of them does not exist
    return std::filesystem::equivalent(paths::toMachine(a), paths::toMachine(b), error);
}

Vor_StringArray rowsWithoutMass(const Vor_Bill& bill) {
    Vor_StringArray names;
    const int column = columnOf(bill, BillField::totalMass);
    for (const BillRow& row : bill.rows)
        if (row.piece && row.cells.isIndex(column) && row.cells[column].isEmpty())
            names.append(row.piece->name + " (" + row.piece->section.str() + ")");
    return names;
}

Vor_StringArray doubtfulMasses(const Vor_Bill& bill) {
    Vor_StringArray texts;
    if (columnOf(bill, BillField::totalMass) < 0 && columnOf(bill, BillField::mass) < 0)
        return texts;
    for (const BillRow& row : bill.rows) {
        const bool isWeighed = row.piece && row.piece->mass;  // tables bring their own masses
        const auto doubt = isWeighed ? doubtfulMass(row.piece->section) : std::nullopt;
        if (!doubt) continue;
        const Vor_String text =
            row.piece->section + " (" + doubt->printed + " / " + doubt->calculated + " kg/m)";
        if (!texts.contains(text)) texts.append(text);
    }
    return texts;
}

}  // namespace bills

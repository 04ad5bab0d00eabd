#include "bill/bill_from_parts.h"

#include <algorithm>
#include <cmath>

#include "bill/column_sums.h"
#include "core_api/text/natural_order.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/bill_text_numbers.h"
#include "core_api/texts/texts.h"
#include "platform/encodings.h"

namespace {

constexpr std::array<std::string_view, 4> groupingCodes = {"none", "kind", "section", "material"};
constexpr int longestNames = 60;  // bytes of the names of pieces that are counted together

Vor_String groupName(const Vor_BillPart& part, BillGrouping grouping) {
    switch (grouping) {
        case BillGrouping::kind:
            return billPartKindName(part.kind);
        case BillGrouping::section:
            return part.section;
        case BillGrouping::material:
            return part.material;
        case BillGrouping::none:
            break;
    }
    return {};
}

bool comesBefore(const Vor_BillPart& a, const Vor_BillPart& b, BillGrouping grouping) {
    if (grouping == BillGrouping::section || grouping == BillGrouping::material) {
        const Vor_String first = groupName(a, grouping), second = groupName(b, grouping);
        if (const int order = compareNames(first, second)) return order < 0;
    }
    return comparePieces(a, b) < 0;
}

/// Names are joined as long as there is room; each stands once.
void addName(Vor_String& names, const Vor_String& name) {
    const Vor_StringArray known = splitStringAtSymbol(names, ',', true);
    const bool isKnown = std::any_of(known.begin(), known.end(),
                                     [&](const Vor_String& each) { return each.equal(name); });
    if (isKnown || name.isEmpty() || names.endsWith("\x85")) return;
    if (names.length() + name.length() > longestNames)
        names += names.isEmpty() ? name.view() : ", \x85";
    else
        names += (names.isEmpty() ? "" : ", ") + name;
}

std::vector<Vor_BillPart> countedTogether(std::vector<Vor_BillPart> parts, BillGrouping grouping) {
    std::stable_sort(parts.begin(), parts.end(),
                     [&](const auto& a, const auto& b) { return comesBefore(a, b, grouping); });
    std::vector<Vor_BillPart> counted;
    for (Vor_BillPart& part : parts) {
        if (counted.empty() || !isSamePiece(counted.back(), part)) {
            counted.push_back(std::move(part));
            continue;
        }
        counted.back().count += part.count;
        addName(counted.back().name, part.name);
    }
    return counted;
}

/// The number in a field of numbers; nothing where it is not known.
std::optional<double> numberOf(const Vor_BillPart& part, BillField field) {
    const auto known = [](double size) { return size > 0 ? std::optional(size) : std::nullopt; };
    switch (field) {
        case BillField::length:
            return known(part.length);
        case BillField::width:
            return known(part.width);
        case BillField::thickness:
            return known(part.thickness);
        case BillField::count:
            return static_cast<double>(part.count);
        case BillField::mass:
            return part.mass;
        case BillField::totalMass:
            if (!part.mass) return std::nullopt;
            return *part.mass * static_cast<double>(part.count);
        default:
            return std::nullopt;
    }
}

Vor_String textOf(const Vor_BillPart& part, BillField field) {
    switch (field) {
        case BillField::name:
            return part.name;
        case BillField::kind:
            return billPartKindName(part.kind);
        case BillField::section:
            return part.section;
        case BillField::material:
            return part.material;
        default:
            break;
    }
    const std::optional<double> number = numberOf(part, field);
    return number ? billNumber(*number) : Vor_String();
}

BillColumnKind kindOf(BillField field, const std::vector<Vor_BillPart>& parts) {
    switch (field) {
        case BillField::position:
        case BillField::count:
            return BillColumnKind::whole;
        case BillField::mass:
        case BillField::totalMass:
            return BillColumnKind::decimal;
        case BillField::length:
        case BillField::width:
        case BillField::thickness:
            break;
        default:
            return BillColumnKind::text;
    }
    const bool isWhole = std::all_of(parts.begin(), parts.end(), [&](const auto& part) {
        const double size = numberOf(part, field).value_or(0);
        return size == std::floor(size);
    });
    return isWhole ? BillColumnKind::whole : BillColumnKind::decimal;
}

class PartBill {
  public:
    PartBill(std::vector<Vor_BillPart> parts, const PartBillOptions& options)
        : m_parts(countedTogether(std::move(parts), options.grouping)),
          m_options(options),
          m_groupSums(summedColumns()),
          m_sums(m_groupSums) {}

    Vor_Bill make() {
        m_bill.title = m_options.title;
        for (const BillField field : m_options.fields)
            m_bill.columns.push_back({billFieldName(field), kindOf(field, m_parts)});
        for (const Vor_BillPart& part : m_parts) addPart(part);
        endGroup();
        if (m_sums.hasAny() && !m_bill.rows.empty())
            m_bill.totals = m_sums.cells(m_bill.columns, dialString(texts::billTotal));
        return std::move(m_bill);
    }

  private:
    std::vector<bool> summedColumns() const {
        std::vector<bool> summed;
        for (const BillField field : m_options.fields)
            summed.push_back(field == BillField::count || field == BillField::totalMass);
        return summed;
    }

    void addPart(const Vor_BillPart& part) {
        if (m_options.grouping != BillGrouping::none)
            enterGroup(groupName(part, m_options.grouping));
        BillRow row;
        for (size_t i = 0; i < m_options.fields.size(); ++i) {
            const BillField field = m_options.fields[i];
            row.cells.append(field == BillField::position
                                 ? Vor_String(std::to_string(m_bill.rows.size() + 1))
                                 : textOf(part, field));
            const std::optional<double> number = numberOf(part, field);
            if (!m_sums.isSummed(i) || !number) continue;
            m_sums.add(i, *number);
            m_groupSums.add(i, *number);
        }
        row.piece = part;
        m_bill.rows.push_back(std::move(row));
    }

    void enterGroup(const Vor_String& name) {
        if (!m_bill.groups.empty() && m_bill.groups.back().name.equal(name)) return;
        endGroup();
        m_bill.groups.push_back({name, static_cast<int>(m_bill.rows.size()), 0, {}});
    }

    void endGroup() {
        if (m_bill.groups.empty()) return;
        BillGroup& group = m_bill.groups.back();
        group.rowCount = static_cast<int>(m_bill.rows.size()) - group.firstRow;
        if (m_groupSums.hasAny())
            group.subtotals = m_groupSums.cells(m_bill.columns, subtotalLabel(group.name));
        m_groupSums.clear();
    }

    std::vector<Vor_BillPart> m_parts;
    const PartBillOptions& m_options;
    ColumnSums m_groupSums, m_sums;
    Vor_Bill m_bill;
};

}  // namespace

std::optional<BillGrouping> billGroupingOfCode(std::string_view code) {
    for (size_t i = 0; i < groupingCodes.size(); ++i)
        if (encodings::equalFolded(groupingCodes[i], code)) return static_cast<BillGrouping>(i);
    return std::nullopt;
}

Vor_Bill billFromParts(std::vector<Vor_BillPart> parts, const PartBillOptions& options) {
    return PartBill(std::move(parts), options).make();
}

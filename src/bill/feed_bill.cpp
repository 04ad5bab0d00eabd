#include "bill/feed_bill.h"

#include "bill/bill_pictures.h"

namespace {

class Feed {
  public:
    Feed(Vor_Bill& bill, Vor_ListOutputCallback& output, const BillProgress& progress)
        : m_bill(bill), m_output(output), m_progress(progress) {}

    BillFeed run() {
        if (m_output.onStartFeed() != Acad::eOk) return BillFeed::failed;
        const bool isWhole = feedRows();
        m_bill.currentRow = -1;
        if (!isWhole) {
            closeBMPDialog();  // the output has no end at which it would
            return BillFeed::cancelled;
        }
        if (!m_bill.totals.isEmpty()) m_output.onAddSubTotals(m_bill.totals, {}, true, rowCount());
        return m_output.onEndFeed() == Acad::eOk ? BillFeed::done : BillFeed::failed;
    }

  private:
    int rowCount() const { return static_cast<int>(m_bill.rows.size()); }

    bool feedRows() {
        if (m_bill.groups.empty()) return feedRows(0, rowCount());
        bool isFirst = true;
        for (const BillGroup& group : m_bill.groups) {
            if (!isFirst) m_output.onAddSeperation();
            isFirst = false;
            if (!feedRows(group.firstRow, group.rowCount)) return false;
            if (!group.subtotals.isEmpty())
                m_output.onAddSubTotals(group.subtotals, {group.name}, false, group.rowCount);
        }
        return true;
    }

    bool feedRows(int first, int count) {
        for (int row = first; row < first + count; ++row) {
            if (m_progress && !m_progress(row, rowCount())) return false;
            m_bill.currentRow = row;
            m_output.onAddRow(m_bill.rows[static_cast<size_t>(row)].cells);
        }
        return true;
    }

    Vor_Bill& m_bill;
    Vor_ListOutputCallback& m_output;
    const BillProgress& m_progress;
};

}  // namespace

BillFeed feedBill(Vor_Bill& bill, Vor_ListOutputCallback& output, const BillProgress& progress) {
    return Feed(bill, output, progress).run();
}

#include "workbench/grid/layout_follower.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableView>

#include "workbench/grid/cell_font.h"

namespace {

// Sections that were taken away come back with the usual size.
void forgetBeyond(std::map<int, int>& sizes, std::set<int>& hidden, int count) {
    sizes.erase(sizes.upper_bound(count), sizes.end());
    hidden.erase(hidden.upper_bound(count), hidden.end());
}

}  // namespace

bool LayoutFollower::follow() {
    const bool isSame = m_zoom == m_shownZoom && m_revision == m_grid.sidesRevision() &&
                        m_colCount == m_grid.cols() && m_rowCount == m_grid.rows();
    if (isSame) return false;
    m_revision = m_grid.sidesRevision();
    m_colCount = m_grid.cols();
    m_rowCount = m_grid.rows();
    if (m_zoom != m_shownZoom) m_cols.sizes = m_rows.sizes = {};
    m_shownZoom = m_zoom;
    m_isFollowing = true;
    const control::SideTables& sides = m_grid.sides();
    followBand(*m_view.horizontalHeader(), sides.cols, m_colCount, m_cols);
    followBand(*m_view.verticalHeader(), sides.rows, m_rowCount, m_rows);
    m_view.horizontalHeader()->setVisible(sides.columnHeaders);
    m_view.verticalHeader()->setVisible(sides.rowHeaders);
    followSpans();
    m_isFollowing = false;
    return true;
}

void LayoutFollower::followBand(QHeaderView& header, const control::Band& band, int count,
                                Sections& known) const {
    forgetBeyond(known.sizes, known.hidden, count);
    // Without updates a header does not look for the place of each section that changes, which
    // would take the square of their number; without signals the view does not lay out each time.
    const QSignalBlocker blocker(header);
    header.setUpdatesEnabled(false);
    const int usual = zoomed(band.defaultSize, m_zoom);
    if (header.defaultSectionSize() != usual) {
        header.setDefaultSectionSize(usual);
        known.sizes.clear();  // all sections have the usual size now
    }
    if (known.sizes != band.sizes) {
        for (const auto& [index, size] : known.sizes)
            if (!band.sizes.contains(index)) header.resizeSection(index - 1, usual);
        for (const auto& [index, size] : band.sizes)
            if (index <= count) header.resizeSection(index - 1, zoomed(size, m_zoom));
        known.sizes = band.sizes;
    }
    if (known.hidden != band.hidden) {
        for (const int index : known.hidden)
            if (!band.hidden.contains(index)) header.showSection(index - 1);
        for (const int index : band.hidden)
            if (index <= count) header.hideSection(index - 1);
        known.hidden = band.hidden;
    }
    header.setUpdatesEnabled(true);
}

void LayoutFollower::followSpans() {
    std::vector<control::Span> spans = m_grid.sides().spans.all();
    std::erase_if(spans, [](const control::Span& span) { return span.col < 1 || span.row < 1; });
    if (spans == m_spans) return;
    m_view.clearSpans();
    for (const control::Span& span : spans)
        m_view.setSpan(span.row - 1, span.col - 1, span.rows, span.cols);
    m_spans = std::move(spans);
}

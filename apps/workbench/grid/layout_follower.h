// Keeps the sections and spans of a table view as those of its grid. Only what differs from the
// last time is passed on: a sheet of 100,000 rows has a handful of sizes of its own.
#pragma once

#include <map>
#include <set>
#include <vector>

#include "spread/control/grid.h"

class QHeaderView;
class QTableView;

class LayoutFollower {
  public:
    LayoutFollower(const control::Grid& grid, QTableView& view) : m_grid(grid), m_view(view) {}

    /// True when anything but cells may have changed since the last time.
    bool follow();
    /// Percent.
    void setZoom(int zoom) { m_zoom = zoom; }
    /// While it passes sizes on, what the headers tell is not user input.
    bool isFollowing() const { return m_isFollowing; }

  private:
    struct Sections {
        std::map<int, int> sizes;
        std::set<int> hidden;
    };
    void followBand(QHeaderView& header, const control::Band& band, int count,
                    Sections& known) const;
    void followSpans();

    const control::Grid& m_grid;
    QTableView& m_view;
    Sections m_cols;
    Sections m_rows;
    std::vector<control::Span> m_spans;
    uint64_t m_revision = 0;
    int m_colCount = -1;
    int m_rowCount = -1;
    int m_zoom = 100;
    int m_shownZoom = 100;
    bool m_isFollowing = false;
};

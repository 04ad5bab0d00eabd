#include "workbench/grid/grid_model.h"

#include "spread/control/formula/lexer.h"
#include "workbench/window/dialog_font.h"

using control::Reading;

GridModel::GridModel(const control::Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), m_grid(grid), m_rows(grid.rows()), m_cols(grid.cols()) {}

bool GridModel::follow() {
    const bool rows = followRows(), cols = followCols();
    return rows || cols;
}

bool GridModel::followRows() {
    const int rows = m_grid.rows();
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    } else {
        return false;
    }
    return true;
}

bool GridModel::followCols() {
    const int cols = m_grid.cols();
    if (cols > m_cols) {
        beginInsertColumns({}, m_cols, cols - 1);
        m_cols = cols;
        endInsertColumns();
    } else if (cols < m_cols) {
        beginRemoveColumns({}, cols, m_cols - 1);
        m_cols = cols;
        endRemoveColumns();
    } else {
        return false;
    }
    return true;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_cols;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) return {};
    const int col = index.column() + 1, row = index.row() + 1;
    const control::CellType& type = m_grid.format(col, row).type;
    if (type.kind == control::CellKind::button) return toQt(type.text);
    std::string buffer;
    return toQt(m_grid.text(col, row, Reading::data, buffer));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    return orientation == Qt::Horizontal ? columnHeaderText(m_grid, section + 1)
                                         : rowHeaderText(m_grid, section + 1);
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

QString columnHeaderText(const control::Grid& grid, int col) {
    std::string buffer;
    const auto text = grid.text(col, control::headerIndex, Reading::data, buffer);
    if (!text.empty()) return toQt(text);
    return grid.referenceStyle() == 2 ? QString::number(col) : toQt(formula::columnLetters(col));
}

QString rowHeaderText(const control::Grid& grid, int row) {
    std::string buffer;
    const auto text = grid.text(control::headerIndex, row, Reading::data, buffer);
    return text.empty() ? QString::number(row) : toQt(text);
}

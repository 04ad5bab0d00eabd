#include "workbench/window/item_model.h"

#include <utility>

#include "workbench/window/dialog_font.h"
#include "workbench/window/pictures.h"

ItemModel::ItemModel(const ItemControl& items, Check check, QObject* parent)
    : QAbstractListModel(parent), m_items(&items), m_check(std::move(check)) {}

void ItemModel::refresh() {
    beginResetModel();
    m_pictures.clear();
    endResetModel();
}

void ItemModel::forget() {
    beginResetModel();
    m_items = nullptr;
    endResetModel();
}

bool ItemModel::isCheckList() const {
    return m_items->hasStyle(styleCheckList);
}

int ItemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !m_items ? 0 : m_items->count();
}

QVariant ItemModel::data(const QModelIndex& index, int role) const {
    if (!m_items || !index.isValid() || index.row() >= m_items->count()) return {};
    const ItemControl::Item& item = m_items->at(index.row());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return toQt(item.text);
        case Qt::CheckStateRole:
            if (isCheckList()) return item.isChecked ? Qt::Checked : Qt::Unchecked;
            break;
        case Qt::DecorationRole:
            if (!item.picture.isEmpty()) return picture(index.row());
            break;
        case Qt::TextAlignmentRole:
            if (m_items->hasStyle(styleThumbnails)) return int(Qt::AlignHCenter | Qt::AlignTop);
            break;
        default:
            break;
    }
    return {};
}

QPixmap ItemModel::picture(int index) const {
    m_pictures.resize(static_cast<size_t>(m_items->count()));
    auto& known = m_pictures[static_cast<size_t>(index)];
    if (!known) known = pixmapOf(m_items->at(index).picture);
    return *known;
}

bool ItemModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!m_items || role != Qt::CheckStateRole || !isCheckList()) return false;
    m_check(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags ItemModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    if (m_items && isCheckList()) flags |= Qt::ItemIsUserCheckable;
    return flags;
}

// The items of a list or a combo as Qt asks for them; nothing is copied.
#pragma once

#include <QAbstractListModel>
#include <QPixmap>
#include <functional>
#include <optional>
#include <vector>

#include "platform/window/controls.h"

class ItemModel : public QAbstractListModel {
  public:
    using Check = std::function<void(int index, bool checked)>;

    /// `items` is borrowed. `check` is called when a user ticks an item.
    ItemModel(const ItemControl& items, Check check, QObject* parent);

    /// The items are others now.
    void refresh();
    /// The control goes.
    void forget();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    bool isCheckList() const;
    QPixmap picture(int index) const;

    const ItemControl* m_items;
    Check m_check;
    mutable std::vector<std::optional<QPixmap>> m_pictures;
};

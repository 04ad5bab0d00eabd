// By which columns the rows of a block are sorted.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>

#include "spread/editor/sheet_editor.h"

class SortDialog : public QDialog {
  public:
    SortDialog(const control::Grid& grid, const control::Block& block, QWidget* parent);

    std::vector<editor::SortKey> keys() const;
    bool hasTitles() const { return m_hasTitles->isChecked(); }
    /// Of the key `number` from 0 to 2.
    QComboBox& column(int number) const { return *m_keys[number].column; }
    QComboBox& order(int number) const { return *m_keys[number].order; }
    QCheckBox& titles() const { return *m_hasTitles; }

  private:
    void nameColumns();

    struct Key {
        QComboBox* column = nullptr;
        QComboBox* order = nullptr;
    };
    const control::Grid& m_grid;
    control::Block m_block;
    Key m_keys[3];
    QCheckBox* m_hasTitles;
};

// The page of one section table: its sizes and their values to look at, in any order.
#pragma once

#include <QStandardItemModel>
#include <QTableView>

#include "core_api/sections/section_table.h"

class TablePage : public QWidget {
  public:
    /// `path` is the file's, host style.
    TablePage(const Vor_String& path, const SectionTable& table, QWidget* parent = nullptr);

    QTableView& table() { return *m_view; }

  private:
    void fill(const SectionTable& table);

    QStandardItemModel m_model;
    QTableView* m_view;
};

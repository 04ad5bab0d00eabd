// Picking a section from the library's tables: tables on the left, their sizes with all values on
// the right.
#pragma once

#include <QDialog>
#include <QListWidget>
#include <QTableWidget>

class SectionPicker : public QDialog {
  public:
    SectionPicker(const QString& present, QWidget* parent);
    /// The full system name ("IPE-300"); empty when nothing is selected.
    QString chosen() const;

    /// Empty when cancelled.
    static QString ask(QWidget* parent, const QString& present);

  private:
    void showTable(int index);
    void select(const QString& name);

    QListWidget* m_tables;
    QTableWidget* m_sizes;
};

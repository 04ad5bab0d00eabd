// Asks what a bill is made of, what it shows and where it goes.
#pragma once

#include <QDialog>

#include "bills/bill_choice.h"
#include "bills/bill_sheet.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QTableWidget;

class BillDialog : public QDialog {
  public:
    /// The macros of the library, and `macros` beyond it; those are ticked.
    BillDialog(const Vor_StringArray& macros, QWidget* parent);

    bills::BillChoice choice() const;
    bills::BillTarget target() const;

    void accept() override;

    QTableWidget& macros() { return *m_macros; }
    QListWidget& columns() { return *m_columns; }
    QComboBox& group() { return *m_group; }
    QLineEdit& file() { return *m_file; }
    QCheckBox& pictures() { return *m_pictures; }
    QLineEdit& title() { return *m_title; }
    QLabel& message() { return *m_message; }
    /// As if it had been chosen as a file; a machine path.
    void useTable(const QString& path);

  private:
    QWidget* makeSources(const Vor_StringArray& ticked);
    QWidget* makeChoices();
    void addMacro(const Vor_String& path, bool isTicked);
    void chooseTable();
    void chooseTarget();
    void showColumns();
    void complain(const QString& text);
    bool isTable() const;
    bool mayReplace(const Vor_String& file) const;

    QRadioButton* m_fromMacros = nullptr;
    QRadioButton* m_fromTable = nullptr;
    QTableWidget* m_macros = nullptr;
    QLineEdit* m_table = nullptr;
    QListWidget* m_columns = nullptr;
    QComboBox* m_group = nullptr;
    QCheckBox* m_pictures = nullptr;
    QLineEdit* m_title = nullptr;
    QComboBox* m_settings = nullptr;
    QLineEdit* m_file = nullptr;
    QLabel* m_message = nullptr;
    QString m_confirmed;  ///< the file that the chooser gave
};

// Everything that a sheet's settings say about fonts and paper.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <map>

#include "spread/tw_sheet_settings.h"

class SheetSettingsDialog : public QDialog {
  public:
    SheetSettingsDialog(const TwSheetSettings& settings, QWidget* parent);

    /// As the fields are now.
    TwSheetSettings settings() const;
    QTableWidget& variables() const { return *m_variables; }
    QSpinBox& margin(int number) const { return *m_margins[number]; }
    void accept() override;

  private:
    QWidget* makeFiles();
    QWidget* makePrinting();
    QWidget* makeVariables();
    QLineEdit* addFile(class QFormLayout& form, int title, const Vor_String& path);
    void addVariable(const Vor_String& name, const Vor_String& value);

    TwSheetSettings m_settings;
    QLineEdit* m_header = nullptr;
    QLineEdit* m_footer = nullptr;
    QComboBox* m_font = nullptr;
    QSpinBox* m_height = nullptr;
    QSpinBox* m_margins[4] = {};    // left, right, top, bottom
    QCheckBox* m_switches[6] = {};  // in the order of the settings
    QTableWidget* m_variables = nullptr;
};

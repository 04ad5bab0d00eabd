// The workbench's settings.
#pragma once

#include <QDialog>

#include "workbench/shell/workbench_settings.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

class SettingsDialog : public QDialog {
  public:
    SettingsDialog(const WorkbenchSettings& settings, QWidget* parent);
    /// As they were given, with what the user changed.
    WorkbenchSettings settings() const;

  private:
    void chooseFolder();

    WorkbenchSettings m_settings;
    QLineEdit* m_library;
    QLineEdit* m_author;
    QComboBox* m_language;
    QComboBox* m_scale;
    QCheckBox* m_diagnostics;
    QCheckBox* m_outside;
};

// The page of one macro: every value in it that a standard can read or set, the standards that are
// attached to it, and runs of them on the macro. The file changes only when the user saves.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <memory>

#include "runs/macro_run.h"
#include "workbench/run/calculation_model.h"

class MacroPage : public QWidget {
  public:
    explicit MacroPage(std::unique_ptr<runs::MacroRun> macro, QWidget* parent = nullptr);

    /// Runs the standard and key that are chosen. True when there are results to save.
    bool run();
    /// Writes the macro with the results of the last run and the attached standards.
    bool save();
    void reload();
    /// Loads the macro again when another program wrote it, unless there is something to save.
    void followFile();
    bool isChanged() const { return m_isChanged; }
    runs::MacroRun& macro() { return *m_macro; }
    /// Somebody changed the macro.
    void noteChange();
    /// Names inside the library, without extension.
    void choose(const QString& standard, const QString& key);
    QString message() const { return m_message->text(); }
    /// The value shown of an object, "Plate.Thickness" say; empty for none.
    QString value(const QString& object) const;

  private:
    QWidget* makeHeading();
    QWidget* makeRunBar();
    bool load(Vor_String& failure);
    void fillStandards();
    void fillKeys();
    void fillObjects();
    void showReport();
    void show(const QString& text, bool isFailure);
    void attachStandards();
    void setChanged(bool changed);
    bool mayWriteUnread() const;

    std::unique_ptr<runs::MacroRun> m_macro;
    runs::RunReport m_report;
    runs::Calculation m_calculation;
    CalculationModel m_model;
    QComboBox* m_standard = nullptr;
    QComboBox* m_key = nullptr;
    QPushButton* m_save = nullptr;
    QTableWidget* m_objects = nullptr;
    QLabel* m_message = nullptr;
    bool m_isChanged = false;
};

// The button in the window that shows a bill: its sheet goes to other programs and to paper, as the
// sheets of the main window do.
#pragma once

#include <QPushButton>

#include "spread/tw_sheet_editor_dlg.h"

struct ExportFormat;

class BillWindowButton : public QPushButton {
  public:
    /// Stands beside the window's own buttons, inside its widget, and goes with it. `file`, where
    /// the bill was saved, says how exported files are called at first.
    static void addTo(TwSheetEditorDlg& window, const Vor_String& file);

  private:
    BillWindowButton(TwSheetEditorDlg& window, const Vor_String& file, QWidget& frame,
                     QWidget& grid, QWidget& neighbour);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void place();
    void exportAs(const ExportFormat& format);
    void print(QString (*doing)(Vor_Spread& sheet, QWidget* parent));
    /// Enters what is being typed; false when its cell refuses it.
    bool isReady();
    void showMessage(const QString& failure, const QString& done);

    Vor_Spread& m_sheet;
    Vor_String m_file;
    QWidget& m_grid;
    QWidget& m_neighbour;
};

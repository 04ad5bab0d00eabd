// The modeless window that shows one spreadsheet to the user, and its holder.
#pragma once

#include <memory>

#include "platform/window/dialog.h"
#include "spread/vor_spread.h"

class VORMANT_API TwSheetEditorDlg : public CDialog {
  public:
    static constexpr int resourceNumber = 248;
    static constexpr int gridItem = 1196;

    explicit TwSheetEditorDlg(CWnd* parent);
    ~TwSheetEditorDlg() override;

    Vor_Spread& spread() { return m_spread; }
    /// Grows, if need be, until the sheet shows as many columns and rows as it wants to at first.
    void growToSheet();

  protected:
    void onInit() override;

  private:
    Vor_Spread m_spread;
};

/// Owns at most one editor window.
class VORMANT_API TwSheetEditorHolder {
  public:
    /// Makes the window the first time; shows it again when the user has closed it. The keyboard
    /// stays with the host's main window. False when it cannot be made.
    bool open();
    bool isCreated() const { return m_dialog && m_dialog->isAlive(); }
    // Null until the window was created, and again when it has gone with the host's main window.
    TwSheetEditorDlg* dialog() { return isCreated() ? m_dialog.get() : nullptr; }
    Vor_Spread* spread() { return isCreated() ? &m_dialog->spread() : nullptr; }

  private:
    std::unique_ptr<TwSheetEditorDlg> m_dialog;
};

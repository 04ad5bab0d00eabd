// The window that finds and replaces texts in a grid. It stays open beside the grid; letter case
// never matters.
#pragma once

#include "platform/window/dialog.h"

class CellChanges;
class Vor_Spread;

class VORMANT_API TwFindReplaceDlg : public CDialog {
  public:
    static constexpr int resourceNumber = 218;
    static constexpr int findLabel = 1206;
    static constexpr int findField = 1207;
    static constexpr int replaceLabel = 1208;
    static constexpr int replaceField = 1209;
    static constexpr int replaceButton = 1204;
    static constexpr int replaceAllButton = 1205;

    /// `spread` is borrowed; it calls forgetSpread() when it goes first.
    explicit TwFindReplaceDlg(Vor_Spread& spread);
    ~TwFindReplaceDlg() override;
    void forgetSpread();

    /// Goes to the next hit behind the active cell, or behind the selected characters of the cell
    /// being edited, and selects it. Without one asks, with `askWrap`, whether to go on from the
    /// beginning. True when there was a hit.
    bool findNext(bool askWrap);
    /// Finds next, then replaces what is selected.
    bool replace();
    /// Every occurrence in every cell; the number of cells changed.
    int replaceAll();

    void onCommand(int id, int code) override;

  protected:
    void onInit() override;
    void onOK() override { findNext(true); }
    void onCancel() override;
    void onDestroy() override;

  private:
    const std::string& wanted() const;
    bool keepTyped(CellChanges& changes);
    bool findInEdit();
    bool goToHitFrom(int col, int row);
    bool goOnFromStart();
    void selectInCell(int col, int row, int from);
    void close();

    Vor_Spread* m_spread;  // null once it has gone
    bool m_hadOption = false;
    bool m_isOpen = false;
};

// The Formulas dialog: one spreadsheet with a file name box, load and save, reference style and
// recalculation, to try formulas on. It does one thing by itself when it opens, told by its mode,
// and reads a file that way for programs too. Where nobody can answer, it ends itself then.
#pragma once

#include "core_api/dialogs/open_file.h"
#include "core_api/text/vor_string_array.h"
#include "platform/window/dialog.h"
#include "spread/formulas/table_look_up.h"

class TwFormulasDlg : public CDialog {
  public:
    static constexpr int resourceNumber = 133;
    enum Item {
        fileNameBox = 1000,
        saveButton = 1001,
        gridItem = 1004,
        defaultStyle = 1005,
        a1Style = 1006,
        r1c1Style = 1007,
        loadButton = 1087,
        autoCalculate = 1106,
        recalculate = 1107,
    };
    enum class Mode { none = 0, evaluateCell = 1, lookUp = 2, readFile = 4 };

    /// The mode and what it needs are set before the dialog is run. `parent` is borrowed.
    explicit TwFormulasDlg(CWnd* parent);
    ~TwFormulasDlg() override;

    Mode mode = Mode::none;
    Vor_String fileName;

    /// Look-up: the call, borrowed.
    LookUpCall call;

    /// Evaluating: the cell, from 1, and what it shows afterwards.
    int cellColumn = 0;
    int cellRow = 0;
    Vor_String cellText;

    /// Reading a file: borrowed, may be null. Emptied when the file cannot be read, as is `title`,
    /// the text of cell (1, 1).
    Vor_StringArray* header = nullptr;
    Vor_Array<Vor_StringArray>* rows = nullptr;
    Vor_String title;

    /// The file that was named when the dialog opened was loaded.
    bool isLoaded() const { return m_isLoaded; }
    Vor_Spread& grid() { return m_grid; }

    void onCommand(int id, int code) override;

  protected:
    void onInit() override;

  private:
    void showWhyNotLoaded();
    void prepareGrid();
    bool load(const Vor_String& path);
    void save();
    void loadTyped();
    void readFile();
    void evaluate();
    void lookUp();
    void showFormulasAsText(int referenceStyle);
    void setAutoCalculate(bool on);
    Vor_String typedPath() const;

    Vor_Spread m_grid;
    OpenFile m_file;
    bool m_isLoaded = false;
};

// Rows of texts in a grid: typed, picked from lists, added, removed, moved, copied and pasted.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/window/dialog.h"
#include "spread/vor_spread.h"

inline constexpr int stringArrayNumber = 8735;
inline constexpr int stringArrayGrid = 1001;
inline constexpr int stringArrayAdd = 1002;
inline constexpr int stringArrayInsert = 1003;
inline constexpr int stringArrayDelete = 1004;
inline constexpr int stringArrayUp = 1005;
inline constexpr int stringArrayDown = 1006;
inline constexpr int stringArrayCopy = 1007;
inline constexpr int stringArrayPaste = 1008;

/// What the table looks like; see startGridDialog.
struct StringTable {
    Vor_StringArray columns;
    Vor_StringArray choices;
    bool fixedRows = false;
    Vor_String sizeName;
    Vor_String title;
};

class StringArrayDialog : public CDialog {
  public:
    explicit StringArrayDialog(const StringTable& table);

    Vor_Array<Vor_StringArray>& data() { return m_rows; }

    void onCommand(int id, int code) override;
    bool preTranslateKey(const KeyMessage& key) override;

  protected:
    void onInit() override;
    void onOK() override;
    void onDestroy() override;
    void onSize(CSize before) override;

  private:
    void prepareRow(int row);
    void showRows();
    void addRow(int row);
    void deleteRows();
    void showWhatCanBeDone();
    bool isRowCommand(int id) const;

    StringTable m_table;
    Vor_Array<Vor_StringArray> m_rows;
    Vor_Spread m_grid;
};

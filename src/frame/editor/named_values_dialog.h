// The editor of named values: a grid of names and values, checked when OK is pressed. It serves
// every data object whose dialog needs no more than that. Entries of lists are inserted and deleted
// at once, in the dialog's own copy of the data, with what was typed before.
#pragma once

#include "core_api/texts/dial_text.h"
#include "frame/editor/named_value.h"
#include "platform/window/dialog.h"
#include "spread/vor_spread.h"

inline constexpr int namedValuesGrid = 1001;
inline constexpr int namedValuesInsert = 1002;
inline constexpr int namedValuesDelete = 1003;
inline constexpr int namedValuesNameColumn = 1;
inline constexpr int namedValuesValueColumn = 2;

inline constexpr ControlTemplate namedValuesControls[] = {
    {Control::placeholder, namedValuesGrid, {}, {7, 7, 336, 190}, 0, anchorAll},
    {Control::button, IDOK, dialText(1), {217, 204, 60, 14}, styleDefault, anchorBottomRight},
    {Control::button, IDCANCEL, dialText(2), {283, 204, 60, 14}, 0, anchorBottomRight},
};

/// For data with lists whose entries come and go.
inline constexpr ControlTemplate listValuesControls[] = {
    namedValuesControls[0],
    {Control::button, namedValuesInsert, dialText(26008), {7, 204, 60, 14}, 0, anchorBottomLeft},
    {Control::button, namedValuesDelete, dialText(26009), {73, 204, 60, 14}, 0, anchorBottomLeft},
    namedValuesControls[1],
    namedValuesControls[2],
};

/// What tells one such dialog from another.
struct EditorKind {
    DialogResource resource;
    const char* sizeName;  ///< what its place on the screen is kept under
};

constexpr EditorKind editorKind(int number, int titleText, const char* sizeName) {
    return {{number, dialText(titleText), {0, 0, 350, 225}, namedValuesControls, true}, sizeName};
}

constexpr EditorKind listEditorKind(int number, int titleText, const char* sizeName) {
    return {{number, dialText(titleText), {0, 0, 350, 225}, listValuesControls, true}, sizeName};
}

class NamedValuesDialog : public CDialog {
  public:
    NamedValuesDialog(const EditorKind& kind, CWnd* parent);
    ~NamedValuesDialog() override { destroyNow(); }

    /// Shown instead of the title of its kind, unless empty.
    void setTitle(const Vor_String& title) { m_title = title; }
    Vor_Spread& grid() { return m_grid; }
    /// The user changed a value or the entries of a list, whether it was kept or not.
    bool isChanged() const { return m_isChanged; }

    void onCommand(int id, int code) override;
    bool preTranslateKey(const KeyMessage& key) override;

  protected:
    /// The rows, for the data as it is now.
    virtual NamedValues describeData() = 0;
    /// Around taking the values over: a value that is refused must leave the data as it was.
    virtual void rememberData() = 0;
    virtual void putDataBack() = 0;
    /// After the data took the user's values.
    virtual void onTaken() {}

    void onInit() override;
    void onOK() override;
    void onDestroy() override;
    void onSize(CSize before) override;

    /// Takes the changed cells over into the data. False, with the data as it was and the user
    /// told why, when a text cannot be used.
    bool takeValues();

  private:
    int firstValueRow() const;
    void showRows();
    void onNotice(const GridNotice& notice);
    void showRow(int row, const NamedValue& value);
    Vor_String textOf(int row) const;
    bool isRowChanged(int row) const;
    bool refuse(int row, const Vor_String& why);
    bool isNumberGood(int row);

    // Lists: named_values_lists.cpp.
    const NamedValue* activeValue();
    void showWhatCanBeDone();
    void insertEntry();
    void deleteEntries();
    std::pair<int, int> selectedEntries();
    int headingOf(const NamedValue& value) const;
    void showEntry(int heading, int entry);

    const EditorKind& m_kind;
    Vor_String m_title;
    Vor_Spread m_grid;
    NamedValues m_values;
    Vor_StringArray m_shown;  // what each cell held at first: rows left alone are not rounded
    bool m_isChanged = false;
};

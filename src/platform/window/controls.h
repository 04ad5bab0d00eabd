// The controls of dialogs. Each keeps its own state, so that dialogs and their logic are the same
// with and without a screen. A change made by the program tells nobody but the screen; the calls
// named user… are what a person does, and tell the parent too.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/window/bitmap.h"
#include "platform/window/dialog_resource.h"
#include "platform/window/wnd.h"

/// What a control tells its parent.
enum Notification {
    clicked = 0,
    selectionChanged = 1,  ///< of a list, a combo's list, or the tabs
    doubleClicked = 2,
    checkChanged = 3,  ///< of an item of a check list
    focusLost = 0x200,
    textChanged = 0x300,  ///< typed: an edit, or the field of an editable combo
};

class VORMANT_API CStatic : public CWnd {
  public:
    void setBitmap(CBitmap bitmap);
    const CBitmap& bitmap() const { return m_bitmap; }

  private:
    CBitmap m_bitmap;
};

/// Push buttons, check boxes, radio buttons and frames.
class VORMANT_API CButton : public CWnd {
  public:
    explicit CButton(Control kind) : m_kind(kind) {}

    Control kind() const { return m_kind; }
    /// Stays checked when pressed.
    bool isCheckable() const;
    /// 0 unchecked, 1 checked, 2 neither. Others are left out.
    int check() const { return m_check; }
    void setCheck(int state);
    bool isChecked() const { return m_check == 1; }
    /// Number of the bitmap resource it shows, 0 for its text.
    int image() const { return m_image; }
    void setImage(int number);
    /// A picture in place of its text and border; pixels of the colour `without` are left out. It
    /// keeps its colours while the button is disabled. An empty picture takes it away.
    void setPicture(CBitmap picture, CBitmap::Pixel without);
    const CBitmap& picture() const { return m_picture; }
    CBitmap::Pixel pictureWithout() const { return m_pictureWithout; }

    /// Of a radio button: those that one press unchecks but for one, in order, with itself.
    std::vector<CButton*> group();

    /// Changes the check as its kind does, then tells clicked. False when disabled or a frame.
    bool userPresses();

  private:
    Control m_kind;
    int m_check = 0;
    int m_image = 0;
    CBitmap m_picture;
    CBitmap::Pixel m_pictureWithout = CBitmap::white;
};

class VORMANT_API CEdit : public CWnd {
  public:
    void setText(std::string_view text) override;
    /// Characters from 0; -1 as the end means the end of the text.
    void setSelection(int start, int end);
    int selectionStart() const { return m_start; }
    int selectionEnd() const { return m_end; }
    void replaceSelection(std::string_view text);

    /// False when disabled or read-only.
    bool userTypes(std::string_view text);
    /// Moved by the mouse or the keys; tells nobody.
    void userSelects(int start, int end);

  private:
    int m_start = 0;
    int m_end = 0;
};

/// What lists and combos have in common: items from 0.
class VORMANT_API ItemControl : public CWnd {
  public:
    struct Item {
        std::string text;
        int data = 0;
        bool isChecked = false;   ///< of a check list
        bool isSelected = false;  ///< of a list with many selected
        CBitmap picture;          ///< of thumbnails
    };

    int count() const { return static_cast<int>(m_items.size()); }
    const std::vector<Item>& items() const { return m_items; }
    /// Inside the list.
    const Item& at(int index) const { return m_items[static_cast<size_t>(index)]; }
    /// The index where it came to lie.
    int add(std::string_view text, int data = 0);
    void setItems(const std::vector<std::string>& texts);
    bool insert(int index, std::string_view text, int data = 0);
    bool remove(int index);
    void clear();
    bool setItemText(int index, std::string_view text);
    bool setData(int index, int data);
    bool setPicture(int index, CBitmap picture);

    /// -1 when none is selected.
    int selected() const { return m_selected; }
    /// -1 for none. False when there is no such item.
    bool select(int index);
    /// Of the selected item, empty when none is.
    std::string selectedText() const;
    /// The first item with exactly this text, ignoring case; -1 when there is none.
    int find(std::string_view text) const;

    /// Picks an item; tells selectionChanged. False when disabled or out of range.
    virtual bool userSelects(int index);

  protected:
    bool has(int index) const { return index >= 0 && index < count(); }
    std::vector<Item>& changeItems() { return m_items; }
    /// After the selected item was changed by anybody.
    virtual void onSelected() {}

  private:
    std::vector<Item> m_items;
    int m_selected = -1;
};

class VORMANT_API CListBox : public ItemControl {
  public:
    bool isChecked(int index) const { return has(index) && at(index).isChecked; }
    bool setChecked(int index, bool checked);
    /// Of a list with many selected, in order.
    std::vector<int> selection() const;
    bool setSelection(const std::vector<int>& indexes);
    /// Size of the pictures of a thumbnail list, in pixels.
    CSize pictureSize() const { return m_pictureSize; }
    void setPictureSize(CSize size);

    bool userSelects(int index) override;
    bool userSelectsAll(const std::vector<int>& indexes);
    bool userChecks(int index, bool checked);
    bool userDoubleClicks(int index);

  private:
    CSize m_pictureSize{64, 64};
};

/// A list that opens; the text is that of the selected item, or what was typed.
class VORMANT_API CComboBox : public ItemControl {
  public:
    bool isEditable() const { return hasStyle(styleEditable); }
    /// Selects the item of that text when there is one. One that is not editable takes no others.
    void setText(std::string_view text) override;
    /// Types into an editable one; tells textChanged.
    bool userTypes(std::string_view text);

  protected:
    void onSelected() override;
};

/// The row of tabs; the pages are the dialog's own business.
class VORMANT_API CTabCtrl : public ItemControl {
  public:
    /// The rectangle for a page, in the coordinates of the parent.
    CRect pageRect() const;
};

// Dialogs as tables: a number, a title and the controls. A table is constant data beside the dialog
// that uses it; texts by number are looked up when the dialog is made, in the language of that
// moment.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "platform/export.h"
#include "platform/window/geometry.h"

class CWnd;

/// A text written out, or one that a function knows by its number.
struct DialogText {
    constexpr DialogText() = default;
    constexpr DialogText(const char* literal) : m_literal(literal) {}
    constexpr DialogText(std::string (*lookUp)(int), int number)
        : m_lookUp(lookUp), m_number(number) {}

    std::string text() const { return m_lookUp ? m_lookUp(m_number) : std::string(m_literal); }

  private:
    const char* m_literal = "";
    std::string (*m_lookUp)(int) = nullptr;
    int m_number = 0;
};

enum class Control {
    label,        ///< CStatic
    picture,      ///< CStatic that shows a bitmap
    edit,         ///< CEdit
    button,       ///< CButton, and all kinds up to group
    imageButton,  ///< shows the bitmap resource `image`
    checkBox,
    radioButton,  ///< checked by a press, its neighbours between two groups unchecked
    group,        ///< a frame with a caption
    list,         ///< CListBox
    combo,        ///< CComboBox
    tabs,         ///< CTabCtrl
    placeholder,  ///< gives its place to a window that is made later, such as a grid
};

/// What makes a control more than its kind says; or-ed into ControlTemplate::style.
enum ControlStyle : unsigned {
    styleMultiline = 1u << 0,    ///< edit: several lines
    styleReadOnly = 1u << 1,     ///< edit
    styleThreeState = 1u << 2,   ///< check box: unchecked, checked, neither
    stylePushLike = 1u << 3,     ///< check box or image button that stays pressed
    styleDefault = 1u << 4,      ///< button: pressed by Enter
    styleEditable = 1u << 5,     ///< combo: typed into as well
    styleSorted = 1u << 6,       ///< list and combo keep their items in order, ignoring case
    styleMultiSelect = 1u << 7,  ///< list: any number of items selected
    styleCheckList = 1u << 8,    ///< list: every item with a check box
    styleThumbnails = 1u << 9,   ///< list: items as pictures with their texts below
    styleNewGroup = 1u << 10,    ///< radio button: first of its group
    styleHidden = 1u << 11,      ///< not shown at first
    styleDisabled = 1u << 12,    ///< not enabled at first
    styleRight = 1u << 13,       ///< text to the right
};

/// The edges of its dialog that a control keeps its distance to when the dialog is resized.
enum Anchor : unsigned {
    anchorLeft = 1,
    anchorTop = 2,
    anchorRight = 4,
    anchorBottom = 8,
    anchorTopLeft = anchorLeft | anchorTop,
    anchorBottomRight = anchorRight | anchorBottom,
    anchorBottomLeft = anchorLeft | anchorBottom,
    anchorTopRight = anchorTop | anchorRight,
    anchorWide = anchorTopLeft | anchorRight,       ///< grows in width
    anchorTall = anchorTopLeft | anchorBottom,      ///< grows in height
    anchorAll = anchorTopLeft | anchorBottomRight,  ///< grows both ways
    anchorWideBelow = anchorBottomLeft | anchorRight,
};

struct ControlTemplate {
    Control kind = Control::label;
    int id = 0;
    DialogText text = {};
    CRect place = {};  ///< left, top, width, height in dialog units (a quarter of a character's
                       ///< width, an eighth of its height)
    unsigned style = 0;
    unsigned anchor = anchorTopLeft;
    int image = 0;        ///< number of a bitmap resource
    DialogText tip = {};  ///< shown when the mouse rests on the control
};

struct DialogResource {
    int number = 0;
    DialogText title = {};
    CRect size;  ///< 0, 0, width, height in dialog units; also the least size of resizable ones
    std::span<const ControlTemplate> controls = {};
    bool isResizable = false;
    bool isTopmost = false;  ///< stays above the other windows
};

/// The window class that stands for a control.
VORMANT_API const char* classNameOf(Control kind);
/// A control of that kind, not created yet.
VORMANT_API std::unique_ptr<CWnd> makeControl(Control kind);
/// From a place in dialog units to a rectangle in pixels, by the current system's font.
VORMANT_API CRect pixelsOf(const CRect& place);

// A dialog with every kind of control, that notes what its controls tell.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "platform/window/dialog.h"
#include "platform/window/images.h"

namespace sample {

enum Item {
    nameLabel = 10,
    name,
    remarks,
    optionsFrame,
    check,
    threeStates,
    left,
    right,
    middle,
    list,
    manyList,
    checkList,
    thumbnails,
    combo,
    typedCombo,
    tabs,
    openButton,
    flexButton,
    moreButton,
    picture,
    place,
    disabled,
    pageField = 50,
    pageBox,
};

inline constexpr ControlTemplate controls[] = {
    {Control::label, nameLabel, "&Name:", {7, 9, 40, 8}},
    {Control::edit, name, {}, {50, 7, 90, 12}, 0, anchorWide},
    {Control::edit, remarks, {}, {7, 24, 133, 40}, styleMultiline, anchorWide},
    {Control::group, optionsFrame, "Options", {147, 4, 106, 96}, 0, anchorTopRight},
    {Control::checkBox, check, "Bolts && nuts", {153, 16, 94, 10}, 0, anchorTopRight},
    {Control::checkBox,
     threeStates,
     "Three states",
     {153, 28, 94, 10},
     styleThreeState,
     anchorTopRight},
    {Control::radioButton, left, "Left", {153, 42, 94, 10}, styleNewGroup, anchorTopRight},
    {Control::radioButton, right, "Right", {153, 54, 94, 10}, 0, anchorTopRight},
    {Control::radioButton, middle, "Middle", {153, 66, 94, 10}, 0, anchorTopRight},
    {Control::checkBox, disabled, "Never", {153, 80, 94, 10}, styleDisabled, anchorTopRight},
    {Control::list, list, {}, {7, 70, 60, 50}},
    {Control::list, manyList, {}, {73, 70, 67, 50}, styleMultiSelect},
    {Control::list, checkList, {}, {7, 126, 60, 50}, styleCheckList},
    {Control::list, thumbnails, {}, {73, 126, 67, 50}, styleThumbnails},
    {Control::combo, combo, {}, {147, 106, 106, 12}, 0, anchorTopRight},
    {Control::combo, typedCombo, {}, {147, 122, 106, 12}, styleEditable, anchorTopRight},
    {Control::tabs, tabs, {}, {7, 182, 133, 60}, 0, anchorAll},
    {Control::imageButton,
     openButton,
     {},
     {147, 140, 14, 12},
     0,
     anchorTopRight,
     imageOpen,
     "Open"},
    {Control::imageButton,
     flexButton,
     {},
     {165, 140, 14, 12},
     stylePushLike,
     anchorTopRight,
     imageFlex,
     "Flex"},
    {Control::button, moreButton, "&More...", {147, 158, 50, 14}, 0, anchorTopRight},
    {Control::picture, picture, {}, {203, 140, 50, 32}, 0, anchorTopRight},
    {Control::placeholder, place, {}, {147, 182, 106, 20}},
    {Control::button, IDOK, "OK", {147, 228, 50, 14}, styleDefault, anchorBottomRight},
    {Control::button, IDCANCEL, "Cancel", {203, 228, 50, 14}, 0, anchorBottomRight},
};
inline constexpr DialogResource resource{700, "Sample", {0, 0, 260, 249}, controls, true};

inline constexpr ControlTemplate pageControls[] = {
    {Control::edit, pageField, {}, {4, 4, 60, 12}},
    {Control::checkBox, pageBox, "On a page", {4, 20, 60, 10}},
};
inline constexpr DialogResource pageResource{701, {}, {0, 0, 120, 40}, pageControls};

class Page : public CDialog {
  public:
    using CDialog::CDialog;
};

class Dialog : public CDialog {
  public:
    explicit Dialog(CWnd* parent = nullptr) : CDialog(resource, parent) {}
    ~Dialog() override { destroyNow(); }

    struct Reported {
        int id;
        int code;
        bool operator==(const Reported&) const = default;
    };
    std::vector<Reported> told;
    std::vector<KeyMessage> keys;
    std::vector<MouseMessage> mouse;
    bool usesEscape = false;
    std::function<void()> whenMore;

    bool wasReported(int id, int code) const {
        return std::find(told.begin(), told.end(), Reported{id, code}) != told.end();
    }
    template <class ControlClass>
    ControlClass& at(int id) const {
        return dynamic_cast<ControlClass&>(*descendant(id));
    }

    void onCommand(int id, int code) override {
        told.push_back({id, code});
        if (id == moreButton && code == clicked && whenMore) {
            const auto more = whenMore;  // it may delete this dialog
            return more();
        }
        if (id == tabs && code == selectionChanged) showPage();
        CDialog::onCommand(id, code);
    }
    bool preTranslateKey(const KeyMessage& key) override {
        keys.push_back(key);
        return usesEscape && key.key == keyEscape;
    }
    void onMouse(const MouseMessage& message) override { mouse.push_back(message); }
    Cursor cursorAt(CPoint) override { return Cursor::cross; }

  protected:
    void onInit() override {
        for (const int id : {list, manyList, checkList, combo, typedCombo, tabs, thumbnails})
            for (const char* text : {"M16", "M20", "M24"}) itemAs<ItemControl>(id)->add(text);
        for (int i = 0; i < 3; ++i) at<CListBox>(thumbnails).setPicture(i, {40, 30, 0x3366CC});
        at<CListBox>(thumbnails).setPictureSize({40, 30});
        at<CStatic>(picture).setBitmap({64, 64, 0x88AA44});
        at<CTabCtrl>(tabs).select(0);
        for (auto& page : m_pages) {
            page = std::make_unique<Page>(pageResource, this);
            page->createPage(at<CTabCtrl>(tabs).pageRect());
        }
        showPage();
    }
    void onDestroy() override {
        for (auto& page : m_pages) page.reset();
    }

  private:
    void showPage() {
        const auto shown = static_cast<size_t>(at<CTabCtrl>(tabs).selected());
        for (size_t i = 0; i < m_pages.size(); ++i)
            if (m_pages[i]) m_pages[i]->show(i == shown);
    }
    std::array<std::unique_ptr<Page>, 3> m_pages;
};

}  // namespace sample

// A dialog made from its table. Modeless: create(), show(), destroy(). Modal: doModal() makes it,
// lets the user work with it until endDialog(), and gives the result. A page inside another dialog:
// createPage(). It can be created and never shown.
#pragma once

#include "platform/window/controls.h"
#include "platform/window/dialog_resource.h"
#include "platform/window/message_box.h"
#include "platform/window/resizer.h"
#include "platform/window/wnd.h"

class VORMANT_API CDialog : public CWnd {
  public:
    /// `resource` and `parent` are borrowed and must outlive the dialog.
    CDialog(const DialogResource& resource, CWnd* parent);
    ~CDialog() override;

    /// Makes the window, hidden, with its controls.
    bool create();
    /// As create, for a page that fills `place` (pixels of the parent) and has no frame.
    bool createPage(const CRect& place);
    /// IDOK, IDCANCEL or what endDialog() was given; -1 when the window cannot be made.
    int doModal();

    int number() const { return m_resource.number; }
    const DialogResource& madeFrom() const { return m_resource; }
    bool isModal() const { return m_isModal; }
    bool isPage() const { return m_isPage; }
    bool isEnded() const { return m_isEnded; }
    int result() const { return m_result; }
    CSize minimumSize() const override { return m_minimum; }
    void setMinimumSize(CSize size) { m_minimum = size; }

    /// What a user does: presses a button (also Escape, as IDCANCEL), types into a field, picks the
    /// item `index` of a list, a combo or tabs. Items of pages inside are found too. False when
    /// there is no such item or it is disabled; IDOK and IDCANCEL need no item.
    bool press(int id);
    bool type(int id, std::string_view text);
    bool pick(int id, int index);

    /// The control that Tab goes to from `from` (null: the first): shown, enabled, no label, frame
    /// or placeholder. Null when there is none.
    CWnd* nextTabItem(const CWnd* from, bool backwards) const;

    void onCommand(int id, int code) override;
    /// The cross of the title bar: as Escape, unless the dialog asks first.
    virtual void onClose() { press(IDCANCEL); }

  protected:
    /// The controls are there and may be filled.
    virtual void onInit() {}
    virtual void onOK() { endDialog(IDOK); }
    virtual void onCancel() { endDialog(IDCANCEL); }
    void onSize(CSize before) override;
    void endDialog(int result);

  private:
    bool createAs(const WindowTemplate& made);
    void createControl(const ControlTemplate& control);

    const DialogResource& m_resource;
    CWnd* m_owner;
    Resizer m_resizer;
    CSize m_minimum;
    bool m_isModal = false;
    bool m_isPage = false;
    bool m_isEnded = false;
    int m_result = 0;
};

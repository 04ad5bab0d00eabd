// A dialog made from its table. Modeless: create(), show(), destroy(). Modal: doModal() makes it,
// lets the user work with it until endDialog(), and gives the result. It can be created and never
// shown.
#pragma once

#include "platform/window/dialog_resource.h"
#include "platform/window/message_box.h"
#include "platform/window/wnd.h"

/// What a child tells its dialog.
enum Notification { clicked = 0, selectionChanged = 1, textChanged = 0x300 };

class VORMANT_API CDialog : public CWnd {
  public:
    /// `resource` and `parent` are borrowed and must outlive the dialog.
    CDialog(const DialogResource& resource, CWnd* parent);
    ~CDialog() override;

    /// Makes the window, hidden, with its controls.
    bool create();
    /// IDOK, IDCANCEL or what endDialog() was given; -1 when the window cannot be made.
    int doModal();

    int number() const { return m_resource.number; }
    bool isModal() const { return m_isModal; }
    bool isEnded() const { return m_isEnded; }
    int result() const { return m_result; }

    /// What a user does: presses a button (also the title bar's cross and Escape, as IDCANCEL), or
    /// types into a field. False when there is no such item or it is disabled; IDOK and IDCANCEL
    /// need no item.
    bool press(int id);
    bool type(int id, std::string_view text);

    void onCommand(int id, int code) override;

  protected:
    /// The controls are there and may be filled.
    virtual void onInit() {}
    virtual void onOK() { endDialog(IDOK); }
    virtual void onCancel() { endDialog(IDCANCEL); }
    void endDialog(int result);

  private:
    const DialogResource& m_resource;
    CWnd* m_owner;
    bool m_isModal = false;
    bool m_isEnded = false;
    int m_result = 0;
};

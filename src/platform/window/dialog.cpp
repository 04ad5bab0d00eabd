#include "platform/window/dialog.h"

#include <array>

#include "platform/window/window_system.h"

namespace {

// The usual character of dialogs is 6 pixels wide and 13 high.
constexpr int characterWidth = 6;
constexpr int characterHeight = 13;

int horizontal(int units) {
    return units * characterWidth / 4;
}
int vertical(int units) {
    return units * characterHeight / 8;
}

}  // namespace

const char* classNameOf(Control kind) {
    switch (kind) {
        case Control::label:
            return "Static";
        case Control::edit:
            return "Edit";
        case Control::button:
        case Control::checkBox:
        case Control::radioButton:
        case Control::group:
            return "Button";
        case Control::list:
            return "ListBox";
        case Control::combo:
            return "ComboBox";
        case Control::placeholder:
            return "Static";
    }
    return "Static";
}

CRect pixelsOf(const CRect& place) {
    const int left = horizontal(place.left);
    const int top = vertical(place.top);
    return {left, top, left + horizontal(place.right), top + vertical(place.bottom)};
}

CDialog::CDialog(const DialogResource& resource, CWnd* parent)
    : m_resource(resource), m_owner(parent) {}

CDialog::~CDialog() {
    destroy();
}

bool CDialog::create() {
    WindowTemplate made;
    made.className = "#32770";
    made.text = m_resource.title.text();
    made.rect = pixelsOf(m_resource.size);
    made.isVisible = false;
    if (!CWnd::create(made, m_owner)) return false;
    for (const ControlTemplate& control : m_resource.controls) {
        WindowTemplate item{classNameOf(control.kind),
                            control.text.text(),
                            pixelsOf(control.place),
                            control.style,
                            control.id,
                            true};
        adopt(std::make_unique<CWnd>())->create(item, this);
    }
    m_isEnded = false;
    m_result = 0;
    onInit();
    return true;
}

int CDialog::doModal() {
    if (!create()) return -1;
    m_isModal = true;
    if (!m_isEnded) {
        show(true);
        WindowSystem::current().runModal(*this);
    }
    const int result = m_isEnded ? m_result : static_cast<int>(IDCANCEL);
    m_isModal = false;
    destroy();
    return result;
}

bool CDialog::press(int id) {
    const CWnd* button = item(id);
    if (button ? !button->isEnabled() : id != IDOK && id != IDCANCEL) return false;
    onCommand(id, clicked);
    return true;
}

bool CDialog::type(int id, std::string_view text) {
    CWnd* field = item(id);
    if (!field || !field->isEnabled()) return false;
    field->setText(text);
    onCommand(id, textChanged);
    return true;
}

void CDialog::onCommand(int id, int code) {
    if (code != clicked) return;
    if (id == IDOK) onOK();
    if (id == IDCANCEL) onCancel();
}

void CDialog::endDialog(int result) {
    m_isEnded = true;
    m_result = result;
    show(false);
}

#include "platform/window/dialog.h"

#include <algorithm>

#include "platform/window/message_scope.h"
#include "platform/window/window_system.h"

const char* classNameOf(Control kind) {
    switch (kind) {
        case Control::edit:
            return "Edit";
        case Control::button:
        case Control::imageButton:
        case Control::checkBox:
        case Control::radioButton:
        case Control::group:
            return "Button";
        case Control::list:
            return "ListBox";
        case Control::combo:
            return "ComboBox";
        case Control::tabs:
            return "SysTabControl32";
        case Control::label:
        case Control::picture:
        case Control::placeholder:
            break;
    }
    return "Static";
}

std::unique_ptr<CWnd> makeControl(Control kind) {
    switch (kind) {
        case Control::edit:
            return std::make_unique<CEdit>();
        case Control::button:
        case Control::imageButton:
        case Control::checkBox:
        case Control::radioButton:
        case Control::group:
            return std::make_unique<CButton>(kind);
        case Control::list:
            return std::make_unique<CListBox>();
        case Control::combo:
            return std::make_unique<CComboBox>();
        case Control::tabs:
            return std::make_unique<CTabCtrl>();
        case Control::label:
        case Control::picture:
            return std::make_unique<CStatic>();
        case Control::placeholder:
            break;
    }
    return std::make_unique<CWnd>();
}

CRect pixelsOf(const CRect& place) {
    const CSize character = WindowSystem::current().dialogCharacter();
    const auto horizontal = [&](int units) { return units * character.width / 4; };
    const auto vertical = [&](int units) { return units * character.height / 8; };
    const int left = horizontal(place.left);
    const int top = vertical(place.top);
    return {left, top, left + horizontal(place.right), top + vertical(place.bottom)};
}

CDialog::CDialog(const DialogResource& resource, CWnd* parent)
    : m_resource(resource), m_owner(parent) {}

CDialog::~CDialog() {
    destroyNow();
}

bool CDialog::create() {
    m_isPage = false;
    return createAs({"#32770", m_resource.title.text(), pixelsOf(m_resource.size), 0, 0, false});
}

bool CDialog::createPage(const CRect& place) {
    m_isPage = true;
    return createAs({"#32770", m_resource.title.text(), place, 0, m_resource.number, false});
}

bool CDialog::createAs(const WindowTemplate& made) {
    if (!CWnd::create(made, m_owner)) return false;
    m_minimum = pixelsOf(m_resource.size).size();
    m_resizer.clear();
    for (const ControlTemplate& control : m_resource.controls) createControl(control);
    m_isEnded = false;
    m_result = 0;
    m_resizer.apply(*this);
    onInit();
    return true;
}

void CDialog::createControl(const ControlTemplate& control) {
    CWnd* made = adopt(makeControl(control.kind));
    made->create({classNameOf(control.kind), control.text.text(), pixelsOf(control.place),
                  control.style, control.id, (control.style & styleHidden) == 0},
                 this);
    if (control.style & styleDisabled) made->enable(false);
    if (const std::string tip = control.tip.text(); !tip.empty()) made->setTip(tip);
    if (auto* button = dynamic_cast<CButton*>(made); button && control.image)
        button->setImage(control.image);
    m_resizer.add(*made, control.anchor, m_minimum);
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
    const MessageScope message(*this);
    CWnd* control = descendant(id);
    if (!control && id != IDOK && id != IDCANCEL) return false;
    if (control && !control->isEnabled()) return false;
    if (auto* button = dynamic_cast<CButton*>(control)) return button->userPresses();
    (control && control->parent() ? control->parent() : this)->onCommand(id, clicked);
    return true;
}

bool CDialog::type(int id, std::string_view text) {
    CWnd* field = descendant(id);
    if (auto* edit = dynamic_cast<CEdit*>(field)) return edit->userTypes(text);
    auto* combo = dynamic_cast<CComboBox*>(field);
    if (!combo) return false;
    return combo->isEditable() ? combo->userTypes(text) : combo->userSelects(combo->find(text));
}

bool CDialog::pick(int id, int index) {
    auto* control = dynamic_cast<ItemControl*>(descendant(id));
    return control && control->userSelects(index);
}

CWnd* CDialog::nextTabItem(const CWnd* from, bool backwards) const {
    const auto takesFocus = [](CWnd* child) {
        const auto* button = dynamic_cast<const CButton*>(child);
        return child->isVisible() && child->isEnabled() && child->className() != "Static" &&
               !(button && button->kind() == Control::group);
    };
    std::vector<CWnd*> stops;
    std::copy_if(children().begin(), children().end(), std::back_inserter(stops), takesFocus);
    if (stops.empty()) return nullptr;
    const auto found = std::find(stops.begin(), stops.end(), from);
    if (found == stops.end()) return backwards ? stops.back() : stops.front();
    if (backwards) return found == stops.begin() ? stops.back() : *(found - 1);
    return found + 1 == stops.end() ? stops.front() : *(found + 1);
}

void CDialog::onCommand(int id, int code) {
    if (code != clicked) return;
    if (id == IDOK) onOK();
    if (id == IDCANCEL) onCancel();
}

void CDialog::onSize(CSize) {
    m_resizer.apply(*this);
}

void CDialog::endDialog(int result) {
    m_isEnded = true;
    m_result = result;
    show(false);
}

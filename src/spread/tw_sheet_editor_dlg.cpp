#include "spread/tw_sheet_editor_dlg.h"

#include "core_api/texts/dial_text.h"
#include "core_api/texts/sheet_text_numbers.h"
#include "platform/host/host.h"
#include "platform/window/window_system.h"

namespace {

constexpr ControlTemplate controls[] = {
    {Control::placeholder, TwSheetEditorDlg::gridItem, {}, {7, 7, 386, 220}, 0, anchorAll},
    {Control::button, IDOK, dialText(1), {273, 234, 56, 16}, 0, anchorBottomRight},
    {Control::button, IDCANCEL, dialText(2), {337, 234, 56, 16}, 0, anchorBottomRight},
};
constexpr DialogResource resource{TwSheetEditorDlg::resourceNumber,
                                  dialText(texts::sheetEditorTitle),
                                  {0, 0, 400, 257},
                                  controls,
                                  true};

}  // namespace

TwSheetEditorDlg::TwSheetEditorDlg(CWnd* parent) : CDialog(resource, parent) {}

TwSheetEditorDlg::~TwSheetEditorDlg() {
    destroy();
}

void TwSheetEditorDlg::onInit() {
    m_spread.attach(this, gridItem, true);
}

bool TwSheetEditorHolder::open() {
    if (!m_dialog) {
        auto dialog = std::make_unique<TwSheetEditorDlg>(Host::current().mainWindow());
        if (!dialog->create() || !dialog->spread().isAttached()) return false;
        m_dialog = std::move(dialog);
    }
    m_dialog->show(true);
    WindowSystem::current().bringToFront(*m_dialog);
    Host::current().focusMainWindow();
    return true;
}

#include "spread/tw_sheet_editor_dlg.h"

#include <algorithm>

#include "core_api/texts/dial_text.h"
#include "core_api/texts/sheet_text_numbers.h"
#include "platform/host/host.h"
#include "platform/window/message_scope.h"
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
    destroyNow();
}

void TwSheetEditorDlg::onInit() {
    m_spread.attach(this, gridItem, true);
}

void TwSheetEditorDlg::growToSheet() {
    const control::Grid& grid = m_spread.grid();
    const control::ViewSettings& view = grid.view();
    int width = grid.colWidth(control::headerIndex) + Vor_Spread::scrollBarWidth;
    int height = grid.rowHeight(control::headerIndex) + Vor_Spread::scrollBarWidth;
    for (int col = 1; col <= std::min(view.visibleCols, grid.cols()); ++col)
        width += grid.colWidth(col);
    for (int row = 1; row <= std::min(view.visibleRows, grid.rows()); ++row)
        height += grid.rowHeight(row);
    CRect place = rect();
    place.right += std::max(width - m_spread.rect().width(), 0);
    place.bottom += std::max(height - m_spread.rect().height(), 0);
    move(place);
}

bool TwSheetEditorHolder::open() {
    if (!isCreated()) {
        retire(std::move(m_dialog));  // its window went with the host's
        auto dialog = std::make_unique<TwSheetEditorDlg>(Host::current().mainWindow());
        if (!dialog->create() || !dialog->spread().isAttached()) return false;
        m_dialog = std::move(dialog);
    }
    m_dialog->show(true);
    WindowSystem::current().bringToFront(*m_dialog);
    Host::current().focusMainWindow();
    return true;
}

#include "platform/window/dialog.h"
#include "spread/t_spread.h"
#include "workbench/window/control_views.h"
#include "workbench/window/dialog_view.h"
#include "workbench/window/dialog_widget.h"
#include "workbench/window/qt_window_system.h"
#include "workbench/window/surface_view.h"

namespace {

/// Keeps a place for a window that is made later; nothing is ever seen of it.
class PlaceholderView : public WindowView {
  public:
    using WindowView::WindowView;

  protected:
    void showWidget() override { widget()->hide(); }
};

class GridSlotView : public WindowView {
  public:
    using WindowView::WindowView;
    bool isGrid() const override { return true; }
};

WindowView* makeDialogView(QtWindowSystem& system, CDialog& dialog, QWidget* parent) {
    if (dialog.isPage()) return new SurfaceView(system, dialog, new QWidget(parent));
    return new DialogView(system, dialog, new DialogWidget(parent ? parent->window() : nullptr));
}

WindowView* makeGridView(QtWindowSystem& system, TSpread& spread, QWidget* parent) {
    return new GridSlotView(system, spread, system.makeGrid(spread, parent));
}

WindowView* makeSurfaceView(QtWindowSystem& system, CWnd& window, QWidget* parent) {
    auto* widget = new QWidget(parent);
    widget->setFocusPolicy(Qt::StrongFocus);
    return new SurfaceView(system, window, widget);
}

}  // namespace

WindowView* makeView(QtWindowSystem& system, CWnd& window, QWidget* parent) {
    if (auto* dialog = dynamic_cast<CDialog*>(&window))
        return makeDialogView(system, *dialog, parent);
    if (auto* spread = dynamic_cast<TSpread*>(&window))
        return makeGridView(system, *spread, parent);
    if (auto* label = dynamic_cast<CStatic*>(&window))
        return makeStaticView(system, *label, parent);
    if (auto* button = dynamic_cast<CButton*>(&window))
        return makeButtonView(system, *button, parent);
    if (auto* edit = dynamic_cast<CEdit*>(&window)) return makeEditView(system, *edit, parent);
    if (auto* list = dynamic_cast<CListBox*>(&window)) return makeListView(system, *list, parent);
    if (auto* combo = dynamic_cast<CComboBox*>(&window))
        return makeComboView(system, *combo, parent);
    if (auto* tabs = dynamic_cast<CTabCtrl*>(&window)) return makeTabsView(system, *tabs, parent);
    if (window.className() == classNameOf(Control::placeholder))
        return new PlaceholderView(system, window, new QWidget(parent));
    return makeSurfaceView(system, window, parent);
}

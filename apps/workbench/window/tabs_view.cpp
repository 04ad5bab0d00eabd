// The row of tabs with the frame around the pages. The pages are widgets of the dialog that lie
// over the frame.
#include <QTabBar>
#include <QTabWidget>

#include "platform/window/controls.h"
#include "workbench/window/captions.h"
#include "workbench/window/control_views.h"
#include "workbench/window/qt_window_system.h"

namespace {

class TabsView : public ViewOf<CTabCtrl, QTabWidget> {
  public:
    TabsView(QtWindowSystem& system, CTabCtrl& window, QTabWidget* tabs)
        : ViewOf(system, window, tabs) {
        tabs->lower();
        tabs->setUsesScrollButtons(true);
        connect(tabs, &QTabWidget::currentChanged, this, [this](int index) {
            if (index >= 0) act([&] { model().userSelects(index); });
        });
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::items) showItems();
        if (change == WindowChange::selection) showSelection();
        WindowView::apply(change);
    }
    void applyOwnChanges() override { showSelection(); }

  private:
    void showItems() {
        while (shown().count() > model().count()) {
            QWidget* empty = shown().widget(shown().count() - 1);
            shown().removeTab(shown().count() - 1);
            delete empty;
        }
        for (int i = 0; i < model().count(); ++i) {
            const QString caption = captionOf(model().at(i).text);
            if (i < shown().count())
                shown().setTabText(i, caption);
            else
                shown().addTab(new QWidget, caption);
        }
        showSelection();
    }
    void showSelection() {
        if (model().selected() >= 0) shown().setCurrentIndex(model().selected());
    }
};

}  // namespace

WindowView* makeTabsView(QtWindowSystem& system, CTabCtrl& tabs, QWidget* parent) {
    return new TabsView(system, tabs, new QTabWidget(parent));
}

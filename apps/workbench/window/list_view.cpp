// Lists: of texts, with check boxes, or of pictures with their texts below.
#include <QListView>
#include <algorithm>
#include <vector>

#include "platform/window/controls.h"
#include "workbench/window/control_views.h"
#include "workbench/window/item_model.h"
#include "workbench/window/qt_window_system.h"

namespace {

constexpr int thumbnailMargin = 12;

class ListView : public ViewOf<CListBox, QListView> {
  public:
    ListView(QtWindowSystem& system, CListBox& window, QListView* list)
        : ViewOf(system, window, list),
          m_items(
              window, [this](int index, bool checked) { check(index, checked); }, this) {
        list->setEditTriggers(QAbstractItemView::NoEditTriggers);
        list->setModel(&m_items);
        connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this] { takeSelectionOver(); });
        connect(list, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
            act([&] { model().userDoubleClicks(index.row()); });
        });
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::style) showStyle();
        if (change == WindowChange::items) showItems();
        if (change == WindowChange::selection) showSelection();
        WindowView::apply(change);
    }
    void applyOwnChanges() override { showSelection(); }
    void forgetWindow() override { m_items.forget(); }

  private:
    bool hasMany() const { return model().hasStyle(styleMultiSelect); }

    void showStyle() {
        shown().setSelectionMode(hasMany() ? QAbstractItemView::ExtendedSelection
                                           : QAbstractItemView::SingleSelection);
        if (model().hasStyle(styleCheckList)) shown().setSpacing(1);
        if (!model().hasStyle(styleThumbnails)) return;
        shown().setViewMode(QListView::IconMode);
        shown().setMovement(QListView::Static);
        shown().setResizeMode(QListView::Adjust);
        shown().setWordWrap(true);
        shown().setUniformItemSizes(true);
    }

    void showItems() {
        if (model().hasStyle(styleThumbnails)) {
            const CSize picture = model().pictureSize();
            const int lines = 2 * shown().fontMetrics().lineSpacing();
            shown().setIconSize({picture.width, picture.height});
            shown().setGridSize(
                {picture.width + thumbnailMargin, picture.height + lines + thumbnailMargin});
        }
        m_items.refresh();
        showSelection();
    }

    void showSelection() {
        const std::vector<int> selected =
            hasMany() ? model().selection() : std::vector<int>{model().selected()};
        if (selected == shownSelection()) return;
        QItemSelection selection;
        for (const int row : selected)
            if (const QModelIndex index = m_items.index(row, 0); index.isValid())
                selection.select(index, index);
        shown().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        const QModelIndex current = m_items.index(model().selected(), 0);
        if (!current.isValid()) return;
        shown().selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        shown().scrollTo(current);
    }

    std::vector<int> shownSelection() const {
        std::vector<int> rows;
        for (const QModelIndex& index : shown().selectionModel()->selectedIndexes())
            rows.push_back(index.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    // Clicking a selected item with Ctrl takes its selection away, which a list of one does not
    // know; the window then has the last word.
    void takeSelectionOver() {
        const std::vector<int> rows = shownSelection();
        act([&] {
            if (hasMany())
                model().userSelectsAll(rows);
            else if (!rows.empty())
                model().userSelects(rows.front());
        });
    }

    void check(int index, bool checked) {
        act([&] { model().userChecks(index, checked); });
    }

    ItemModel m_items;
};

}  // namespace

WindowView* makeListView(QtWindowSystem& system, CListBox& list, QWidget* parent) {
    return new ListView(system, list, new QListView(parent));
}

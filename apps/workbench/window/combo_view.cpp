// Lists that open, with or without a field to type into.
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>
#include <algorithm>

#include "platform/window/controls.h"
#include "workbench/window/control_views.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/item_model.h"
#include "workbench/window/qt_window_system.h"
#include "workbench/window/typed_text.h"

namespace {

class ComboWidget : public QComboBox {
  public:
    explicit ComboWidget(QWidget* parent) : QComboBox(parent) {
        setFocusPolicy(Qt::StrongFocus);
        setInsertPolicy(QComboBox::NoInsert);
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }

    // The open list is as wide as its texts.
    void showPopup() override {
        constexpr int margin = 24;
        view()->setMinimumWidth(std::max(width(), view()->sizeHintForColumn(0) + margin));
        QComboBox::showPopup();
    }

  protected:
    // Turning the wheel over a dialog must not change what happens to lie under the mouse.
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
};

class ComboView : public ViewOf<CComboBox, ComboWidget> {
  public:
    ComboView(QtWindowSystem& system, CComboBox& window, ComboWidget* combo)
        : ViewOf(system, window, combo), m_items(window, {}, this) {
        combo->setEditable(window.isEditable());
        combo->setModel(&m_items);
        connect(combo, &QComboBox::activated, this,
                [this](int index) { act([&] { model().userSelects(index); }); });
        if (!combo->lineEdit()) return;
        combo->setCompleter(nullptr);  // what is typed stays as it is typed
        connect(combo->lineEdit(), &QLineEdit::textEdited, this,
                [this](const QString& text) { type(text); });
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::items) {
            m_items.refresh();
            showSelection();
        }
        if (change == WindowChange::selection || change == WindowChange::text) showSelection();
        WindowView::apply(change);
    }
    void applyOwnChanges() override { showSelection(); }
    void forgetWindow() override { m_items.forget(); }

    // Some tables count the open list into the height.
    void placeWidget() override {
        const CRect& rect = model().rect();
        const int closed = pixelsOf({0, 0, 0, 13}).height();
        const bool isOpenHeight = rect.height() >= 2 * closed;
        const int lines = (rect.height() - closed) / shown().fontMetrics().lineSpacing();
        if (isOpenHeight) shown().setMaxVisibleItems(std::max(lines, 10));
        placeAt({rect.left, rect.top, rect.right, isOpenHeight ? rect.top + closed : rect.bottom});
    }

  private:
    void showSelection() {
        if (shown().currentIndex() != model().selected())
            shown().setCurrentIndex(model().selected());
        if (!shown().lineEdit()) return;
        const QString text = toQt(model().text());
        if (shown().lineEdit()->text() != text) shown().lineEdit()->setText(text);
    }

    void type(const QString& text) {
        if (isFollowing() || !window()) return;
        if (canBeKept(text)) {
            act([&] { model().userTypes(fromQt(text)); });
        } else {
            refuseTyped(shown(), text);
            follow(WindowChange::text);
        }
    }

    ItemModel m_items;
};

}  // namespace

WindowView* makeComboView(QtWindowSystem& system, CComboBox& combo, QWidget* parent) {
    return new ComboView(system, combo, new ComboWidget(parent));
}

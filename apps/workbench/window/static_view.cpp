// Labels and pictures.
#include <QLabel>
#include <algorithm>

#include "platform/window/controls.h"
#include "workbench/window/captions.h"
#include "workbench/window/control_views.h"
#include "workbench/window/pictures.h"
#include "workbench/window/qt_window_system.h"

namespace {

class StaticView : public ViewOf<CStatic, QLabel> {
  public:
    StaticView(QtWindowSystem& system, CStatic& window, QLabel* label)
        : ViewOf(system, window, label) {
        label->setTextFormat(Qt::PlainText);
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::text) showText();
        if (change == WindowChange::style) align();
        if (change == WindowChange::content) showPicture();
        WindowView::apply(change);
        if (change == WindowChange::rect) {
            align();
            showPicture();
        }
    }

  private:
    void showText() {
        const std::string& text = model().text();
        // Without a buddy, a label shows its marks as they are.
        QWidget* buddy = hasMark(text) ? labelled() : nullptr;
        shown().setText(buddy ? captionOf(text) : plainCaptionOf(text));
        shown().setBuddy(buddy);
    }

    /// The control that the label stands before: the next one that takes the keyboard.
    QWidget* labelled() const {
        const CWnd* parent = model().parent();
        if (!parent) return nullptr;
        const auto& siblings = parent->children();
        auto next = std::find(siblings.begin(), siblings.end(), &model());
        while (next != siblings.end() && dynamic_cast<CStatic*>(*next)) ++next;
        return next == siblings.end() ? nullptr : system().widgetOf(**next);
    }

    // A label of one line stands in the middle of its height; a higher one fills lines from above.
    void align() {
        const bool isHigh = shown().height() >= 2 * shown().fontMetrics().lineSpacing();
        shown().setWordWrap(isHigh);
        shown().setAlignment((model().hasStyle(styleRight) ? Qt::AlignRight : Qt::AlignLeft) |
                             (isHigh ? Qt::AlignTop : Qt::AlignVCenter));
    }

    void showPicture() {
        if (model().bitmap().isEmpty()) {
            if (!shown().pixmap(Qt::ReturnByValue).isNull()) showText();
            return;
        }
        QPixmap picture = pixmapOf(model().bitmap());
        if (picture.width() > shown().width() || picture.height() > shown().height())
            picture = picture.scaled(shown().size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        shown().setPixmap(picture);
    }
};

}  // namespace

WindowView* makeStaticView(QtWindowSystem& system, CStatic& label, QWidget* parent) {
    return new StaticView(system, label, new QLabel(parent));
}

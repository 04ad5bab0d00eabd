// Push buttons, image buttons, check boxes, radio buttons and frames.
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <algorithm>

#include "platform/window/dialog.h"
#include "workbench/window/captions.h"
#include "workbench/window/control_views.h"
#include "workbench/window/dialog_navigation.h"
#include "workbench/window/pictures.h"
#include "workbench/window/qt_window_system.h"

namespace {

constexpr int smallIcon = 16;
constexpr int iconMargin = 6;

/// What every button that is pressed has in common.
template <class Widget>
class PressView : public ViewOf<CButton, Widget> {
  public:
    PressView(QtWindowSystem& system, CButton& window, Widget* button)
        : ViewOf<CButton, Widget>(system, window, button) {
        QObject::connect(button, &QAbstractButton::clicked, this,
                         [this] { this->act([this] { this->model().userPresses(); }); });
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::text) showText();
        if (change == WindowChange::content) showImage();
        if (change == WindowChange::check) showCheck();
        WindowView::apply(change);
        if (change == WindowChange::rect) showImage();
    }
    void applyOwnChanges() override { showCheck(); }
    virtual void showCheck() { this->shown().setChecked(this->model().isChecked()); }

  private:
    bool hasIcon() const { return !this->shown().icon().isNull(); }
    void showText() {
        this->shown().setText(hasIcon() ? QString() : captionOf(this->model().text()));
    }
    // Icons are drawn for 16 pixels and look best at whole multiples.
    void showImage() {
        if (!this->model().picture().isEmpty()) return showPicture();
        const int number = this->model().image();
        this->shown().setIcon(number ? iconOf(number) : QIcon());
        const int side = std::min(this->shown().width(), this->shown().height()) - iconMargin;
        const int icon = std::max(side / smallIcon, 1) * smallIcon;
        this->shown().setIconSize({icon, icon});
        showText();
    }
    // A picture is as large as it is, unless the button is smaller.
    void showPicture() {
        const CButton& button = this->model();
        const QPixmap picture =
            QPixmap::fromImage(imageOf(button.picture(), button.pictureWithout()));
        QIcon icon(picture);
        icon.addPixmap(picture, QIcon::Disabled);
        this->shown().setIcon(icon);
        this->shown().setIconSize(picture.size().boundedTo(this->shown().size()));
        showText();
    }
};

class PushView : public PressView<QPushButton> {
  public:
    using PressView::PressView;

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::style) {
            shown().setCheckable(model().isCheckable());
            shown().setDefault(isDefault());
        }
        if (change == WindowChange::content) shown().setFlat(!model().picture().isEmpty());
        PressView::apply(change);
    }
    void showCheck() override { shown().setChecked(model().isCheckable() && model().check() != 0); }

  private:
    bool isDefault() const {
        const auto* dialog = dynamic_cast<const CDialog*>(model().parent());
        return dialog && !dialog->isPage() && defaultButton(*dialog) == &model();
    }
};

class CheckView : public PressView<QCheckBox> {
  public:
    using PressView::PressView;

  protected:
    void showCheck() override {
        constexpr Qt::CheckState states[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
        shown().setTristate(model().hasStyle(styleThreeState) || model().check() == 2);
        shown().setCheckState(states[model().check()]);
    }
};

/// The window unchecks the others of the group; the arrow keys go from one to the next.
class RadioView : public PressView<QRadioButton> {
  public:
    RadioView(QtWindowSystem& system, CButton& window, QRadioButton* button)
        : PressView(system, window, button) {
        button->setAutoExclusive(false);
        button->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !window()) return false;
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Left:
            case Qt::Key_Up:
                pressNeighbour(-1);
                return true;
            case Qt::Key_Right:
            case Qt::Key_Down:
                pressNeighbour(1);
                return true;
            default:
                return false;
        }
    }

  private:
    void pressNeighbour(int step) {
        const std::vector<CButton*> group = model().group();
        const auto count = static_cast<int>(group.size());
        const auto own = std::find(group.begin(), group.end(), &model());
        int at = static_cast<int>(own - group.begin());
        for (int tries = 1; tries < count; ++tries) {
            at = (at + step + count) % count;
            CButton* next = group[static_cast<size_t>(at)];
            if (!next->isVisible() || !next->isEnabled()) continue;
            act([&] {
                system().focusByTab(*next);
                next->userPresses();
            });
            return;
        }
    }
};

class GroupView : public ViewOf<CButton, QGroupBox> {
  public:
    GroupView(QtWindowSystem& system, CButton& window, QGroupBox* group)
        : ViewOf(system, window, group) {
        // What it frames may have been made before it; frames of tabs lie below all.
        group->lower();
        for (QWidget* tabs :
             group->parentWidget()->findChildren<QTabWidget*>(Qt::FindDirectChildrenOnly))
            tabs->lower();
        group->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::text) shown().setTitle(captionOf(model().text()));
        WindowView::apply(change);
        shown().setAttribute(Qt::WA_TransparentForMouseEvents);
    }
};

}  // namespace

WindowView* makeButtonView(QtWindowSystem& system, CButton& button, QWidget* parent) {
    if (button.kind() == Control::group)
        return new GroupView(system, button, new QGroupBox(parent));
    if (button.kind() == Control::radioButton)
        return new RadioView(system, button, new QRadioButton(parent));
    if (button.kind() == Control::checkBox && !button.hasStyle(stylePushLike))
        return new CheckView(system, button, new QCheckBox(parent));
    return new PushView(system, button, new QPushButton(parent));
}

// Message boxes on the desktop.
#include <QMessageBox>
#include <QPushButton>

#include "platform/window/wnd.h"
#include "workbench/window/desktop_texts.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/qt_window_system.h"
#include "workbench/window/ui_text.h"

namespace {

struct Choice {
    int id;
    DesktopText caption;
    QMessageBox::ButtonRole role;
};

/// In the order of the buttons; the first is the one that Enter presses.
constexpr Choice choices[] = {
    {IDOK, DesktopText::ok, QMessageBox::AcceptRole},
    {IDRETRY, DesktopText::retry, QMessageBox::AcceptRole},
    {IDYES, DesktopText::yes, QMessageBox::YesRole},
    {IDNO, DesktopText::no, QMessageBox::NoRole},
    {IDCANCEL, DesktopText::cancel, QMessageBox::RejectRole},
};

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::stop:
            return QMessageBox::Critical;
        case MessageIcon::question:
            return QMessageBox::Question;
        case MessageIcon::exclamation:
            return QMessageBox::Warning;
        case MessageIcon::information:
            return QMessageBox::Information;
        case MessageIcon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

int QtWindowSystem::messageBox(const MessageBox& box) {
    syncGrids();
    QMessageBox shown(ownerOf(CWnd::focused()));
    shown.setWindowTitle(toQt(box.caption));
    shown.setTextFormat(Qt::PlainText);  // names in texts stand between "<" and ">"
    shown.setText(shownMessage(box.text));
    shown.setIcon(iconOf(box.icon));
    for (const Choice& choice : choices) {
        if (!box.hasButton(choice.id)) continue;
        QPushButton* button = shown.addButton(desktopText(choice.caption), choice.role);
        button->setProperty("id", choice.id);
        if (!shown.defaultButton()) shown.setDefaultButton(button);
        if (choice.id == box.safeAnswer()) shown.setEscapeButton(button);
    }
    shown.exec();
    const QAbstractButton* pressed = shown.clickedButton();
    return pressed ? pressed->property("id").toInt() : box.safeAnswer();
}

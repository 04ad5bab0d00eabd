#include "workbench/window/dialog_buttons.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include "workbench/window/desktop_texts.h"

QDialogButtonBox* dialogButtons(QDialog& dialog, const QString& accept) {
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(accept, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(desktopText(DesktopText::cancel), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

QDialogButtonBox* dialogButtons(QDialog& dialog) {
    return dialogButtons(dialog, desktopText(DesktopText::ok));
}

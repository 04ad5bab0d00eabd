// The buttons at the foot of a dialog.
#pragma once

class QDialog;
class QDialogButtonBox;
class QString;

/// What the dialog is for, as the default button, and Cancel; they accept and reject `dialog`.
QDialogButtonBox* dialogButtons(QDialog& dialog, const QString& accept);
/// OK and Cancel.
QDialogButtonBox* dialogButtons(QDialog& dialog);

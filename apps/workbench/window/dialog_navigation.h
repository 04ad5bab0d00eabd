// Where keys lead in a dialog.
#pragma once

class CButton;
class CDialog;
class CWnd;

/// Where Tab goes from `from`, anywhere in `dialog`, or from its beginning when null: through the
/// dialog's controls in the order of their making, into each page where it comes, and round. Null
/// when nothing takes the keyboard.
CWnd* nextInTabOrder(CDialog& dialog, const CWnd* from, bool backwards);
/// The button that Enter presses: the one marked for it, else OK; null when there is neither.
CButton* defaultButton(const CDialog& dialog);

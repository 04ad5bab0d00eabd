// Where Tab goes in a dialog with pages: through the dialog's controls in the order of their
// making, into each page where it comes, and round.
#pragma once

class CDialog;
class CWnd;

/// From `from`, anywhere in `dialog`, or from its beginning when null. Null when nothing takes the
/// keyboard.
CWnd* nextInTabOrder(CDialog& dialog, const CWnd* from, bool backwards);

// The widgets of controls, by kind.
#pragma once

#include "workbench/window/window_view.h"

class CButton;
class CComboBox;
class CEdit;
class CListBox;
class CStatic;
class CTabCtrl;

WindowView* makeStaticView(QtWindowSystem& system, CStatic& label, QWidget* parent);
WindowView* makeButtonView(QtWindowSystem& system, CButton& button, QWidget* parent);
WindowView* makeEditView(QtWindowSystem& system, CEdit& edit, QWidget* parent);
WindowView* makeListView(QtWindowSystem& system, CListBox& list, QWidget* parent);
WindowView* makeComboView(QtWindowSystem& system, CComboBox& combo, QWidget* parent);
WindowView* makeTabsView(QtWindowSystem& system, CTabCtrl& tabs, QWidget* parent);

/// Whichever fits the window; the view is owned by its widget.
WindowView* makeView(QtWindowSystem& system, CWnd& window, QWidget* parent);

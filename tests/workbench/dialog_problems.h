// What is wrong with how a dialog looks, found by measuring: for the tests of every dialog.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

/// One line for each visible control whose text does not fit, that lies over another (frames
/// around others aside), or that reaches beyond its dialog. Texts are UTF-8.
std::vector<std::string> dialogProblems(const QWidget& dialog);

/// Saves a picture of the widget as "<name>.png", in the folder that VORMANT_GRABS names; without
/// it, nothing is saved.
void saveGrab(QWidget& widget, const std::string& name);

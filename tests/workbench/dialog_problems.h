// What is wrong with how a dialog looks, found by measuring: for the tests of every dialog.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

/// One line for each visible control whose text does not fit, that lies over another (frames
/// around others aside), or that reaches beyond its dialog. Texts are UTF-8.
std::vector<std::string> dialogProblems(const QWidget& dialog);

/// The same for windows and pages of the program itself, which layouts put together: texts that are
/// cut off or have no words in the language, letters after Alt that lead to two controls, Tab going
/// back to what was passed, and a dialog without a button for Enter.
std::vector<std::string> windowProblems(const QWidget& window);

/// Saves a picture of the widget as "<name>.png", in the folder that VORMANT_GRABS names; without
/// it, nothing is saved.
void saveGrab(QWidget& widget, const std::string& name);

// What is wrong with the windows and pages that layouts put together.
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolBar>
#include <QToolButton>
#include <map>

#include "workbench/dialog_problems.h"

namespace {

using Problems = std::vector<std::string>;

std::string nameOf(const QWidget& widget, const QString& text = {}) {
    const QString shown = text.isEmpty() ? widget.objectName() : "\"" + text + "\"";
    return std::string(widget.metaObject()->className()) + " " + shown.toStdString();
}

template <class Widget>
std::vector<const Widget*> shown(const QWidget& window) {
    std::vector<const Widget*> made;
    for (const Widget* each : window.findChildren<Widget*>())
        if (each->isVisible() && each->window() == window.window()) made.push_back(each);
    return made;
}

// --- texts
// ----------------------------------------------------------------------------------------

QStringList textsOf(const QWidget& widget) {
    QStringList texts{widget.toolTip(), widget.windowTitle()};
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) texts += label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) texts += button->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) texts += group->title();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        texts += field->placeholderText();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        for (int i = 0; i < box->count(); ++i) texts += box->itemText(i);
    if (const auto* menu = qobject_cast<const QMenu*>(&widget))
        for (const QAction* action : menu->actions()) texts += action->text();
    return texts;
}

// A number without words is shown as "#123"; a place for a value that was not filled in, as "%1".
void checkWords(const QWidget& widget, Problems& problems) {
    static const QRegularExpression wordless("^#\\d+$|%\\d");
    for (const QString& text : textsOf(widget))
        if (wordless.match(text).hasMatch()) problems.push_back("no words: " + text.toStdString());
    const QString title = widget.windowTitle();
    if (title.contains('&')) problems.push_back("a title with a mark: " + title.toStdString());
}

// --- what is cut off
// ------------------------------------------------------------------------------

void checkLabel(const QLabel& label, Problems& problems) {
    if (label.text().isEmpty()) return;
    const bool fits = label.wordWrap() ? label.heightForWidth(label.width()) <= label.height()
                                       : label.sizeHint().width() <= label.width();
    if (!fits) problems.push_back(nameOf(label, label.text()) + " is cut off");
}

void checkButton(const QAbstractButton& button, Problems& problems) {
    constexpr int margin = 8;
    const int text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    const bool showsText =
        !tool || tool->icon().isNull() || tool->toolButtonStyle() != Qt::ToolButtonIconOnly;
    if (showsText && !button.text().isEmpty() && text + margin > button.width())
        problems.push_back(nameOf(button, button.text()) + " is cut off");
}

void checkHeader(const QHeaderView& header, Problems& problems) {
    if (header.orientation() == Qt::Vertical || !header.model()) return;
    for (int i = 0; i < header.count(); ++i) {
        const QString text = header.model()->headerData(i, Qt::Horizontal).toString();
        const int needed = header.fontMetrics().horizontalAdvance(text);
        if (!header.isSectionHidden(i) && needed > header.sectionSize(i))
            problems.push_back("column " + text.toStdString() + " is cut off");
    }
}

void checkCutOff(const QWidget& window, Problems& problems) {
    for (const QLabel* each : shown<QLabel>(window)) checkLabel(*each, problems);
    for (const QAbstractButton* each : shown<QAbstractButton>(window)) checkButton(*each, problems);
    for (const QHeaderView* each : shown<QHeaderView>(window)) checkHeader(*each, problems);
}

// --- the keyboard
// ---------------------------------------------------------------------------------

QChar letterOf(QString text) {
    const qsizetype mark = text.remove("&&").indexOf('&');
    return mark < 0 || mark + 1 >= text.size() ? QChar() : text[mark + 1].toLower();
}

QString captionOf(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label) return label->buddy() ? label->text() : QString();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
    return {};
}

/// The letters of one window or menu, each with the first that took it.
using Letters = std::map<QChar, QString>;

void takeLetter(const QString& caption, Letters& letters, Problems& problems) {
    const QChar letter = letterOf(caption);
    if (letter.isNull()) return;
    const auto [found, isNew] = letters.emplace(letter, caption);
    if (!isNew)
        problems.push_back("Alt+" + QString(letter).toStdString() + " is " +
                           found->second.toStdString() + " and " + caption.toStdString());
}

void checkLetters(const QWidget& window, Problems& problems) {
    Letters letters;
    for (const QWidget* each : shown<QWidget>(window))
        if (each->isEnabled()) takeLetter(captionOf(*each), letters, problems);
    const auto* menu = qobject_cast<const QMenu*>(&window);
    if (!menu) return;
    for (const QAction* each : menu->actions()) {
        takeLetter(each->text(), letters, problems);
        if (each->menu()) checkLetters(*each->menu(), problems);
    }
}

// A tool bar comes after what it is for.
bool isInToolBar(const QWidget* widget) {
    while (widget && !qobject_cast<const QToolBar*>(widget)) widget = widget->parentWidget();
    return widget != nullptr;
}

bool takesTab(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0 &&
           !isInToolBar(&widget);
}

QRect placeOf(const QWidget& widget, const QWidget& window) {
    return {widget.mapTo(window.window(), QPoint()), widget.size()};
}

/// Above it without lying to its right, or in its line and to its left.
bool comesBefore(const QRect& next, const QRect& here) {
    const bool isAbove = next.bottom() < here.top() && next.left() <= here.right();
    const bool isInLine = next.top() <= here.center().y() && here.center().y() <= next.bottom();
    return isAbove || (isInLine && next.right() < here.left());
}

// Tab goes round, so once it may go back to the beginning.
void checkTabs(const QWidget& window, Problems& problems) {
    std::vector<const QWidget*> stops;
    for (const QWidget* each = window.nextInFocusChain(); each != &window;
         each = each->nextInFocusChain())
        if (takesTab(*each) && window.isAncestorOf(each)) stops.push_back(each);
    Problems back;
    for (size_t i = 0; i < stops.size(); ++i) {
        const QWidget& here = *stops[i];
        const QWidget& next = *stops[(i + 1) % stops.size()];
        if (comesBefore(placeOf(next, window), placeOf(here, window)))
            back.push_back("Tab goes back from " + nameOf(here, captionOf(here)) + " to " +
                           nameOf(next, captionOf(next)));
    }
    if (back.size() > 1) problems.insert(problems.end(), back.begin(), back.end());
}

void checkDefault(const QWidget& window, Problems& problems) {
    const auto buttons = shown<QPushButton>(window);
    if (!qobject_cast<const QDialog*>(&window) || buttons.empty()) return;
    // Without a file there is nothing to open yet.
    const bool mayWait = qobject_cast<const QFileDialog*>(&window);
    for (const QPushButton* each : buttons)
        if (each->isDefault() && (each->isEnabled() || mayWait)) return;
    problems.push_back("no button for Enter");
}

}  // namespace

std::vector<std::string> windowProblems(const QWidget& window) {
    Problems problems;
    checkWords(window, problems);
    for (const QWidget* each : shown<QWidget>(window)) checkWords(*each, problems);
    checkCutOff(window, problems);
    checkLetters(window, problems);
    checkTabs(window, problems);
    checkDefault(window, problems);
    return problems;
}

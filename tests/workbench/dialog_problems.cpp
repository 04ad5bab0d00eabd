#include "workbench/dialog_problems.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>

namespace {

/// A widget that is a control, or a page that holds some.
QString nameOf(const QWidget& widget) {
    QString text;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) text = button->text();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) text = label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) text = group->title();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) text = combo->currentText();
    return widget.objectName() + (text.isEmpty() ? QString() : " \"" + text + "\"");
}

/// Of the text as it is drawn: marks below letters take no room.
QSize textSize(const QWidget& widget, const QString& text, int flags = Qt::TextShowMnemonic) {
    return widget.fontMetrics().size(flags, text);
}

QSize neededByLabel(const QLabel& label) {
    if (!label.wordWrap()) return textSize(label, label.text());
    const QRect room(0, 0, label.width(), QWIDGETSIZE_MAX);
    return label.fontMetrics().boundingRect(room, Qt::TextWordWrap, label.text()).size();
}

/// Push buttons keep a small distance to their frame.
QSize neededByButton(const QAbstractButton& button) {
    if (const auto* push = qobject_cast<const QPushButton*>(&button)) {
        if (push->text().isEmpty()) return push->iconSize() + QSize(4, 4);
        return textSize(button, button.text()) + QSize(8, 4);
    }
    const int indicator = button.style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                          button.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    return textSize(button, button.text()) + QSize(indicator, 0);
}

QSize neededByCombo(const QComboBox& combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    QSize needed = textSize(combo, combo.currentText(), Qt::TextSingleLine);
    for (int i = 0; i < combo.count() && !combo.isEditable(); ++i)
        needed = needed.expandedTo(textSize(combo, combo.itemText(i), Qt::TextSingleLine));
    return needed + combo.size() - field.size();
}

/// Fields and lists scroll along, but their height must show a line.
QSize needed(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return neededByLabel(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return neededByButton(*button);
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return neededByCombo(*combo);
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return textSize(widget, group->title()) + QSize(16, 0);
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget))
        return tabs->tabBar()->sizeHint();
    constexpr int frame = 4;
    return {0, widget.fontMetrics().height() + frame};
}

bool isFrame(const QWidget& widget) {
    return qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QTabWidget*>(&widget);
}

std::string sides(const QSize& size) {
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

using Problems = std::vector<std::string>;

void checkText(const QWidget& control, Problems& problems) {
    const QSize least = needed(control);
    if (least.width() <= control.width() && least.height() <= control.height()) return;
    problems.push_back(nameOf(control).toStdString() + " needs " + sides(least) + " and has " +
                       sides(control.size()));
}

void checkPair(const QWidget& one, const QWidget& other, Problems& problems) {
    const QRect a = one.geometry();
    const QRect b = other.geometry();
    if (!a.intersects(b)) return;
    if ((isFrame(one) && a.contains(b)) || (isFrame(other) && b.contains(a))) return;
    problems.push_back(nameOf(one).toStdString() + " and " + nameOf(other).toStdString() +
                       " overlap");
}

void check(const QWidget& dialog, Problems& problems) {
    std::vector<const QWidget*> controls;
    for (const QObject* child : dialog.children()) {
        const auto* widget = qobject_cast<const QWidget*>(child);
        if (widget && widget->isVisible() && !widget->isWindow() && !widget->objectName().isEmpty())
            controls.push_back(widget);
    }
    for (size_t i = 0; i < controls.size(); ++i) {
        const QWidget& control = *controls[i];
        if (!dialog.rect().contains(control.geometry()))
            problems.push_back(nameOf(control).toStdString() + " reaches beyond its dialog");
        for (size_t j = i + 1; j < controls.size(); ++j) checkPair(control, *controls[j], problems);
        const bool isPage = control.metaObject() == &QWidget::staticMetaObject;
        if (isPage)
            check(control, problems);
        else
            checkText(control, problems);
    }
}

}  // namespace

std::vector<std::string> dialogProblems(const QWidget& dialog) {
    Problems problems;
    check(dialog, problems);
    return problems;
}

void saveGrab(QWidget& widget, const std::string& name) {
    const QString folder = qEnvironmentVariable("VORMANT_GRABS");
    if (folder.isEmpty()) return;
    QDir().mkpath(folder);
    widget.grab().save(QDir(folder).filePath(QString::fromStdString(name) + ".png"));
}

// The real desktop for the length of a test, and how a test works with its widgets.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>
#include <stdexcept>
#include <utility>

#include "platform/window/dialog.h"
#include "workbench/window/qt_window_system.h"

class Desktop : public testing::Test {
  protected:
    // A question that nobody answers would wait for ever.
    Desktop() {
        m_patience.setSingleShot(true);
        m_patience.callOnTimeout([] {
            ADD_FAILURE() << "somebody waits for an answer";
            QCoreApplication::exit();
        });
        m_patience.start(60000);
    }

    /// What a test does once a modal question or a menu waits that was not there before.
    static void meanwhile(std::function<void()> steps) {
        auto* format = new QTimer(qApp);
        format->callOnTimeout([format, steps = std::move(steps), before = QPointer(waiting())] {
            const QWidget* asked = waiting();
            const bool isMenu = asked == QApplication::activePopupWidget();
            if (!asked || asked == before || (!isMenu && !asked->isActiveWindow())) return;
            format->stop();
            format->deleteLater();
            steps();
        });
        format->start(10);
    }
    static QWidget* waiting() {
        QWidget* menu = QApplication::activePopupWidget();
        return menu ? menu : QApplication::activeModalWidget();
    }
    static void propagate() { QTest::qWait(20); }

    template <class Widget>
    Widget& widget(const CWnd& window) const {
        auto* found = qobject_cast<Widget*>(system.widgetOf(window));
        if (!found) throw std::runtime_error("no such widget");
        return *found;
    }
    template <class Widget>
    Widget& widget(const CDialog& dialog, int id) const {
        return widget<Widget>(*dialog.descendant(id));
    }
    void click(QWidget& widget, QPoint at = {}) const {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    }
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_TRUE(focused);
        QTest::keyClick(focused, key, modifiers);
    }
    static void clickItem(QAbstractItemView& view, int row, Qt::KeyboardModifiers modifiers = {}) {
        const QRect place = view.visualRect(view.model()->index(row, 0));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, place.center());
    }

    QtWindowSystem system;

  private:
    QTimer m_patience;
};

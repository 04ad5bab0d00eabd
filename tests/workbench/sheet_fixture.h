// The main window with a sheet in front, worked by keys, the mouse and menus.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/paths.h"
#include "support/test_user.h"
#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/sheet_words.h"
#include "workbench/shell/main_window.h"
#include "workbench/window/dialog_font.h"

class SheetWindow : public testing::Test {
  protected:
    SheetWindow() {
        qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
        window = std::make_unique<MainWindow>(WorkbenchSettings{});
        window->resize(1200, 800);
        window->show();
        window->activateWindow();
        open(*window->newSheet());
    }
    void open(SheetPage& opened) {
        page = &opened;
        page->view().setFocus();
        QApplication::processEvents();
    }
    QString path(const char* name) const { return m_folder.filePath(name); }
    std::string inside(const char* name) const {
        return *paths::toInside(path(name).toStdString());
    }
    QByteArray content(const QString& file) const {
        QFile read(file);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }
    void write(const char* name, const QByteArray& bytes) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QWidget& focus() const {
        QWidget* focused = QApplication::focusWidget();
        return focused ? *focused : page->view();
    }
    void keys(const char* typed) const {
        for (const char* key = typed; *key; ++key) QTest::keyClick(&focus(), *key);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers with = {}) const {
        QTest::keyClick(&focus(), key, with);
    }
    /// Types into a cell, as "B2".
    void type(const char* cell, const char* text) const {
        select(cell);
        keys(text);
        key(Qt::Key_Return);
    }
    void select(const char* block) const {
        QLineEdit& box = page->formulaBar().nameBox();
        box.setFocus();
        box.setText(block);
        QTest::keyClick(&box, Qt::Key_Return);
    }
    /// What a user does in a modal `Dialog` once it waits; isWaited tells whether one still has to.
    template <class Dialog>
    void whenOpens(std::function<void(Dialog&)> steps) {
        isWaited = true;
        auto* format = new QTimer(window.get());
        format->callOnTimeout([this, format, steps = std::move(steps)] {
            auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible()) return;
            isWaited = false;
            format->stop();
            format->deleteLater();
            steps(*dialog);
        });
        format->start(10);
    }
    void run(int word) const { page->commands().action(word).trigger(); }
    std::string text(int col, int row) const {
        return page->grid().text(col, row, control::Reading::data);
    }
    std::string formula(int col, int row) const {
        return page->grid().text(col, row, control::Reading::formula);
    }
    const control::CellFormat& format(int col, int row) const {
        return page->grid().format(col, row);
    }
    QString tab() const { return window->pages().tabText(window->pages().indexOf(page)); }

    QTemporaryDir m_folder;
    std::unique_ptr<MainWindow> window;
    SheetPage* page = nullptr;
    bool isWaited = false;
};

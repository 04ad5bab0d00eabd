// A grid in a dialog between two fields that Tab can go to, driven by keys and the mouse.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "platform/window/window_system.h"
#include "spread/vor_spread.h"
#include "workbench/grid/grid_view.h"

constexpr int gridId = 1004;

class GridWindow : public testing::Test {
  protected:
    GridWindow() {
        dialog.create({"#32770", "Dialog", {100, 50, 700, 550}, 0, 0, true}, nullptr);
        placeholder.create({"Static", "", {20, 30, 437, 230}, 0, gridId, true}, &dialog);
        spread.attach(&dialog, gridId, true);
        size(4, 6);
        spread.setListener([this](const GridNotice& notice) {
            constexpr const char* names[] = {"changed", "moved", "pressed", "checked", "double"};
            notices.push_back(std::string(names[static_cast<int>(notice.what)]) + " " +
                              std::to_string(notice.col) + "," + std::to_string(notice.row));
        });
    }
    ~GridWindow() override {
        view.reset();
        spread.destroy();
        dialog.destroy();
    }
    void size(int cols, int rows) {
        spread.setNrCols(cols, false);
        spread.setNrRows(rows);
    }
    GridView& open() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&before);
        view = std::make_unique<GridView>(spread, &window);
        layout->addWidget(view.get());
        layout->addWidget(&after);
        window.resize(640, 400);
        window.show();
        window.activateWindow();
        view->setFocus();
        QApplication::processEvents();
        return *view;
    }
    control::Grid& grid() { return spread.grid(); }
    std::string text(int col, int row) const {
        return spread.grid().text(col, row, control::Reading::data);
    }
    std::pair<int, int> active() const {
        return {spread.grid().active().col, spread.grid().active().row};
    }
    QWidget* target() const { return QApplication::focusWidget(); }
    // Each key goes where the keyboard is by then.
    void keys(const QString& typed) const {
        for (const QChar character : typed) QTest::keyClick(target(), character.toLatin1());
    }
    void key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) const {
        QTest::keyClick(target(), key, with);
    }
    QRect place(int col, int row) const {
        return view->visualRect(view->model()->index(row - 1, col - 1));
    }
    void click(int col, int row, Qt::KeyboardModifiers with = Qt::NoModifier) const {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, with, place(col, row).center());
    }
    void moveTo(int col, int row) {
        grid().setActive(col, row);
        view->sync();
    }

    CWnd dialog;
    CWnd placeholder;
    Vor_Spread spread;
    QWidget window;
    QLineEdit before, after;
    std::unique_ptr<GridView> view;
    std::vector<std::string> notices;
};

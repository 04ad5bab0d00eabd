// Shows a grid control and hands on what a user does to it. Cells, sizes, selection and edit mode
// are the grid's; the view keeps no copy of them and draws straight from it. Whoever changes the
// grid calls sync() afterwards.
#pragma once

#include <QTableView>

#include "spread/t_spread.h"
#include "workbench/grid/cell_painter.h"
#include "workbench/grid/grid_model.h"
#include "workbench/grid/grid_steps.h"
#include "workbench/grid/in_cell_editor.h"
#include "workbench/grid/layout_follower.h"

class MessageBubble;

class GridView : public QTableView {
    Q_OBJECT

  public:
    /// `spread` outlives the view, or takes its model away before it goes.
    GridView(TSpread& spread, QWidget* parent);

    /// Shows what the grid is now: its counts, sizes, spans, active cell, selection and edit mode.
    /// Cheap when nothing changed.
    void sync();

    /// Percent: 100 shows pixels of the grid as pixels of the screen.
    void setZoom(int percent);
    int zoom() const { return m_zoom; }

    /// Enters what is being typed. False, with the reason shown, when the cell refuses it; the
    /// field stays open.
    bool commitEdit();
    bool isEditing() const { return m_editor.isOpen(); }
    /// The field that is typed in; null while there is none.
    QPlainTextEdit* field() const { return m_editor.field(); }
    /// The reason shown beside a cell that refused what was typed; empty when there is none.
    QString refusal() const;

    /// Shows beside the active cell why something was not done.
    void refuse(const QString& why);

    /// Selects the whole sheet.
    void selectAll() override;

  signals:
    /// A cell refused what was typed, for the reason given; it is shown beside the cell, too.
    void refused(const QString& why);
    /// A cell is typed into from now on.
    void fieldOpened(QPlainTextEdit* field);

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    using Cell = control::CellAddress;
    control::Grid& grid() { return m_spread.grid(); }
    const control::Grid& grid() const { return m_spread.grid(); }
    QModelIndex indexOf(Cell cell) const { return m_model.index(cell.row - 1, cell.col - 1); }
    QRect rectOf(Cell cell) const { return visualRect(indexOf(cell)); }
    std::optional<Cell> cellAt(const QPoint& point) const;
    /// The active cell; the first one becomes active when there is none. Nothing in an empty sheet.
    std::optional<Cell> activeCell();

    // grid_view.cpp
    void connectHeaders();
    void followColours();
    void followActive();
    void drawFrames(QPainter& painter) const;
    void drawCorner(QWidget& corner) const;
    void setWidthByUser(int section, int size);
    void setHeightByUser(int section, int size);
    void fitByUser(bool isCol, int index);
    QString tipAt(const QPoint& point) const;

    // grid_view_keys.cpp
    void handOn(QKeyEvent& key);
    bool runsAction(const QKeyEvent& key);
    bool moves(const QKeyEvent& key);
    bool selects(const QKeyEvent& key);
    bool acts(const QKeyEvent& key);
    bool types(const QKeyEvent& key);
    bool entersBesides(const QKeyEvent& key);
    bool editorKey(QKeyEvent& key);
    std::optional<Cell> targetOf(const QKeyEvent& key, Cell from) const;
    Cell pageFrom(Cell from, int direction) const;
    void leaveBy(bool forwards);
    void goOnByTab(bool forwards);
    bool goOnByEnter(bool forwards);
    bool picksByLetter(Cell cell, const QString& letter);
    void openList(Cell cell);
    bool run(control::KeyAction action);

    // grid_view_selection.cpp
    static bool isAlive(const QPointer<GridView>& view);
    void go(Cell cell);
    void extendTo(Cell cell);
    void select(const control::Block& block);
    control::Block chosen() const;
    void selectBand(bool isCol, int index, bool extends);
    void press(Cell cell);
    void toggleAt(Cell cell, const QPoint& point);

    void showWhyClosed(Cell cell);

    TSpread& m_spread;
    GridModel m_model;
    CellPainter m_painter;
    LayoutFollower m_layout;
    InCellEditor m_editor;
    MessageBubble* m_bubble;

    int m_zoom = 100;

    // Where a selection started and where it was last extended to; what it selected, so that one
    // that was made elsewhere starts anew.
    Cell m_anchor;
    Cell m_head;
    std::optional<control::Block> m_extended;
    int m_bandAnchor = 0;  ///< of a drag over headers
    Cell m_shownActive;    ///< that was scrolled to
    Cell m_pressed;        ///< where the left button went down
    bool m_isDragging = false;
    bool m_isHandingOn = false;
};

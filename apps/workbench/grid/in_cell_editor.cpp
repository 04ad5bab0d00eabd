#include "workbench/grid/in_cell_editor.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTableView>
#include <algorithm>

#include "workbench/grid/cell_font.h"
#include "workbench/grid/refusal.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/typed_text.h"

using control::CellAddress;

namespace {

constexpr int frame = 2;   // drawn round the field by the view
constexpr int inset = 2;   // with the frame, a cell's margin
constexpr int spare = 12;  // for the next letters

/// Its text begins where the cell's own does.
class Field : public QPlainTextEdit {
  public:
    Field(QWidget* parent, QPalette colours) : QPlainTextEdit(parent) {
        setFrameShape(QFrame::NoFrame);
        document()->setDocumentMargin(0);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setLineWrapMode(QPlainTextEdit::NoWrap);
        // The colours around it are those of the area without cells.
        for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Window})
            colours.setColor(role, colours.color(QPalette::Base));
        setPalette(colours);
        setAutoFillBackground(true);
    }
    void setTop(int above) { setViewportMargins(inset, above, inset, 0); }
};

int textWidth(const QPlainTextEdit& field) {
    return field.fontMetrics().size(Qt::TextExpandTabs, field.toPlainText()).width();
}

}  // namespace

InCellEditor::InCellEditor(TSpread& spread, QTableView& view, Hooks hooks)
    : QObject(&view), m_spread(spread), m_view(view), m_hooks(std::move(hooks)) {}

bool InCellEditor::begin() {
    if (!m_spread.grid().beginEdit()) return false;
    follow();
    return true;
}

bool InCellEditor::beginWith(const QString& typed) {
    if (const QString why = refusalOf(typed); !why.isEmpty()) {
        m_hooks.refused(why);
        return false;
    }
    if (!m_spread.grid().beginEdit()) return false;
    m_spread.grid().setEditText(fromQt(typed));
    follow();
    return true;
}

bool InCellEditor::commit() {
    control::Grid& grid = m_spread.grid();
    if (!grid.isEditing()) {
        close();
        return true;
    }
    const CellAddress cell = grid.active();
    const std::string typed(grid.editText());
    const auto [start, length] = grid.editSelection();
    grid.endEdit(false);
    grid.beginEdit();
    const bool isSame = grid.editText() == typed;
    grid.endEdit(false);
    const QPointer<InCellEditor> self(this);
    if (isSame || m_spread.userEnters(cell.col, cell.row, typed)) {
        if (self) close();
        return true;
    }
    const QString why = whyRefused(grid, cell.col, cell.row, typed);
    if (grid.beginEdit()) {
        grid.setEditText(typed);
        grid.setEditSelection(start, length);
    }
    follow();
    m_hooks.refused(why);
    return !isOpen();
}

void InCellEditor::cancel() {
    m_spread.grid().endEdit(false);
    close();
}

void InCellEditor::follow() {
    const control::Grid& grid = m_spread.grid();
    if (!grid.isEditing()) return close();
    if (!m_field) open();
    const QString text = toQt(grid.editText());
    const QTextCursor cursor = m_field->textCursor();
    const std::pair now(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
    if (text != m_field->toPlainText() || now != grid.editSelection())
        show(text, grid.editSelection());
    place();
}

void InCellEditor::show(const QString& text, std::pair<int, int> selection) {
    m_isShowing = true;
    if (text != m_field->toPlainText()) m_field->setPlainText(text);
    QTextCursor cursor = m_field->textCursor();
    cursor.setPosition(selection.first);
    cursor.setPosition(selection.first + selection.second, QTextCursor::KeepAnchor);
    m_field->setTextCursor(cursor);
    m_kept = text;
    m_isShowing = false;
}

void InCellEditor::open() {
    const control::Grid& grid = m_spread.grid();
    const control::CellFormat& format = grid.format(grid.active().col, grid.active().row);
    m_field = new Field(m_view.viewport(), m_view.palette());
    m_field->setFont(cellFont(format.font, m_zoom).font);
    m_field->setReadOnly(format.type.kind == control::CellKind::comboBox && !format.type.editable);
    m_field->installEventFilter(this);
    show(toQt(grid.editText()), grid.editSelection());
    connect(m_field, &QPlainTextEdit::textChanged, this, [this] { take(); });
    connect(m_field, &QPlainTextEdit::selectionChanged, this, [this] { takeSelection(); });
    connect(m_field, &QPlainTextEdit::cursorPositionChanged, this, [this] { takeSelection(); });
    const bool hadFocus = m_view.hasFocus();
    m_view.setFocusProxy(m_field);
    place();
    m_field->show();
    if (hadFocus) m_field->setFocus();
    m_hooks.opened(m_field);
}

void InCellEditor::close() {
    if (!m_field) return;
    QPlainTextEdit* field = m_field;
    m_field = nullptr;  // so that the focus it loses commits nothing
    const bool hadFocus = field->hasFocus();
    m_view.setFocusProxy(nullptr);
    if (hadFocus) m_view.setFocus();
    field->removeEventFilter(this);
    field->hide();
    field->deleteLater();
    m_view.viewport()->update();
}

// --- what is typed ------------------------------------------------------------------------------

QString InCellEditor::whyNot(const QString& text) const {
    if (QString why = refusalOf(text); !why.isEmpty()) return why;
    const control::Grid& grid = m_spread.grid();
    const control::CellType& type = grid.format(grid.active().col, grid.active().row).type;
    const bool isFormula = text.startsWith('=') && grid.option(control::Option::userFormulas);
    const bool isLimited = type.kind == control::CellKind::edit && type.maxLength > 0;
    if (isLimited && !isFormula && text.size() > type.maxLength && text.size() > m_kept.size())
        return whyTooLong(type.maxLength);
    return {};
}

void InCellEditor::take() {
    if (m_isShowing || !m_field) return;
    const QString text = m_field->toPlainText();
    if (const QString why = whyNot(text); !why.isEmpty()) {
        putBack();
        m_hooks.refused(why);
        return;
    }
    m_kept = text;
    m_spread.grid().setEditText(fromQt(text));
    takeSelection();
    place();
    m_hooks.typed();
}

void InCellEditor::takeSelection() {
    if (m_isShowing || !m_field) return;
    const QTextCursor cursor = m_field->textCursor();
    m_spread.grid().setEditSelection(cursor.selectionStart(),
                                     cursor.selectionEnd() - cursor.selectionStart());
}

// Takes back a change, leaving the cursor where it was typed.
void InCellEditor::putBack() {
    const auto grown = m_field->toPlainText().size() - m_kept.size();
    const auto cursor = m_field->textCursor().position() - std::max<qsizetype>(grown, 0);
    show(m_kept, {static_cast<int>(std::clamp<qsizetype>(cursor, 0, m_kept.size())), 0});
    takeSelection();
}

bool InCellEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_field) return QObject::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Keys are this field's before they are a shortcut; with Ctrl only those it knows.
            if (static_cast<QKeyEvent*>(event)->modifiers() & Qt::ControlModifier) return false;
            event->accept();
            return true;
        case QEvent::KeyPress:
            return m_hooks.key(*static_cast<QKeyEvent*>(event));
        case QEvent::FocusOut: {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            const bool returns = reason == Qt::ActiveWindowFocusReason ||
                                 reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
            // While a dialog is destroyed no window has the keyboard, and nobody is to hear of a
            // cell any more.
            if (!returns && m_view.model() && CWnd::focused()) commit();
            return false;
        }
        default:
            return false;
    }
}

// --- its place ----------------------------------------------------------------------------------

// Grows to the right and downwards with its text, as far as the view goes.
QRect InCellEditor::roomFor(const QRect& cell) const {
    const QRect view = m_view.viewport()->rect();
    const int lines = std::max(m_field->document()->blockCount(), 1);
    const int width = textWidth(*m_field) + 2 * (frame + inset) + spare;
    const int height = lines * m_field->fontMetrics().lineSpacing() + 2 * frame + 2;
    QRect room = cell;
    if (width > room.width())
        room.setWidth(std::max(std::min(width, view.right() - room.left()), cell.width()));
    if (height > room.height())
        room.setHeight(std::max(std::min(height, view.bottom() - room.top()), cell.height()));
    return room.adjusted(frame, frame, -frame - 1, -frame - 1);
}

void InCellEditor::place() {
    if (!m_field || !m_view.model()) return;
    const CellAddress cell = m_spread.grid().active();
    const QRect shown = m_view.visualRect(m_view.model()->index(cell.row - 1, cell.col - 1));
    const QRect room = roomFor(shown);
    if (room == m_field->geometry()) return;
    // One line stands in the middle, as the cell's own text does.
    const int lines = std::max(m_field->document()->blockCount(), 1);
    const int above =
        std::max((room.height() - lines * m_field->fontMetrics().lineSpacing()) / 2, 0);
    m_field->setGeometry(room);
    static_cast<Field*>(m_field.data())->setTop(above);
    m_view.viewport()->update();
}

#include "workbench/sheet/formula_typing.h"

#include <QKeyEvent>
#include <QSyntaxHighlighter>

#include "workbench/grid/cell_painter.h"
#include "workbench/window/dialog_font.h"

namespace {

constexpr int mostShown = 8;
constexpr int padding = 4;

/// "ROUND(number, decimals)" with the argument being typed in bold.
QString hintText(const editor::ArgumentHint& hint) {
    QString text = toQt(hint.function->name).toHtmlEscaped() + "(";
    for (size_t i = 0; i < hint.function->arguments.size(); ++i) {
        const QString name = toQt(hint.function->arguments[i]).toHtmlEscaped();
        if (i > 0) text += ", ";
        text += static_cast<int>(i) == hint.argument ? "<b>" + name + "</b>" : name;
    }
    return text + ")<br>" + toQt(hint.function->summary).toHtmlEscaped();
}

void placeBelow(QWidget& widget, QPoint point) {
    const QRect room = widget.parentWidget()->rect();
    point.setX(std::max(std::min(point.x(), room.right() - widget.width()), 0));
    if (point.y() + widget.height() > room.bottom())
        point.setY(std::max(room.bottom() - widget.height(), 0));
    widget.move(point);
    widget.show();
    widget.raise();
}

}  // namespace

QColor colourOf(const editor::ReferenceMark& mark) {
    const size_t count = std::size(editor::markColours);
    return toQt(editor::markColours[static_cast<size_t>(mark.colour) % count], Qt::black);
}

class FormulaColours : public QSyntaxHighlighter {
  public:
    FormulaColours(QTextDocument* document,
                   std::function<FormulaTyping::Marks(const QString&)> find)
        : QSyntaxHighlighter(document), m_find(std::move(find)) {}

  protected:
    // A formula is one line.
    void highlightBlock(const QString& line) override {
        if (currentBlock().blockNumber() > 0) return;
        for (const editor::ReferenceMark& mark : m_find(line))
            setFormat(static_cast<int>(mark.start), static_cast<int>(mark.length), colourOf(mark));
    }

  private:
    std::function<FormulaTyping::Marks(const QString&)> m_find;
};

FormulaTyping::FormulaTyping(QPlainTextEdit& field, const control::Grid& grid,
                             std::function<void(const Marks&)> marked)
    : QObject(&field),
      m_field(field),
      m_grid(grid),
      m_marked(std::move(marked)),
      m_colours(new FormulaColours(field.document(),
                                   [this](const QString& line) {
                                       return line.startsWith('=')
                                                  ? editor::referenceMarks(fromQt(line), place())
                                                  : Marks();
                                   })),
      m_names(new QListWidget(field.window())),
      m_hint(new QLabel(field.window())) {
    m_names->setFocusPolicy(Qt::NoFocus);
    m_names->hide();
    m_hint->setFrameShape(QFrame::StyledPanel);
    m_hint->setAutoFillBackground(true);
    m_hint->setBackgroundRole(QPalette::ToolTipBase);
    m_hint->setForegroundRole(QPalette::ToolTipText);
    m_hint->setMargin(padding);
    m_hint->hide();
    field.installEventFilter(this);
    connect(&field, &QPlainTextEdit::textChanged, this, [this] { help(); });
    connect(&field, &QPlainTextEdit::cursorPositionChanged, this, [this] { help(); });
    connect(m_names, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { take(item->text()); });
    help();
}

FormulaTyping::~FormulaTyping() {
    if (m_names) m_names->deleteLater();
    if (m_hint) m_hint->deleteLater();
}

std::string FormulaTyping::text() const {
    return fromQt(m_field.toPlainText());
}

size_t FormulaTyping::cursor() const {
    return static_cast<size_t>(m_field.textCursor().position());
}

editor::FormulaPlace FormulaTyping::place() const {
    return {m_grid.active().col, m_grid.active().row, m_grid.referenceStyle()};
}

QPoint FormulaTyping::under() const {
    const QRect line = m_field.cursorRect();
    return m_field.viewport()->mapTo(m_names->parentWidget(),
                                     QPoint(line.left(), m_field.height() + 2));
}

void FormulaTyping::help() {
    const std::string typed = text();
    const bool isFormula = typed.starts_with('=') && m_field.isVisible() && m_field.hasFocus();
    m_marked(typed.starts_with('=') ? editor::referenceMarks(typed, place()) : Marks());
    if (!isFormula) return hide();
    showNames();
    showHint();
}

void FormulaTyping::hide() {
    if (m_names) m_names->hide();
    if (m_hint) m_hint->hide();
}

void FormulaTyping::showNames() {
    const auto found = editor::completeFunction(text(), cursor());
    m_completion = found.value_or(editor::Completion());
    m_names->clear();
    for (const std::string_view name : m_completion.names) {
        auto* item = new QListWidgetItem(toQt(name), m_names);
        if (const auto* help = editor::functionHelp(name)) item->setToolTip(toQt(help->summary));
    }
    if (m_completion.names.empty()) {
        m_names->hide();
        return;
    }
    m_names->setCurrentRow(0);
    const int rows = std::min(m_names->count(), mostShown);
    m_names->setFixedSize(std::max(m_names->sizeHintForColumn(0) + 40, 120),
                          rows * m_names->sizeHintForRow(0) + 2 * m_names->frameWidth());
    placeBelow(*m_names, under());
}

void FormulaTyping::showHint() {
    const auto hint = editor::argumentHint(text(), cursor());
    if (!hint || !m_names->isHidden()) {
        m_hint->hide();
        return;
    }
    m_hint->setText(hintText(*hint));
    m_hint->adjustSize();
    placeBelow(*m_hint, under());
}

bool FormulaTyping::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &m_field) return false;
    switch (event->type()) {
        case QEvent::KeyPress: {
            const auto& key = static_cast<QKeyEvent&>(*event);
            m_pointed.reset();
            if (key.key() == Qt::Key_F4 && m_field.toPlainText().startsWith('=')) {
                cycle();
                return true;
            }
            return completes(key);
        }
        case QEvent::Hide:
            m_marked({});
            hide();
            return false;
        case QEvent::FocusOut:
            hide();
            return false;
        case QEvent::FocusIn:
            help();
            return false;
        default:
            return false;
    }
}

bool FormulaTyping::completes(const QKeyEvent& key) {
    if (m_names->isHidden()) return false;
    const int row = m_names->currentRow();
    switch (key.key()) {
        case Qt::Key_Tab:
            take(m_names->currentItem()->text());
            return true;
        case Qt::Key_Down:
        case Qt::Key_Up:
            m_names->setCurrentRow(
                std::clamp(row + (key.key() == Qt::Key_Down ? 1 : -1), 0, m_names->count() - 1));
            return true;
        case Qt::Key_Escape:
            m_names->hide();
            return true;
        default:
            return false;
    }
}

void FormulaTyping::take(const QString& name) {
    QTextCursor at = m_field.textCursor();
    at.setPosition(static_cast<int>(m_completion.start));
    at.setPosition(static_cast<int>(m_completion.start + m_completion.length),
                   QTextCursor::KeepAnchor);
    at.insertText(name + "(");
    m_field.setTextCursor(at);
}

void FormulaTyping::cycle() {
    const auto changed = editor::cycleReference(text(), cursor(), place());
    if (!changed) return;
    QTextCursor at(m_field.document());
    at.select(QTextCursor::Document);
    at.insertText(toQt(changed->text));
    // Behind the reference, where typing goes on.
    at.setPosition(static_cast<int>(changed->start + changed->length));
    m_field.setTextCursor(at);
}

bool FormulaTyping::point(const control::Block& block) {
    QTextCursor at = m_field.textCursor();
    const QString typed = m_field.toPlainText();
    if (!typed.startsWith('=')) return false;
    if (m_pointed) {
        at.setPosition(m_pointed->first);
        at.setPosition(m_pointed->first + m_pointed->second, QTextCursor::KeepAnchor);
    } else {
        const QString before = typed.left(at.selectionStart()).trimmed();
        if (!QString("=+-*/^&(<>,;:").contains(before.back())) return false;
    }
    const int start = at.selectionStart();
    const QString reference = toQt(editor::referenceTo(block, place()));
    at.insertText(reference);
    m_field.setTextCursor(at);
    m_pointed = {start, static_cast<int>(reference.size())};
    return true;
}

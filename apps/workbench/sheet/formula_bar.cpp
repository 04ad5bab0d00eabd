#include "workbench/sheet/formula_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "core_api/texts/texts.h"
#include "workbench/sheet/cell_reference.h"
#include "workbench/sheet/sheet_words.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/typed_text.h"

namespace {

constexpr int nameWidth = 110;
constexpr int fieldHeight = 26;

}  // namespace

FormulaBar::FormulaBar(SheetView& view, const control::Grid& grid, QWidget* parent)
    : QWidget(parent),
      m_view(view),
      m_grid(grid),
      m_name(new QLineEdit),
      m_function(new QToolButton),
      m_field(new QPlainTextEdit) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(4);
    m_name->setFixedSize(nameWidth, fieldHeight);
    m_name->setToolTip(toQt(dialString(sayNameBoxTip)));
    m_function->setText("fx");
    m_function->setAutoRaise(true);
    m_function->setFixedHeight(fieldHeight);
    m_function->setFocusPolicy(Qt::NoFocus);
    m_field->setFixedHeight(fieldHeight);
    m_field->setToolTip(toQt(dialString(sayFormulaTip)));
    m_field->setTabChangesFocus(true);
    m_field->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_field->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_field->document()->setDocumentMargin(3);
    layout->addWidget(m_name);
    layout->addWidget(m_function);
    layout->addWidget(m_field);
    m_field->installEventFilter(this);
    // Installed later, it sees keys first: they may choose a name from its list.
    new FormulaTyping(*m_field, m_grid, [this](const FormulaTyping::Marks& marks) {
        if (!m_view.isEditing()) m_view.setMarks(m_isTyping ? marks : FormulaTyping::Marks());
    });
    connect(m_name, &QLineEdit::returnPressed, this, [this] { goToNamed(); });
    connect(&m_view, &GridView::fieldOpened, this, [this](QPlainTextEdit* field) {
        connect(field, &QPlainTextEdit::textChanged, this, [this, field] { showTyped(field); });
    });
}

// What is typed in the cell shows here, too.
void FormulaBar::showTyped(QPlainTextEdit* field) {
    if (!m_isTyping) m_field->setPlainText(field->toPlainText());
}

void FormulaBar::follow() {
    const auto [col, row] = m_grid.active();
    const control::Block active{col, row, col, row};
    const auto block = m_grid.resolved(m_grid.selection().value_or(active)).value_or(active);
    if (!m_name->hasFocus()) m_name->setText(blockName(m_grid, block));
    if (m_isTyping || m_view.isEditing()) return;
    const QString text = toQt(typedText(m_grid, {col, row}));
    if (text != m_field->toPlainText()) m_field->setPlainText(text);
}

void FormulaBar::goToNamed() {
    const auto block = blockNamed(m_grid, m_name->text());
    if (!block) return emit noSuchPlace(m_name->text());
    m_view.setFocus();
    emit wentTo(*block);
}

bool FormulaBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_field) return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn) m_isTyping = true;
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        const bool returns =
            reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
        if (m_isTyping && !returns) enter();
    }
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Escape) {
        m_isTyping = false;
        leave();
        return true;
    }
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        if (key.modifiers() & Qt::AltModifier) {
            m_field->insertPlainText("\n");
            return true;
        }
        enter();
        if (!m_isTyping) leave();
        return true;
    }
    return false;
}

// The field keeps what was refused, to be mended.
void FormulaBar::enter() {
    const QString text = m_field->toPlainText();
    m_isTyping = false;
    const bool isSame = fromQt(text) == typedText(m_grid, m_grid.active());
    m_view.setMarks({});
    if (!isSame) emit entered(text);
}

void FormulaBar::leave() {
    m_view.setMarks({});
    m_view.setFocus();
    follow();
}

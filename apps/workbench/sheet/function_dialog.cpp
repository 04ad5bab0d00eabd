#include "workbench/sheet/function_dialog.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <set>

#include "spread/editor/formula_help.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/dialog_buttons.h"
#include "workbench/words/workbench_words.h"

FunctionDialog::FunctionDialog(QWidget* parent)
    : QDialog(parent),
      m_family(new QComboBox),
      m_search(new QLineEdit),
      m_names(new QListWidget),
      m_syntax(new QLabel),
      m_summary(new QLabel) {
    setWindowTitle(uiTitle(sayFunctions));
    resize(460, 460);
    m_search->setPlaceholderText(uiText(wordSearch));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_family->addItem(uiText(sayAllFamilies), 0);
    std::set<int> families;
    for (const editor::FunctionHelp& function : editor::functionList())
        families.insert(function.family);
    for (const int family : families) m_family->addItem(uiText(family), family);
    QFont bold = font();
    bold.setBold(true);
    m_syntax->setFont(bold);
    m_syntax->setTextFormat(Qt::PlainText);
    m_syntax->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto* buttons = dialogButtons(*this, uiText(sayInsertIt));
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{m_search, m_family, m_names, m_syntax, m_summary, buttons})
        layout->addWidget(widget);
    layout->setStretchFactor(m_names, 1);
    connect(m_search, &QLineEdit::textChanged, this, [this] { fill(); });
    connect(m_family, &QComboBox::currentIndexChanged, this, [this] { fill(); });
    connect(m_names, &QListWidget::currentRowChanged, this, [this] { explain(); });
    connect(m_names, &QListWidget::itemActivated, this, &QDialog::accept);
    fill();
}

void FunctionDialog::accept() {
    if (!chosen().isEmpty()) QDialog::accept();
}

QString FunctionDialog::chosen() const {
    const QListWidgetItem* item = m_names->currentItem();
    return item ? item->text() : QString();
}

// In the names first; what a function does is searched, too.
void FunctionDialog::fill() {
    const QString wanted = m_search->text().trimmed();
    const int family = m_family->currentData().toInt();
    QStringList byName, bySummary;
    for (const editor::FunctionHelp& function : editor::functionList()) {
        if (family != 0 && function.family != family) continue;
        const QString name = toQt(function.name);
        if (name.contains(wanted, Qt::CaseInsensitive))
            byName += name;
        else if (toQt(function.summary).contains(wanted, Qt::CaseInsensitive))
            bySummary += name;
    }
    m_names->clear();
    m_names->addItems(byName + bySummary);
    m_names->setCurrentRow(0);
    explain();
}

void FunctionDialog::explain() {
    const editor::FunctionHelp* help = editor::functionHelp(fromQt(chosen()));
    m_syntax->setText(help ? toQt(help->syntax()) : QString());
    m_summary->setText(help ? toQt(help->summary) : QString());
}

bool FunctionDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
    m_names->setCurrentRow(std::clamp(m_names->currentRow() + (key == Qt::Key_Down ? 1 : -1), 0,
                                      m_names->count() - 1));
    return true;
}

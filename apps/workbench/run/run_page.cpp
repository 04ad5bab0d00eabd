#include "workbench/run/run_page.h"

#include <QComboBox>
#include <QCompleter>
#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include "core_api/text/text_helpers.h"
#include "workbench/run/calculation_view.h"
#include "workbench/run/report_export.h"
#include "workbench/run/section_names.h"
#include "workbench/run/section_picker.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/typed_text.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

namespace {

QLabel* quietLabel(const std::string& text) {
    auto* label = new QLabel(toQt(text));
    label->setWordWrap(true);
    label->setStyleSheet("color: #606060");
    return label;
}

enum ResultColumn { nameColumn, valueColumn, meaningColumn, resultColumns };

}  // namespace

RunPage::RunPage(std::unique_ptr<RunSession> session, QWidget* parent)
    : QWidget(parent), m_session(std::move(session)) {
    m_message = new QLabel;
    m_message->setObjectName("runMessage");
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->setStyleSheet("color: #A00000; background: #FFE8E8; padding: 4px");

    m_left = new QSplitter(Qt::Vertical);
    auto* both = new QSplitter(Qt::Horizontal);
    both->addWidget(m_left);
    both->addWidget(makeCalculationView(m_model));
    both->setStretchFactor(0, 2);
    both->setStretchFactor(1, 3);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_message);
    layout->addWidget(both, 1);
    build();
    update();
}

/// What follows from the standard's sheet: heading, form and results. What stood there before may
/// be in the middle of a key, and goes later.
void RunPage::build() {
    for (QWidget* old : {m_heading, m_left->widget(0), m_left->widget(1)}) {
        if (!old) continue;
        old->hide();
        old->setParent(nullptr);
        old->deleteLater();
    }
    m_editors.clear();
    m_heading = makeHeading();
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, m_heading);
    m_left->addWidget(makeForm());
    m_left->addWidget(makeResults());
    m_left->setStretchFactor(1, 1);
    m_results->resizeColumnToContents(nameColumn);
}

/// Loads the standard again when its file was changed, so that every result stands under its own
/// name. What was typed stays with the inputs of the same name.
void RunPage::follow() {
    if (!m_session->isStale()) return;
    Vor_String failure;
    auto session = RunSession::open(m_session->standard().path, failure);
    if (!session) {
        m_notice = {uiText(wordStandardUnreadable).arg(toQt(failure))};
        return;
    }
    std::map<QString, QString> typed;
    QString focused;
    for (const auto& [name, editor] : m_editors) {
        const auto* box = qobject_cast<QComboBox*>(editor);
        typed[name] = box ? box->currentText() : qobject_cast<QLineEdit*>(editor)->text();
        if (editor->hasFocus()) focused = name;
    }
    m_model.show(nullptr);
    m_session = std::move(session);
    m_refusals.clear();
    QStringList gone;
    for (const auto& [name, text] : typed) {
        const runs::DeclaredVariable* input = m_session->standard().find(fromQt(name));
        if (!input || input->kind != TwCellType::input)
            gone += name;
        else
            (void)m_session->setValue(input->name, fromQt(text.trimmed()));
    }
    build();
    for (const auto& [name, text] : typed) {
        const runs::DeclaredVariable* input = m_session->standard().find(fromQt(name));
        QWidget* editor = input ? this->editor(toQt(input->name)) : nullptr;
        if (!editor) continue;
        const QSignalBlocker quiet(editor);
        if (auto* box = qobject_cast<QComboBox*>(editor))
            box->setCurrentText(text);
        else
            qobject_cast<QLineEdit*>(editor)->setText(text);
        noteText(input->name, *editor, text);
        if (name == focused) editor->setFocus();
    }
    m_notice = {uiText(wordStandardReloaded)};
    if (!gone.isEmpty()) m_notice += uiText(wordInputsGone).arg(gone.join(", "));
}

QWidget* RunPage::makeHeading() {
    auto* heading = new QWidget;
    auto* layout = new QHBoxLayout(heading);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* texts = new QVBoxLayout;
    auto* name = new QLabel(toQt(removeExtension(getFileName(m_session->standard().path))));
    QFont font = dialogFont();
    font.setPixelSize(18);
    font.setBold(true);
    name->setFont(font);
    texts->addWidget(name);
    constexpr size_t mostLines = 2;
    const auto& title = m_session->standard().title;
    for (size_t i = 0; i < std::min(title.size(), mostLines); ++i)
        texts->addWidget(quietLabel(title[i]));
    layout->addLayout(texts, 1);
    auto* openSheet = new QPushButton(uiText(wordOpenSheet));
    connect(openSheet, &QPushButton::clicked, this, [this] {
        if (m_sheetOpener) m_sheetOpener(m_session->standard().path);
    });
    auto* report = new QPushButton(uiText(wordExportReport));
    report->setObjectName("exportReport");
    connect(report, &QPushButton::clicked, this, [this] { askForExport(); });
    layout->addWidget(openSheet, 0, Qt::AlignTop);
    layout->addWidget(report, 0, Qt::AlignTop);
    return heading;
}

QWidget* RunPage::makeForm() {
    auto* form = new QWidget;
    auto* grid = new QGridLayout(form);
    int row = 0;
    for (const runs::DeclaredVariable* input : m_session->inputs()) {
        QWidget* editor = makeEditor(*input);
        editor->setObjectName("input_" + toQt(input->name));
        m_editors[toQt(input->name)] = editor;
        auto* label = new QLabel(toQt(input->name));
        label->setBuddy(editor);
        grid->addWidget(label, row, 0);
        grid->addWidget(editor, row, 1);
        if (RunSession::namesSection(*input)) {
            auto* pick = new QPushButton("…");
            pick->setToolTip(uiText(wordChooseSection));
            pick->setFixedWidth(28);
            const QString name = toQt(input->name);
            connect(pick, &QPushButton::clicked, this, [this, name] { pickSection(name); });
            grid->addWidget(pick, row, 2);
        } else {
            grid->addWidget(quietLabel(input->unit), row, 2);
        }
        grid->addWidget(quietLabel(input->meaning), row, 3);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 2);
    grid->setRowStretch(row, 1);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(form);
    return area;
}

QWidget* RunPage::makeEditor(const runs::DeclaredVariable& input) {
    const QString value = toQt(m_session->value(input.name));
    const std::string name = input.name;
    if (RunSession::namesSection(input)) {
        auto* box = new QComboBox;
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        box->addItems(sectionNames());
        box->completer()->setFilterMode(Qt::MatchContains);
        box->completer()->setCompletionMode(QCompleter::PopupCompletion);
        box->setCurrentText(value);
        connect(box, &QComboBox::currentTextChanged, this,
                [this, name, box](const QString& text) { take(name, *box, text); });
        return box;
    }
    auto* edit = new QLineEdit(value);
    connect(edit, &QLineEdit::textChanged, this,
            [this, name, edit](const QString& text) { take(name, *edit, text); });
    return edit;
}

QWidget* RunPage::makeResults() {
    const auto outputs = m_session->outputs();
    m_results = new QTableWidget(static_cast<int>(outputs.size()), resultColumns);
    m_results->setObjectName("results");
    m_results->setHorizontalHeaderLabels(
        {uiText(wordResults), uiText(wordValue), uiText(wordMeaning)});
    m_results->verticalHeader()->hide();
    m_results->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_results->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_results->horizontalHeader()->setStretchLastSection(true);
    m_results->verticalHeader()->setDefaultSectionSize(22);
    for (int row = 0; row < m_results->rowCount(); ++row) {
        const runs::DeclaredVariable& output = *outputs[static_cast<size_t>(row)];
        m_results->setItem(row, nameColumn, new QTableWidgetItem(toQt(output.name)));
        m_results->setItem(row, valueColumn, new QTableWidgetItem);
        const std::string& rule = output.rule;
        m_results->setItem(row, meaningColumn,
                           new QTableWidgetItem(toQt(output.meaning + (rule.empty() ? "" : "  (") +
                                                     rule + (rule.empty() ? "" : ")"))));
    }
    return m_results;
}

void RunPage::take(const std::string& input, QWidget& editor, const QString& text) {
    m_notice.clear();
    noteText(input, editor, text);
    update();
}

void RunPage::noteText(const std::string& input, QWidget& editor, const QString& text) {
    const QString name = toQt(input);
    if (const QString unkept = refusalOf(text); !unkept.isEmpty())
        m_refusals[name] = name + ": " + unkept;
    else if (const auto why = m_session->setValue(input, fromQt(text.trimmed())); !why.isEmpty())
        m_refusals[name] = toQt(why);
    else
        m_refusals.erase(name);
    editor.setStyleSheet(m_refusals.contains(name) ? "background: #FFE8E8" : "");
}

void RunPage::sectionsChanged() {
    const QStringList names = sectionNames();
    for (const auto& [input, editor] : m_editors) {
        auto* box = qobject_cast<QComboBox*>(editor);
        if (!box) continue;
        const QSignalBlocker quiet(box);
        const QString text = box->currentText();
        box->clear();
        box->addItems(names);
        box->setCurrentText(text);
    }
    update();
}

void RunPage::update() {
    follow();
    // The model shows lines of the calculation that the run replaces.
    const runs::Calculation before = m_session->takeCalculation();
    m_session->run();
    const runs::Calculation& calculation = m_session->calculation();
    m_model.show(&calculation);
    const auto outputs = m_session->outputs();
    for (int row = 0; row < m_results->rowCount(); ++row) {
        const runs::DeclaredVariable& output = *outputs[static_cast<size_t>(row)];
        std::string value;
        for (const auto& variable : calculation.outputs)
            if (variable.name == output.name) value = variable.value;
        QTableWidgetItem* item = m_results->item(row, valueColumn);
        item->setText(toQt(runs::shownValue(value, output.unit)));
        item->setToolTip(toQt(value));
        const bool isError = value.starts_with('#');
        item->setForeground(isError ? QBrush(QColor(0xA0, 0, 0)) : QBrush());
    }
    showMessages();
}

void RunPage::showMessages() {
    QStringList lines;
    lines += m_notice;
    for (const auto& [name, refusal] : m_refusals) lines += refusal;
    const runs::Calculation& calculation = m_session->calculation();
    if (!calculation.failure.empty()) lines += toQt(calculation.failure);
    for (const auto& message : calculation.messages)
        for (const std::string& line : message)
            if (!line.empty()) lines += toQt(line);
    lines.removeDuplicates();
    constexpr qsizetype mostLines = 6;
    if (lines.size() > mostLines) {
        lines = lines.mid(0, mostLines);
        lines += "…";
    }
    m_message->setText(shownMessage(lines.join("\n")));
    m_message->setVisible(!lines.isEmpty());
}

void RunPage::followFile() {
    if (m_session->isStale()) update();
}

// The sheet may have been edited in another page.
void RunPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    followFile();
}

QWidget* RunPage::editor(const QString& input) const {
    const auto found = m_editors.find(input);
    return found == m_editors.end() ? nullptr : found->second;
}

QString RunPage::result(const QString& output) const {
    for (int row = 0; row < m_results->rowCount(); ++row)
        if (m_results->item(row, nameColumn)->text() == output)
            return m_results->item(row, valueColumn)->text();
    return {};
}

void RunPage::pickSection(const QString& input) {
    const auto box = [&] { return qobject_cast<QComboBox*>(editor(input)); };
    const QString chosen = SectionPicker::ask(this, box()->currentText());
    // The standard may have been changed meanwhile.
    if (!chosen.isEmpty() && box()) box()->setCurrentText(chosen);
}

void RunPage::askForExport() {
    const QString name = toQt(removeExtension(getFileName(m_session->standard().path)));
    const QString path = QFileDialog::getSaveFileName(this, uiText(wordExportReport), name + ".pdf",
                                                      "PDF (*.pdf);;HTML (*.html)");
    if (!path.isEmpty()) exportReport(path, m_author);
}

bool RunPage::exportReport(const QString& path, const QString& author) {
    if (m_session->isStale()) update();
    QString error;
    if (writeReport(m_session->calculation(), author, path, error)) return true;
    m_message->setText(error);
    m_message->show();
    return false;
}

#include "run/run_page.h"

#include <QComboBox>
#include <QCompleter>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include "core_api/text/text_helpers.h"
#include "run/calculation_view.h"
#include "run/report_export.h"
#include "run/section_names.h"
#include "run/section_picker.h"
#include "shell/words.h"
#include "window/dialog_font.h"
#include "window/say.h"
#include "window/typed_text.h"

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

    auto* left = new QSplitter(Qt::Vertical);
    left->addWidget(makeForm());
    left->addWidget(makeResults());
    left->setStretchFactor(1, 1);
    auto* both = new QSplitter(Qt::Horizontal);
    both->addWidget(left);
    both->addWidget(makeCalculationView(m_model));
    both->setStretchFactor(0, 2);
    both->setStretchFactor(1, 3);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeHeading());
    layout->addWidget(m_message);
    layout->addWidget(both, 1);
    update();
    m_results->resizeColumnToContents(nameColumn);
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
    auto* openSheet = new QPushButton(say(wordOpenSheet));
    connect(openSheet, &QPushButton::clicked, this, [this] {
        if (m_sheetOpener) m_sheetOpener(m_session->standard().path);
    });
    auto* report = new QPushButton(say(wordExportReport));
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
            pick->setToolTip(say(wordChooseSection));
            pick->setFixedWidth(28);
            connect(pick, &QPushButton::clicked, this, [this, input] { pickSection(*input); });
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
    if (RunSession::namesSection(input)) {
        auto* box = new QComboBox;
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        box->addItems(sectionNames());
        box->completer()->setFilterMode(Qt::MatchContains);
        box->completer()->setCompletionMode(QCompleter::PopupCompletion);
        box->setCurrentText(value);
        connect(box, &QComboBox::currentTextChanged, this,
                [this, &input, box](const QString& text) { take(input, *box, text); });
        return box;
    }
    auto* edit = new QLineEdit(value);
    connect(edit, &QLineEdit::textChanged, this,
            [this, &input, edit](const QString& text) { take(input, *edit, text); });
    return edit;
}

QWidget* RunPage::makeResults() {
    const auto outputs = m_session->outputs();
    m_results = new QTableWidget(static_cast<int>(outputs.size()), resultColumns);
    m_results->setObjectName("results");
    m_results->setHorizontalHeaderLabels({say(wordResults), say(wordValue), say(wordMeaning)});
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

void RunPage::take(const runs::DeclaredVariable& input, QWidget& editor, const QString& text) {
    const QString name = toQt(input.name);
    if (const QString unkept = refusalOf(text); !unkept.isEmpty())
        m_refusals[name] = name + ": " + unkept;
    else if (const auto why = m_session->setValue(input.name, fromQt(text.trimmed()));
             !why.isEmpty())
        m_refusals[name] = toQt(why);
    else
        m_refusals.erase(name);
    editor.setStyleSheet(m_refusals.contains(name) ? "background: #FFE8E8" : "");
    update();
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
    if (m_session->isStale()) lines += say(wordFileChanged);
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

// The sheet may have been edited in another page.
void RunPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (m_session->isStale()) showMessages();
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

void RunPage::pickSection(const runs::DeclaredVariable& input) {
    auto* box = qobject_cast<QComboBox*>(editor(toQt(input.name)));
    const QString chosen = SectionPicker::ask(this, box->currentText());
    if (!chosen.isEmpty()) box->setCurrentText(chosen);
}

void RunPage::askForExport() {
    const QString name = toQt(removeExtension(getFileName(m_session->standard().path)));
    const QString path = QFileDialog::getSaveFileName(this, say(wordExportReport), name + ".pdf",
                                                      "PDF (*.pdf);;HTML (*.html)");
    if (!path.isEmpty()) exportReport(path, m_author);
}

bool RunPage::exportReport(const QString& path, const QString& author) {
    QString error;
    if (writeReport(m_session->calculation(), author, path, error)) return true;
    m_message->setText(error);
    m_message->show();
    return false;
}

#include "workbench/sheet/sheet_settings_dialog.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "core_api/text/text_helpers.h"
#include "platform/window/file_question.h"
#include "platform/window/message_box.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/dialog_buttons.h"
#include "workbench/window/typed_text.h"
#include "workbench/words/workbench_words.h"

namespace {

constexpr int largestMargin = 200;  // millimetres
constexpr int largestFont = 200;    // pixels

QSpinBox* makeNumber(int value, int least, int most) {
    auto* made = new QSpinBox;
    made->setRange(least, most);
    made->setValue(value);
    return made;
}

}  // namespace

SheetSettingsDialog::SheetSettingsDialog(const TwSheetSettings& settings, QWidget* parent)
    : QDialog(parent), m_settings(settings) {
    setWindowTitle(uiTitle(saySheetSettings));
    resize(560, 560);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeFiles());
    layout->addWidget(makePrinting());
    layout->addWidget(makeVariables(), 1);
    layout->addWidget(dialogButtons(*this));
}

QLineEdit* SheetSettingsDialog::addFile(QFormLayout& form, int title, const Vor_String& path) {
    auto* field = new QLineEdit(toQt(path));
    auto* browse = new QPushButton(uiText(sayBrowse));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, [field, title] {
        FileQuestion question;
        question.title = fromQt(uiText(title));
        question.filterName = dialString(saySheetFilter).str();
        question.extension = "sss";
        question.folder = getPath(Vor_String(fromQt(field->text()))).str();
        const auto files = chooseFiles(question, nullptr);
        if (!files.empty()) field->setText(toQt(files.front()));
    });
    auto* row = new QHBoxLayout;
    row->addWidget(field);
    row->addWidget(browse);
    form.addRow(uiText(title), row);
    return field;
}

QWidget* SheetSettingsDialog::makeFiles() {
    auto* box = new QWidget;
    auto* form = new QFormLayout(box);
    form->setContentsMargins(0, 0, 0, 0);
    m_header = addFile(*form, sayHeaderFile, m_settings.headerFile);
    m_footer = addFile(*form, sayFooterFile, m_settings.footerFile);
    m_font = new QComboBox;
    m_font->setEditable(true);
    m_font->addItems(QFontDatabase::families());
    m_font->setCurrentText(toQt(m_settings.defaultFont));
    m_height = makeNumber(m_settings.defaultTextHeight, 1, largestFont);
    form->addRow(uiText(sayDefaultFont), m_font);
    form->addRow(uiText(sayFontHeight), m_height);
    return box;
}

QWidget* SheetSettingsDialog::makePrinting() {
    auto* box = new QGroupBox(uiText(sayPrinting));
    auto* grid = new QGridLayout(box);
    grid->addWidget(new QLabel(uiText(sayMargins)), 0, 0);
    const int margins[] = {m_settings.marginLeft, m_settings.marginRight, m_settings.marginTop,
                           m_settings.marginBottom};
    constexpr int sides[] = {sayLeft, sayRight, sayTop, sayBottom};
    for (int i = 0; i < 4; ++i) {
        auto* side = new QHBoxLayout;
        m_margins[i] = makeNumber(margins[i], 0, largestMargin);
        side->addWidget(new QLabel(uiText(sides[i])));
        side->addWidget(m_margins[i], 1);
        grid->addLayout(side, 1, i);
    }
    const bool switches[] = {m_settings.smartPrint, m_settings.colors,         m_settings.colHeader,
                             m_settings.rowHeader,  m_settings.cellSeperators, m_settings.border};
    constexpr int names[] = {saySmartPrint, sayColours,    sayColHeader,
                             sayRowHeader,  saySeparators, sayFrame};
    for (int i = 0; i < 6; ++i) {
        m_switches[i] = new QCheckBox(uiText(names[i]));
        m_switches[i]->setChecked(switches[i]);
        grid->addWidget(m_switches[i], 2 + i / 2, i % 2 * 2, 1, 2);
    }
    return box;
}

QWidget* SheetSettingsDialog::makeVariables() {
    auto* box = new QGroupBox(uiText(sayVariables));
    auto* layout = new QGridLayout(box);
    m_variables = new QTableWidget(0, 2);
    m_variables->setHorizontalHeaderLabels({uiText(wordName), uiText(wordValue)});
    m_variables->horizontalHeader()->setStretchLastSection(true);
    m_variables->verticalHeader()->hide();
    const auto& names = m_settings.varNames;
    const auto& values = m_settings.varValues;
    for (int i = 0; i < names.length(); ++i)
        addVariable(names[i], i < values.length() ? values[i] : Vor_String());
    auto* add = new QPushButton(uiText(sayAddLine));
    auto* remove = new QPushButton(uiText(sayRemoveLine));
    for (QPushButton* button : {add, remove}) button->setAutoDefault(false);
    connect(add, &QPushButton::clicked, this, [this] {
        addVariable({}, {});
        m_variables->setCurrentCell(m_variables->rowCount() - 1, 0);
        m_variables->editItem(m_variables->currentItem());
    });
    connect(remove, &QPushButton::clicked, this,
            [this] { m_variables->removeRow(m_variables->currentRow()); });
    layout->addWidget(m_variables, 0, 0, 3, 1);
    layout->addWidget(add, 0, 1);
    layout->addWidget(remove, 1, 1);
    return box;
}

void SheetSettingsDialog::addVariable(const Vor_String& name, const Vor_String& value) {
    const int row = m_variables->rowCount();
    m_variables->insertRow(row);
    m_variables->setItem(row, 0, new QTableWidgetItem(toQt(name)));
    m_variables->setItem(row, 1, new QTableWidgetItem(toQt(value)));
}

TwSheetSettings SheetSettingsDialog::settings() const {
    TwSheetSettings made = m_settings;
    made.loaded = true;
    made.headerFile = fromQt(m_header->text().trimmed());
    made.footerFile = fromQt(m_footer->text().trimmed());
    made.defaultFont = fromQt(m_font->currentText());
    made.defaultTextHeight = m_height->value();
    int* const margins[] = {&made.marginLeft, &made.marginRight, &made.marginTop,
                            &made.marginBottom};
    for (int i = 0; i < 4; ++i) *margins[i] = m_margins[i]->value();
    bool* const switches[] = {&made.smartPrint, &made.colors,         &made.colHeader,
                              &made.rowHeader,  &made.cellSeperators, &made.border};
    for (int i = 0; i < 6; ++i) *switches[i] = m_switches[i]->isChecked();
    made.varNames.clear();
    made.varValues.clear();
    for (int row = 0; row < m_variables->rowCount(); ++row) {
        const QString name = m_variables->item(row, 0)->text().trimmed();
        if (name.isEmpty()) continue;
        made.varNames.append(fromQt(name));
        made.varValues.append(fromQt(m_variables->item(row, 1)->text()));
    }
    return made;
}

// What the settings' text form cannot hold is refused here.
void SheetSettingsDialog::accept() {
    QStringList texts{m_header->text(), m_footer->text(), m_font->currentText()};
    for (int row = 0; row < m_variables->rowCount(); ++row)
        for (int col = 0; col < 2; ++col) texts += m_variables->item(row, col)->text();
    for (const QString& text : texts) {
        const bool hasSeparator = text.contains(QChar(0xA4));
        const QString why = hasSeparator ? uiText(sayBadVariable) : refusalOf(text);
        if (why.isEmpty()) continue;
        showWarning(fromQt(windowTitle()), fromQt(why));
        return;
    }
    QDialog::accept();
}

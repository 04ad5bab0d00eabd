#include "workbench/shell/settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core_api/texts/texts.h"
#include "workbench/window/dialog_buttons.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

namespace {

constexpr int scales[] = {100, 125, 150, 175, 200};

}  // namespace

SettingsDialog::SettingsDialog(const WorkbenchSettings& settings, QWidget* parent)
    : QDialog(parent), m_settings(settings) {
    setWindowTitle(uiTitle(wordSettings));
    auto* form = new QFormLayout(this);

    m_library = new QLineEdit(QString::fromStdString(settings.library));
    m_library->setMinimumWidth(320);
    auto* choose = new QPushButton("…");
    choose->setFixedWidth(28);
    connect(choose, &QPushButton::clicked, this, [this] { chooseFolder(); });
    auto* folder = new QHBoxLayout;
    folder->addWidget(m_library);
    folder->addWidget(choose);
    form->addRow(uiText(wordLibrary), folder);

    m_language = new QComboBox;
    for (int i = 0; i < languageCount; ++i)
        m_language->addItem(toQt(dialString(wordOwnLanguage, static_cast<Language>(i))));
    m_language->setCurrentIndex(static_cast<int>(settings.language));
    form->addRow(uiText(wordLanguage), m_language);

    m_author = new QLineEdit(QString::fromStdString(settings.author));
    form->addRow(uiText(wordAuthor), m_author);

    m_scale = new QComboBox;
    for (const int scale : scales) {
        m_scale->addItem(QString::number(scale) + " %", scale);
        if (scale == settings.scalePercent) m_scale->setCurrentIndex(m_scale->count() - 1);
    }
    m_scale->setToolTip(uiText(wordScaleFromNextStart));
    form->addRow(uiText(wordScale), m_scale);

    m_diagnostics = new QCheckBox(uiText(wordDiagnostics));
    m_diagnostics->setChecked(settings.diagnostics);
    form->addRow(QString(), m_diagnostics);

    m_outside = new QCheckBox(uiText(wordOutside));
    m_outside->setChecked(settings.outside);
    form->addRow(QString(), m_outside);

    form->addRow(dialogButtons(*this));
}

void SettingsDialog::chooseFolder() {
    const QString chosen =
        QFileDialog::getExistingDirectory(this, uiText(wordOpenLibrary), m_library->text());
    if (!chosen.isEmpty()) m_library->setText(chosen);
}

WorkbenchSettings SettingsDialog::settings() const {
    WorkbenchSettings changed = m_settings;
    changed.library = m_library->text().toStdString();
    changed.author = m_author->text().toStdString();
    changed.language = static_cast<Language>(m_language->currentIndex());
    changed.scalePercent = m_scale->currentData().toInt();
    changed.diagnostics = m_diagnostics->isChecked();
    changed.outside = m_outside->isChecked();
    return changed;
}

#include "workbench/bill/bill_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <algorithm>

#include "bills/bill_table.h"
#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/window/file_question.h"
#include "platform/window/message_box.h"
#include "workbench/bill/bill_words.h"
#include "workbench/window/dialog_buttons.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"

namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int codeRole = Qt::UserRole;
enum MacroColumn { nameColumn, timesColumn };
constexpr int mostTimes = 9999;

/// An edit with a button that asks for what stands in it.
template <class Ask>
QWidget* withChooser(QLineEdit* edit, Ask ask) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* choose = new QPushButton("…");
    choose->setFixedWidth(28);
    choose->setAutoDefault(false);  // Enter makes the bill
    QObject::connect(choose, &QPushButton::clicked, row, ask);
    layout->addWidget(edit);
    layout->addWidget(choose);
    return row;
}

std::optional<Vor_String> insidePath(const QString& machine) {
    const auto inside = paths::toInside(machine.trimmed().toStdString());
    return inside ? std::optional(Vor_String(*inside)) : std::nullopt;
}

QString machinePath(std::string_view inside) {
    return QString::fromStdString(paths::toMachine(inside));
}

}  // namespace

BillDialog::BillDialog(const Vor_StringArray& macros, QWidget* parent) : QDialog(parent) {
    setWindowTitle(uiTitle(sayBill));
    auto* sides = new QHBoxLayout;
    sides->addWidget(makeSources(macros), 1);
    sides->addWidget(makeChoices(), 1);
    m_message = new QLabel;
    m_message->setWordWrap(true);
    m_message->setStyleSheet("color: #b00020");
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(sides);
    layout->addWidget(m_message);
    layout->addWidget(dialogButtons(*this));
    resize(760, 460);
    showColumns();
}

// --- its parts ----------------------------------------------------------------------------------

QWidget* BillDialog::makeSources(const Vor_StringArray& ticked) {
    m_fromMacros = new QRadioButton(uiText(sayBillMacros));
    m_fromTable = new QRadioButton(uiText(sayBillTable));
    m_fromMacros->setChecked(true);
    m_macros = new QTableWidget(0, 2);
    m_macros->setHorizontalHeaderLabels({uiTitle(sayBillMacros), uiText(sayBillTimes)});
    m_macros->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    m_macros->verticalHeader()->hide();
    m_macros->setTabKeyNavigation(false);
    Vor_StringArray all;
    if (!gSettings.libDir().isEmpty())
        for (const Vor_String& path :
             ObjectExportFindFilesRecursive(gSettings.libDir() + "Macros\\", "*.macro"))
            all.append(path);
    for (const Vor_String& path : ticked)
        if (!all.contains(path)) all.append(path);
    for (const Vor_String& path : all) addMacro(path, ticked.contains(path));
    m_table = new QLineEdit;
    connect(m_table, &QLineEdit::editingFinished, this, [this] { showColumns(); });
    connect(m_fromTable, &QRadioButton::toggled, this, [this] { showColumns(); });

    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_fromMacros);
    layout->addWidget(m_macros);
    layout->addWidget(m_fromTable);
    layout->addWidget(withChooser(m_table, [this] { chooseTable(); }));
    return side;
}

void BillDialog::addMacro(const Vor_String& path, bool isTicked) {
    const int row = m_macros->rowCount();
    m_macros->insertRow(row);
    auto* name = new QTableWidgetItem(toQt(removeExtension(getFileName(path))));
    name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    name->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
    name->setData(pathRole, toQt(path));
    name->setToolTip(machinePath(path));
    m_macros->setItem(row, nameColumn, name);
    auto* times = new QSpinBox;
    times->setRange(1, mostTimes);
    m_macros->setCellWidget(row, timesColumn, times);
}

QWidget* BillDialog::makeChoices() {
    m_columns = new QListWidget;
    m_columns->setDragDropMode(QAbstractItemView::InternalMove);
    m_group = new QComboBox;
    m_pictures = new QCheckBox(uiText(sayBillPictures));
    m_title = new QLineEdit;
    m_settings = new QComboBox;
    m_settings->setEditable(true);
    if (!gSettings.libDir().isEmpty())
        for (const std::string& path : files::find(gSettings.libDir(), "*.twd", false))
            m_settings->addItem(toQt(removeExtension(getFileName(path))));
    m_file = new QLineEdit(machinePath(gSettings.libDir() + "Bill.sss"));

    auto* side = new QWidget;
    auto* form = new QFormLayout(side);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(uiText(sayBillColumns), m_columns);
    form->addRow(uiText(sayBillGroup), m_group);
    form->addRow(QString(), m_pictures);
    form->addRow(uiText(sayBillTitle), m_title);
    form->addRow(uiText(sayBillSettings), m_settings);
    form->addRow(uiText(sayBillFile), withChooser(m_file, [this] { chooseTarget(); }));
    return side;
}

bool BillDialog::isTable() const {
    return m_fromTable->isChecked();
}

/// Those of macros, or of the table that is named.
void BillDialog::showColumns() {
    m_columns->clear();
    m_group->clear();
    m_group->addItem(uiText(sayBillNoGroups), "none");
    complain({});
    const auto add = [this](const QString& name, const QString& code, bool isTicked) {
        auto* item = new QListWidgetItem(name, m_columns);
        item->setData(codeRole, code);
        item->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
    };
    if (!isTable()) {
        const std::vector<BillField> usual = PartBillOptions().fields;
        for (int i = 0; i < billFieldCount; ++i) {
            const auto field = static_cast<BillField>(i);
            const bool isUsual = std::find(usual.begin(), usual.end(), field) != usual.end();
            add(toQt(billFieldName(field)), toQt(billFieldCode(field)), isUsual);
        }
        for (const BillField field : {BillField::kind, BillField::section, BillField::material})
            m_group->addItem(toQt(billFieldName(field)), toQt(billFieldCode(field)));
        m_group->setCurrentIndex(1);
        return;
    }
    const auto path = insidePath(m_table->text());
    if (!path || path->isEmpty()) return;
    std::string error;
    const auto table = bills::readBillTable(*path, error);
    if (!table) return complain(toQt(error));
    for (const Vor_String& name : table->header) {
        add(toQt(name), toQt(name), true);
        m_group->addItem(toQt(name), toQt(name));
    }
}

void BillDialog::complain(const QString& text) {
    m_message->setText(shownMessage(text));
}

// --- files --------------------------------------------------------------------------------------

void BillDialog::useTable(const QString& path) {
    m_table->setText(path);
    if (m_fromTable->isChecked())
        showColumns();
    else
        m_fromTable->setChecked(true);
}

void BillDialog::chooseTable() {
    FileQuestion question;
    question.title = fromQt(uiTitle(sayBillTable));
    question.filterName = fromQt(uiText(sayBillTableFilter));
    question.extension = "csv";
    question.folder = gSettings.libDir().str();
    const std::string chosen = chooseFile(question, nullptr);
    if (!chosen.empty()) useTable(machinePath(chosen));
}

void BillDialog::chooseTarget() {
    const auto path = insidePath(m_file->text());
    FileQuestion question;
    question.kind = FileQuestion::Kind::save;
    question.title = fromQt(uiText(sayBillFile));
    question.filterName = fromQt(uiText(sayBillFilter));
    question.extension = "sss";
    if (path) {
        question.folder = getPath(*path).str();
        question.preset = getFileName(*path).str();
    }
    const std::string chosen = chooseFile(question, nullptr);
    if (chosen.empty()) return;
    m_confirmed = machinePath(chosen);
    m_file->setText(m_confirmed);
}

// --- what was chosen ----------------------------------------------------------------------------

bills::BillChoice BillDialog::choice() const {
    bills::BillChoice choice;
    if (isTable()) choice.table = insidePath(m_table->text()).value_or("");
    for (int row = 0; !isTable() && row < m_macros->rowCount(); ++row) {
        const QTableWidgetItem* item = m_macros->item(row, nameColumn);
        if (item->checkState() != Qt::Checked) continue;
        const auto* times = static_cast<const QSpinBox*>(m_macros->cellWidget(row, timesColumn));
        for (int i = 0; i < times->value(); ++i)
            choice.macros.append(fromQt(item->data(pathRole).toString()));
    }
    for (int i = 0; i < m_columns->count(); ++i)
        if (m_columns->item(i)->checkState() == Qt::Checked)
            choice.columns.append(fromQt(m_columns->item(i)->data(codeRole).toString()));
    choice.group = fromQt(m_group->currentData().toString());
    choice.title = fromQt(m_title->text());
    return choice;
}

bills::BillTarget BillDialog::target() const {
    bills::BillTarget target;
    target.file = insidePath(m_file->text()).value_or("");
    target.settings = fromQt(m_settings->currentText());
    target.hasPictures = m_pictures->isChecked();
    return target;
}

void BillDialog::accept() {
    const bills::BillChoice chosen = choice();
    if (chosen.macros.isEmpty() && chosen.table.isEmpty())
        return complain(uiText(sayBillNothingChosen));
    const Vor_String file = target().file;
    if (!bills::billFormat(file)) return complain(uiText(sayBillNoFile));
    if (mayReplace(file)) QDialog::accept();
}

/// The chooser asked already about what was chosen there.
bool BillDialog::mayReplace(const Vor_String& file) const {
    if (!files::exists(file) || m_file->text() == m_confirmed) return true;
    const MessageBox question{fromQt(windowTitle()),
                              fromQt(uiText(sayBillReplace).arg(m_file->text())),
                              MessageIcon::question, MessageButtons::yesNo};
    return showMessage(question) == IDYES;
}

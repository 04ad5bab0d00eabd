#include "workbench/run/section_picker.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QVBoxLayout>

#include "core_api/sections/section_tables.h"
#include "workbench/window/dialog_buttons.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

SectionPicker::SectionPicker(const QString& present, QWidget* parent) : QDialog(parent) {
    setWindowTitle(uiText(wordChooseSection));
    resize(640, 420);
    m_tables = new QListWidget;
    m_tables->setObjectName("sectionTables");
    m_tables->setMaximumWidth(140);
    for (const Vor_String& name : gSectionTables.tableNames()) m_tables->addItem(toQt(name));
    m_sizes = new QTableWidget;
    m_sizes->setObjectName("sectionSizes");
    m_sizes->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_sizes->setSelectionMode(QAbstractItemView::SingleSelection);
    m_sizes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_sizes->verticalHeader()->hide();
    m_sizes->verticalHeader()->setDefaultSectionSize(22);
    connect(m_tables, &QListWidget::currentRowChanged, this, [this](int row) { showTable(row); });
    connect(m_sizes, &QTableWidget::itemDoubleClicked, this, [this] { accept(); });

    auto* lists = new QHBoxLayout;
    lists->addWidget(m_tables);
    lists->addWidget(m_sizes, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(lists, 1);
    layout->addWidget(dialogButtons(*this));
    m_tables->setCurrentRow(0);
    select(present);
}

void SectionPicker::showTable(int index) {
    m_sizes->clear();
    m_sizes->setRowCount(0);
    const SectionTable* table = gSectionTables.table(index);
    if (!table) return;
    QStringList header{uiText(wordSize)};
    for (const Vor_String& column : table->valueColumns()) header += toQt(column);
    m_sizes->setColumnCount(static_cast<int>(header.size()));
    m_sizes->setHorizontalHeaderLabels(header);
    m_sizes->setRowCount(table->rows().length());
    for (int row = 0; row < m_sizes->rowCount(); ++row) {
        m_sizes->setItem(row, 0, new QTableWidgetItem(toQt(table->fullName(row))));
        for (int column = 1; column < m_sizes->columnCount(); ++column)
            if (const Vor_String* value = table->value(row, column - 1))
                m_sizes->setItem(row, column, new QTableWidgetItem(toQt(*value)));
    }
    m_sizes->resizeColumnsToContents();
}

void SectionPicker::select(const QString& name) {
    const auto place = gSectionTables.find(fromQt(name));
    if (!place) return;
    const auto found = m_tables->findItems(toQt(place.table->name()), Qt::MatchExactly);
    if (found.isEmpty()) return;
    m_tables->setCurrentItem(found.front());
    m_sizes->selectRow(place.row);
    m_sizes->scrollToItem(m_sizes->item(place.row, 0), QAbstractItemView::PositionAtCenter);
}

QString SectionPicker::chosen() const {
    const auto rows = m_sizes->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : m_sizes->item(rows.front().row(), 0)->text();
}

QString SectionPicker::ask(QWidget* parent, const QString& present) {
    SectionPicker picker(present, parent);
    return picker.exec() == QDialog::Accepted ? picker.chosen() : QString();
}

#include "workbench/sections/table_page.h"

#include <QCollator>
#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "platform/paths.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

namespace {

constexpr int wordEditLibrary = 25330, wordAddSize = 25331;

bool isNumeric(const QString& text) {
    return isNumber(fromQt(text));
}

/// Numbers by their size, names as people count: "IPE 80" before "IPE 100".
class ValueItem : public QStandardItem {
  public:
    using QStandardItem::QStandardItem;
    bool operator<(const QStandardItem& other) const override {
        if (isNumeric(text()) && isNumeric(other.text()))
            return textToDouble(fromQt(text())) < textToDouble(fromQt(other.text()));
        static const QCollator order = [] {
            QCollator made;
            made.setNumericMode(true);
            return made;
        }();
        return order.compare(text(), other.text()) < 0;
    }
};

/// Which library is open says the window.
Vor_String inLibrary(const Vor_String& path) {
    const Vor_String& library = gSettings.libDir();
    return !library.isEmpty() && path.beginsWith(library) ? path.getSubStringAt(library.length())
                                                          : path;
}

}  // namespace

TablePage::TablePage(const Vor_String& path, const SectionTable& table, QWidget* parent)
    : QWidget(parent), m_view(new QTableView), m_drawing(new SizePanel), m_name(table.name()) {
    fill(table);
    m_view->setModel(&m_model);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setAlternatingRowColors(true);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(22);
    m_view->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);  // the file's order
    m_view->setSortingEnabled(true);
    m_view->resizeColumnsToContents();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeading(path));
    layout->addWidget(makeMiddle(), 1);
    m_view->setCurrentIndex(m_model.index(0, 0));
    drawSelected();
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TablePage::drawSelected);
}

QWidget* TablePage::makeMiddle() {
    auto* middle = new QSplitter;
    middle->addWidget(m_view);
    middle->addWidget(m_drawing);
    middle->setStretchFactor(0, 3);
    middle->setStretchFactor(1, 2);
    middle->setChildrenCollapsible(false);
    return middle;
}

QWidget* TablePage::makeHeading(const Vor_String& path) {
    auto* heading = new QWidget;
    auto* line = new QHBoxLayout(heading);
    line->setContentsMargins(4, 2, 4, 2);
    const auto shown = [](const Vor_String& each) {
        return QString::fromStdString(paths::asWritten(each));
    };
    auto* file = new QLabel(shown(inLibrary(path)));
    file->setToolTip(shown(path));
    file->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->addWidget(file, 1);
    m_notOfLibrary = new QLabel(uiText(wordOnlyToLookAt));
    m_notOfLibrary->setStyleSheet("color: #606060");
    line->addWidget(m_notOfLibrary);
    const auto add = [&](int word, std::function<void()> Commands::*command) {
        auto* button = new QPushButton(toQt(dialString(word)));
        button->setObjectName(QString::number(word));
        connect(button, &QPushButton::clicked, this, [this, command] {
            if (m_commands.*command) (m_commands.*command)();
        });
        button->hide();
        m_buttons += button;
        line->addWidget(button);
    };
    add(wordAddSize, &Commands::addSize);
    add(wordEditLibrary, &Commands::editLibrary);
    return heading;
}

void TablePage::setCommands(Commands commands) {
    m_commands = std::move(commands);
    m_notOfLibrary->hide();
    for (QPushButton* button : m_buttons) button->show();
}

int TablePage::selectedRow() const {
    return std::max(m_view->currentIndex().row(), 0);
}

Vor_String TablePage::section() const {
    return m_name + "-" + fromQt(m_model.index(selectedRow(), 0).data().toString());
}

void TablePage::drawSelected() {
    const int row = selectedRow();
    Vor_StringArray values;
    for (int i = m_model.columnCount() - m_columns.length(); i < m_model.columnCount(); ++i)
        values.append(Vor_String(fromQt(m_model.index(row, i).data().toString())));
    m_drawing->showSize({section(), m_drawnAs, m_columns, values});
}

bool TablePage::select(const Vor_String& section) {
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex index = m_model.index(row, 0);
        if (!(m_name + "-" + fromQt(index.data().toString())).equal(section)) continue;
        m_view->setCurrentIndex(index);
        m_view->scrollTo(index);
        return true;
    }
    return false;
}

void TablePage::show(const SectionTable& table) {
    const Vor_String selected = m_view->currentIndex().isValid() ? section() : Vor_String();
    const QHeaderView& header = *m_view->horizontalHeader();
    const int sorted = header.sortIndicatorSection();
    const Qt::SortOrder order = header.sortIndicatorOrder();
    m_model.setRowCount(0);
    m_view->setSortingEnabled(false);
    fill(table);
    m_view->horizontalHeader()->setSortIndicator(sorted, order);
    m_view->setSortingEnabled(true);
    select(selected);
    drawSelected();
}

void TablePage::fill(const SectionTable& table) {
    m_drawnAs = table.drawnAs();
    m_columns = table.valueColumns();
    QStringList names;
    for (const Vor_String& each : table.header()) names += toQt(each);
    m_model.setHorizontalHeaderLabels(names);
    for (const Vor_StringArray& row : table.rows()) {
        QList<QStandardItem*> items;
        for (const Vor_String& cell : row) {
            items += new ValueItem(toQt(cell));
            if (isNumeric(items.back()->text()))
                items.back()->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        m_model.appendRow(items);
    }
}

#include "sections/table_page.h"

#include <QCollator>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "core_api/text/text_helpers.h"
#include "platform/paths.h"
#include "window/dialog_font.h"

namespace {

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

QLabel* headingOf(const Vor_String& path) {
    auto* heading = new QLabel(QString::fromStdString(paths::asWritten(path)));
    heading->setTextInteractionFlags(Qt::TextSelectableByMouse);
    heading->setContentsMargins(4, 4, 4, 4);
    return heading;
}

}  // namespace

TablePage::TablePage(const Vor_String& path, const SectionTable& table, QWidget* parent)
    : QWidget(parent), m_view(new QTableView) {
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
    layout->addWidget(headingOf(path));
    layout->addWidget(m_view, 1);
}

void TablePage::fill(const SectionTable& table) {
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

#include "workbench/sheet/sort_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

#include "core_api/text/text_helpers.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/dialog_buttons.h"

SortDialog::SortDialog(const control::Grid& grid, const control::Block& block, QWidget* parent)
    : QDialog(parent),
      m_grid(grid),
      m_block(block),
      m_hasTitles(new QCheckBox(uiText(sayHasTitles))) {
    setWindowTitle(uiTitle(saySort));
    auto* layout = new QGridLayout(this);
    layout->addWidget(m_hasTitles, 0, 0, 1, 3);
    for (int i = 0; i < 3; ++i) {
        Key& key = m_keys[i];
        key.column = new QComboBox;
        key.column->setMinimumWidth(200);
        key.order = new QComboBox;
        key.order->addItems({uiText(sayAscending), uiText(sayDescending)});
        layout->addWidget(new QLabel(uiText(i == 0 ? saySortBy : sayThenBy)), i + 1, 0);
        layout->addWidget(key.column, i + 1, 1);
        layout->addWidget(key.order, i + 1, 2);
    }
    nameColumns();
    connect(m_hasTitles, &QCheckBox::toggled, this, [this] { nameColumns(); });
    layout->addWidget(dialogButtons(*this), 4, 0, 1, 3);
}

// With titles the columns are known by them.
void SortDialog::nameColumns() {
    for (int i = 0; i < 3; ++i) {
        QComboBox& box = *m_keys[i].column;
        const int before = std::max(box.currentIndex(), 0);
        box.clear();
        if (i > 0) box.addItem(uiText(sayNone), 0);
        for (int col = m_block.col1; col <= m_block.col2; ++col) {
            const QString title =
                toQt(m_grid.text(col, m_block.row1, control::Reading::data)).simplified();
            const bool isTitled = hasTitles() && !title.isEmpty();
            box.addItem(isTitled ? title : uiText(sayColumnNamed).arg(toQt(getAlfabet(col))), col);
        }
        box.setCurrentIndex(before);
    }
}

std::vector<editor::SortKey> SortDialog::keys() const {
    std::vector<editor::SortKey> made;
    for (const Key& key : m_keys)
        if (const int col = key.column->currentData().toInt(); col > 0)
            made.push_back({col, key.order->currentIndex() == 0});
    return made;
}

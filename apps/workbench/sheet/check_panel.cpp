#include "workbench/sheet/check_panel.h"

#include <QStyle>
#include <QVBoxLayout>

#include "core_api/texts/texts.h"
#include "exchange/sheet_writing.h"
#include "standards/check/standards_check.h"
#include "workbench/sheet/sheet_words.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"

namespace {

enum Role { colRole = Qt::UserRole, rowRole };

// A finding may speak of a row, or of the whole file.
QString placeOf(const StandardsFinding& finding) {
    if (finding.row < 1) return {};
    if (finding.column < 1) return QString::number(finding.row) + ": ";
    return toQt(exchange::cellName({finding.column, finding.row})) + ": ";
}

}  // namespace

CheckPanel::CheckPanel(std::function<void(control::CellAddress)> goTo, QWidget* parent)
    : QWidget(parent), m_message(new QLabel), m_findings(new QListWidget), m_goTo(std::move(goTo)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    m_message->setWordWrap(true);
    m_findings->setWordWrap(true);
    layout->addWidget(m_message);
    layout->addWidget(m_findings, 1);
    connect(m_findings, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item && item->data(rowRole).toInt() > 0)
            m_goTo({item->data(colRole).toInt(), item->data(rowRole).toInt()});
    });
}

int CheckPanel::check(const Vor_String& path) {
    m_findings->clear();
    for (const StandardsFinding& finding : checkStandard(path)) {
        auto* item = new QListWidgetItem(placeOf(finding) + shownMessage(finding.message));
        const bool isError = finding.severity == StandardsFinding::Severity::error;
        item->setIcon(style()->standardIcon(isError ? QStyle::SP_MessageBoxCritical
                                                    : QStyle::SP_MessageBoxWarning));
        item->setData(colRole, std::max(finding.column, 1));
        item->setData(rowRole, finding.row);
        m_findings->addItem(item);
    }
    m_message->setText(toQt(dialString(m_findings->count() ? sayCheckPanel : sayCheckClean)));
    return m_findings->count();
}

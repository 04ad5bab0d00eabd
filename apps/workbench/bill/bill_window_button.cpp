#include "workbench/bill/bill_window_button.h"

#include <QEvent>
#include <QMenu>

#include "core_api/text/text_helpers.h"
#include "platform/host/host.h"
#include "platform/window/message_box.h"
#include "workbench/bill/bill_words.h"
#include "workbench/grid/grid_view.h"
#include "workbench/sheet/sheet_export.h"
#include "workbench/sheet/sheet_printing.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/machine_path.h"
#include "workbench/window/qt_window_system.h"

namespace {

constexpr int gap = 6;      // pixels to the next button
constexpr int padding = 8;  // pixels more than the words and the arrow take

}  // namespace

void BillWindowButton::addTo(TwSheetEditorDlg& window, const Vor_String& file) {
    auto* system = dynamic_cast<QtWindowSystem*>(&WindowSystem::current());
    QWidget* frame = system ? system->widgetOf(window) : nullptr;
    QWidget* grid = frame ? system->widgetOf(window.spread()) : nullptr;
    QWidget* neighbour = frame ? system->widgetOf(*window.item(IDOK)) : nullptr;
    if (grid && neighbour) new BillWindowButton(window, file, *frame, *grid, *neighbour);
}

BillWindowButton::BillWindowButton(TwSheetEditorDlg& window, const Vor_String& file, QWidget& frame,
                                   QWidget& grid, QWidget& neighbour)
    : QPushButton(uiText(sayBillExport), &frame),
      m_sheet(window.spread()),
      m_file(file),
      m_grid(grid),
      m_neighbour(neighbour) {
    setAutoDefault(false);
    setFocusPolicy(Qt::NoFocus);  // the keys stay with the sheet, as with a tool bar
    auto* menu = new QMenu(this);
    addExports(*menu, [this](const ExportFormat& format) { exportAs(format); });
    menu->addSeparator();
    menu->addAction(uiText(sayPrintPreview), this, [this] { print(previewSheet); });
    QAction* printing = menu->addAction(uiText(sayPrint), Qt::CTRL | Qt::Key_P, this,
                                        [this] { print(askAndPrint); });
    frame.addAction(printing);  // for its keys
    setMenu(menu);
    neighbour.installEventFilter(this);
    place();
    show();
}

/// The window moves its own buttons as it grows; this one goes along.
bool BillWindowButton::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) place();
    return QPushButton::eventFilter(watched, event);
}

void BillWindowButton::place() {
    const QRect beside = m_neighbour.geometry();
    const int room = beside.left() - gap - m_grid.x();
    setGeometry(m_grid.x(), beside.top(), std::min(sizeHint().width() + padding, room),
                beside.height());
}

bool BillWindowButton::isReady() {
    auto* view = dynamic_cast<GridView*>(&m_grid);
    return !view || view->commitEdit();
}

void BillWindowButton::exportAs(const ExportFormat& format) {
    if (!isReady()) return;
    const QString name = toQt(removeExtension(getFileName(m_file)));
    const std::string path = askForExport(format, getPath(m_file), name);
    if (path.empty()) return;
    const bool hasPages = Vor_String(path).endsWith(".pdf");
    showMessage(exportSheet(m_sheet, path, exchange::CsvTexts::guarded),
                uiText(sayExported).arg(machinePath(path)));
    if (hasPages) showMessage({}, printProblems(m_sheet));
}

void BillWindowButton::print(QString (*doing)(Vor_Spread& sheet, QWidget* parent)) {
    if (isReady()) showMessage(doing(m_sheet, window()), printProblems(m_sheet));
}

void BillWindowButton::showMessage(const QString& failure, const QString& done) {
    if (!failure.isEmpty())
        showWarning(fromQt(uiTitle(sayBill)), fromQt(failure));
    else if (!done.isEmpty())
        acutPrint(fromQt(done) + "\n");
}

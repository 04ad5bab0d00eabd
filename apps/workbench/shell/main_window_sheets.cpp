// Sheets in the main window: their pages, what the File menu does with them, and files that are
// dropped on the window.
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>

#include "core_api/text/text_helpers.h"
#include "platform/paths.h"
#include "workbench/macro/macro_page.h"
#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_export.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/sheet_printing.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/shell/main_window.h"
#include "workbench/window/machine_path.h"

void MainWindow::addSheetFileActions(QMenu& file) {
    m_sheetActions.clear();  // those of another language
    const auto add = [&](QMenu& menu, int word, const QKeySequence& keys, auto action) {
        return menu.addAction(uiText(word), keys, this, action);
    };
    const auto addForSheet = [&](QMenu& menu, int word, const QKeySequence& keys, auto action) {
        m_sheetActions += add(menu, word, keys, [this, action] {
            if (SheetPage* page = currentSheet(); page && page->commitEdit()) action(*page);
        });
    };
    add(file, sayNewSheet, Qt::CTRL | Qt::Key_N, [this] { newSheet(); });
    add(file, sayOpenFile, Qt::CTRL | Qt::Key_O, [this] { askForFile(); });
    file.addSeparator();
    m_saveAction = add(file, saySave, Qt::CTRL | Qt::Key_S, [this] {
        if (auto* macro = dynamic_cast<MacroPage*>(m_pages->currentWidget())) macro->save();
        if (SheetPage* page = currentSheet()) page->save();
    });
    addForSheet(file, saySaveAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S,
                [](SheetPage& page) { page.saveAs(); });
    QMenu& exports = *file.addMenu(uiText(sayExportAs));
    addExports(exports, [this](const ExportFormat& format) { exportSheet(format); });
    m_sheetActions += exports.actions();
    m_sheetActions += exports.menuAction();
    file.addSeparator();
    addForSheet(file, sayPrintPreview, {},
                [](SheetPage& page) { page.showPrintOutcome(previewSheet(page.spread(), &page)); });
    addForSheet(file, sayPrint, Qt::CTRL | Qt::Key_P,
                [](SheetPage& page) { page.showPrintOutcome(askAndPrint(page.spread(), &page)); });
}

SheetPage* MainWindow::currentSheet() const {
    return dynamic_cast<SheetPage*>(m_pages->currentWidget());
}

SheetPage* MainWindow::newSheet() {
    auto file = std::make_unique<SheetFile>();
    file->startNew();
    return showSheet(new SheetPage(std::move(file), uiText(sayUntitled).arg(++m_newSheets)));
}

SheetPage* MainWindow::openSheet(const Vor_String& path) {
    for (int i = 0; i < m_pages->count(); ++i) {
        auto* page = dynamic_cast<SheetPage*>(m_pages->widget(i));
        if (!page || !isSameFile(page->file().path(), path.str())) continue;
        m_pages->setCurrentWidget(page);
        return page;
    }
    auto file = std::make_unique<SheetFile>();
    std::string failure;
    if (!file->open(path.str(), failure)) {
        complain(toQt(failure));
        return nullptr;
    }
    const QString name = toQt(removeExtension(getFileName(path)));
    return showSheet(new SheetPage(std::move(file), name));
}

// The key is never asked for: a sheet may get another file, and is found by that.
SheetPage* MainWindow::showSheet(SheetPage* page) {
    showPage(page, {}, {}, "sheet");
    showTitle(*page);
    connect(page, &SheetPage::stateChanged, this, [this, page] { showTitle(*page); });
    page->view().setFocus();
    return page;
}

void MainWindow::showTitle(SheetPage& page) {
    const int index = m_pages->indexOf(&page);
    if (index < 0) return;
    const QString title = page.title().replace("&", "&&") + (page.isChanged() ? " *" : "");
    if (m_pages->tabText(index) != title) m_pages->setTabText(index, title);
    m_pages->setTabToolTip(index, machinePath(page.file().path()));
}

// The menu bar has the menus of the page in front.
void MainWindow::followPage() {
    for (const QPointer<QMenu>& menu : m_pageMenus)
        if (menu) menuBar()->removeAction(menu->menuAction());
    m_pageMenus.clear();
    SheetPage* page = currentSheet();
    for (QAction* action : m_sheetActions) action->setEnabled(page != nullptr);
    if (m_saveAction)
        m_saveAction->setEnabled(page || dynamic_cast<MacroPage*>(m_pages->currentWidget()));
    if (!page || !m_viewMenu) return;
    for (QMenu* menu : page->commands().menus()) {
        menuBar()->insertMenu(m_viewMenu->menuAction(), menu);
        m_pageMenus += menu;
    }
}

void MainWindow::askForFile() {
    const QString chosen = QFileDialog::getOpenFileName(
        this, uiTitle(sayOpenFile), QString::fromStdString(m_settings.library),
        uiText(sayAllFilter) + " (*.sss *.tws *.csv *.txt *.macro *.pr)");
    if (chosen.isEmpty()) return;
    const auto inside = paths::toInside(chosen.toStdString());
    // A standard is opened to be edited here; the library's tree opens it to be run.
    if (inside && isSheetPath(*inside) && QFileInfo::exists(chosen))
        openSheet(Vor_String(*inside));
    else
        openFile(chosen);
}

void MainWindow::exportSheet(const ExportFormat& format) {
    SheetPage* page = currentSheet();
    if (!page || !page->commitEdit()) return;
    const std::string path = askForExport(format, getPath(Vor_String(page->file().path())),
                                          QFileInfo(page->title()).completeBaseName());
    if (!path.empty()) page->exportTo(path);
}

// --- files dropped on the window
// ------------------------------------------------------------------

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) return event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) openFile(url.toLocalFile());
}

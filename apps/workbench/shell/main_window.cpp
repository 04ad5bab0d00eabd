#include "workbench/shell/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QVBoxLayout>

#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "frame/starters.h"
#include "platform/paths.h"
#include "platform/window/message_box.h"
#include "workbench/bill/bill_words.h"
#include "workbench/grid/show_grids.h"
#include "workbench/macro/macro_page.h"
#include "workbench/module/starters_menu.h"
#include "workbench/module/starts.h"
#include "workbench/run/example_values.h"
#include "workbench/run/run_page.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/shell/help_window.h"
#include "workbench/shell/settings_dialog.h"
#include "workbench/shell/start_page.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

namespace {

constexpr const char* keyProperty = "pageKey";

std::map<std::string, files::Stamp> tableStamps() {
    std::map<std::string, files::Stamp> stamps;
    if (gSettings.libDir().isEmpty()) return stamps;
    for (const std::string& table :
         files::find((gSettings.libDir() + "prof\\").view(), "*.pr", false))
        if (const auto stamp = files::stampOf(table)) stamps[table] = *stamp;
    return stamps;
}

}  // namespace

MainWindow::MainWindow(WorkbenchSettings settings)
    : m_settings(std::move(settings)),
      m_pages(new QTabWidget),
      m_tree(new LibraryTree),
      m_pane(new CommandPane),
      m_host(*m_pane, m_hostWindow, *this),
      m_moduleData([this](const Vor_String& path) {
          QWidget* page = path.isEmpty() ? m_pages->currentWidget() : pageOf(toQt(path));
          return dynamic_cast<MacroPage*>(page);
      }),
      m_bills([this](const Vor_String& path) -> const Vor_DbMacro* {
          auto* page = dynamic_cast<MacroPage*>(pageOf(toQt(path)));
          return page ? &page->macro().macro() : nullptr;
      }) {
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(manual);
    setWindowIcon(QIcon(":/icons/vormant-workbench.svg"));
    m_hostWindow.create({"Host", "Vormant", {0, 0, 1200, 800}, 0, 0, true}, nullptr);
    m_windows.represent(m_hostWindow, *this);
    showGrids(m_windows);
    m_session.emplace(m_host);
    m_settings.apply();
    setWindowTitle("Vormant");
    resize(1200, 800);
    m_pages->setTabsClosable(true);
    m_pages->setDocumentMode(true);
    m_pages->setMovable(true);
    setAcceptDrops(true);
    connect(m_pages, &QTabWidget::currentChanged, this, [this] { followPage(); });
    connect(m_pages, &QTabWidget::tabCloseRequested, this, [this](int index) { closePage(index); });
    setCentralWidget(m_pages);
    m_moduleData.setSectionPages(
        {[this] { return sectionInFront(); }, [this] { sectionsChanged(); }});
    m_tree->setOpener([this](LibraryKind kind, const Vor_String& path) { open(kind, path); });
    makeDocks();
    makeMenus();
    showStartPage();
    m_refreshSoon.setSingleShot(true);
    m_refreshSoon.setInterval(200);
    connect(&m_refreshSoon, &QTimer::timeout, this, [this] { libraryChanged(); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this,
            [this] { m_refreshSoon.start(); });
}

// Pages use the window system, which is a part of this.
MainWindow::~MainWindow() {
    m_pages->disconnect(this);
    while (m_pages->count() > 0) delete m_pages->widget(0);
}

void MainWindow::makeDocks() {
    auto* library = new QWidget;
    auto* layout = new QVBoxLayout(library);
    layout->setContentsMargins(0, 0, 0, 0);
    m_search = new QLineEdit;
    m_search->setPlaceholderText(uiText(wordSearch));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_tree->filter(text); });
    layout->addWidget(m_search);
    layout->addWidget(m_tree);
    const auto dock = [this](int title, QWidget* widget, Qt::DockWidgetArea area) {
        auto* made = new QDockWidget(uiText(title), this);
        made->setObjectName(QString::number(title));
        made->setWidget(widget);
        addDockWidget(area, made);
        return made;
    };
    QDockWidget* left = dock(wordLibrary, library, Qt::LeftDockWidgetArea);
    QDockWidget* below = dock(wordCommandLine, m_pane, Qt::BottomDockWidgetArea);
    resizeDocks({left}, {240}, Qt::Horizontal);
    resizeDocks({below}, {110}, Qt::Vertical);
}

void MainWindow::makeMenus() {
    makeFileMenu();
    addStarters(*menuBar()->addMenu(uiText(wordModule)), m_moduleData);
    QMenu* view = m_viewMenu = menuBar()->addMenu(uiText(wordView));
    for (QDockWidget* dock : findChildren<QDockWidget*>())
        view->addAction(dock->toggleViewAction());
    view->addSeparator();
    view->addAction(uiText(wordReload), QKeySequence(Qt::Key_F5), this,
                    [this] { libraryChanged(); });
    view->addAction(uiText(wordStart), this, [this] { showStartPage(); });
    makeHelpMenu();
    followPage();
}

void MainWindow::makeFileMenu() {
    QMenu* file = menuBar()->addMenu(uiText(wordFile));
    addSheetFileActions(*file);
    file->addSeparator();
    file->addAction(uiText(sayBill), this, [this] { makeBill(); });
    file->addSeparator();
    file->addAction(uiText(wordOpenLibrary), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O), this,
                    [this] { askForLibrary(); });
    m_recentMenu = file->addMenu(uiText(wordRecentLibraries));
    connect(m_recentMenu, &QMenu::aboutToShow, this, [this] { fillRecentMenu(); });
    file->addSeparator();
    file->addAction(uiText(wordClosePage), QKeySequence::Close, this,
                    [this] { closePage(m_pages->currentIndex()); });
    file->addAction(uiText(wordSettings), this, [this] { changeSettings(); });
    file->addSeparator();
    file->addAction(uiText(wordQuit), QKeySequence::Quit, this, [this] { close(); });
}

void MainWindow::makeHelpMenu() {
    QMenu* help = menuBar()->addMenu(uiText(wordHelp));
    help->addAction(uiText(wordManual), QKeySequence(Qt::Key_F1), this,
                    [this] { HelpWindow::open(this); });
    help->addAction(uiText(wordAbout), this, [this] {
        QMessageBox::about(
            this, uiText(wordAbout),
            uiText(wordAbout) + " " + VORMANT_VERSION + "\n\n" + uiText(wordAboutText));
    });
}

void MainWindow::fillRecentMenu() {
    m_recentMenu->clear();
    for (const std::string& folder : m_settings.recent)
        m_recentMenu->addAction(QString::fromStdString(folder).replace("&", "&&"), this,
                                [this, folder] { openLibrary(folder); });
}

// --- the library --------------------------------------------------------------------------------

bool MainWindow::openLibrary(const std::string& folder) {
    const QString shown = QString::fromStdString(folder);
    const auto inside = paths::toInside(folder);
    if (!QFileInfo(shown).isDir() || !inside) {
        complain(shown + ": " + uiText(wordLibraryGone));
        return false;
    }
    gSettings.setLibDir(*inside);
    m_tableStamps = tableStamps();
    m_moduleData.clear();
    m_settings.noteLibrary(folder);
    if (auto* page = dynamic_cast<StartPage*>(pageOf(uiText(wordStart))))
        page->showRecent(m_settings.recent);
    m_isGone = false;
    save();
    m_tree->clear();
    m_tree->refresh();
    watchLibrary();
    setWindowTitle(QDir(shown).dirName() + " – Vormant");
    return true;
}

// The folders that the tree lists, and the library's own, to hear when it vanishes.
void MainWindow::watchLibrary() {
    if (!m_watcher.directories().isEmpty()) m_watcher.removePaths(m_watcher.directories());
    const QString root = QString::fromStdString(m_settings.library);
    QStringList folders{root};
    for (const char* name :
         {"Connection Standards", "Macros", "prof", "Dialog Templates", "Cutting Stock",
          "Connection Standards/Childs", "Connection Standards/Parents"})
        if (QFileInfo(root + "/" + name).isDir()) folders += root + "/" + name;
    const QDir stock(root + "/Cutting Stock");
    for (const QString& item : stock.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        folders += stock.filePath(item);
    m_watcher.addPaths(folders);
}

void MainWindow::libraryChanged() {
    if (m_settings.library.empty()) return;
    const QString shown = QString::fromStdString(m_settings.library);
    if (!QFileInfo(shown).isDir()) {
        if (!m_isGone) complain(shown + ": " + uiText(wordLibraryGone));
        m_isGone = true;
    } else {
        m_isGone = false;
        watchLibrary();
    }
    m_tree->refresh();
    refreshSectionTables();
    followFiles();
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) followFiles();
    return QMainWindow::event(event);
}

/// A dialog works on what a page has; when it closes the window is activated.
void MainWindow::followFiles() {
    if (!m_session || QApplication::activeModalWidget()) return;
    if (auto now = tableStamps(); now != m_tableStamps) {
        m_tableStamps = std::move(now);
        gSectionTables.reload();
        sectionsChanged();
    }
    for (int i = 0; i < m_pages->count(); ++i) {
        QWidget* page = m_pages->widget(i);
        if (auto* run = dynamic_cast<RunPage*>(page)) run->followFile();
        if (auto* macro = dynamic_cast<MacroPage*>(page)) macro->followFile();
        if (auto* sheet = dynamic_cast<SheetPage*>(page)) sheet->followFile();
    }
}

void MainWindow::askForLibrary() {
    const QString folder = QFileDialog::getExistingDirectory(
        this, uiText(wordChooseLibrary), QString::fromStdString(m_settings.library));
    if (!folder.isEmpty()) openLibrary(folder.toStdString());
}

void MainWindow::changeSettings() {
    SettingsDialog dialog(m_settings, this);
    if (dialog.exec() != QDialog::Accepted) return;
    // Not here: this is called from a menu, which a new language replaces.
    QTimer::singleShot(0, this, [this, changed = dialog.settings()] { take(changed); });
}

void MainWindow::take(WorkbenchSettings changed) {
    const std::string before = m_settings.library;
    const std::string library = std::exchange(changed.library, before);
    const bool speaksOtherwise = changed.language != m_settings.language;
    if (speaksOtherwise) changed.sessionLanguage.reset();
    m_settings = changed;
    m_settings.apply();
    save();
    if (speaksOtherwise) retranslate();
    if (library != before) openLibrary(library);
    m_tree->refresh();
}

// Pages that are open keep their words until they are opened again.
void MainWindow::retranslate() {
    menuBar()->clear();
    qDeleteAll(menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    makeMenus();
    for (QDockWidget* dock : findChildren<QDockWidget*>())
        dock->setWindowTitle(uiText(dock->objectName().toInt()));
    m_search->setPlaceholderText(uiText(wordSearch));
    for (int i = m_pages->count(); i-- > 0;)
        if (dynamic_cast<StartPage*>(m_pages->widget(i))) closePage(i);
    showStartPage();
}

void MainWindow::save() {
    std::string error;
    if (!m_settings.save(error)) m_pane->print(error + "\n");
}

// --- pages --------------------------------------------------------------------------------------

QWidget* MainWindow::pageOf(const QString& key) const {
    for (int i = 0; i < m_pages->count(); ++i)
        if (m_pages->widget(i)->property(keyProperty).toString() == key) return m_pages->widget(i);
    return nullptr;
}

QWidget* MainWindow::bringForward(const QString& key) {
    QWidget* there = pageOf(key);
    if (there) m_pages->setCurrentWidget(there);
    return there;
}

void MainWindow::showPage(QWidget* page, const QString& title, const QString& tip,
                          const QString& key) {
    page->setProperty(keyProperty, key.isEmpty() ? tip : key);
    const int index = m_pages->addTab(page, title);
    m_pages->setTabToolTip(index, tip);
    m_pages->setCurrentIndex(index);
}

void MainWindow::showStartPage() {
    const QString key = uiText(wordStart);
    if (bringForward(key)) return;
    auto* page = new StartPage(m_settings.recent, [this](const std::string& folder) {
        if (folder.empty())
            askForLibrary();
        else
            openLibrary(folder);
    });
    showPage(page, key, key);
}

void MainWindow::closePage(int index) {
    QWidget* page = m_pages->widget(index);
    if (!page || !mayClose(page)) return;
    m_pages->removeTab(index);
    page->deleteLater();
}

/// Asks about changes that were not saved; false keeps the page.
bool MainWindow::mayClose(QWidget* page) {
    auto* macro = dynamic_cast<MacroPage*>(page);
    auto* sheet = dynamic_cast<SheetPage*>(page);
    const bool isChanged = (macro && macro->isChanged()) || (sheet && sheet->isChanged());
    if (!isChanged) return true;
    m_pages->setCurrentWidget(page);
    const MessageBox question{"Vormant", dialString(wordSaveChanges).str(), MessageIcon::question,
                              MessageButtons::yesNoCancel};
    const int answer = showMessage(question);
    if (answer == IDYES) return macro ? macro->save() : sheet->save();
    return answer == IDNO;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    for (int i = 0; i < m_pages->count(); ++i)
        if (!mayClose(m_pages->widget(i))) return event->ignore();
    m_bills.close();
    m_session.reset();  // its modeless dialogs go with the window
    event->accept();
}

QWidget* MainWindow::open(LibraryKind kind, const Vor_String& path) {
    switch (kind) {
        case LibraryKind::standard:
            return openStandard(path);
        case LibraryKind::macro:
            return openMacro(path);
        case LibraryKind::sectionTable:
            return openSectionTable(path);
        case LibraryKind::dialogTemplate:
            StartDlgDesigner(path);
            return nullptr;
        case LibraryKind::cuttingStock:
            starts::cuttingStock(m_moduleData);
            return nullptr;
    }
    return nullptr;
}

QWidget* MainWindow::openFile(const QString& path) {
    const auto inside = paths::toInside(path.toStdString());
    if (!inside || !QFileInfo::exists(path)) {
        complain(path + ": " + uiText(wordNoSuchFile));
        return nullptr;
    }
    if (QFileInfo(path).isDir()) {
        openLibrary(path.toStdString());
        return nullptr;
    }
    if (const auto kind = libraryKindOf(*inside)) return open(*kind, *inside);
    if (isSheetPath(*inside)) return openSheet(*inside);
    complain(path + ": " + uiText(wordNotOpened));
    return nullptr;
}

QWidget* MainWindow::openMacro(const Vor_String& path) {
    const QString key = toQt(path);
    if (QWidget* there = bringForward(key)) return there;
    Vor_String failure;
    auto macro = runs::MacroRun::open(path, failure);
    if (!macro) {
        complain(toQt(failure));
        return nullptr;
    }
    auto* page = new MacroPage(std::move(macro));
    showPage(page, toQt(removeExtension(getFileName(path))), key);
    return page;
}

RunPage* MainWindow::openStandard(const Vor_String& path) {
    const QString key = toQt(path);
    if (auto* there = dynamic_cast<RunPage*>(bringForward(key))) return there;
    Vor_String failure;
    auto session = RunSession::open(path, failure);
    if (!session) {
        complain(toQt(failure));
        return nullptr;
    }
    for (const auto& [name, value] : exampleValues(path)) session->setValue(name, value);
    auto* page = new RunPage(std::move(session));
    page->setSheetOpener([this](const Vor_String& sheet) { openSheet(sheet); });
    page->setAuthor(QString::fromStdString(m_settings.author));
    showPage(page, toQt(removeExtension(getFileName(path))), key);
    return page;
}

void MainWindow::makeBill() {
    Vor_StringArray macros = m_tree->selected(LibraryKind::macro);
    if (auto* page = dynamic_cast<MacroPage*>(m_pages->currentWidget()))
        macros = {page->macro().path()};
    m_bills.askAndMake(macros, this);
}

void MainWindow::complain(const QString& text) {
    m_pane->print(fromQt(text) + "\n");
    showWarning("Vormant", fromQt(text));
}

// The main window: the stand-in for a CAD host around the module's dialogs. The library on the
// left, pages in the middle, what the module prints below.
#pragma once

#include <QFileSystemWatcher>
#include <QMainWindow>
#include <QPointer>
#include <QTabWidget>
#include <QTimer>
#include <map>
#include <string>

#include "platform/files.h"
#include "workbench/bill/bill_maker.h"
#include "workbench/module/module_data.h"
#include "workbench/shell/command_pane.h"
#include "workbench/shell/host_session.h"
#include "workbench/shell/library_tree.h"
#include "workbench/shell/workbench_settings.h"
#include "workbench/window/qt_window_system.h"

class QLineEdit;
struct ExportFormat;
class RunPage;
class SheetPage;
class TablePage;

class MainWindow : public QMainWindow {
  public:
    explicit MainWindow(WorkbenchSettings settings);
    ~MainWindow() override;

    /// Machine path, UTF-8. False, with the old library kept, after telling why.
    bool openLibrary(const std::string& folder);
    /// A page for what the tree shows; the one that is open already comes to the front. Null after
    /// telling why.
    QWidget* open(LibraryKind kind, const Vor_String& path);
    /// As what it is (see libraryKindOf), else as a sheet; a folder becomes the library. A machine
    /// path. Null, after telling why, for what no page shows.
    QWidget* openFile(const QString& path);
    RunPage* openStandard(const Vor_String& path);
    QWidget* openMacro(const Vor_String& path);
    QWidget* openSectionTable(const Vor_String& path);  // main_window_sections.cpp

    /// As if the user had confirmed them in the dialog of the settings.
    void take(WorkbenchSettings changed);
    /// A document, or a text file of other programs, to be edited; null after telling why.
    SheetPage* openSheet(const Vor_String& path);
    SheetPage* newSheet();
    /// The sheet in front; null when another page is.
    SheetPage* currentSheet() const;

    /// Asks what the bill is made of, beginning with the macros that are open or selected.
    void makeBill();

    LibraryTree& tree() { return *m_tree; }
    BillMaker& bills() { return m_bills; }
    CommandPane& commandPane() { return *m_pane; }
    QTabWidget& pages() { return *m_pages; }
    WorkbenchHost& host() { return m_host; }
    ModuleData& moduleData() { return m_moduleData; }

  private:
    void makeDocks();
    void makeMenus();
    void makeFileMenu();
    void makeHelpMenu();
    void fillRecentMenu();
    void showStartPage();
    void askForLibrary();
    void changeSettings();
    void retranslate();
    void closePage(int index);
    bool mayClose(QWidget* page);
    void closeEvent(QCloseEvent* event) override;
    /// `key` finds the page again; empty for the tip.
    void showPage(QWidget* page, const QString& title, const QString& tip, const QString& key = {});
    QWidget* pageOf(const QString& key) const;
    /// Null when there is no such page.
    QWidget* bringForward(const QString& key);
    void watchLibrary();
    void libraryChanged();
    /// Pages and section tables show what other programs have written meanwhile.
    void followFiles();
    bool event(QEvent* event) override;
    void complain(const QString& text);
    void save();

    // main_window_sections.cpp
    QWidget* openForeignTable(const Vor_String& path);
    void addSize(TablePage& page);
    void refreshSectionTables();
    void sectionsChanged();
    Vor_String sectionInFront() const;

    // main_window_sheets.cpp
    void addSheetFileActions(QMenu& file);
    void askForFile();
    void exportSheet(const ExportFormat& format);
    SheetPage* showSheet(SheetPage* page);
    void showTitle(SheetPage& page);
    void followPage();
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

    QtWindowSystem m_windows;
    CWnd m_hostWindow;  ///< stands for this window in the module
    WorkbenchSettings m_settings;
    QTabWidget* m_pages;
    LibraryTree* m_tree;
    CommandPane* m_pane;
    WorkbenchHost m_host;
    ModuleData m_moduleData;
    std::optional<HostSession> m_session;  ///< until the window is closed
    BillMaker m_bills;                     ///< its window goes first, inside the session
    QMenu* m_recentMenu = nullptr;
    QLineEdit* m_search = nullptr;
    QPointer<QMenu> m_viewMenu;
    QList<QPointer<QMenu>> m_pageMenus;  ///< of the page in front
    QList<QAction*> m_sheetActions;      ///< that need a sheet in front
    QAction* m_saveAction = nullptr;
    int m_newSheets = 0;
    QFileSystemWatcher m_watcher;
    QTimer m_refreshSoon;
    std::map<std::string, files::Stamp> m_tableStamps;  ///< of the section tables as last read
    bool m_isGone = false;  ///< the library folder was told to be missing
};

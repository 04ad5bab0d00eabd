// The page of one sheet: everything a spreadsheet's user does to it, each doing one step that can
// be undone. What the steps are is the module's; this shows them.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "workbench/sheet/check_panel.h"
#include "workbench/sheet/find_bar.h"
#include "workbench/sheet/formula_bar.h"
#include "workbench/sheet/sheet_file.h"
#include "workbench/sheet/sheet_view.h"

class QSplitter;
class SheetCommands;

class SheetPage : public QWidget {
    Q_OBJECT

  public:
    /// Shows `file`, which was opened or started. `name` is the title of a sheet without a file.
    SheetPage(std::unique_ptr<SheetFile> file, QString name, QWidget* parent = nullptr);
    ~SheetPage() override;

    SheetFile& file() { return *m_file; }
    SheetSpread& spread() { return m_file->spread(); }
    editor::SheetEditor& editor() { return m_file->editor(); }
    control::Grid& grid() { return spread().grid(); }
    SheetView& view() { return *m_view; }
    FormulaBar& formulaBar() { return *m_bar; }
    FindBar& findBar() { return *m_find; }
    CheckPanel& checkPanel() { return *m_check; }
    SheetCommands& commands() { return *m_commands; }
    QString message() const { return m_message->text(); }
    QString summary() const { return m_summary->text(); }

    QString title() const;
    bool isChanged() const { return m_file->isChanged() || m_view->isEditing(); }
    /// Asks for a name when there is none, and before it overwrites what another program wrote.
    /// False when it was not saved; the reason was told.
    bool save();
    bool saveAs();
    bool saveTo(const std::string& path);
    /// By the extension: ".csv", ".xlsx" or ".pdf".
    bool exportTo(const std::string& path);
    void reload();
    /// Loads the sheet again when another program wrote it, unless there is something to save.
    void followFile();
    /// Why nothing was printed, if it was not; else what was left out.
    void showPrintOutcome(const QString& failure);
    void check();

    /// After a step: shows the sheet, or why it was refused. Gives `isDone`.
    bool finish(bool isDone);
    /// As finish, after undoing and redoing: the user sees where.
    void finishAt(bool isDone);
    void goTo(const control::Block& block);
    void showMessage(const QString& message, bool isFailure = false);
    /// Ends typing by entering it. False when the cell refuses it.
    bool commitEdit() { return m_view->commitEdit(); }

  signals:
    /// Another title, or changes that were not saved yet, or were.
    void stateChanged();

  private:
    QWidget* makeStatus();
    void connectParts();
    void follow();
    void summarise();
    void markStandard();
    void enterFromBar(const QString& text);

    std::unique_ptr<SheetFile> m_file;
    QString m_name;
    SheetView* m_view = nullptr;
    FormulaBar* m_bar = nullptr;
    FindBar* m_find = nullptr;
    CheckPanel* m_check = nullptr;
    QLabel* m_message = nullptr;
    QLabel* m_summary = nullptr;
    QTimer m_summariseSoon;
    SheetCommands* m_commands = nullptr;
};

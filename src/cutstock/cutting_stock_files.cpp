// The files of the cutting-stock dialog: one at a time, or those of all items.
#include "core_api/dialogs/file_dialogs.h"
#include "core_api/files.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "cutstock/cutting_stock_dialog.h"
#include "cutstock/load_all.h"
#include "platform/host/host.h"
#include "platform/window/window_system.h"

using cutstock::FileKind;

namespace {

constexpr int openTitleText = 618, saveTitleText = 619, noRowsNowText = 25204, writtenText = 25205;

}  // namespace

/// `path` proposes a folder or a file in it.
bool TwCuttingStockDlg::askPath(bool isOpen, const FileKind& kind, Vor_String& path) {
    if (!DlgOpenSave(this, isOpen, dialString(isOpen ? openTitleText : saveTitleText),
                     dialString(kind.caption), kind.extension, path))
        return false;
    path = cutstock::storedPath(path, kind);
    return true;
}

void TwCuttingStockDlg::openFile(const FileKind& kind) {
    const int item = current();
    if (!cutstock::isItem(m_data, item)) return;
    takeItemBack();
    Vor_String message;
    const auto folder = cutstock::itemFolder(m_data.itemNames[item], message);
    if (!folder || ObjectExportCreateDirectory(*folder, &message) != Acad::eOk)
        return report({message});
    const auto newest = cutstock::newestFile(*folder, kind);
    Vor_String path = newest ? newest->path : *folder;
    if (!askPath(true, kind, path)) return;
    const bool isRead = cutstock::readItem(m_data, item, kind, path, message);
    showItem();
    if (!isRead) report({message, dialString(noRowsNowText)});
}

void TwCuttingStockDlg::saveFile(const FileKind& kind) {
    takeItemBack();
    Vor_StringArray failures;
    save(current(), kind, Asks::forName, failures);
    report(failures);
}

/// The table as it is in the data, under the default name or one that is asked for.
void TwCuttingStockDlg::save(int item, const FileKind& kind, Asks asks, Vor_StringArray& failures) {
    if (!cutstock::isItem(m_data, item)) return;
    Vor_String message;
    const auto folder = cutstock::itemFolder(m_data.itemNames[item], message);
    if (!folder || ObjectExportCreateDirectory(*folder, &message) != Acad::eOk) {
        failures.append(message);
        return;
    }
    Vor_String path = *folder + cutstock::defaultFileName(*folder, kind);
    if (asks == Asks::forName && !askPath(false, kind, path)) return;
    const bool isSaved = asks == Asks::forName
                             ? cutstock::saveItem(m_data, item, kind, path, message)
                             : cutstock::saveNewItem(m_data, item, kind, *folder, path, message);
    if (isSaved)
        acutPrint(path + ": " + dialString(writtenText) + "\n");
    else
        failures.append(message);
}

void TwCuttingStockDlg::runAction() {
    if (!cutstock::isItem(m_data, current())) return;
    takeItemBack();
    m_data.savesAll ? saveAll() : loadAll();
}

void TwCuttingStockDlg::saveAll() {
    const Asks asks = itemAs<CButton>(askNamesCheck)->isChecked() ? Asks::forName : Asks::no;
    Vor_StringArray failures;
    for (int item = 0; cutstock::isItem(m_data, item); ++item)
        save(item, cutstock::stockKind, asks, failures);
    report(failures);
}

// A folder is there for the files that the report misses.
void TwCuttingStockDlg::loadAll() {
    Vor_String ignored;  // a folder that cannot be made has no files, which is what is told
    for (const Vor_String& name : m_data.itemNames)
        if (const auto folder = cutstock::itemFolder(name, ignored))
            (void)ObjectExportCreateDirectory(*folder);
    const cutstock::LoadedAll loaded = cutstock::loadAll(m_data);
    showItem();
    for (const Vor_String& failure : loaded.failures) acutPrint(failure + "\n");
    ExportStartDlgInfo(loaded.report, this);
}

/// On the command line, and to whoever sits before the screen.
void TwCuttingStockDlg::report(const Vor_StringArray& failures) {
    if (failures.isEmpty()) return;
    const Vor_String text = arrToStr(failures, "\n");
    if (WindowSystem::isAttended()) acutPrint(text + "\n");
    showWarning(this->text(), text);
}
